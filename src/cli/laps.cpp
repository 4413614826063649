// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/jsonwriter.h>
#include <base/laptimes.h>
#include <cli/batch.h>
#include <cli/commands.h>
#include <cli/console.h>
#include <cli/input.h>
#include <session/idealtimetext.h>

namespace zuno::cli {

namespace {

template<typename Range>
void writeArray(JsonWriter &json, QByteArrayView key, const Range &range, auto toValue)
{
    json.key(key);
    json.beginArray();
    for (const auto &entry : range)
        json.value(toValue(entry));
    json.endArray();
}

std::optional<double> widened(std::optional<float> value)
{
    return value ? std::optional<double>(*value) : std::nullopt;
}

void writeSectors(JsonWriter &json, const Lap &lap, int sectors)
{
    json.key("sectors");
    json.beginArray();
    for (int sector = 0; sector < sectors; ++sector)
        json.value(lap.sectorTime(sector));
    json.endArray();
    json.key("bestSectorFlags");
    json.beginArray();
    for (int sector = 0; sector < sectors; ++sector)
        json.value(lap.isBestSector(sector));
    json.endArray();
}

void writeLap(JsonWriter &json, const Lap &lap, int sectors)
{
    const auto number = [](const PointAcquisition &point) { return point.acquisitionNumber; };
    json.beginObject();
    json.member("number", lap.lapNumber());
    json.member("time", lap.lapTime());
    json.member("timeText", lap.timeText());
    json.member("cumulatedTime", lap.cumulatedTime());
    json.member("distance", lap.distance());
    json.member("complete", lap.isComplete());
    if (lap.isCountedTwice())
        json.member("countedTwice", true);
    json.member("valid", lap.isValid());
    json.member("best", lap.isBest());
    json.member("maxSpeed", lap.maxSpeed());
    json.member("minSpeed", lap.minSpeed());
    json.member("maxAngle", lap.maxAngle());
    json.member("minAngle", lap.minAngle());
    json.member("accelMax", lap.accelMax());
    json.member("decelMax", lap.decelMax());
    json.member("susp1Max", widened(lap.suspension1().max));
    json.member("susp1Min", widened(lap.suspension1().min));
    json.member("susp2Max", widened(lap.suspension2().max));
    json.member("susp2Min", widened(lap.suspension2().min));
    writeSectors(json, lap, sectors);
    json.member("points", lap.points().size());
    json.member("firstTimeStamp", lap.points().front().dataTimeStamp);
    json.member("lastTimeStamp", lap.points().back().dataTimeStamp);
    writeArray(json, "maxSpeedPoints", lap.maxSpeedPoints(), number);
    writeArray(json, "minSpeedPoints", lap.minSpeedPoints(), number);
    writeArray(json, "marks", lap.marks(), [](Mark mark) { return static_cast<qint32>(mark); });
    json.endObject();
}

int sectorCount(const Session &session)
{
    return session.map() != nullptr ? session.map()->sectorCount() : 0;
}

QByteArray asJson(const Session &session)
{
    const LapResults &results = session.results();
    const auto same = [](qint32 value) { return value; };
    JsonWriter json(JsonWriter::Numbers::RoundTrip);
    json.beginObject();
    if (session.map() != nullptr) {
        json.member("map", session.map()->name());
    } else {
        json.key("map");
        json.null();
    }
    json.member("distance", results.distance);
    json.member("bestLap", results.bestLap);
    json.member("idealTime", results.idealTime);
    json.member("idealTimeText", session.idealTimeText());
    json.member("bestLapText", session.bestLapText());
    writeArray(json, "bestSectors", results.bestSectorTimes, same);
    writeArray(json, "bestSectorLaps", results.bestSectorLaps, same);
    json.key("laps");
    json.beginArray();
    for (const auto &lap : results.laps)
        writeLap(json, *lap, sectorCount(session));
    json.endArray();
    json.endObject();
    return json.text() + '\n';
}

QString typeText(const Lap &lap)
{
    if (lap.isCountedTwice())
        return QStringLiteral("counted twice");
    return lap.isComplete() ? QStringLiteral("complete") : QStringLiteral("incomplete");
}

QStringList lapRow(const Lap &lap, int sectors)
{
    QStringList row {
        QString::number(lap.lapNumber()) + (lap.isBest() ? u"*" : u""),
        typeText(lap),
        lap.isValid() ? QString() : QStringLiteral("thrown out"),
        lap.timeText(),
        timeText(lap.cumulatedTime()),
        QString::number(lap.distance(), 'f', 0),
        QString::number(lap.maxSpeed()),
        QString::number(lap.minSpeed()),
        QString::number(lap.minAngle()),
        QString::number(lap.maxAngle()),
        QString::number(lap.accelMax(), 'f', 2),
        QString::number(lap.decelMax(), 'f', 2),
    };
    for (int sector = 0; sector < sectors; ++sector) {
        row.append(timeText(lap.sectorTime(sector)) + (lap.isBestSector(sector) ? u"*" : u" "));
    }
    return row;
}

QByteArray asTable(const Session &session)
{
    const int sectors = sectorCount(session);
    QStringList header {
        QStringLiteral("Lap"),      QStringLiteral("Type"),      QString(),
        QStringLiteral("Lap time"), QStringLiteral("Cumulated"), QStringLiteral("Metres"),
        QStringLiteral("Max km/h"), QStringLiteral("Min km/h"),  QStringLiteral("Left"),
        QStringLiteral("Right"),    QStringLiteral("Accel"),     QStringLiteral("Decel")};
    for (int sector = 0; sector < sectors; ++sector)
        header.append(QStringLiteral("Section %1 ").arg(sector + 1));
    TextTable table(header);
    for (const auto &lap : session.laps())
        table.add(lapRow(*lap, sectors));
    return table.text();
}

QByteArray asSummary(const Session &session)
{
    TextList list;
    list.add(QStringLiteral("Map"),
             session.map() != nullptr ? session.map()->name() : QStringLiteral("none found"));
    list.add(QStringLiteral("Distance"), QStringLiteral("%1 m").arg(session.results().distance));
    list.add(QStringLiteral("Best lap"), session.bestLapText());
    list.add(QStringLiteral("Ideal time"), explainedIdealTime(session));
    return list.text();
}

bool invalidate(Session &session, const QList<int> &numbers)
{
    for (const int number : numbers) {
        if (lapReported(session, number) == nullptr)
            return false;
        session.setLapValid(static_cast<std::size_t>(number) - 1, false);
    }
    return true;
}

int write(const CommandLine &line, const Batch &batch, qsizetype place, const Maps &maps,
          const QList<int> &thrownOut)
{
    const QString &file = batch.files[place];
    const DisplayedSession displayed = displayReported(file, line, maps);
    if (!displayed.session || !invalidate(*displayed.session, thrownOut))
        return FileFailed;
    const Session &session = *displayed.session;
    if (line.isSet(QStringLiteral("json"))) {
        const QByteArray json = asJson(session);
        printOut(batch.isOfMany ? jsonOfOne(file, json) : json);
        return Success;
    }
    QByteArray text = asSummary(session);
    if (!session.laps().empty())
        text += '\n' + asTable(session);
    printOut(batch.isOfMany ? textOfOne(file, text) : text);
    return Success;
}

} // namespace

int laps(const QStringList &arguments)
{
    CommandLine line(arguments,
                     QStringLiteral("Cuts sessions into laps, as displaying them does."));
    addBatchOptions(line);
    addMapOptions(line);
    line.addValue({QStringLiteral("invalidate")}, QStringLiteral("N"),
                  QStringLiteral("Throws lap N out; the file is not changed. Can be repeated."));
    line.addFlag(QStringLiteral("json"),
                 QStringLiteral("Writes JSON instead of a table; of several files a line each."));
    if (const auto status = line.parse(1, CommandLine::AnyNumber))
        return *status;
    const auto thrownOut = line.numbers(QStringLiteral("invalidate"));
    const std::optional<Batch> batch = batchReported(line);
    if (!thrownOut || !batch)
        return WrongUse;
    const Maps maps = mapsOf(line);
    return forEachFile(
        *batch, [&](qsizetype place) { return write(line, *batch, place, maps, *thrownOut); });
}

} // namespace zuno::cli
