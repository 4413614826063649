// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <limits>

#include <base/jsonwriter.h>
#include <base/laptimes.h>
#include <cli/commands.h>
#include <cli/console.h>
#include <cli/input.h>
#include <maps/check/mapcheck.h>
#include <track/mapfile.h>

namespace zuno::cli {

namespace {

struct KindName
{
    MapWarning::Kind kind;
    const char *name;
};

// For scripts, which must not depend on the wording.
constexpr KindName KindNames[] = {
    {MapWarning::Kind::NoLine, "noLine"},
    {MapWarning::Kind::NoPass, "noPass"},
    {MapWarning::Kind::MissedPoint, "missedPoint"},
    {MapWarning::Kind::PointOutOfOrder, "pointOutOfOrder"},
    {MapWarning::Kind::SecondTrack, "secondTrack"},
    {MapWarning::Kind::OtherWay, "otherWay"},
    {MapWarning::Kind::GatesTouch, "gatesTouch"},
    {MapWarning::Kind::CountedTwice, "countedTwice"},
    {MapWarning::Kind::NoLapComplete, "noLapComplete"},
    {MapWarning::Kind::LastNotOnLine, "lastNotOnLine"},
    {MapWarning::Kind::TooManyPoints, "tooManyPoints"},
    {MapWarning::Kind::NotFound, "notFound"},
    {MapWarning::Kind::SlowPass, "slowPass"},
};

QString kindName(MapWarning::Kind kind)
{
    for (const KindName &known : KindNames) {
        if (known.kind == kind)
            return QString::fromLatin1(known.name);
    }
    return {};
}

template<typename Numbers>
void writeNumbers(JsonWriter &json, QByteArrayView key, const Numbers &numbers)
{
    json.key(key);
    json.beginArray();
    for (const auto number : numbers)
        json.value(number);
    json.endArray();
}

void writeWarning(JsonWriter &json, const MapWarning &warning)
{
    json.beginObject();
    json.member("kind", kindName(warning.kind));
    json.member("point", warning.point);
    json.member("otherPoint", warning.otherPoint);
    writeNumbers(json, "laps", warning.laps);
    if (warning.speed > 0)
        json.member("speed", warning.speed);
    json.member("text", warningText(warning));
    json.endObject();
}

void writeLap(JsonWriter &json, const CheckedLap &lap)
{
    json.beginObject();
    json.member("number", lap.number);
    json.member("time", lap.time);
    json.member("timeText", timeText(lap.time));
    json.member("distance", lap.distance);
    json.member("complete", lap.isComplete);
    writeNumbers(json, "sectors", lap.sectorTimes);
    json.endObject();
}

void writeCheck(JsonWriter &json, const QString &file, const MapCheck &check)
{
    json.beginObject();
    json.member("file", file);
    json.member("length", check.length);
    json.member("bestLap", check.bestLap);
    json.member("idealTime", check.idealTime);
    json.key("laps");
    json.beginArray();
    for (const CheckedLap &lap : check.laps)
        writeLap(json, lap);
    json.endArray();
    json.key("warnings");
    json.beginArray();
    for (const MapWarning &warning : check.warnings)
        writeWarning(json, warning);
    json.endArray();
    json.endObject();
}

QByteArray asTable(const MapCheck &check)
{
    QStringList header {QStringLiteral("Lap"), QStringLiteral("Type"), QStringLiteral("Lap time"),
                        QStringLiteral("Metres")};
    const qsizetype sectors = check.laps.empty() ? 0 : check.laps.front().sectorTimes.size();
    for (qsizetype sector = 0; sector < sectors; ++sector)
        header.append(QStringLiteral("Section %1").arg(sector + 1));
    TextTable table(header);
    for (std::size_t i = 0; i < check.laps.size(); ++i) {
        const CheckedLap &lap = check.laps[i];
        const bool isBest = static_cast<int>(i) == check.bestLap;
        QStringList row {QString::number(lap.number) + (isBest ? u"*" : u""),
                         lap.isComplete ? QStringLiteral("complete") : QStringLiteral("incomplete"),
                         timeText(lap.time), QString::number(lap.distance, 'f', 0)};
        for (const qint32 time : lap.sectorTimes)
            row.append(timeText(time));
        table.add(row);
    }
    return table.text();
}

QByteArray asText(const QString &file, const MapCheck &check)
{
    QByteArray text = file.toLocal8Bit() + '\n';
    if (!check.laps.empty())
        text += asTable(check);
    for (const MapWarning &warning : check.warnings)
        text += "Warning: " + warningText(warning).toLocal8Bit() + '\n';
    if (check.warnings.isEmpty())
        text += "Nothing is wrong.\n";
    return text;
}

} // namespace

int mapCheck(const QStringList &arguments)
{
    CommandLine line(arguments, QStringLiteral("Cuts sessions with a map file and tells what is "
                                               "wrong with the map. No file is changed."));
    line.addArgument(QStringLiteral("MAP"), QStringLiteral("A map file."));
    line.addArgument(QStringLiteral("FILE..."), QStringLiteral("Session files (.ra1)."));
    line.addFlag(QStringLiteral("json"), QStringLiteral("Writes JSON instead of tables."));
    if (const auto status = line.parse(2, std::numeric_limits<qsizetype>::max()))
        return *status;
    const std::unique_ptr<Map> map = mapReported(line.argument(0), {});
    if (!map)
        return FileFailed;
    const MapDraft draft = MapDraft::of(*map);
    const bool isJson = line.isSet(QStringLiteral("json"));
    JsonWriter json(JsonWriter::Numbers::RoundTrip);
    QByteArray text;
    bool allRead = true;
    json.beginArray();
    for (const QString &file : line.arguments().mid(1)) {
        const std::unique_ptr<Session> session = readReported(file);
        allRead = allRead && session != nullptr;
        if (!session)
            continue;
        session->smooth();
        const MapCheck check = checkMap(session->wholeSamples(), draft);
        if (isJson)
            writeCheck(json, file, check);
        else
            text += (text.isEmpty() ? QByteArray() : QByteArray("\n")) + asText(file, check);
    }
    json.endArray();
    printOut(isJson ? json.text() + '\n' : text);
    return allRead ? Success : FileFailed;
}

} // namespace zuno::cli
