// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <csignal>

#include <QCoreApplication>

#include <base/memory.h>
#include <cli/commands.h>
#include <cli/console.h>

namespace zuno::cli {

namespace {

constexpr std::array Commands {
    Command {"decode", "What a session file says", decode},
    Command {"laps", "The laps of a session, as the program shows them", laps},
    Command {"map", "What a map file says", map},
    Command {"corners", "The corners of a circuit, and what of them is ridden as one", corners},
    Command {"insight", "Where the time of a session is", insight},
    Command {"csv", "The samples of a session or of a lap as CSV", csv},
    Command {"payload", "A lap as the map page gets it (JSON)", payload},
    Command {"set", "Changes the information in a session file", set},
    Command {"export", "Writes a session or a lap for other programs", exportRide},
    Command {"import", "Makes session files of other loggers' recordings", importFiles},
    Command {"demo", "Writes a library of made-up sessions and maps", demo},
};

QString overview()
{
    QString text = QStringLiteral("Usage: zuno COMMAND [options] FILE\n\n"
                                  "Reads the session and map files of a motorcycle logger.\n\n"
                                  "Commands:\n");
    for (const Command &command : Commands) {
        text += QStringLiteral("  %1  %2\n")
                    .arg(QLatin1String(command.name), -8)
                    .arg(QLatin1String(command.summary));
    }
    text += QStringLiteral(
        "\n\"zuno COMMAND --help\" tells more about a command.\n"
        "Exit status: 0 done, 1 a file failed or the output could not be written, "
        "2 wrong use.\n");
    return text;
}

int run(const QStringList &arguments)
{
    const QString name = arguments.value(1);
    if (name == u"--help" || name == u"-h" || name == u"help") {
        printOut(overview().toUtf8());
        return Success;
    }
    if (name == u"--version" || name == u"-v") {
        printOut(QStringLiteral("zuno %1\n").arg(QCoreApplication::applicationVersion()).toUtf8());
        return Success;
    }
    const auto found = std::find_if(Commands.begin(), Commands.end(), [&name](const Command &c) {
        return name == QLatin1String(c.name);
    });
    if (found == Commands.end()) {
        printError(name.isEmpty()
                       ? QStringLiteral("no command given; see \"zuno --help\"")
                       : QStringLiteral("unknown command \"%1\"; see \"zuno --help\"").arg(name));
        return WrongUse;
    }
    return found->run(arguments.mid(1));
}

int runWithinMemory(const QStringList &arguments)
{
    int status = FileFailed;
    if (!withinMemory([&] { status = run(arguments); }))
        printError(QStringLiteral("there is not enough memory for this file"));
    if (isOutputWhole())
        return status;
    printError(QStringLiteral("the output could not be written"));
    return FileFailed;
}

} // namespace

} // namespace zuno::cli

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(ZUNO_VERSION));
#ifdef SIGPIPE
    // A closed pipe is output that could not be written, not death.
    std::signal(SIGPIPE, SIG_IGN);
#endif
    return zuno::cli::runWithinMemory(QCoreApplication::arguments());
}
