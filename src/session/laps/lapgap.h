// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <vector>

#include <base/plane.h>

namespace zuno {

class Lap;

/// How far two riders are apart in time, all along a lap, taken where each of them is at the same
/// place on the track.
///
/// Method: the second lap's positions make a path, with a line square to the track at each place.
/// A point of the first lap lies at the same place on the track where such a line, turned evenly
/// from one place to the next, passes through it. The line is looked for forwards from the last
/// match only, within about the distance that was driven since, where both riders head the same
/// way: so neighbouring pieces of track, hairpins and crossings are not taken for one another.
/// The gap does not depend on the distances driven, which a wider line makes longer. Where
/// positions are missing, on either lap, the gap runs straight from the last match to the next.
/// Of a lap that starts away from the line (the first of a recording) the matches are made from
/// its end backwards.
///
/// The gap is 0 where both laps start at the line, and the difference of the lap times where both
/// end at it.
///
/// A value: it keeps nothing of the laps, and indexes count their `points()`.
class LapGap
{
public:
    /// Of no laps.
    LapGap() = default;
    /// @p first is compared with @p second, whose positions are taken @p shift metres (east, north)
    /// from where they are: receivers stand metres beside where they were, one lap otherwise than
    /// the next, and a metre makes and unmakes a tenth of a second in a hairpin.
    LapGap(const Lap &first, const Lap &second, PlaneVector shift = {});

    /// The number of points of the first lap.
    [[nodiscard]] std::size_t size() const { return m_secondTimes.size(); }
    [[nodiscard]] bool isEmpty() const { return m_secondTimes.empty(); }

    /// Milliseconds by which the first lap is behind the second at its point @p i: positive is a
    /// delay, negative is ahead. NaN where the second lap was not at that place: where it began
    /// later or ended before, or nowhere went the same way.
    [[nodiscard]] double gap(std::size_t i) const;
    /// The milliseconds since its start at which the second lap was where the first is at point
    /// @p i; NaN as above. Never decreases.
    [[nodiscard]] double secondTime(std::size_t i) const { return m_secondTimes.at(i); }
    /// That place on the second lap: a point index with a fraction, from 0 to its last point. NaN
    /// as above.
    [[nodiscard]] double secondPoint(std::size_t i) const;

    /// The second lap's point, with a fraction, at @p elapsed milliseconds since its start; its
    /// first or last point when it has none at that time. NaN for a lap without points.
    [[nodiscard]] double secondPointAt(double elapsed) const;
    /// The first lap's point, the same way.
    [[nodiscard]] double firstPointAt(double elapsed) const;

private:
    // Milliseconds since the start of each lap for each of its points, never decreasing.
    std::vector<double> m_firstElapsed;
    std::vector<double> m_secondElapsed;
    // For each point of the first lap.
    std::vector<double> m_secondTimes;
};

} // namespace zuno
