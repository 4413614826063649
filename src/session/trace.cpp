// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/trace.h>

#include <algorithm>
#include <cmath>

#include <session/numbers.h>

namespace zuno {

namespace {

// What a sample counts as being away when the recording ends before it.
constexpr double MissingDistance = 10000.0;

// A degree of latitude is 111.19 km on the sphere that distances are measured on; less here, so
// that the quick test below never rejects what the exact one would accept.
constexpr double MetresPerDegree = 111000.0;

} // namespace

QGeoCoordinate positionOf(const PointAcquisition &point)
{
    return {point.dataCoordY, point.dataCoordX};
}

Trace::Trace(std::span<const PointAcquisition> points)
{
    m_positions.reserve(points.size());
    for (const PointAcquisition &point : points)
        m_positions.push_back(positionOf(point));
}

Trace::Trace(std::vector<QGeoCoordinate> positions) : m_positions(std::move(positions)) {}

std::size_t Trace::next(std::size_t i) const
{
    for (std::size_t j = i + 1; j < m_positions.size(); ++j) {
        if (m_positions[j].isValid())
            return j;
    }
    return None;
}

Gate::Gate(QGeoCoordinate centre, double radius)
    : m_centre(std::move(centre))
    , m_radius(radius)
    , m_latitudeReach(radius / MetresPerDegree)
{
}

bool Gate::isCrossedAt(const Trace &trace, std::size_t i) const
{
    const QGeoCoordinate &here = trace.at(i);
    if (!here.isValid())
        return false;
    // Most samples are far away, and a great-circle distance costs more than all the rest.
    if (std::fabs(here.latitude() - m_centre.latitude()) > m_latitudeReach)
        return false;
    const double distance = here.distanceTo(m_centre);
    if (!(distance < m_radius))
        return false;
    const std::size_t next = trace.next(i);
    const double nextDistance
        = next == Trace::None ? MissingDistance : trace.at(next).distanceTo(m_centre);
    return nextDistance > distance;
}

PointAcquisition crossingPoint(const PointAcquisition &p1, const PointAcquisition &p2,
                               const QGeoCoordinate &centre)
{
    const QGeoCoordinate position1 = positionOf(p1);
    const QGeoCoordinate position2 = positionOf(p2);
    const auto a = static_cast<float>(position1.distanceTo(centre));
    const auto b = static_cast<float>(position2.distanceTo(centre));
    const auto c = static_cast<float>(position1.distanceTo(position2));
    const float divisor = (c + c) * c;
    // Not clamped: a line just outside the segment is met before or after it.
    const float r = divisor == 0.0F ? 0.0F : ((c * c) + (a * a) - (b * b)) / divisor;

    const auto stamp1 = static_cast<float>(p1.dataTimeStamp);
    const auto stamp2 = static_cast<float>(p2.dataTimeStamp);
    PointAcquisition crossing = p1;
    crossing.dataTimeStamp = stampFromFloat(stamp1 + ((stamp2 - stamp1) * r));
    const quint32 wholeSeconds = p1.dataTimeStamp / 1000;
    crossing.dataTimeSec = wholeSeconds;
    crossing.dataCoordX
        = p1.dataCoordX + ((p2.dataCoordX - p1.dataCoordX) * static_cast<double>(r));
    crossing.dataCoordY
        = p1.dataCoordY + ((p2.dataCoordY - p1.dataCoordY) * static_cast<double>(r));
    return crossing;
}

} // namespace zuno
