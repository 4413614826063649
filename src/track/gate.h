// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>

#include <QGeoCoordinate>

namespace zuno {

class Trace;

/// A circle around a point on the track: the start/finish line or a sector's end.
class Gate
{
public:
    /// @p radius in metres.
    Gate(QGeoCoordinate centre, double radius);

    [[nodiscard]] const QGeoCoordinate &centre() const { return m_centre; }
    /// Whether sample @p i is the closest of a pass: it lies inside the circle and the next sample
    /// with a position lies farther away. A sample without a position never is.
    [[nodiscard]] bool isCrossedAt(const Trace &trace, std::size_t i) const;

private:
    QGeoCoordinate m_centre;
    double m_radius = 0.0;
    double m_latitudeReach = 0.0;
};

} // namespace zuno
