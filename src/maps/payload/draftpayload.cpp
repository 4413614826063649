// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/payload/draftpayload.h>

#include <base/jsonwriter.h>
#include <session/recording/trace.h>
#include <track/mapdraft.h>

namespace zuno {

namespace {

void writePlace(JsonWriter &json, const QGeoCoordinate &place)
{
    if (!place.isValid()) {
        json.null();
        return;
    }
    json.beginArray();
    json.value(place.latitude());
    json.value(place.longitude());
    json.endArray();
}

void writePlaces(JsonWriter &json, QByteArrayView key, const QList<QGeoCoordinate> &places)
{
    json.key(key);
    json.beginArray();
    for (const QGeoCoordinate &place : places)
        writePlace(json, place);
    json.endArray();
}

} // namespace

QByteArray pathPayload(std::span<const PointAcquisition> samples)
{
    JsonWriter json(JsonWriter::Numbers::AsQt);
    json.beginObject();
    json.key("path");
    json.beginArray();
    QGeoCoordinate last;
    for (const PointAcquisition &sample : samples) {
        const QGeoCoordinate place = positionOf(sample);
        if (!place.isValid() || place == last)
            continue;
        writePlace(json, place);
        last = place;
    }
    json.endArray();
    json.endObject();
    return json.text();
}

QByteArray draftPayload(const MapDraft &draft, int selected, const QList<int> &warned,
                        OutlineForm outline)
{
    JsonWriter json(JsonWriter::Numbers::AsQt);
    json.beginObject();
    if (outline == OutlineForm::Sent)
        writePlaces(json, "outline", draft.outline);
    json.key("start");
    writePlace(json, draft.start);
    writePlaces(json, "timingPoints", draft.timingPoints);
    json.member("gateSize", draft.gateSize);
    json.member("selected", selected);
    json.key("warned");
    json.beginArray();
    for (const int point : warned)
        json.value(point);
    json.endArray();
    json.endObject();
    return json.text();
}

} // namespace zuno
