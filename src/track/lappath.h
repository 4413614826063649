// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include <QGeoCoordinate>

#include <base/plane.h>
#include <session/recording/pointacquisition.h>

namespace zuno {

/// A place on the way of a rider.
struct PathNode
{
    PlaneVector place;
    /// Where the rider is heading, of length 1; the null vector when he never moved.
    PlaneVector heading;
    /// Milliseconds since the path's first sample.
    double time = 0.0;
    /// Metres driven up to here.
    double driven = 0.0;
    /// Whether the positions were lost for long between the node before and this one.
    bool afterGap = false;
};

/// The way of a rider through the plane, as places at least a metre apart. Samples without a
/// position are left out, as are those at which the rider has not got on.
using LapPath = std::vector<PathNode>;

/// Which way a path is walked.
enum class Walk { Forwards, Backwards };

/// Seconds * 1000 from the first of @p points to sample @p i.
[[nodiscard]] double elapsedTime(std::span<const PointAcquisition> points, std::size_t i);

/// The way through @p points in the plane that touches the earth at @p origin; accurate to a few
/// centimetres over the extent of a circuit. Walked backwards, the last sample comes first and
/// times count from it.
[[nodiscard]] LapPath lapPath(std::span<const PointAcquisition> points,
                              const QGeoCoordinate &origin, Walk walk);

/// The same path with places between those that are far apart, as they are in recordings with a
/// position a second: on cubic curves through the places, each with the velocity that the
/// neighbours give (a Catmull-Rom spline over time). Gaps stay open.
[[nodiscard]] LapPath refined(const LapPath &path);

} // namespace zuno
