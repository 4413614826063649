// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

namespace zuno {

class RidePath;

/// Once around a circuit, on the way of a rider.
struct RiddenLoop
{
    /// Metres driven up to its start; its length.
    double from = 0.0;
    double length = 0.0;
};

/// A lap, from wherever to the same place again, that is ridden as most of the others are. None
/// when the way never comes back to where it was, in the same direction and at a riding speed; nor
/// does turning back on a road make a lap.
///
/// Method: for places all along the way, the distance to the next time at the same place. On a
/// circuit most of them are the length of a lap, so the distance that is the most frequent, within
/// a tenth, is taken, and of all laps of that length the one whose places were passed in others
/// too.
[[nodiscard]] std::optional<RiddenLoop> findLoop(const RidePath &ride);

} // namespace zuno
