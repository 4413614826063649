// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QGeoCoordinate>

namespace zuno {

/// A vector in the plane, metres east and north.
struct PlaneVector
{
    double x = 0.0;
    double y = 0.0;

    friend PlaneVector operator+(PlaneVector a, PlaneVector b) { return {a.x + b.x, a.y + b.y}; }
    friend PlaneVector operator-(PlaneVector a, PlaneVector b) { return {a.x - b.x, a.y - b.y}; }
    friend PlaneVector operator*(PlaneVector a, double k) { return {a.x * k, a.y * k}; }
    /// The scalar product.
    friend double operator*(PlaneVector a, PlaneVector b) { return (a.x * b.x) + (a.y * b.y); }
    /// Metres.
    [[nodiscard]] double length() const;
};

/// Which part of the way from @p from to @p to, from 0 to 1, lies nearest to @p place; 0 where both
/// are one.
[[nodiscard]] double nearestPart(PlaneVector from, PlaneVector to, PlaneVector place);

/// The plane that touches the earth at a place; true to a few centimetres over the extent of a
/// circuit.
class Plane
{
public:
    explicit Plane(const QGeoCoordinate &origin);

    [[nodiscard]] PlaneVector place(const QGeoCoordinate &where) const;
    [[nodiscard]] QGeoCoordinate coordinate(PlaneVector place) const;

private:
    QGeoCoordinate m_origin;
    double m_shrink = 1.0;
};

} // namespace zuno
