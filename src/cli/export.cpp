// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/wholefile.h>
#include <cli/commands.h>
#include <cli/console.h>
#include <cli/input.h>
#include <formats/sessionride.h>

namespace zuno::cli {

namespace {

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
    return write(output, format.write(rideOf(*session)));
}

int exportLap(const CommandLine &line, const RideFormat &format, const QString &output, int number)
{
    const DisplayedSession displayed = displayReported(line.argument(0), line);
    const Lap *lap = displayed.session ? lapReported(*displayed.session, number) : nullptr;
    if (lap == nullptr)
        return FileFailed;
    return write(output, format.write(rideOf(*displayed.session, *lap)));
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
