// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/jsonwriter.h>
#include <cli/commands.h>
#include <cli/console.h>
#include <formats/import/importer.h>

namespace zuno::cli {

namespace {

void writeSession(JsonWriter &json, const ImportedSession &session)
{
    json.beginObject();
    json.member("file", session.path);
    json.member("date", session.begin.toString(u"dd/MM/yyyy"));
    json.member("time", session.begin.toString(u"HH:mm:ss"));
    json.member("samples", session.samples);
    json.member("seconds", session.seconds);
    json.member("rate", session.report.rate);
    json.member("gaps", session.report.gaps);
    json.member("jumps", session.report.positions.jumps);
    json.member("repeats", session.report.positions.repeats);
    json.member("notes", session.notes);
    json.endObject();
}

void writeOutcome(JsonWriter &json, const QString &path, const ImportOutcome &outcome)
{
    json.beginObject();
    json.member("original", path);
    json.member("kind", QString::fromLatin1(outcome.reader != nullptr ? outcome.reader->id : ""));
    json.member("logger", outcome.facts.logger);
    json.member("error", outcome.error);
    json.member("presentAs", outcome.presentAs);
    json.member("circuit", outcome.facts.circuit);
    json.member("damagedLines", outcome.facts.damage.lines);
    json.member("firstDamagedLine", outcome.facts.damage.firstLine);
    json.key("sessions");
    json.beginArray();
    for (const ImportedSession &session : outcome.sessions)
        writeSession(json, session);
    json.endArray();
    json.key("oddities");
    json.beginArray();
    for (const QString &oddity : outcome.oddities())
        json.value(oddity);
    json.endArray();
    json.endObject();
}

void print(const QString &path, const ImportOutcome &outcome)
{
    if (!outcome.error.isEmpty())
        printFileError(path, outcome.error);
    if (!outcome.presentAs.isEmpty())
        printOut(QStringLiteral("%1: was imported before, as %2\n")
                     .arg(path, outcome.presentAs)
                     .toLocal8Bit());
    for (const ImportedSession &session : outcome.sessions) {
        printOut(QStringLiteral("%1 (%2): %3, %4 s\n")
                     .arg(path, QLatin1String(outcome.reader->name), session.path)
                     .arg(session.seconds, 0, 'f', 1)
                     .toLocal8Bit());
    }
    for (const QString &oddity : outcome.oddities())
        printOut(QStringLiteral("  %1\n").arg(oddity).toLocal8Bit());
}

} // namespace

int importFiles(const QStringList &arguments)
{
    CommandLine line(
        arguments, QStringLiteral("Makes session files of other loggers' recordings. Their kind is "
                                  "told by what they hold."));
    line.addArgument(QStringLiteral("FILE..."),
                     QStringLiteral("VBO, RaceChrono CSV or RCZ, AiM XRK or CSV, RaceCapture, "
                                    "TrackAddict, NMEA, GPX, SpeedAngle, other CSV."));
    line.addValue({QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("FOLDER"),
                  QStringLiteral("The folder for the session files; it is made. Required."));
    line.addFlag(QStringLiteral("json"), QStringLiteral("Writes JSON instead of lines."));
    if (const auto status = line.parse(1, 1000000))
        return *status;
    ImportOptions options;
    options.folder = line.value(QStringLiteral("output"));
    if (options.folder.isEmpty()) {
        printError(QStringLiteral("import: no folder given to write to, with -o"));
        return WrongUse;
    }
    int status = Success;
    JsonWriter json(JsonWriter::Numbers::RoundTrip);
    json.beginArray();
    for (const QString &path : line.arguments()) {
        const ImportOutcome outcome = importRecording(path, options);
        if (!outcome.error.isEmpty())
            status = FileFailed;
        if (line.isSet(QStringLiteral("json")))
            writeOutcome(json, path, outcome);
        else
            print(path, outcome);
    }
    json.endArray();
    if (line.isSet(QStringLiteral("json")))
        printOut(json.text() + '\n');
    return status;
}

} // namespace zuno::cli
