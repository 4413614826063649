// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <optional>
#include <utility>

#include <QGeoCoordinate>
#include <QList>
#include <QMap>
#include <QString>

#include <track/gate.h>

namespace zuno {

/// How many sectors a lap has at most.
inline constexpr int MaximumSectors = 8;

/// Timing points of which a map works out the direction; a map with more of them is no circuit's,
/// and would take the time of all of them for each point of its outline.
inline constexpr qsizetype MaximumDirections = 64;

/// One circuit: its start/finish point, its timing points (the sector lines) and its outline.
class Map
{
public:
    /// Change of latitude and longitude along a piece of the outline, degrees.
    using Direction = std::pair<float, float>;

    Map();
    ~Map();
    Map(const Map &) = delete;
    Map &operator=(const Map &) = delete;

    void setName(const QString &name) { m_name = name; }
    void setCorners(const QGeoCoordinate &a, const QGeoCoordinate &b);
    void setMapNumber(qint32 number) { m_mapNumber = number; }
    void setGateSize(double metres) { m_gateSize = metres; }
    void setNamedPointCount(qint32 count) { m_namedPointCount = count; }
    void setTrackPointCount(qint32 count) { m_trackPointCount = count; }
    /// A name that contains "start" sets the start point, one that contains "time" adds (or
    /// replaces) a timing point, both whatever the case; other points are dropped.
    void addNamedPoint(const QString &name, const QGeoCoordinate &coordinate);
    void addTrackPoint(const QGeoCoordinate &coordinate) { m_trackPoints.append(coordinate); }
    /// Computes length and directions; to be called once all points are added.
    void computeGeometry();

    /// The file's path below the maps folder, with a leading "/": unique among the maps.
    [[nodiscard]] const QString &name() const { return m_name; }
    /// The file's base name, up to its first point.
    [[nodiscard]] QString displayName() const;
    [[nodiscard]] const QGeoCoordinate &cornerA() const { return m_cornerA; }
    [[nodiscard]] const QGeoCoordinate &cornerB() const { return m_cornerB; }
    [[nodiscard]] qint32 mapNumber() const { return m_mapNumber; }
    /// Metres; the line is met within twice this distance of the start point, a sector line
    /// within this distance.
    [[nodiscard]] double gateSize() const { return m_gateSize; }
    /// The numbers of named and outline points that the file declares.
    [[nodiscard]] qint32 namedPointCount() const { return m_namedPointCount; }
    [[nodiscard]] qint32 trackPointCount() const { return m_trackPointCount; }
    [[nodiscard]] const QMap<QString, QGeoCoordinate> &timingPoints() const
    {
        return m_timingPoints;
    }
    /// Invalid when the file has none; the map is then of no use for laps.
    [[nodiscard]] const QGeoCoordinate &startPoint() const { return m_startPoint; }
    [[nodiscard]] Direction startDirection() const { return m_startDirection; }
    /// In the order of the timing points; those after the first MaximumDirections have none.
    [[nodiscard]] const QList<Direction> &timingDirections() const { return m_timingDirections; }
    [[nodiscard]] const QList<QGeoCoordinate> &trackPoints() const { return m_trackPoints; }
    /// Metres along the outline, which is not closed.
    [[nodiscard]] double length() const { return m_length; }

    [[nodiscard]] bool isUsable() const { return m_startPoint.isValid(); }
    /// The number of sectors: one for each timing point, at most MaximumSectors.
    [[nodiscard]] int sectorCount() const;
    /// The line at the end of a sector: the timing point whose name contains the sector's number
    /// (of several, the last in name order). None when no name does, and from MaximumSectors on.
    [[nodiscard]] std::optional<Gate> sectorGate(int sector) const;

private:
    QString m_name;
    QGeoCoordinate m_cornerA;
    QGeoCoordinate m_cornerB;
    QMap<QString, QGeoCoordinate> m_timingPoints;
    // The names of the timing points at which the sectors end; null for none.
    std::array<QString, MaximumSectors> m_sectorEnds;
    QGeoCoordinate m_startPoint;
    QList<Direction> m_timingDirections;
    QList<QGeoCoordinate> m_trackPoints;
    double m_gateSize = 0.0;
    double m_length = 0.0;
    Direction m_startDirection {};
    qint32 m_mapNumber = 0;
    qint32 m_namedPointCount = 0;
    qint32 m_trackPointCount = 0;
};

} // namespace zuno
