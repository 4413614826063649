// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <insight/laponoutline.h>
#include <insight/units.h>

namespace zuno {

/// What one lap did in one corner, from the recorded speed. What a recording is too slow for is
/// absent; so is what a receiver cannot tell at all, as the place of the lowest speed.
struct CornerFigures
{
    /// Seconds from the corner's start to its end.
    double time = 0.0;
    /// km/h at the corner's start and end, and the mean of the three samples around the lowest.
    double entrySpeed = 0.0;
    double lowestSpeed = 0.0;
    double exitSpeed = 0.0;
    /// km/h where the way to the corner begins.
    double arrivalSpeed = 0.0;
    /// Metres before the corner's start at which the deceleration passed 0.2 G; negative inside the
    /// corner. Receivers' speeds lag their positions by up to half a second, so it is good to
    /// compare laps of one logger only. None where nobody braked with 0.3 G.
    std::optional<double> brakingPoint;
    /// Seconds from there until the deceleration fell below 0.2 G again.
    std::optional<double> brakingTime;
    /// G, the hardest on the way to the lowest speed; none when that comes first.
    std::optional<double> maximumDeceleration;
    /// Degrees to the corner's side: the largest mean of five samples.
    std::optional<double> lean;
    /// Metres after the line where the acceleration after the lowest speed passed 0.1 G. Only worth
    /// saying along with a slower exit.
    std::optional<double> gasPoint;
};

/// Which figures the samples of a recording carry.
struct FigureValidity
{
    bool brakingPoint = true;
    bool maximumDeceleration = true;
    bool lean = true;
};

/// The figures of @p corner, whose segment is @p segment. None where positions were missing for
/// more than a second.
[[nodiscard]] std::optional<CornerFigures> figuresOf(const LapOnOutline &lap, const Corner &corner,
                                                     const TrackPart &segment,
                                                     const FigureValidity &validity);

} // namespace zuno
