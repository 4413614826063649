// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <track/gate.h>

#include <cmath>
#include <utility>

#include <session/recording/trace.h>

namespace zuno {

namespace {

// What a sample counts as being away when the recording ends before it.
constexpr double MissingDistance = 10000.0;

// A degree of latitude is 111.19 km on the sphere that distances are measured on; less here, so
// that the quick test below never rejects what the exact one would accept.
constexpr double MetresPerDegree = 111000.0;

} // namespace

Gate::Gate(QGeoCoordinate centre, double radius)
    : m_centre(std::move(centre))
    , m_radius(radius)
    , m_latitudeReach(radius / MetresPerDegree)
{
}

bool Gate::isCrossedAt(const Trace &trace, std::size_t i) const
{
    if (!trace.hasPosition(i))
        return false;
    // Most samples are far away, and a great-circle distance costs more than all the rest.
    if (std::fabs(trace.place(i).latitude - m_centre.latitude()) > m_latitudeReach)
        return false;
    const QGeoCoordinate &here = trace.at(i);
    const double distance = here.distanceTo(m_centre);
    if (!(distance < m_radius))
        return false;
    const std::size_t next = trace.next(i);
    const double nextDistance
        = next == Trace::None ? MissingDistance : trace.at(next).distanceTo(m_centre);
    return nextDistance > distance;
}

} // namespace zuno
