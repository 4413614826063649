// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>
#include <vector>

#include <insight/causes.h>
#include <insight/circuitcorners.h>

namespace zuno {

/// What a lap lost against another in one unit.
struct UnitLoss
{
    /// An index into the circuit's units.
    std::size_t unit = 0;
    /// Seconds by the places, in whole milliseconds; those of all units add up to the difference of
    /// the lap times. Negative is a gain.
    double loss = 0.0;
    /// Seconds by the speeds alone.
    double bySpeed = 0.0;
    Causes causes;

    /// Whether the speeds say so too: half of it at least, twice at most. Where a receiver is poor,
    /// most losses by place are not in the speeds.
    [[nodiscard]] bool isConfirmed() const;
};

/// A loss of the list: of which lap against which, by their indexes.
struct ListedLoss
{
    UnitLoss loss;
    std::size_t lap = 0;
    std::size_t against = 0;
};

/// The times of a lap in parts that join, milliseconds: they add up to the lap time. It is the
/// moments between them that are rounded.
[[nodiscard]] std::vector<qint32> timesIn(const TrackParts &parts, const LapOnOutline &lap);

/// All units of @p lap against @p reference, in the order of the track.
[[nodiscard]] std::vector<UnitLoss> lossesAgainst(const RiddenLap &lap, const RiddenLap &reference,
                                                  const CircuitCorners &circuit);

/// How many laps the list of a session needs.
inline constexpr std::size_t LeastListLaps = 3;
/// Seconds; what is less is within the noise.
inline constexpr double LeastListedLoss = 0.15;

/// Where the usual lap of a session gives away most: for each unit the lap with the median time
/// against the second best (the best, with less than five laps), both really ridden. The three
/// largest confirmed losses of 0.15 seconds and more; none is a proper answer. Empty with less than
/// three laps.
[[nodiscard]] std::vector<ListedLoss> listLosses(std::span<const RiddenLap> laps,
                                                 const CircuitCorners &circuit);

} // namespace zuno
