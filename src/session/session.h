// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <memory>
#include <span>
#include <vector>

#include <QList>
#include <QObject>
#include <QString>

#include <session/laps/lapcutter.h>
#include <session/recording/recording.h>
#include <session/recording/sessionmerge.h>

namespace zuno {

class Map;

/// One recording: what its file says, and, once it has a map, the laps cut from it.
///
/// The samples are decoded when they are first asked for. A session owns its samples and laps; it
/// points at its map without owning it. Changing a session never touches its file.
class Session : public QObject
{
    Q_OBJECT

public:
    /// Fetches the samples of a session, with their readings attached.
    struct Samples
    {
        Points points;
        ReadingLists lists;
    };
    using SampleSource = std::function<Samples()>;

    explicit Session(QString filePath, QObject *parent = nullptr);
    ~Session() override;

    [[nodiscard]] const QString &filePath() const { return m_filePath; }
    void setFilePath(const QString &path) { m_filePath = path; }
    /// The last component of the path, with its extension.
    [[nodiscard]] QString fileName() const;

    /// What the file says around the samples.
    [[nodiscard]] const Recording &recording() const { return m_recording; }
    void setRecording(Recording recording) { m_recording = std::move(recording); }
    void setSampleSource(SampleSource source) { m_sampleSource = std::move(source); }

    /// How many samples the session has; known without decoding them.
    [[nodiscard]] qint64 sampleCount() const { return m_recording.sampleCount; }
    /// Every sample, those included that a file cut short holds no bytes for.
    [[nodiscard]] const Points &samples() const;
    /// The samples that the file holds whole: the ones to compute with and to show.
    [[nodiscard]] std::span<const PointAcquisition> wholeSamples() const;
    [[nodiscard]] const ReadingLists &readingLists() const;
    /// Whether there was not enough memory for samples or laps: the session has none then, until
    /// release().
    [[nodiscard]] bool lacksMemory() const { return m_lacksMemory; }
    /// Runs the smoothing pass; does nothing when it has run before.
    void smooth();
    /// Lets go of samples and laps, which take a megabyte or more; what they said about the session
    /// (best lap, ideal time, laps thrown out) stays as text. Samples that are asked for afterwards
    /// are decoded anew; restore() brings the laps back.
    void release();
    /// Smooths and cuts a session on its map again after release(); otherwise does nothing.
    void restore();

    /// Whether the session has never been opened for display; the file's byte.
    [[nodiscard]] quint8 newSession() const { return m_newSession; }
    void setNewSession(quint8 flag) { m_newSession = flag; }

    [[nodiscard]] const SessionInformation &information() const { return m_information; }
    void setInformation(SessionInformation information) { m_information = std::move(information); }
    /// Takes the display name of the map when it is given one.
    [[nodiscard]] QString circuitName() const { return m_information.circuitName.text(); }
    [[nodiscard]] QString eventName() const { return m_information.event.text(); }
    [[nodiscard]] QString driver() const { return m_information.driver.text(); }
    [[nodiscard]] QString vehicle() const { return m_information.vehicle.text(); }
    [[nodiscard]] QString condition() const { return m_information.condition.text(); }
    [[nodiscard]] qint32 temperature() const { return m_information.temperature; }
    [[nodiscard]] QString tyres() const { return m_information.tyres.text(); }
    [[nodiscard]] QString notes() const { return m_information.notes.text(); }
    void setCircuitName(const QString &text) { m_information.circuitName.set(text); }
    void setEventName(const QString &text) { m_information.event.set(text); }
    void setDriver(const QString &text) { m_information.driver.set(text); }
    void setVehicle(const QString &text) { m_information.vehicle.set(text); }
    void setCondition(const QString &text) { m_information.condition.set(text); }
    void setTemperature(qint32 degrees) { m_information.temperature = degrees; }
    void setTyres(const QString &text) { m_information.tyres.set(text); }
    void setNotes(const QString &text) { m_information.notes.set(text); }
    /// Texts of the best lap and of the ideal time: computed while the session has laps,
    /// otherwise what the file says.
    [[nodiscard]] QString bestLapText() const { return bestLapStored().text(); }
    [[nodiscard]] QString idealTimeText() const { return idealTimeStored().text(); }
    [[nodiscard]] StoredText bestLapStored() const;
    [[nodiscard]] StoredText idealTimeStored() const;
    /// The numbers of the laps thrown out: by the laps' flags, without laps as stored.
    [[nodiscard]] QList<quint8> invalidLaps() const;
    /// Stores the numbers of laps thrown out; laps that are cut already keep their flags.
    void setInvalidLaps(const QList<quint8> &numbers) { m_information.invalidLaps = numbers; }

    /// Whether something that the rider has said about the session is not in its file yet.
    [[nodiscard]] bool isUnsaved() const { return m_isUnsaved; }
    void setUnsaved(bool unsaved) { m_isUnsaved = unsaved; }

    /// What a rewrite would put into the file now, and what the file held when it was last read or
    /// written.
    [[nodiscard]] StoredState state() const;
    [[nodiscard]] const StoredState &storedState() const { return m_stored; }
    void setStoredState(StoredState state) { m_stored = std::move(state); }
    /// Joins what the file holds now with what was changed here since storedState(): laps are
    /// thrown out and ranked accordingly. False when the file still holds storedState().
    bool takeOver(const StoredState &file);

    [[nodiscard]] const Map *map() const { return m_map; }
    /// Gives the session another map (or none) and cuts it into laps. The same map changes
    /// nothing.
    void setMap(const Map *map);
    /// Cuts the session into laps on its map. Without a map, or with one that has no start point,
    /// it has no laps.
    void cutIntoLaps();
    /// Computes best lap, cumulated times, best sectors and ideal time from the laps' flags.
    void rankLaps();
    /// Throws a lap out or takes it back and ranks the laps anew.
    void setLapValid(std::size_t index, bool valid);

    [[nodiscard]] const LapResults &results() const { return m_results; }
    [[nodiscard]] const LapList &laps() const { return m_results.laps; }

Q_SIGNALS:
    void mapInfoChanged();

private:
    void fetchSamples() const;
    [[nodiscard]] std::size_t wholeCount(const Points &points) const;
    void flagLaps();
    void guard(const std::function<void()> &work) const;

    QString m_filePath;
    Recording m_recording;
    SessionInformation m_information;
    StoredState m_stored;
    LapResults m_results;
    SampleSource m_sampleSource;
    // Decoded on first use, which is no change of the session.
    mutable Samples m_samples;
    mutable bool m_fetched = false;
    mutable bool m_lacksMemory = false;
    const Map *m_map = nullptr;
    quint8 m_newSession = 1;
    bool m_smoothed = false;
    bool m_released = false;
    bool m_isUnsaved = false;
};

} // namespace zuno
