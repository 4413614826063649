// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <QList>
#include <QString>

namespace zuno::demo {

/// Random numbers that are the same on every machine and with every library (splitmix64).
class Random
{
public:
    explicit Random(quint64 seed) : m_state(seed) {}

    /// Even spread over [low, high).
    [[nodiscard]] double uniform(double low, double high);
    /// Mean 0, deviation 1, never beyond 3.5 (a sum of four even numbers, which needs no
    /// logarithm).
    [[nodiscard]] double bell();

private:
    quint64 m_state;
};

/// A random curve over a distance that bends softly (continuous to the second derivative) and
/// gives the same value whenever it is asked at the same place.
class Wander
{
public:
    /// \a knot: metres between two independent values, above 0.
    Wander(quint64 seed, double knot) : m_seed(seed), m_knot(knot) {}

    /// Between -1 and 1.
    [[nodiscard]] double at(double metres) const;

private:
    quint64 m_seed;
    double m_knot;
};

/// 0 up to x = 0, 1 from x = 1 on, between them a ramp without a kink up to the second derivative.
[[nodiscard]] double ramp(double x);

/// Metres east and north of an origin.
struct Point
{
    double east = 0;
    double north = 0;
};

/// Degrees, WGS84.
struct Position
{
    double latitude = 0;
    double longitude = 0;
};

/// The position \a point metres away from \a origin, to 1e-7 degrees; good for some kilometres.
[[nodiscard]] Position toPosition(const Position &origin, const Point &point);

/// Two straights meet at a point and are joined by an arc (metres).
struct Corner
{
    double east = 0;
    double north = 0;
    double radius = 0;
};

/// A smooth line over the ground, asked by the distance along it.
class Path
{
public:
    /// A lap: the last corner joins the first by the main straight, and distance 0 is the part
    /// \a lineFraction (0 .. 1) of the way along it. At least three corners.
    [[nodiscard]] static Path closed(const QList<Corner> &corners, double lineFraction);
    /// A road from the first to the last corner, whose radii do not count. At least two corners.
    [[nodiscard]] static Path open(const QList<Corner> &corners);

    /// Metres.
    [[nodiscard]] double length() const;
    /// \a station metres from the start and \a left metres beside the line. A lap goes round and
    /// round; on a road the station is held between the two ends.
    [[nodiscard]] Point at(double station, double left) const;
    /// 1/m, positive in a left-hand corner.
    [[nodiscard]] double curvature(double station) const;

private:
    Path(const QList<Point> &outline, bool closed);
    void resample(const QList<Point> &outline);
    void smooth(std::vector<double> &values, int reach) const;
    void measureCurvature();
    [[nodiscard]] std::size_t index(qsizetype i) const;

    bool m_closed;
    double m_step = 1;
    std::vector<double> m_east;
    std::vector<double> m_north;
    std::vector<double> m_curvature;
};

/// One of the made-up race tracks.
struct Circuit
{
    QString name;
    QString country;
    Position origin;
    QList<Corner> corners;
    double lineFraction = 0.5; ///< where on the main straight the line lies
    QList<double> sectorEnds; ///< parts of the lap, ascending; the last sector ends at the line
    double pitSide = 1; ///< 1: the pit lane lies left of the main straight, -1: right

    [[nodiscard]] Path path() const { return Path::closed(corners, lineFraction); }
};

[[nodiscard]] const QList<Circuit> &circuits();

/// A winding road of about \a metres, always the same, and where it starts.
[[nodiscard]] Path hillRoad(double metres);
[[nodiscard]] Position hillRoadOrigin();

} // namespace zuno::demo
