// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A session file, all the way to the map page and the spreadsheet.

#include <QLocale>

#include <session/csvexport.h>
#include <session/recording/gpsquality.h>
#include <session/sessionfile.h>
#include <track/map.h>

#include "../builders.h"
#include "check.h"

using namespace zuno;
using namespace zuno::fuzz;

// NOLINTNEXTLINE(readability-identifier-naming): the fuzzer calls it so
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const auto map = test::lineMap(10, 680,
                                          {{QStringLiteral("Start"), 0},
                                           {QStringLiteral("Time 0"), 100},
                                           {QStringLiteral("Time 1"), 200}});
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const OpenedSession opened = decodeSession(bytes, QStringLiteral("Fuzz.ra1"));
    check((opened.session == nullptr) == (opened.error != SessionFileError::None),
          "error or session");
    if (!opened.session)
        return 0;
    Session &session = *opened.session;
    const qint64 count = session.sampleCount();
    check(count <= 1000 || count * 28 <= 2 * std::ssize(bytes), "the file supports the count");
    check(std::ssize(session.samples()) == count, "the count is that of the samples");
    session.smooth();
    session.setMap(map.get());
    drawLaps(session);
    check(gpsQuality(session.wholeSamples()).total() <= count, "no more bad samples than samples");
    (void)sessionCsv(session, QLocale::c());
    const QList<quint8> invalid = session.invalidLaps();
    const QString bestLap = session.bestLapText();
    session.release();
    check(session.bestLapText() == bestLap && session.invalidLaps() == invalid, "texts stay");
    session.restore();
    check(session.bestLapText() == bestLap && session.invalidLaps() == invalid, "laps come back");
    return 0;
}
