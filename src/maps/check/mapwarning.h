// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QString>

namespace zuno {

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
        NotFound, ///< The program would not find the map for the session by itself.
        SlowPass, ///< Who passes the line at less than half this session's speed is counted twice.
    };

    Kind kind {};
    /// The gate: -1 for the line, otherwise an index into the draft's timing points.
    int point = -1;
    /// The second gate of two.
    int otherPoint = -1;
    /// The numbers of the laps concerned.
    QList<int> laps;
    /// Whole km/h at the line; 0 where no speed is meant.
    int speed = 0;

    friend bool operator==(const MapWarning &, const MapWarning &) = default;
};

/// The warning in plain words, in the rider's language.
[[nodiscard]] QString warningText(const MapWarning &warning);

} // namespace zuno
