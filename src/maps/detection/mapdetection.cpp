// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/detection/mapdetection.h>

#include <cmath>
#include <limits>

#include <base/numbers.h>
#include <session/laps/lap.h>
#include <session/recording/trace.h>
#include <session/session.h>
#include <track/map.h>
#include <track/mapfile.h>

namespace zuno {

namespace {

constexpr qint64 DetectionReach = 1000;
constexpr qint64 ClearlyCloser = 500;

// The start of the ride. Only the marker of a missing fix is passed over.
QGeoCoordinate firstPosition(const Session &session)
{
    for (const PointAcquisition &point : session.samples()) {
        if (point.dataCoordY != NoFixCoordinate && point.dataCoordX != NoFixCoordinate)
            return positionOf(point);
    }
    return {};
}

} // namespace

QList<const Map *> findCandidates(const Session &session, const QList<const Map *> &maps)
{
    QList<const Map *> candidates;
    const QGeoCoordinate position = firstPosition(session);
    qint64 best = std::numeric_limits<qint32>::max();
    for (const Map *map : maps) {
        const qint64 distance = truncatedToInt(position.distanceTo(map->startPoint()));
        if (distance == 0 || distance > DetectionReach)
            continue;
        if (distance > best && distance - best > ClearlyCloser)
            continue;
        if (distance < best && best - distance > ClearlyCloser)
            candidates.clear();
        best = distance;
        candidates.append(map);
    }
    return candidates;
}

MapCandidates candidatesOf(const Session &session, const MapLibrary &maps, const QString &choice)
{
    if (const Map *stored = choice.isEmpty() ? nullptr : maps.find(choice))
        return {{stored}, true};
    return {findCandidates(session, maps.maps()), false};
}

void chooseMapByLength(Session &session, QList<const Map *> candidates)
{
    if (candidates.isEmpty()) {
        session.setMap(nullptr);
        return;
    }
    const Map *first = candidates.first();
    session.setMap(first);
    session.rankLaps();
    if (candidates.size() == 1)
        return;

    const bool hasWholeLap = session.laps().size() >= 2;
    const double length = hasWholeLap ? session.laps()[1]->distance() : 0.0;
    if (!hasWholeLap)
        candidates.removeFirst();

    qint32 best = 100000;
    const Map *chosen = nullptr;
    for (const Map *map : std::as_const(candidates)) {
        const double difference = std::fabs(map->length() - length);
        if (best > difference) {
            chosen = map;
            best = truncatedToInt(difference);
        }
    }
    if (chosen == first)
        return;
    session.setMap(chosen);
    session.rankLaps();
    if (!hasWholeLap)
        chooseMapByLength(session, candidates);
}

} // namespace zuno
