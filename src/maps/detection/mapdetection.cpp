// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/detection/mapdetection.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

#include <base/numbers.h>
#include <base/processorstate.h>
#include <maps/detection/outlinefollower.h>
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
QGeoCoordinate firstPosition(std::span<const PointAcquisition> samples)
{
    for (const PointAcquisition &point : samples) {
        if (point.dataCoordY != NoFixCoordinate && point.dataCoordX != NoFixCoordinate)
            return positionOf(point);
    }
    return {};
}

// The maps near the first position.
QList<const Map *> nearCandidates(const QGeoCoordinate &position, const QList<const Map *> &maps)
{
    QList<const Map *> candidates;
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

// The maps whose outline is followed, wherever the ride began.
QList<const Map *> followedCandidates(std::span<const PointAcquisition> samples,
                                      const QList<const Map *> &maps)
{
    QList<const Map *> candidates;
    if (maps.isEmpty())
        return candidates;
    const OutlineFollower ride(samples);
    std::copy_if(maps.begin(), maps.end(), std::back_inserter(candidates),
                 [&ride](const Map *map) { return map->isUsable() && ride.follows(*map); });
    return candidates;
}

qsizetype completeLaps(const LapList &laps)
{
    return std::count_if(laps.begin(), laps.end(),
                         [](const auto &lap) { return lap->isComplete(); });
}

void chooseByLength(Session &session, QList<const Map *> candidates)
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
        chooseByLength(session, candidates);
}

// Of the layouts of a place one that gives complete laps, where the chosen one gives none.
void preferComplete(Session &session, const QList<const Map *> &candidates)
{
    if (candidates.size() < 2 || completeLaps(session.laps()) > 0)
        return;
    const Map *best = nullptr;
    qsizetype most = 0;
    for (const Map *map : candidates) {
        const qsizetype complete
            = completeLaps(cutIntoLaps(session.wholeSamples(), *map, session.invalidLaps()).laps);
        if (complete > most) {
            most = complete;
            best = map;
        }
    }
    if (best != nullptr)
        session.setMap(best);
}

} // namespace

QList<const Map *> findCandidates(const Session &session, const QList<const Map *> &maps)
{
    clearVectorRegisters();
    const QList<const Map *> near = nearCandidates(firstPosition(session.samples()), maps);
    return near.isEmpty() ? followedCandidates(session.wholeSamples(), maps) : near;
}

bool isFound(std::span<const PointAcquisition> samples, const Map &map)
{
    const QList<const Map *> maps {&map};
    return !nearCandidates(firstPosition(samples), maps).isEmpty()
           || !followedCandidates(samples, maps).isEmpty();
}

MapCandidates candidatesOf(const Session &session, const MapLibrary &maps, const QString &choice)
{
    if (const Map *stored = choice.isEmpty() ? nullptr : maps.find(choice))
        return {{stored}, true};
    return {findCandidates(session, maps.maps()), false};
}

void chooseMapByLength(Session &session, const QList<const Map *> &candidates)
{
    chooseByLength(session, candidates);
    preferComplete(session, candidates);
}

} // namespace zuno
