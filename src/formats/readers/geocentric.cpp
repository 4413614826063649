// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/readers/geocentric.h>

#include <cmath>

#include <formats/convert/ridelimits.h>

namespace zuno {

namespace {

// WGS 84.
constexpr double HalfAxis = 6378137.0;
constexpr double Flattening = 1 / 298.257223563;

} // namespace

// B. R. Bowring, The accuracy of geodetic latitude and height equations (Survey Review 28, 1985):
// exact to less than a millimetre near the ground.
RawRow rowFromGeocentric(const std::array<double, 3> &place, const std::array<double, 3> &velocity)
{
    RawRow row;
    const auto [x, y, z] = place;
    const double distance = std::hypot(x, y, z);
    if (std::abs(distance - HalfAxis) > 100000)
        return row;
    const double b = HalfAxis * (1 - Flattening);
    const double e2 = Flattening * (2 - Flattening);
    const double p = std::hypot(x, y);
    const double theta = std::atan2(z * HalfAxis, p * b);
    const double latitude = std::atan2(z + e2 / (1 - e2) * b * std::pow(std::sin(theta), 3),
                                       p - e2 * HalfAxis * std::pow(std::cos(theta), 3));
    const double longitude = std::atan2(y, x);
    row.latitude = latitude / RadiansPerDegree;
    row.longitude = longitude / RadiansPerDegree;
    const double east = velocity[1] * std::cos(longitude) - velocity[0] * std::sin(longitude);
    const double outward = velocity[0] * std::cos(longitude) + velocity[1] * std::sin(longitude);
    const double north = velocity[2] * std::cos(latitude) - outward * std::sin(latitude);
    row.speed = std::hypot(north, east);
    const double course = std::atan2(east, north) / RadiansPerDegree;
    row.course = course < 0 ? course + 360 : course;
    return row;
}

} // namespace zuno
