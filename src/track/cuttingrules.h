// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cmath>
#include <cstddef>

#include <track/gate.h>

namespace zuno {

/// The start/finish line is met within this many gate sizes of the start point, a sector's line
/// within one.
inline constexpr double LineReach = 2.0;

/// How many samples after one pass of a gate the next is possible: a pass takes several samples, of
/// which one only is the crossing.
inline constexpr int PassPause = 10;

/// What once around may differ from a circuit's length, as a part of it.
inline constexpr double LengthTolerance = 0.1;

/// Whether @p distance metres are once around a circuit of @p length metres.
[[nodiscard]] inline bool isOnceAround(double distance, double length)
{
    return std::fabs(distance - length) < LengthTolerance * length;
}

/// Milliseconds and a part of a circuit's length: what leads from the line to the line in less is
/// no lap, but the same pass once more, or somebody who stands beside the line.
inline constexpr int ShortestLapTime = 10000;
inline constexpr double ShortestLapPart = 0.1;

/// Whether so many metres are more than once around: who comes back to the line only then has
/// missed it in between.
[[nodiscard]] inline bool isMoreThanOnce(double distance, double length)
{
    return distance > 1.5 * length;
}

/// How much slower riders may be at the line on another day, as a part of their speed.
inline constexpr double SlowDay = 0.5;

/// Metres per second at a line below which one pass may count twice: the rider is still inside the
/// circle after the pause. @p gateSize in metres, @p interval in seconds from sample to sample. The
/// closest sample lies up to half a step before the line.
[[nodiscard]] inline double leastSpeed(double gateSize, double interval)
{
    return LineReach * gateSize / ((PassPause - 0.5) * interval);
}

/// Sees the passes of gates, sample by sample.
class PassScan
{
public:
    /// Whether @p gate (nullptr for none) is passed at sample @p i. To be asked once for each
    /// sample, in their order.
    [[nodiscard]] bool isPass(const Gate *gate, const Trace &trace, std::size_t i)
    {
        if (m_pause > 0)
            --m_pause;
        if (m_pause > 0 || gate == nullptr || !gate->isCrossedAt(trace, i))
            return false;
        m_pause = PassPause;
        return true;
    }

private:
    int m_pause = 0;
};

} // namespace zuno
