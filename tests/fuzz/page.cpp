// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the map page tells, and what it is told of damaged samples and drafts.

#include <array>
#include <cstring>

#include <QJsonObject>

#include <base/bytereader.h>
#include <maps/payload/draftpayload.h>
#include <maps/payload/pagemessage.h>
#include <track/mapdraft.h>
#include <track/mapfile.h>

#include "check.h"

using namespace zuno;
using namespace zuno::fuzz;

// NOLINTNEXTLINE(readability-identifier-naming): the fuzzer calls it so
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto *bytes = reinterpret_cast<const char *>(data);
    const PageMessage message
        = parsePageMessage(QString::fromUtf8(bytes, static_cast<qsizetype>(size)));
    using Event = PageMessage::Event;
    check((message.event == Event::Picked) == (message.index >= 0), "picked, or no index");
    check(message.place.isValid()
              == (message.event == Event::PointMoved || message.event == Event::TrackClicked),
          "a place, or none is spoken of");
    check(message.metres >= 0 && message.metres <= 100000, "metres are in range");

    std::array<double, 8> values {};
    std::memcpy(values.data(), data, std::min(size, sizeof values));
    PointAcquisition point;
    point.dataTimeSec = values[0];
    point.dataCoordX = values[1];
    point.dataCoordY = values[2];
    point.dataSpeed = values[3];
    point.dataAngle = values[4];
    point.dataAccelXPH = values[5];
    point.dataAccelXPHComputed = values[6];
    point.dataAccelYPH = values[7];
    const QByteArray payload = pointPayload(point);
    check(QJsonDocument::fromJson(payload).object().size() == 10, "a sample's payload is JSON");
    check(payload.size() < 600, "and short");
    const QGeoCoordinate place(values[2], values[1]);
    const MapDraft draft {{}, {place, place}, place, {place}, values[3]};
    check(QJsonDocument::fromJson(draftPayload(draft, 0, {0}, OutlineForm::Sent)).isObject(),
          "a draft's payload is JSON");
    check(QJsonDocument::fromJson(pathPayload({&point, 1})).isObject(), "a path's payload is JSON");
    const QByteArray file = draft.toFile();
    ByteReader reader(file);
    check(parseMap(reader) != nullptr, "a draft's file is a map");
    return 0;
}
