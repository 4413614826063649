// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/check/passcheck.h>

#include <algorithm>
#include <cmath>

#include <base/numbers.h>
#include <maps/check/plainline.h>
#include <session/laps/lap.h>
#include <track/cuttingrules.h>
#include <track/pitlane.h>

namespace zuno {

namespace {

// Milliseconds at both ends of a lap in which it is at the line anyway.
constexpr double EndTime = 5000.0;

// Whether a lap crosses the line on the track between its ends.
bool crossesWithin(const Lap &lap, const Plane &plane, const OutlinePath::Spot &line)
{
    const Points &points = lap.points();
    const double first = points.front().dataTimeStamp + EndTime;
    const double last = points.back().dataTimeStamp - EndTime;
    const std::vector<double> passes = linePasses(points, plane, line.heading, PitLaneOffset);
    return std::any_of(passes.begin(), passes.end(),
                       [first, last](double stamp) { return stamp > first && stamp < last; });
}

} // namespace

QList<int> pitLaneLaps(std::span<const std::pair<GateCrossing, double>> passes)
{
    std::vector<double> offsets;
    std::vector<double> speeds;
    for (const auto &[crossing, offset] : passes) {
        offsets.push_back(offset);
        speeds.push_back(crossing.speed);
    }
    const double usualOffset = median(std::move(offsets));
    const double usualSpeed = median(std::move(speeds));
    QList<int> laps;
    for (const auto &[crossing, offset] : passes) {
        if (isInPitLane(offset, crossing.speed, usualOffset, usualSpeed))
            laps.append(crossing.lap);
    }
    return laps;
}

QList<int> lapsBesideLine(const LapList &laps, const Plane &plane, const OutlinePath::Spot &line,
                          double length)
{
    QList<int> found;
    for (const auto &lap : laps) {
        if (isMoreThanOnce(lap->distance(), length) && crossesWithin(*lap, plane, line))
            found.append(lap->lapNumber());
    }
    return found;
}

} // namespace zuno
