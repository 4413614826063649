// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/laps/sessionsummary.h>

#include <QDir>
#include <QLocale>

#include <session/idealtimetext.h>
#include <session/recording/gpsquality.h>
#include <session/session.h>
#include <session/sessionlap.h>
#include <theme/shownunits.h>
#include <track/map.h>

namespace zuno {

// Empty when all samples say where the motorcycle was.
QString SessionSummary::gpsText(const Session &session)
{
    const qint64 count = gpsQuality(session.wholeSamples()).total();
    if (count == 0)
        return {};
    return count == 1 ? tr("1 sample without GPS")
                      : tr("%1 samples without GPS").arg(QLocale().toString(count));
}

QString SessionSummary::laplessText(const Session &session, const QString &mapsFolder)
{
    const QString gps = gpsText(session);
    const QString reason = reasonForNoLaps(session, mapsFolder);
    return gps.isEmpty() ? reason : reason + u"\n\n" + gps + u'.';
}

QString SessionSummary::reasonForNoLaps(const Session &session, const QString &mapsFolder)
{
    if (session.lacksMemory())
        return tr("There is not enough memory to show this session.");
    const Map *map = session.map();
    if (map == nullptr) {
        return tr("No map is known for the place where this session was recorded, so it cannot be "
                  "cut into laps.\n\nMake a new map from it, choose a map with \"Maps\" (Ctrl+M), "
                  "or "
                  "copy the circuit's map file to\n%1")
            .arg(QDir::toNativeSeparators(mapsFolder));
    }
    if (!map->isUsable()) {
        return tr("The map \"%1\" has no start point, so laps cannot be cut.\n\nChoose another map "
                  "with \"Maps\" (Ctrl+M).")
            .arg(map->displayName());
    }
    return tr("This session never passes the start/finish line of the map \"%1\".\n\nIf it was "
              "ridden on another circuit, choose its map with \"Maps\" (Ctrl+M).")
        .arg(map->displayName());
}

QString SessionSummary::idealTimeText(const Session &session)
{
    return tr("Ideal Time : %1").arg(explainedIdealTime(session));
}

QString SessionSummary::distanceText(const Session &session)
{
    const auto metres = session.results().distance;
    const QString distance = units().distanceUnit == Units::Distance::Metres
                                 ? tr("Traveled distance : %1 m").arg(QLocale().toString(metres))
                                 : tr("Traveled distance : %1").arg(units().distanceText(metres));
    const QString gps = gpsText(session);
    return gps.isEmpty() ? distance : distance + u"   (" + gps + u')';
}

QString SessionSummary::firstLapText(const SessionLap &lap)
{
    const Map *map = lap.map();
    return tr("Infos of first lap selected : Map : %1 --- Session : %2 --- Lap num : %3 --- Lap "
              "time : %4 --- max speed : %5 km/h")
        .arg(map != nullptr ? map->displayName() : QString(), lap.fileName(),
             QString::number(lap->lapNumber()), lap->timeText(), QString::number(lap->maxSpeed()));
}

} // namespace zuno
