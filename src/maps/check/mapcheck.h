// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>
#include <vector>

#include <QList>
#include <QString>

#include <session/recording/pointacquisition.h>
#include <track/mapdraft.h>

namespace zuno {

/// A lap as a map cuts it.
struct CheckedLap
{
    /// 1-based number in the session.
    int number = 0;
    /// Milliseconds, metres.
    qint32 time = 0;
    double distance = 0.0;
    bool isComplete = false;
    /// Milliseconds; -1 for a sector that the lap has no time for.
    QList<qint32> sectorTimes;
};

/// What is wrong with a map, as seen from one session.
struct MapWarning
{
    enum class Kind {
        NoLine, ///< The map has no start point.
        NoPass, ///< The session never passes the line.
        MissedPoint, ///< Laps miss a timing point.
        PointOutOfOrder, ///< A timing point comes before the one before it.
        SecondTrack, ///< Another piece of track, such as a straight nearby, runs through a gate.
        OtherWay, ///< A gate is also passed in the opposite direction or off the outline, as in a
                  ///< pit lane.
        GatesTouch, ///< Two gates overlap.
        CountedTwice, ///< One pass of a gate counts as two.
        NoLapComplete, ///< No lap is as long as the outline.
        LastNotOnLine, ///< The last timing point is not on the line: the rest of a lap has no time.
        TooManyPoints, ///< More timing points than a lap has sectors.
    };

    Kind kind {};
    /// The gate: -1 for the line, otherwise an index into the draft's timing points.
    int point = -1;
    /// The second gate of two.
    int otherPoint = -1;
    /// The numbers of the laps concerned.
    QList<int> laps;

    friend bool operator==(const MapWarning &, const MapWarning &) = default;
};

/// What a draft makes of a session.
struct MapCheck
{
    std::vector<CheckedLap> laps;
    QList<MapWarning> warnings;
    /// Metres along the outline.
    double length = 0.0;
    /// Milliseconds as LapResults has it; -1 without any.
    qint32 idealTime = -1;
    /// An index into laps; -1 when no lap is complete.
    int bestLap = -1;
};

/// Cuts smoothed samples with @p draft just as a session is cut, and looks for what is wrong.
[[nodiscard]] MapCheck checkMap(std::span<const PointAcquisition> samples, const MapDraft &draft);

/// The warning in plain words, in the rider's language.
[[nodiscard]] QString warningText(const MapWarning &warning);

} // namespace zuno
