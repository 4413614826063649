// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <views/charts/chartaxis.h>

namespace zuno {

class ChartState;

/// What one lap did between two places.
struct MeasuredLap
{
    double seconds = 0.0;
    /// km/h; the mean is over the time. Not a number where no speed is known.
    double lowest = 0.0;
    double mean = 0.0;
    double highest = 0.0;
};

/// What was measured between two places of the track.
struct Measurement
{
    /// Metres from the start of the first lap.
    AxisRange metres;
    MeasuredLap first;
    /// None without a second lap, or where it was not at both places.
    std::optional<MeasuredLap> second;
};

/// Between the two places that were set, the second lap at the same places of the track; none
/// before there are two.
[[nodiscard]] std::optional<Measurement> measurementOf(const ChartState &state);

} // namespace zuno
