// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/recording/trace.h>

#include <limits>
#include <utility>

#include <base/numbers.h>
#include <base/processorstate.h>

namespace zuno {

namespace {

constexpr double None = std::numeric_limits<double>::quiet_NaN();

} // namespace

QGeoCoordinate positionOf(const PointAcquisition &point)
{
    return point.hasPosition() ? QGeoCoordinate(point.dataCoordY, point.dataCoordX)
                               : QGeoCoordinate();
}

TracePlace::TracePlace(QGeoCoordinate coordinate)
    : position(std::move(coordinate))
    , latitude(position.isValid() ? position.latitude() : None)
    , longitude(position.isValid() ? position.longitude() : None)
    , step(None)
{
}

Trace::Trace(std::span<const PointAcquisition> points)
{
    clearVectorRegisters();
    m_places.reserve(points.size());
    for (const PointAcquisition &point : points)
        m_places.emplace_back(positionOf(point));
}

Trace::Trace(std::vector<TracePlace> places) : m_places(std::move(places)) {}

std::size_t Trace::next(std::size_t i) const
{
    for (std::size_t j = i + 1; j < m_places.size(); ++j) {
        if (hasPosition(j))
            return j;
    }
    return None;
}

double Trace::step(std::size_t previous, std::size_t i) const
{
    const double known = m_places[i].step;
    return std::isnan(known) ? at(previous).distanceTo(at(i)) : known;
}

double usualInterval(std::span<const PointAcquisition> samples)
{
    std::vector<double> intervals;
    for (std::size_t i = 1; i < samples.size(); ++i) {
        if (samples[i].dataTimeStamp > samples[i - 1].dataTimeStamp)
            intervals.push_back(samples[i].dataTimeStamp - samples[i - 1].dataTimeStamp);
    }
    return intervals.empty() ? 0.1 : median(std::move(intervals)) / 1000.0;
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
