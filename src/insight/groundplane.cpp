// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/groundplane.h>

#include <cmath>
#include <numbers>

namespace zuno {

namespace {

// WGS 84: the equator's radius in metres, and the square of the eccentricity.
constexpr double Equator = 6378137.0;
constexpr double SquaredEccentricity = 6.69437999014e-3;

constexpr double Radians = std::numbers::pi / 180.0;

} // namespace

GroundPlane::GroundPlane(const QGeoCoordinate &origin) : m_origin(origin)
{
    const double latitude = origin.latitude() * Radians;
    const double sine = std::sin(latitude);
    const double w = 1.0 - (SquaredEccentricity * sine * sine);
    const double across = Equator / std::sqrt(w);
    m_east = across * std::cos(latitude) * Radians;
    m_north = across * ((1.0 - SquaredEccentricity) / w) * Radians;
}

PlaneVector GroundPlane::place(double latitude, double longitude) const
{
    const double east = std::remainder(longitude - m_origin.longitude(), 360.0);
    return {east * m_east, (latitude - m_origin.latitude()) * m_north};
}

PlaneVector GroundPlane::place(const QGeoCoordinate &where) const
{
    return place(where.latitude(), where.longitude());
}

QGeoCoordinate GroundPlane::coordinate(PlaneVector place) const
{
    const double longitude = m_origin.longitude() + (place.x / m_east);
    return {m_origin.latitude() + (place.y / m_north), std::remainder(longitude, 360.0)};
}

} // namespace zuno
