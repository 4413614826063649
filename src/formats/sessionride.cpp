// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/sessionride.h>

#include <QFileInfo>

#include <session/laps/lap.h>
#include <session/session.h>
#include <track/map.h>

namespace zuno {

namespace {

QList<RideGate> gatesOfMap(const Map *map)
{
    QList<RideGate> gates;
    if (map == nullptr || !map->startPoint().isValid())
        return gates;
    gates.append({QStringLiteral("Start"), map->startPoint(), map->startPoint(), true, true});
    for (const QGeoCoordinate &point : map->timingPoints()) {
        if (point.isValid())
            gates.append(
                {QStringLiteral("Time %1").arg(gates.size() - 1), point, point, false, true});
    }
    return gates;
}

} // namespace

RideToExport describedRide(const Session &session)
{
    RideToExport ride;
    ride.begin = recordingBegin(session.recording().date, session.recording().time);
    ride.name = QFileInfo(session.filePath()).completeBaseName();
    ride.driver = session.driver();
    ride.vehicle = session.vehicle();
    ride.circuit = session.circuitName();
    ride.gates = gatesOfMap(session.map());
    return ride;
}

RideToExport rideOf(const Session &session)
{
    RideToExport ride = describedRide(session);
    ride.samples = session.wholeSamples();
    return ride;
}

RideToExport rideOf(const Session &session, const Lap &lap)
{
    RideToExport ride = describedRide(session);
    ride.samples = lap.points();
    ride.name += QStringLiteral(", lap %1").arg(lap.lapNumber());
    return ride;
}

} // namespace zuno
