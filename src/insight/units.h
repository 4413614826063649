// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <QString>

#include <insight/corners.h>

namespace zuno {

/// A piece of a circuit with the way to its corners and through them. The pieces of a circuit join
/// without a gap from the line to the line, so that the times in them add up to the lap time.
struct TrackPart
{
    /// Metres after the start/finish line.
    double from = 0.0;
    double to = 0.0;
    /// Which corners lie in it; none in the piece between the line and the way to the first corner.
    std::size_t firstCorner = 0;
    std::size_t cornerCount = 0;

    [[nodiscard]] bool isLine() const { return cornerCount == 0; }
};

using TrackParts = std::vector<TrackPart>;

/// One part for each corner, from its boundary to the next. A boundary before the line counts as on
/// it; where the first lies more than 15 metres after it, a part without a corner comes first.
[[nodiscard]] TrackParts segmentsOf(const Corners &corners, double length);

/// The same with corners that are ridden as one taken together: a boundary stays only where a rider
/// who brakes softly is at least 1.15 times as fast as the slower of what is on both sides makes
/// him. Riders trade one corner of a chicane against the other, which is no loss.
[[nodiscard]] TrackParts unitsOf(const TrackParts &segments, const Stations &softSpeed);

/// What a part is called: "line", "4", "7-9", or the corners' names.
[[nodiscard]] QString labelOf(const TrackPart &part, const Corners &corners);

} // namespace zuno
