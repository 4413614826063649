// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "testcircuit.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QStringList>

#include <insight/groundplane.h>
#include <session/session.h>
#include <track/map.h>
#include "builders.h"

namespace zuno::test {

namespace {

const GroundPlane &plane()
{
    static const GroundPlane at(QGeoCoordinate(46.1, 6.2));
    return at;
}

} // namespace

TestCircuit::TestCircuit(const QString &pieces)
{
    double heading = 0.0;
    PlaneVector here;
    for (const QString &piece : pieces.split(u' ')) {
        const QStringList numbers = piece.mid(1).split(u':');
        const double first = numbers.constFirst().toDouble();
        const bool isArc = numbers.size() == 2;
        const double turn = isArc ? numbers.constLast().toDouble() * std::numbers::pi / 180.0 : 0.0;
        const double length = isArc ? first * turn : first;
        const int steps = static_cast<int>(std::lround(length / Step));
        const double side = piece.startsWith(u'L') ? 1.0 : -1.0;
        for (int i = 0; i < steps; ++i) {
            m_places.push_back(here);
            heading += side * turn / steps / 2.0;
            here = here + PlaneVector {-std::sin(heading) * Step, std::cos(heading) * Step};
            heading += side * turn / steps / 2.0;
        }
    }
}

PlaneVector TestCircuit::at(double along, double left) const
{
    const double round = std::fmod(std::fmod(along, length()) + length(), length());
    const auto i = static_cast<std::size_t>(round / Step) % m_places.size();
    const PlaneVector from = m_places[i];
    const PlaneVector way = m_places[(i + 1) % m_places.size()] - from;
    const double part = (round / Step) - std::floor(round / Step);
    return from + (way * part) + (PlaneVector {-way.y, way.x} * (left / way.length()));
}

std::unique_ptr<Map> TestCircuit::map(double spacing, double first,
                                      const std::function<double(double)> &moved) const
{
    auto map = std::make_unique<Map>();
    map->setGateSize(10.0);
    map->addNamedPoint(QStringLiteral("Start"), plane().coordinate(at(0.0)));
    for (double along = first; along < first + length(); along += spacing)
        map->addTrackPoint(plane().coordinate(at(along, moved ? moved(along) : 0.0)));
    map->computeGeometry();
    return map;
}

std::unique_ptr<Session> rideLaps(const TestCircuit &circuit, const Map &map,
                                  const std::vector<LapPlan> &laps)
{
    constexpr int Substeps = 20;
    Points points;
    double driven = -100.0;
    const double length = circuit.length();
    const double end = (length * static_cast<double>(laps.size())) + 100.0;
    while (driven < end) {
        const double lap
            = std::clamp(std::floor(driven / length), 0.0, static_cast<double>(laps.size()) - 1.0);
        const LapPlan &plan = laps[static_cast<std::size_t>(lap)];
        const double place = std::fmod(driven + length, length);
        PointAcquisition point;
        point.acquisitionNumber = static_cast<quint32>(points.size()) + 1;
        point.dataTimeStamp = static_cast<quint32>(points.size()) * 100;
        point.dataTimeSec = point.dataTimeStamp / 1000.0;
        // A receiver's speed is never quite steady.
        const double i = point.dataTimeSec * 10.0;
        point.dataSpeed = (plan.speed(place) * 3.6) + (0.1 * std::sin(0.37 * i * i));
        const QGeoCoordinate where = plane().coordinate(
            circuit.at(driven, plan.left ? plan.left(place) : 0.0) + plan.offset);
        const bool isLost = place >= plan.lostFrom && place < plan.lostTo;
        point.dataCoordX = isLost ? NoFixCoordinate : where.longitude();
        point.dataCoordY = isLost ? NoFixCoordinate : where.latitude();
        points.push_back(point);
        for (int i = 0; i < Substeps; ++i)
            driven += plan.speed(std::fmod(driven + length, length)) * 0.1 / Substeps;
    }
    std::unique_ptr<Session> session = sessionOf(points);
    session->smooth();
    session->setMap(&map);
    return session;
}

} // namespace zuno::test
