// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A map file, and a ride that is cut into laps on it.

#include <base/bytereader.h>
#include <maps/detection/mapdetection.h>
#include <track/map.h>
#include <track/mapfile.h>

#include "../builders.h"
#include "check.h"

using namespace zuno;
using namespace zuno::fuzz;

// NOLINTNEXTLINE(readability-identifier-naming): the fuzzer calls it so
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const Points points = test::ride(test::lapRide({0, 0}));
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    ByteReader reader(bytes);
    const std::unique_ptr<Map> map = parseMap(reader);
    if (!map)
        return 0;
    check(map->timingDirections().size() == map->timingPoints().size()
              || map->trackPoints().isEmpty(),
          "each timing point has a direction");
    const auto session = test::sessionOf(points);
    session->setMap(map.get());
    drawLaps(*session);
    chooseMapByLength(*session, findCandidates(*session, {map.get()}));
    drawLaps(*session);
    session->setMap(nullptr);
    return 0;
}
