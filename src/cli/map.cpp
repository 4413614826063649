// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cli/commands.h>
#include <cli/console.h>
#include <maps/mapfile.h>
#include <session/jsonwriter.h>

#include <QDir>
#include <QFileInfo>

namespace zuno::cli {

namespace {

void writePlace(JsonWriter &json, const QGeoCoordinate &place)
{
    json.member("latitude", place.latitude());
    json.member("longitude", place.longitude());
}

void writePlaceMember(JsonWriter &json, QByteArrayView key, const QGeoCoordinate &place)
{
    json.key(key);
    json.beginObject();
    writePlace(json, place);
    json.endObject();
}

void writeDirection(JsonWriter &json, const Map::Direction &direction)
{
    json.beginArray();
    json.value(static_cast<double>(direction.first));
    json.value(static_cast<double>(direction.second));
    json.endArray();
}

void writeTimingPoints(JsonWriter &json, const Map &map)
{
    json.key("timingPoints");
    json.beginArray();
    const auto &points = map.timingPoints();
    for (auto it = points.cbegin(); it != points.cend(); ++it) {
        json.beginObject();
        json.member("name", it.key());
        writePlace(json, it.value());
        json.endObject();
    }
    json.endArray();
    json.key("timingDirections");
    json.beginArray();
    for (const Map::Direction &direction : map.timingDirections())
        writeDirection(json, direction);
    json.endArray();
}

void writeOutline(JsonWriter &json, const Map &map)
{
    json.member("trackPointCount", map.trackPointCount());
    json.key("trackPoints");
    json.beginArray();
    for (const QGeoCoordinate &point : map.trackPoints()) {
        json.beginObject();
        writePlace(json, point);
        json.endObject();
    }
    json.endArray();
}

QByteArray asJson(const Map &map)
{
    JsonWriter json(JsonWriter::Numbers::RoundTrip);
    json.beginObject();
    json.member("name", map.name());
    json.member("displayName", map.displayName());
    writePlaceMember(json, "cornerA", map.cornerA());
    writePlaceMember(json, "cornerB", map.cornerB());
    json.member("mapNumber", map.mapNumber());
    json.member("gateSize", map.gateSize());
    json.member("namedPointCount", map.namedPointCount());
    writeTimingPoints(json, map);
    writePlaceMember(json, "startPoint", map.startPoint());
    json.key("startDirection");
    writeDirection(json, map.startDirection());
    writeOutline(json, map);
    json.member("length", map.length());
    json.member("usable", map.isUsable());
    json.endObject();
    return json.text() + '\n';
}

QString placeText(const QGeoCoordinate &place)
{
    return place.isValid() ? QStringLiteral("%1, %2")
                                 .arg(place.latitude(), 0, 'f', 6)
                                 .arg(place.longitude(), 0, 'f', 6)
                           : QStringLiteral("none");
}

QByteArray asList(const Map &map)
{
    TextList list;
    list.add(QStringLiteral("Name"), map.name());
    list.add(QStringLiteral("Number"), QString::number(map.mapNumber()));
    list.add(QStringLiteral("Length"), QStringLiteral("%1 m").arg(map.length(), 0, 'f', 1));
    list.add(QStringLiteral("Gate size"), QStringLiteral("%1 m").arg(map.gateSize()));
    list.add(QStringLiteral("Outline"), QStringLiteral("%1 points").arg(map.trackPoints().size()));
    list.add(QStringLiteral("Corners"),
             placeText(map.cornerA()) + u" - " + placeText(map.cornerB()));
    list.add(QStringLiteral("Start"), placeText(map.startPoint()));
    const auto &points = map.timingPoints();
    for (auto it = points.cbegin(); it != points.cend(); ++it)
        list.add(it.key(), placeText(it.value()));
    list.add(QStringLiteral("Usable"),
             map.isUsable() ? QStringLiteral("yes") : QStringLiteral("no, it has no start point"));
    return list.text();
}

} // namespace

int map(const QStringList &arguments)
{
    CommandLine line(arguments, QStringLiteral("Shows what a map file says."));
    line.addArgument(QStringLiteral("FILE"), QStringLiteral("A map file."));
    line.addValue({QStringLiteral("maps")}, QStringLiteral("DIR"),
                  QStringLiteral("The maps folder, which the map's name leaves out (default: the "
                                 "file's folder)."));
    line.addFlag(QStringLiteral("json"), QStringLiteral("Writes JSON instead of a list."));
    if (const auto status = line.parse(1, 1))
        return *status;
    const QFileInfo file(line.argument(0));
    const QString folder = line.isSet(QStringLiteral("maps"))
                               ? QDir(line.value(QStringLiteral("maps"))).absolutePath()
                               : file.absolutePath();
    if (!file.isFile() || !file.isReadable()) {
        printFileError(line.argument(0), QStringLiteral("cannot be read"));
        return FileFailed;
    }
    const std::unique_ptr<Map> map = readMapFile(file.absoluteFilePath(), folder);
    if (!map) {
        printFileError(line.argument(0), QStringLiteral("is no map file"));
        return FileFailed;
    }
    printOut(line.isSet(QStringLiteral("json")) ? asJson(*map) : asList(*map));
    return Success;
}

} // namespace zuno::cli
