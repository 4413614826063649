// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cli/commands.h>
#include <cli/console.h>
#include <cli/input.h>
#include <maps/payload/lappayload.h>

namespace zuno::cli {

int payload(const QStringList &arguments)
{
    CommandLine line(arguments,
                     QStringLiteral("Writes one lap as the JSON text that the map page draws."));
    line.addArgument(QStringLiteral("FILE"), QStringLiteral("A session file (.ra1)."));
    line.addValue({QStringLiteral("lap")}, QStringLiteral("N"),
                  QStringLiteral("The lap's number."));
    line.addFlag(QStringLiteral("json"), QStringLiteral("Accepted; the output is JSON anyway."));
    addMapOptions(line);
    if (const auto status = line.parse(1, 1))
        return *status;
    const auto laps = line.numbers(QStringLiteral("lap"));
    if (!laps || laps->isEmpty()) {
        if (laps)
            printError(QStringLiteral("payload: --lap N is missing"));
        return WrongUse;
    }
    const DisplayedSession displayed = displayReported(line.argument(0), line);
    if (!displayed.session)
        return FileFailed;
    const Lap *lap = lapReported(*displayed.session, laps->last());
    if (lap == nullptr)
        return FileFailed;
    printOut(lapPayload(*lap, displayed.session->map()) + '\n');
    return Success;
}

} // namespace zuno::cli
