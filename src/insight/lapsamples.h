// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>
#include <vector>

#include <base/plane.h>
#include <session/recording/pointacquisition.h>

namespace zuno {

/// The moments at which a lap began and ended: milliseconds since the start of the recording.
struct LapSpan
{
    quint32 first = 0;
    quint32 last = 0;

    /// Seconds.
    [[nodiscard]] double duration() const;
};

/// What insight needs of one sample.
struct LapSample
{
    /// Seconds since the lap's start.
    double time = 0.0;
    /// m/s as recorded; across samples without a position straight from one to the next.
    double speed = 0.0;
    /// G: the slope of the recorded speed over 0.3 seconds to either side, by least squares.
    /// Accelerations from the smoothing pass come half a second late.
    double slope = 0.0;
    /// Degrees, right positive.
    double lean = 0.0;
    /// Where it was taken, degrees; only with a position.
    double latitude = 0.0;
    double longitude = 0.0;
    bool hasFix = false;
};

/// The samples of a lap among @p samples (smoothed ones, of the recording or of the lap alone), in
/// rising time, and those of a few seconds before and after it if they are there: somebody may
/// brake before the line.
[[nodiscard]] std::vector<LapSample> lapSamples(std::span<const PointAcquisition> samples,
                                                const LapSpan &span);

} // namespace zuno
