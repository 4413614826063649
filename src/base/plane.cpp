// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/plane.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zuno {

namespace {

// The sphere that distances are measured on.
constexpr double MetresPerDegree = 6371007.2 * std::numbers::pi / 180.0;

} // namespace

double PlaneVector::length() const
{
    return std::sqrt((x * x) + (y * y));
}

double nearestPart(PlaneVector from, PlaneVector to, PlaneVector place)
{
    const PlaneVector way = to - from;
    const double square = way * way;
    return square > 0.0 ? std::clamp(((place - from) * way) / square, 0.0, 1.0) : 0.0;
}

Plane::Plane(const QGeoCoordinate &origin)
    : m_origin(origin)
    , m_shrink(std::cos(origin.latitude() * std::numbers::pi / 180.0))
{
}

PlaneVector Plane::place(const QGeoCoordinate &where) const
{
    const double east = std::remainder(where.longitude() - m_origin.longitude(), 360.0);
    const double north = where.latitude() - m_origin.latitude();
    return {east * m_shrink * MetresPerDegree, north * MetresPerDegree};
}

QGeoCoordinate Plane::coordinate(PlaneVector place) const
{
    const double latitude = m_origin.latitude() + (place.y / MetresPerDegree);
    const double longitude = m_origin.longitude() + (place.x / (m_shrink * MetresPerDegree));
    return {latitude, std::remainder(longitude, 360.0)};
}

} // namespace zuno
