// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cli/commands.h>
#include <cli/console.h>
#include <cli/input.h>

#include <QLocale>

#include <base/settings.h>
#include <session/csvexport.h>
#include <session/sessionlap.h>

namespace zuno::cli {

namespace {

QLocale localeFor(const CommandLine &line)
{
    const QString name = QStringLiteral("locale");
    return QLocale(line.isSet(name)
                       ? line.value(name)
                       : Settings(Settings::defaultRoot()).value(Setting::Language).toString());
}

// Without a lap there is no need for a map.
int writeSession(const QString &path, const QLocale &locale)
{
    const std::unique_ptr<Session> session = readReported(path);
    if (!session)
        return FileFailed;
    session->smooth();
    printOut(sessionCsv(*session, locale));
    return Success;
}

int writeLap(const CommandLine &line, int number, const QLocale &locale)
{
    const DisplayedSession displayed = displayReported(line.argument(0), line);
    if (!displayed.session)
        return FileFailed;
    const Lap *lap = lapReported(*displayed.session, number);
    if (lap == nullptr)
        return FileFailed;
    printOut(lapCsv({displayed.session.get(), lap}, locale));
    return Success;
}

} // namespace

int csv(const QStringList &arguments)
{
    CommandLine line(arguments,
                     QStringLiteral("Writes the smoothed samples of a session, or of one lap, as "
                                    "semicolon-separated text with a decimal comma."));
    line.addArgument(QStringLiteral("FILE"), QStringLiteral("A session file (.ra1)."));
    line.addValue({QStringLiteral("lap")}, QStringLiteral("N"),
                  QStringLiteral("Writes lap N only."));
    line.addValue({QStringLiteral("locale")}, QStringLiteral("NAME"),
                  QStringLiteral("Writes numbers as in this locale, for example \"fr\" (default: "
                                 "the program's language)."));
    addMapOptions(line);
    if (const auto status = line.parse(1, 1))
        return *status;
    const auto laps = line.numbers(QStringLiteral("lap"));
    if (!laps)
        return WrongUse;
    const QLocale locale = localeFor(line);
    return laps->isEmpty() ? writeSession(line.argument(0), locale)
                           : writeLap(line, laps->last(), locale);
}

} // namespace zuno::cli
