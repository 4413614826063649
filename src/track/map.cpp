// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <track/map.h>

#include <algorithm>

#include <QFileInfo>

#include <base/processorstate.h>

namespace zuno {

namespace {

// A point farther than this (metres) from the outline has no direction.
constexpr double DirectionReach = 10000.0;

// Looks for the outline segment whose first point is nearest to a given point.
class NearestSegment
{
public:
    explicit NearestSegment(const QGeoCoordinate &target) : m_target(target) {}

    void offer(const QGeoCoordinate &from, const QGeoCoordinate &to)
    {
        const double distance = from.distanceTo(m_target);
        if (distance < m_nearest) {
            m_nearest = distance;
            m_direction = {static_cast<float>(to.latitude() - from.latitude()),
                           static_cast<float>(to.longitude() - from.longitude())};
        }
    }
    [[nodiscard]] Map::Direction direction() const { return m_direction; }

private:
    QGeoCoordinate m_target;
    double m_nearest = DirectionReach;
    Map::Direction m_direction {};
};

} // namespace

Map::Map() = default;
Map::~Map() = default;

void Map::setCorners(const QGeoCoordinate &a, const QGeoCoordinate &b)
{
    m_cornerA = a;
    m_cornerB = b;
}

void Map::addNamedPoint(const QString &name, const QGeoCoordinate &coordinate)
{
    if (name.contains(u"start", Qt::CaseInsensitive))
        m_startPoint = coordinate;
    if (!name.contains(u"time", Qt::CaseInsensitive))
        return;
    m_timingPoints.insert(name, coordinate);
    for (std::size_t sector = 0; sector < m_sectorEnds.size(); ++sector) {
        QString &end = m_sectorEnds[sector];
        if (name.contains(QString::number(sector)) && (end.isNull() || name > end))
            end = name;
    }
}

void Map::computeGeometry()
{
    clearVectorRegisters();
    m_length = 0.0;
    m_startDirection = {};
    m_timingDirections.clear();
    if (m_trackPoints.isEmpty())
        return;
    NearestSegment start(m_startPoint);
    QList<NearestSegment> timing;
    for (const QGeoCoordinate &point : std::as_const(m_timingPoints)) {
        if (timing.size() < MaximumDirections)
            timing.append(NearestSegment(point));
    }
    for (qsizetype i = 0; i + 1 < m_trackPoints.size(); ++i) {
        const QGeoCoordinate &from = m_trackPoints.at(i);
        const QGeoCoordinate &to = m_trackPoints.at(i + 1);
        m_length += from.distanceTo(to);
        start.offer(from, to);
        for (NearestSegment &segment : timing)
            segment.offer(from, to);
    }
    m_startDirection = start.direction();
    for (const NearestSegment &segment : std::as_const(timing))
        m_timingDirections.append(segment.direction());
    m_timingDirections.resize(m_timingPoints.size());
}

QString Map::displayName() const
{
    return QFileInfo(m_name).baseName();
}

int Map::sectorCount() const
{
    return static_cast<int>(std::min<qsizetype>(m_timingPoints.size(), MaximumSectors));
}

std::optional<Gate> Map::sectorGate(int sector) const
{
    if (sector < 0 || sector >= MaximumSectors)
        return std::nullopt;
    const QString &name = m_sectorEnds[static_cast<std::size_t>(sector)];
    if (name.isNull())
        return std::nullopt;
    return Gate(m_timingPoints.value(name), m_gateSize);
}

} // namespace zuno
