// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <insight/circuitring.h>
#include <insight/corneredits.h>
#include <insight/units.h>

namespace zuno {

class Map;

/// What a circuit is divided into, from its outline alone: the same for each session and each day.
struct CircuitCorners
{
    CircuitRing ring;
    CircuitShape shape;
    Corners corners;
    TrackParts segments;
    TrackParts units;
    /// Seconds that a model rider takes once around.
    double modelTime = 0.0;

    [[nodiscard]] bool isEmpty() const { return corners.empty(); }
    [[nodiscard]] QString unitLabel(std::size_t unit) const
    {
        return labelOf(units[unit], corners);
    }
    /// The segment of a corner.
    [[nodiscard]] const TrackPart &segmentOf(std::size_t corner) const
    {
        return segments[segments.size() - corners.size() + corner];
    }
};

/// The corners of a map with what the rider changed of them; empty without a usable outline.
[[nodiscard]] CircuitCorners findCorners(const Map &map, const CornerEdits &edits = {},
                                         CircuitRing::Way way = CircuitRing::Way::AsDrawn);

/// Whether an outline can be the one that laps of @p bestLap seconds were ridden on: a model rider
/// takes no more than half as long again. The zigzag of a bad receiver has corners that nobody
/// rode.
[[nodiscard]] bool isCredible(const CircuitCorners &circuit, double bestLap);

} // namespace zuno
