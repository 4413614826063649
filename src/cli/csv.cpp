// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cli/batch.h>
#include <cli/commands.h>
#include <cli/console.h>
#include <cli/input.h>

#include <QLocale>

#include <base/settings.h>
#include <base/wholefile.h>
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

// What the command line asks for.
struct Wish
{
    QLocale locale;
    std::optional<int> lap;
    Maps maps;
};

// Without a lap there is no need for a map. Nothing when it fails, and has been reported.
std::optional<QByteArray> textOf(const QString &path, const CommandLine &line, const Wish &wish)
{
    if (!wish.lap) {
        const std::unique_ptr<Session> session = readReported(path);
        if (!session)
            return {};
        session->smooth();
        return sessionCsv(*session, wish.locale);
    }
    const DisplayedSession displayed = displayReported(path, line, wish.maps);
    const Lap *lap = displayed.session ? lapReported(*displayed.session, *wish.lap) : nullptr;
    if (lap == nullptr)
        return {};
    return lapCsv({displayed.session.get(), lap}, wish.locale);
}

int write(const std::optional<QByteArray> &text, const QString &output)
{
    if (!text)
        return FileFailed;
    if (output.isEmpty()) {
        printOut(*text);
        return Success;
    }
    const QString error = writeWholeFile(output, *text);
    if (!error.isEmpty())
        printFileError(output, error);
    return error.isEmpty() ? Success : FileFailed;
}

} // namespace

int csv(const QStringList &arguments)
{
    CommandLine line(arguments,
                     QStringLiteral("Writes the smoothed samples of sessions, or of one lap, as "
                                    "semicolon-separated text with a decimal comma."));
    addBatchOptions(line);
    line.addValue({QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("OUT"),
                  QStringLiteral("The file to write; of several files the folder to write a .csv "
                                 "of each into, required then."));
    line.addValue({QStringLiteral("lap")}, QStringLiteral("N"),
                  QStringLiteral("Writes lap N only."));
    line.addValue({QStringLiteral("locale")}, QStringLiteral("NAME"),
                  QStringLiteral("Writes numbers as in this locale, for example \"fr\" (default: "
                                 "the program's language)."));
    addMapOptions(line);
    if (const auto status = line.parse(1, CommandLine::AnyNumber))
        return *status;
    const auto laps = line.numbers(QStringLiteral("lap"));
    const std::optional<Batch> batch = batchReported(line);
    if (!laps || !batch)
        return WrongUse;
    const std::optional<QStringList> outputs
        = outputsReported(*batch, line.value(QStringLiteral("output")), QStringLiteral("csv"));
    if (!outputs)
        return WrongUse;
    Wish wish {localeFor(line), {}, {}};
    if (!laps->isEmpty()) {
        wish.lap = laps->last();
        wish.maps = mapsOf(line);
    }
    return forEachFile(*batch, [&](qsizetype place) {
        return write(textOf(batch->files[place], line, wish), (*outputs)[place]);
    });
}

} // namespace zuno::cli
