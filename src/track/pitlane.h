// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cmath>

namespace zuno {

/// Metres beside the others from which on a way may be the pit lane's.
inline constexpr double PitLaneOffset = 6.0;

/// Whether a pass of a place, so many metres to the side and at that speed, was in the pit lane:
/// well beside the usual way, and slower than about two thirds of the usual speed.
[[nodiscard]] inline bool isInPitLane(double offset, double speed, double usualOffset,
                                      double usualSpeed)
{
    constexpr double SpeedPart = 0.65;
    return std::fabs(offset - usualOffset) > PitLaneOffset && speed < SpeedPart * usualSpeed;
}

} // namespace zuno
