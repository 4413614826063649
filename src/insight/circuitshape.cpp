// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/circuitshape.h>

#include <algorithm>

#include <insight/circuitring.h>
#include <insight/modelspeed.h>

namespace zuno {

namespace {

// Metres, and parts of the median spacing: an outline cannot be sharper than its points.
constexpr double FirstWidth = 8.0;
constexpr double WidthOfSpacing = 0.6;

// Seconds of riding that the second smoothing takes together, and its limits in metres.
constexpr double RiddenTime = 0.5;
constexpr double LeastWidth = 6.0;
constexpr double MostWidth = 25.0;

} // namespace

CircuitShape shapeOf(const CircuitRing &ring)
{
    const double ofSpacing = WidthOfSpacing * ring.spacing();
    std::vector<double> widths(ring.vertices().size(), std::max(FirstWidth, ofSpacing));
    const Stations speed = modelSpeed(curvatureOf(ring, widths), HardBraking);
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const double ridden = RiddenTime * speed.at(ring.vertices()[i].along);
        widths[i] = std::max(std::clamp(ridden, LeastWidth, MostWidth), ofSpacing);
    }
    CircuitShape shape;
    shape.curvature = curvatureOf(ring, widths);
    shape.hardSpeed = modelSpeed(shape.curvature, HardBraking);
    shape.softSpeed = modelSpeed(shape.curvature, SoftBraking);
    return shape;
}

} // namespace zuno
