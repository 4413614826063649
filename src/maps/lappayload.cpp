// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/lappayload.h>

#include <maps/map.h>
#include <session/jsonwriter.h>
#include <session/lap.h>
#include <session/session.h>

namespace zuno {

namespace {

void writePoint(JsonWriter &json, const PointAcquisition &point)
{
    json.beginObject();
    writePointMembers(json, point, SpeedForm::Rounded);
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

} // namespace

void writePointMembers(JsonWriter &json, const PointAcquisition &point, SpeedForm speed)
{
    json.member("acquisitionNumber", point.acquisitionNumber);
    json.member("dataTimeStamp", point.dataTimeStamp);
    json.member("dataTimeSec", point.dataTimeSec);
    json.member("dataCoordX", point.dataCoordX);
    json.member("dataCoordY", point.dataCoordY);
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

QByteArray lapPayload(const Lap &lap)
{
    JsonWriter json(JsonWriter::Numbers::AsQt);
    json.beginObject();
    writeClosedLine(json, lap.points());
    writePoints(json, "maxSpeeds", lap.maxSpeedPoints());
    writePoints(json, "minSpeeds", lap.minSpeedPoints());
    writeLandmarks(json, lap.session().map());
    json.member("accelMax", lap.accelMax());
    json.member("decelMax", lap.decelMax());
    json.member("isComplete", lap.isComplete());
    json.endObject();
    return json.text();
}

} // namespace zuno
