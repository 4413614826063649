// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QHash>
#include <QList>
#include <QString>

#include <base/filestamp.h>
#include <insight/sessioninsight.h>
#include <session/session.h>

namespace zuno {

class MapLibrary;
class Settings;

/// Where references are looked for; all must outlive whoever looks.
struct ReferenceSources
{
    QList<Session *> sessions;
    const MapLibrary &maps;
    const Settings &settings;
};

/// The session that is looked at, with its map and what it tells; both must outlive the question.
struct SessionOnCircuit
{
    const Session &session;
    const SessionInsight &insight;
};

/// A lap to hold others against, on the outline of the circuit that was asked about.
struct ReferenceLap
{
    /// Milliseconds.
    qint32 time = 0;
    InsightLap lap;
    QString filePath;
    QString driver;
    QString vehicle;
    /// A copy, cut into laps, of the session that it is from; nullptr when it is the session that
    /// is looked at.
    std::shared_ptr<const Session> session;

    /// The lap as cut, with its samples; nullptr when it is of the session that is looked at.
    [[nodiscard]] const Lap *cut() const;
};

/// What was found out about files, so that they are not decoded again. To be cleared when maps are
/// loaded again.
class BestLapMemory
{
public:
    /// What a file's best lap was found out for.
    struct Key
    {
        FileStamp stamp;
        QList<quint8> invalidLaps;
        QString choice;
        friend bool operator==(const Key &, const Key &) = default;
    };
    struct Entry
    {
        Key key;
        /// Milliseconds; none when the file has no lap of the circuit that could be a reference.
        std::optional<qint32> time;
    };

    [[nodiscard]] const Entry *find(const QString &map, const QString &path, const Key &key) const;
    void keep(const QString &map, const QString &path, Entry entry);
    void clear() { m_entries.clear(); }

private:
    QHash<QString, Entry> m_entries;
};

/// Looks for the best lap ever ridden on a circuit, file by file, so that a window stays alive.
///
/// The best laps that the files' texts tell say where to look first. A file is decoded only as long
/// as nothing quicker than its text has been found, or when nothing tells where it was ridden; a
/// text that turns out wrong costs a look at the next file. Only complete laps count that are
/// neither thrown out nor flagged, of recordings that tell where their time is, ridden in the same
/// direction.
class BestEverSearch final
{
public:
    /// @p vehicle is the one to look for, whatever the case; any when it is empty.
    BestEverSearch(const ReferenceSources &sources, const SessionOnCircuit &asked,
                   const QString &vehicle = {}, BestLapMemory *memory = nullptr);

    [[nodiscard]] bool isDone() const { return m_candidates.empty(); }
    /// Looks at the next file; decodes one at most.
    void step();
    /// What was found so far.
    [[nodiscard]] std::optional<ReferenceLap> result() const { return m_best; }
    /// How many files were decoded.
    [[nodiscard]] int decoded() const { return m_decoded; }

private:
    struct Candidate
    {
        QString path;
        SessionInformation information;
        BestLapMemory::Key key;
        // By its text, or as found out before.
        std::optional<qint32> claim;
    };

    void consider(const Session &session);
    [[nodiscard]] bool mayBeHere(const Session &session, const QString &choice) const;
    void offer(ReferenceLap lap);
    [[nodiscard]] std::optional<ReferenceLap> bestOf(const Candidate &candidate) const;

    ReferenceSources m_sources;
    SessionOnCircuit m_asked;
    QString m_vehicle;
    BestLapMemory *m_memory = nullptr;
    // The next one is the last.
    std::vector<Candidate> m_candidates;
    std::optional<ReferenceLap> m_best;
    int m_decoded = 0;
};

/// The whole search at once.
[[nodiscard]] std::optional<ReferenceLap> findBestEver(const ReferenceSources &sources,
                                                       const SessionOnCircuit &asked,
                                                       const QString &vehicle = {},
                                                       BestLapMemory *memory = nullptr);

/// A copy of a session's file, smoothed and cut as the session is or would be when displayed, if
/// that gives it the map that is asked about; nullptr otherwise.
[[nodiscard]] std::shared_ptr<const Session> cutCopy(const QString &path,
                                                     const SessionInformation &information,
                                                     const QString &choice,
                                                     const ReferenceSources &sources,
                                                     const Map *map);

/// What @p copy tells on the circuit that is asked about; something lacks when it was ridden the
/// other way round.
[[nodiscard]] SessionInsight insightOnCircuit(const Session &copy, const SessionOnCircuit &asked);

} // namespace zuno
