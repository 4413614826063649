// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/jsonwriter.h>
#include <cli/commands.h>
#include <cli/console.h>
#include <cli/input.h>
#include <maps/payload/lappayload.h>

namespace zuno::cli {

namespace {

void writeReadings(JsonWriter &json, QByteArrayView key, const SuspensionChannel &channel)
{
    json.key(key);
    json.beginArray();
    for (const Reading &reading : channel.readings) {
        json.beginArray();
        json.value(reading.number);
        json.value(static_cast<double>(reading.value));
        json.endArray();
    }
    json.endArray();
}

void writeFigures(JsonWriter &json, QByteArrayView key, const SuspensionChannel &channel)
{
    json.key(key);
    json.beginArray();
    for (const float figure : {channel.mean, channel.min, channel.max})
        json.value(static_cast<double>(figure));
    json.endArray();
}

void writePoints(JsonWriter &json, const Points &points)
{
    json.key("points");
    json.beginArray();
    for (const PointAcquisition &point : points) {
        json.beginObject();
        writePointMembers(json, point, SpeedForm::Exact);
        writeReadings(json, "susp1", point.suspension1());
        writeReadings(json, "susp2", point.suspension2());
        writeFigures(json, "susp1Stats", point.suspension1());
        writeFigures(json, "susp2Stats", point.suspension2());
        json.endObject();
    }
    json.endArray();
}

void writeRecording(JsonWriter &json, const Session &session)
{
    const Recording &recording = session.recording();
    json.member("version", QString::fromLocal8Bit(recording.version));
    json.member("headerA", recording.date);
    json.member("reservedByte", recording.reservedByte);
    json.member("headerB", recording.time);
    json.member("reservedDouble", recording.reservedDouble);
    json.member("words", recording.words);
    json.member("newSession", session.newSession());
    json.member("listsFlag", recording.listsFlag);
}

void writeInformation(JsonWriter &json, const Session &session)
{
    json.member("circuit", session.circuitName());
    json.member("event", session.eventName());
    json.member("driver", session.driver());
    json.member("bestLapText", session.bestLapText());
    json.member("idealTimeText", session.idealTimeText());
    json.member("vehicle", session.vehicle());
    json.member("condition", session.condition());
    json.member("temperature", session.temperature());
    json.member("tyres", session.tyres());
    json.member("notes", session.notes());
    json.key("invalid");
    json.beginArray();
    const QList<quint8> invalid = session.invalidLaps();
    for (const quint8 number : invalid)
        json.value(number);
    json.endArray();
}

QByteArray asJson(const Session &session, bool withPoints)
{
    JsonWriter json(JsonWriter::Numbers::RoundTrip);
    json.beginObject();
    writeRecording(json, session);
    writeInformation(json, session);
    json.member("samples", session.samples().size());
    json.member("list1", session.readingLists().list1.size());
    json.member("list2", session.readingLists().list2.size());
    if (withPoints)
        writePoints(json, session.samples());
    json.endObject();
    return json.text() + '\n';
}

QString numberList(const QList<quint8> &numbers)
{
    QStringList texts;
    for (const quint8 number : numbers)
        texts.append(QString::number(number));
    return texts.join(QStringLiteral(", "));
}

QByteArray asList(const Session &session)
{
    const Recording &recording = session.recording();
    TextList list;
    list.add(QStringLiteral("Version"), QString::fromLocal8Bit(recording.version));
    list.add(QStringLiteral("Recorded"), recording.date + u' ' + recording.time);
    list.add(QStringLiteral("Samples"), QString::number(session.samples().size()));
    if (recording.wholeSampleCount < recording.sampleCount) {
        list.add(QStringLiteral("  in the file"), QString::number(recording.wholeSampleCount));
    }
    list.add(QStringLiteral("Front readings"),
             QString::number(session.readingLists().list1.size()));
    list.add(QStringLiteral("Rear readings"), QString::number(session.readingLists().list2.size()));
    list.add(QStringLiteral("Opened before"),
             session.newSession() == 1 ? QStringLiteral("no") : QStringLiteral("yes"));
    list.add(QStringLiteral("Circuit"), session.circuitName());
    list.add(QStringLiteral("Event"), session.eventName());
    list.add(QStringLiteral("Driver"), session.driver());
    list.add(QStringLiteral("Vehicle"), session.vehicle());
    list.add(QStringLiteral("Condition"), session.condition());
    list.add(QStringLiteral("Temperature"), QString::number(session.temperature()));
    list.add(QStringLiteral("Tyres"), session.tyres());
    list.add(QStringLiteral("Best lap"), session.bestLapText());
    list.add(QStringLiteral("Ideal time"), session.idealTimeText());
    list.add(QStringLiteral("Laps thrown out"), numberList(session.invalidLaps()));
    list.add(QStringLiteral("Notes"), session.notes());
    return list.text();
}

QByteArray asTable(const Points &points)
{
    TextTable table({QStringLiteral("No"), QStringLiteral("Time s"), QStringLiteral("Longitude"),
                     QStringLiteral("Latitude"), QStringLiteral("Speed"), QStringLiteral("Angle"),
                     QStringLiteral("Accel"), QStringLiteral("Computed"), QStringLiteral("Lateral"),
                     QStringLiteral("Front"), QStringLiteral("Rear")});
    for (const PointAcquisition &point : points) {
        const auto number = [](double value, int decimals) {
            return QString::number(value, std::abs(value) < 1e6 ? 'f' : 'g', decimals);
        };
        table.add({QString::number(point.acquisitionNumber), number(point.dataTimeSec, 1),
                   number(point.dataCoordX, 6), number(point.dataCoordY, 6),
                   number(point.dataSpeed, 1), number(point.dataAngle, 1),
                   number(point.dataAccelXPH, 2), number(point.dataAccelXPHComputed, 2),
                   number(point.dataAccelYPH, 2),
                   number(static_cast<double>(point.suspension1().mean), 1),
                   number(static_cast<double>(point.suspension2().mean), 1)});
    }
    return table.text();
}

} // namespace

int decode(const QStringList &arguments)
{
    CommandLine line(arguments, QStringLiteral("Shows what a session file says."));
    line.addArgument(QStringLiteral("FILE"), QStringLiteral("A session file (.ra1)."));
    line.addFlag(QStringLiteral("smooth"), QStringLiteral("Runs the smoothing pass first."));
    line.addFlag(QStringLiteral("no-points"), QStringLiteral("Leaves the samples out."));
    line.addFlag(QStringLiteral("json"), QStringLiteral("Writes JSON instead of a table."));
    if (const auto status = line.parse(1, 1))
        return *status;
    const std::unique_ptr<Session> session = readReported(line.argument(0));
    if (!session)
        return FileFailed;
    if (line.isSet(QStringLiteral("smooth")))
        session->smooth();
    const bool withPoints = !line.isSet(QStringLiteral("no-points"));
    if (line.isSet(QStringLiteral("json"))) {
        printOut(asJson(*session, withPoints));
        return Success;
    }
    printOut(asList(*session));
    if (withPoints)
        printOut('\n' + asTable(session->samples()));
    return Success;
}

} // namespace zuno::cli
