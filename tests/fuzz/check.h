// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdio>
#include <cstdlib>

#include <QJsonDocument>

#include <maps/payload/lappayload.h>
#include <session/session.h>

namespace zuno::fuzz {

/// Ends the program, which the fuzzer takes for a found case, when @p what does not hold.
inline void check(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

/// Works out the payload of every lap of @p session, as the map page gets it.
inline void drawLaps(const Session &session)
{
    for (const auto &lap : session.laps())
        check(QJsonDocument::fromJson(lapPayload(*lap, session.map())).isObject(),
              "a lap's payload is JSON");
}

} // namespace zuno::fuzz
