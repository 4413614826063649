// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cli/commands.h>
#include <cli/console.h>
#include <demo/demolibrary.h>

namespace zuno::cli {

int demo(const QStringList &arguments)
{
    CommandLine line(arguments,
                     QStringLiteral("Writes a library of made-up sessions (DIR/RemoteDevice) and "
                                    "circuits (DIR/Map), the same bytes every time."));
    line.addArgument(QStringLiteral("DIR"), QStringLiteral("The folder; it is made."));
    line.addValue({QStringLiteral("sessions")}, QStringLiteral("N"),
                  QStringLiteral("Writes a library of N sessions instead."));
    line.addValue({QStringLiteral("samples")}, QStringLiteral("M"),
                  QStringLiteral("Samples of each of them."));
    if (const auto status = line.parse(1, 1))
        return *status;
    const auto sessions = line.numbers(QStringLiteral("sessions"));
    const auto samples = line.numbers(QStringLiteral("samples"));
    if (!sessions || !samples)
        return WrongUse;
    DemoOptions options;
    options.sessions = sessions->value(0);
    options.samples = samples->value(0);
    const DemoResult result = writeDemoLibrary(line.argument(0), options);
    if (!result.ok()) {
        printError(result.error);
        return FileFailed;
    }
    printOut(QStringLiteral("%1 sessions and %2 maps in %3\n")
                 .arg(result.sessionFiles.size())
                 .arg(result.mapFiles.size())
                 .arg(line.argument(0))
                 .toLocal8Bit());
    return Success;
}

} // namespace zuno::cli
