// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QFileInfo>

#include <base/wholefile.h>
#include <cli/commands.h>
#include <cli/console.h>
#include <cli/input.h>
#include <formats/rideexport.h>

namespace zuno::cli {

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

RideToExport rideOf(const Session &session)
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

int write(const QString &path, const QByteArray &bytes)
{
    const QString error = writeWholeFile(path, bytes);
    if (error.isEmpty())
        return Success;
    printFileError(path, error);
    return FileFailed;
}

int exportSession(const CommandLine &line, const RideFormat &format, const QString &output)
{
    const std::unique_ptr<Session> session = openReported(line.argument(0));
    if (!session)
        return FileFailed;
    RideToExport ride = rideOf(*session);
    ride.samples = session->wholeSamples();
    return write(output, format.write(ride));
}

int exportLap(const CommandLine &line, const RideFormat &format, const QString &output, int number)
{
    const DisplayedSession displayed = displayReported(line.argument(0), line);
    const Lap *lap = displayed.session ? lapReported(*displayed.session, number) : nullptr;
    if (lap == nullptr)
        return FileFailed;
    RideToExport ride = rideOf(*displayed.session);
    ride.samples = lap->points();
    ride.name += QStringLiteral(", lap %1").arg(number);
    return write(output, format.write(ride));
}

} // namespace

int exportRide(const QStringList &arguments)
{
    CommandLine line(arguments, QStringLiteral("Writes a session, or one lap of it, for other "
                                               "programs."));
    line.addArgument(QStringLiteral("FILE"), QStringLiteral("A session file (.ra1)."));
    line.addValue({QStringLiteral("format")}, QStringLiteral("NAME"),
                  QStringLiteral("vbo, gpx, kml or csv; required."));
    line.addValue({QStringLiteral("lap")}, QStringLiteral("N"),
                  QStringLiteral("Writes lap N only, with the speeds that the program shows."));
    line.addValue({QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("OUT"),
                  QStringLiteral("The file to write; required."));
    addMapOptions(line);
    if (const auto status = line.parse(1, 1))
        return *status;
    const auto laps = line.numbers(QStringLiteral("lap"));
    if (!laps)
        return WrongUse;
    const RideFormat *format = findRideFormat(line.value(QStringLiteral("format")));
    const QString output = line.value(QStringLiteral("output"));
    if (format == nullptr || output.isEmpty()) {
        printError(
            QStringLiteral("export: wants --format vbo, gpx, kml or csv, and a file with -o"));
        return WrongUse;
    }
    return laps->isEmpty() ? exportSession(line, *format, output)
                           : exportLap(line, *format, output, laps->last());
}

} // namespace zuno::cli
