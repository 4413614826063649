// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the map page tells, and what it is told of a damaged sample.

#include <array>
#include <cstring>

#include <QJsonObject>

#include <maps/pagemessage.h>

#include "check.h"

using namespace zuno;
using namespace zuno::fuzz;

// NOLINTNEXTLINE(readability-identifier-naming): the fuzzer calls it so
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto *bytes = reinterpret_cast<const char *>(data);
    const PageMessage message
        = parsePageMessage(QString::fromUtf8(bytes, static_cast<qsizetype>(size)));
    const bool isPicked = message.event == PageMessage::Event::Picked;
    check(isPicked == (message.index >= 0), "a sample is picked, or there is no index");

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
    return 0;
}
