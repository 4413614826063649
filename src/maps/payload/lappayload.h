// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

namespace zuno {

class JsonWriter;
class Lap;
class Map;
class PointAcquisition;

/// How the speed stands in a point object: as a number, or to the nearest km/h.
enum class SpeedForm { Exact, Rounded };

/// Writes the ten keys of a sample, without the braces, so that more can follow. What is no
/// coordinate is null.
void writePointMembers(JsonWriter &json, const PointAcquisition &point, SpeedForm speed);

/// The JSON text of one sample as the map page reads it, its speed rounded.
[[nodiscard]] QByteArray pointPayload(const PointAcquisition &point);

/// The JSON text of a lap as the map page draws it. The first sample stands at the end once more,
/// so that the line closes; the landmarks are the start and timing points of @p map in the order of
/// their names, none without one.
[[nodiscard]] QByteArray lapPayload(const Lap &lap, const Map *map);

/// The payload of a lap without samples on no map, which takes everything off the page.
[[nodiscard]] QByteArray emptyLapPayload();

/// What the rider wants to see on the map, "true" or "false", or empty when nothing is stored.
struct PageOptions
{
    QString minMax;
    QString landmarks;
    QString compareGradient;
};

/// The JSON text of the options as the map page reads them.
[[nodiscard]] QByteArray optionsPayload(const PageOptions &options);

} // namespace zuno
