// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QHash>
#include <QList>
#include <QObject>
#include <QTimer>

#include <insight/reference/reference.h>
#include <insight/trackzones.h>
#include <views/comparison/timeplaces.h>

namespace zuno {

struct SessionLap;
class LapSelection;
class Settings;

/// What the selected lap is held against, and where its time is.
///
/// Keeps for each circuit what the rider chose, finds the lap that it means whenever another
/// session is displayed, and gives it to the selection. What the session tells is computed once for
/// each session that is displayed, and kept.
class Comparison final : public QObject
{
    Q_OBJECT

public:
    /// Where references are looked for at the moment.
    using Sources = std::function<ReferenceSources()>;

    /// Why there is nothing to be said about where the time is.
    enum class Lack {
        None,
        /// There is no session, or it has no laps.
        NoLaps,
        /// The session does not carry it; insight().lack says why.
        Insight,
        /// The selected lap does not go from line to line.
        Incomplete,
        /// The rider wants no reference.
        Off,
        /// There is no other lap.
        NoOther,
        /// It is being looked for.
        Searching,
    };

    /// What is given must outlive it.
    Comparison(LapSelection &selection, const Settings &settings, Sources sources,
               QObject *parent = nullptr);
    ~Comparison() override;

    /// What the displayed session tells.
    [[nodiscard]] const SessionInsight &insight() const { return m_insight; }
    /// The selected lap in it; nullptr when it is not complete.
    [[nodiscard]] const InsightLap *selected() const;
    /// The reference's lap on the outline; nullptr unless the selected lap is compared with it.
    [[nodiscard]] const InsightLap *reference() const;
    /// Where the selected lap's time is; empty when something lacks.
    [[nodiscard]] const TimePlaces &places() const { return m_places; }
    [[nodiscard]] Lack lack() const { return m_lack; }
    /// The units of the circuit in the selected lap, for charts and map.
    [[nodiscard]] TrackZones zones() const;

    [[nodiscard]] const ReferenceChoice &choice() const { return m_choice; }
    [[nodiscard]] bool isOff() const { return m_choice.kind == ReferenceKind::None; }
    /// The reference that was found; none in sessions that tell nothing of their corners.
    [[nodiscard]] const std::optional<ReferenceLap> &found() const { return m_found.lap; }
    /// What has become of the choice; empty when its lap was found.
    [[nodiscard]] QString problem() const;
    /// Laps that were chosen before on this circuit, the last one first.
    [[nodiscard]] QList<ReferenceChoice> recent() const;
    [[nodiscard]] const LapSelection &selection() const { return m_selection; }
    [[nodiscard]] ReferenceSources sources() const { return m_sources(); }

    /// Chooses for the circuit of the displayed session; nothing without one.
    void choose(const ReferenceChoice &choice);
    void chooseLap(const SessionLap &lap);
    void clear() { choose({ReferenceKind::None}); }
    /// Makes the reference the selected lap, and what was selected the reference.
    void swap();

public Q_SLOTS:
    /// Laps were thrown out or taken back, or corners have other names.
    void refresh();
    /// Lets go of everything that stands on maps or files.
    void release();

Q_SIGNALS:
    /// Places, reference, or what lacks, are others.
    void changed();
    /// The lap of another file is to be displayed.
    void lapWanted(const QString &filePath, int lapNumber);
    /// A message for the rider.
    void noticed(const QString &message);

private:
    void showSession();
    void findReference();
    void search(const QString &vehicle);
    void searchOn();
    void take(Reference reference);
    void showReference();
    void noteRecord();
    void update();
    [[nodiscard]] Lack findLack() const;
    [[nodiscard]] bool isSelectedReference() const;

    LapSelection &m_selection;
    const Settings &m_settings;
    Sources m_sources;
    SessionInsight m_insight;
    TimePlaces m_places;
    Lack m_lack = Lack::NoLaps;
    ReferenceChoice m_choice;
    Reference m_found;
    // What m_found was found for, so that a file is not decoded again for each session.
    ReferenceChoice m_foundFor;
    const Map *m_foundOn = nullptr;
    BestLapMemory m_memory;
    std::unique_ptr<BestEverSearch> m_search;
    QTimer m_step;
    // By the names of maps: what was chosen since the start, the quickest lap known.
    QHash<QString, QList<ReferenceChoice>> m_recent;
    QHash<QString, qint32> m_records;
};

/// What lacks as a sentence in the language of the program; empty when nothing does.
[[nodiscard]] QString describe(const Comparison &comparison);

} // namespace zuno
