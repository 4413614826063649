// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/wholefile.h>
#include <cli/batch.h>
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

int exportSession(const QString &file, const RideFormat &format, const QString &output)
{
    const std::unique_ptr<Session> session = openReported(file);
    if (!session)
        return FileFailed;
    return write(output, format.write(rideOf(*session)));
}

int exportLap(const DisplayedSession &displayed, const RideFormat &format, const QString &output,
              int number)
{
    const Lap *lap = displayed.session ? lapReported(*displayed.session, number) : nullptr;
    if (lap == nullptr)
        return FileFailed;
    return write(output, format.write(rideOf(*displayed.session, *lap)));
}

int exportAll(const CommandLine &line, const Batch &batch, const RideFormat &format,
              std::optional<int> lap)
{
    const std::optional<QStringList> outputs
        = outputsReported(batch, line.value(QStringLiteral("output")), QLatin1String(format.id));
    if (!outputs)
        return WrongUse;
    const Maps maps = lap ? mapsOf(line) : Maps();
    return forEachFile(batch, [&](qsizetype place) {
        const QString &file = batch.files[place];
        return lap ? exportLap(displayReported(file, line, maps), format, (*outputs)[place], *lap)
                   : exportSession(file, format, (*outputs)[place]);
    });
}

} // namespace

int exportRide(const QStringList &arguments)
{
    CommandLine line(arguments, QStringLiteral("Writes sessions, or one lap of them, for other "
                                               "programs."));
    addBatchOptions(line);
    line.addValue({QStringLiteral("format")}, QStringLiteral("NAME"),
                  QStringLiteral("vbo, gpx, kml or csv; required."));
    line.addValue({QStringLiteral("lap")}, QStringLiteral("N"),
                  QStringLiteral("Writes lap N only, with the speeds that the program shows."));
    line.addValue({QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("OUT"),
                  QStringLiteral("The file to write; of several files the folder to write "
                                 "them into. Required."));
    addMapOptions(line);
    if (const auto status = line.parse(1, CommandLine::AnyNumber))
        return *status;
    const auto laps = line.numbers(QStringLiteral("lap"));
    const std::optional<Batch> batch = batchReported(line);
    if (!laps || !batch)
        return WrongUse;
    const RideFormat *format = findRideFormat(line.value(QStringLiteral("format")));
    const QString output = line.value(QStringLiteral("output"));
    if (format == nullptr || output.isEmpty()) {
        printError(
            QStringLiteral("export: wants --format vbo, gpx, kml or csv, and a file with -o"));
        return WrongUse;
    }
    return exportAll(line, *batch, *format,
                     laps->isEmpty() ? std::nullopt : std::optional(laps->last()));
}

} // namespace zuno::cli
