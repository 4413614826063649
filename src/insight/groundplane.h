// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QGeoCoordinate>

#include <base/plane.h>

namespace zuno {

/// The plane that touches the earth's ellipsoid (WGS 84) at a place. A receiver's speed is in
/// metres on the ground, which differ by up to 3 in 1000 from those on the sphere that distances of
/// maps are measured on: on a long circuit more than the ten metres that a braking point is worth.
class GroundPlane
{
public:
    explicit GroundPlane(const QGeoCoordinate &origin);

    /// Metres east and north of the origin.
    [[nodiscard]] PlaneVector place(double latitude, double longitude) const;
    [[nodiscard]] PlaneVector place(const QGeoCoordinate &where) const;
    [[nodiscard]] QGeoCoordinate coordinate(PlaneVector place) const;

private:
    QGeoCoordinate m_origin;
    // Metres per degree.
    double m_east = 0.0;
    double m_north = 0.0;
};

} // namespace zuno
