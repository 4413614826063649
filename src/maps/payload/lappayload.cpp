// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/payload/lappayload.h>

#include <optional>

#include <base/jsonwriter.h>
#include <base/processorstate.h>
#include <session/laps/lap.h>
#include <session/session.h>
#include <track/map.h>

namespace zuno {

namespace {

void writePoint(JsonWriter &json, const PointAcquisition &point)
{
    json.beginObject();
    if (point.isMisplaced) {
        // The page draws a line through all it gets.
        PointAcquisition lost = point;
        lost.dataCoordX = lost.dataCoordY = NoFixCoordinate;
        writePointMembers(json, lost, SpeedForm::Rounded);
    } else {
        writePointMembers(json, point, SpeedForm::Rounded);
    }
    json.endObject();
}

void writePoints(JsonWriter &json, QByteArrayView key, const Points &points)
{
    json.key(key);
    json.beginArray();
    for (const PointAcquisition &point : points)
        writePoint(json, point);
    json.endArray();
}

void writeClosedLine(JsonWriter &json, const Points &points)
{
    json.key("lapPoints");
    json.beginArray();
    for (const PointAcquisition &point : points)
        writePoint(json, point);
    if (!points.empty())
        writePoint(json, points.front());
    json.endArray();
}

void writeLandmarks(JsonWriter &json, const Map *map)
{
    json.key("landmarks");
    json.beginArray();
    if (map != nullptr) {
        QMap<QString, QGeoCoordinate> landmarks = map->timingPoints();
        landmarks.insert(QStringLiteral("start"), map->startPoint());
        for (const QGeoCoordinate &place : std::as_const(landmarks)) {
            json.beginObject();
            json.member("lat", place.latitude());
            json.member("lng", place.longitude());
            json.endObject();
        }
    }
    json.endArray();
}

// What the page draws of a lap.
struct Drawing
{
    const Points &line;
    const Points &maxSpeeds;
    const Points &minSpeeds;
    const Map *map = nullptr;
    double accelMax = 0.0;
    double decelMax = 0.0;
    bool isComplete = false;
};

QByteArray payload(const Drawing &drawing)
{
    JsonWriter json(JsonWriter::Numbers::AsQt);
    json.beginObject();
    writeClosedLine(json, drawing.line);
    writePoints(json, "maxSpeeds", drawing.maxSpeeds);
    writePoints(json, "minSpeeds", drawing.minSpeeds);
    writeLandmarks(json, drawing.map);
    json.member("accelMax", drawing.accelMax);
    json.member("decelMax", drawing.decelMax);
    json.member("isComplete", drawing.isComplete);
    json.endObject();
    return json.text();
}

std::optional<double> coordinate(double value)
{
    return value == NoFixCoordinate ? std::nullopt : std::optional(value);
}

} // namespace

void writePointMembers(JsonWriter &json, const PointAcquisition &point, SpeedForm speed)
{
    json.member("acquisitionNumber", point.acquisitionNumber);
    json.member("dataTimeStamp", point.dataTimeStamp);
    json.member("dataTimeSec", point.dataTimeSec);
    json.member("dataCoordX", coordinate(point.dataCoordX));
    json.member("dataCoordY", coordinate(point.dataCoordY));
    if (speed == SpeedForm::Rounded)
        json.member("dataSpeed", point.roundedSpeed());
    else
        json.member("dataSpeed", point.dataSpeed);
    json.member("dataAngle", point.dataAngle);
    json.member("dataAccelXPH", point.dataAccelXPH);
    json.member("dataAccelXPHComputed", point.dataAccelXPHComputed);
    json.member("dataAccelYPH", point.dataAccelYPH);
}

QByteArray pointPayload(const PointAcquisition &point)
{
    JsonWriter json(JsonWriter::Numbers::AsQt);
    writePoint(json, point);
    return json.text();
}

QByteArray lapPayload(const Lap &lap, const Map *map)
{
    clearVectorRegisters();
    return payload({lap.points(), lap.maxSpeedPoints(), lap.minSpeedPoints(), map, lap.accelMax(),
                    lap.decelMax(), lap.isComplete()});
}

QByteArray emptyLapPayload()
{
    const Points none;
    return payload({none, none, none});
}

QByteArray optionsPayload(const PageOptions &options)
{
    JsonWriter json(JsonWriter::Numbers::AsQt);
    json.beginObject();
    json.member("minMax", options.minMax);
    json.member("landmarks", options.landmarks);
    json.member("compareGradient", options.compareGradient);
    json.endObject();
    return json.text();
}

} // namespace zuno
