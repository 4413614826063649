// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/jsonwriter.h>
#include <cli/commands.h>
#include <cli/console.h>
#include <cli/input.h>

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
    const QString verb = arguments.value(1);
    if (verb == u"new")
        return mapNew(QStringList {QStringLiteral("map new")} + arguments.mid(2));
    if (verb == u"check")
        return mapCheck(QStringList {QStringLiteral("map check")} + arguments.mid(2));
    CommandLine line(arguments,
                     QStringLiteral("Shows what a map file says. \"zuno map new\" makes a map of "
                                    "a session, \"zuno map check\" tells what a map makes of "
                                    "sessions; each has its own --help."));
    line.addArgument(QStringLiteral("FILE"), QStringLiteral("A map file."));
    line.addValue({QStringLiteral("maps")}, QStringLiteral("DIR"),
                  QStringLiteral("The maps folder, which the map's name leaves out (default: the "
                                 "file's folder)."));
    line.addFlag(QStringLiteral("json"), QStringLiteral("Writes JSON instead of a list."));
    if (const auto status = line.parse(1, 1))
        return *status;
    const std::unique_ptr<Map> map
        = mapReported(line.argument(0), line.value(QStringLiteral("maps")));
    if (!map)
        return FileFailed;
    printOut(line.isSet(QStringLiteral("json")) ? asJson(*map) : asList(*map));
    return Success;
}

} // namespace zuno::cli
