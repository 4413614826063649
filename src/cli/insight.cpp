// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/jsonwriter.h>
#include <cli/batch.h>
#include <cli/commands.h>
#include <cli/console.h>
#include <cli/cornersjson.h>
#include <cli/input.h>
#include <cli/insightjson.h>
#include <cli/insighttext.h>

namespace zuno::cli {

namespace {

// What the command line asks for.
struct Wish
{
    std::optional<int> lap;
    // The number of a lap, of this session or of the file; without one the best lap.
    std::optional<int> against;
    QString otherFile;

    [[nodiscard]] bool comparesLaps() const { return lap || against; }
};

std::optional<int> wholeNumber(const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && number >= 1 ? std::optional<int>(number) : std::nullopt;
}

std::optional<Wish> wishOf(const CommandLine &line)
{
    Wish wish;
    if (line.isSet(QStringLiteral("lap"))) {
        const std::optional<QList<int>> numbers = line.numbers(QStringLiteral("lap"));
        if (!numbers)
            return {};
        wish.lap = numbers->constLast();
    }
    if (!line.isSet(QStringLiteral("against")))
        return wish;
    const QString text = line.value(QStringLiteral("against"));
    const qsizetype colon = text.lastIndexOf(u':');
    wish.otherFile = text.left(std::max<qsizetype>(colon, 0));
    wish.against = wholeNumber(text.mid(colon + 1));
    if (!wish.against) {
        printError(
            QStringLiteral("--against takes a lap's number or FILE:NUMBER, not \"%1\"").arg(text));
        return {};
    }
    return wish;
}

// A session as displayed, and what it tells.
struct Told
{
    DisplayedSession displayed;
    SessionInsight insight;
};

std::optional<Told> tellReported(const QString &path, const CommandLine &line, const Maps &maps)
{
    Told told;
    told.displayed = displayReported(path, line, maps);
    if (!told.displayed.session)
        return {};
    const Session &session = *told.displayed.session;
    told.insight.lack = InsightLack::NoCorners;
    if (session.map() != nullptr)
        told.insight = insightOf(*session.map(), editsReported(told.displayed.mapPath()),
                                 session.wholeSamples(), session.laps());
    return told;
}

// A complete lap by its number, the best one without; nullptr, and reported, when there is none.
const InsightLap *lapReported(const Told &told, std::optional<int> number)
{
    const SessionInsight &insight = told.insight;
    const QString path = told.displayed.session->filePath();
    if (insight.lack != InsightLack::None) {
        printFileError(path, lackText(insight.lack));
        return nullptr;
    }
    const InsightLap *lap = number ? insight.lap(*number) : &insight.laps[*insight.best];
    if (lap == nullptr)
        printFileError(path, QStringLiteral("has no complete lap %1").arg(*number));
    return lap;
}

bool isSameCircuit(const Told &told, const Told &other)
{
    if (told.displayed.session->map()->name() == other.displayed.session->map()->name())
        return true;
    printFileError(other.displayed.session->filePath(), QStringLiteral("is on another circuit"));
    return false;
}

// Compares the laps that are asked for; none, and reported, when there are no such laps.
std::optional<LapComparison> comparisonReported(const Told &told, const Wish &wish,
                                                const CommandLine &line)
{
    const InsightLap *lap = lapReported(told, wish.lap);
    if (lap == nullptr)
        return {};
    std::optional<Told> other;
    if (!wish.otherFile.isEmpty()) {
        other = tellReported(wish.otherFile, line, told.displayed.maps);
        if (!other)
            return {};
    }
    const InsightLap *against = lapReported(other ? *other : told, wish.against);
    if (against == nullptr || (other && !isSameCircuit(told, *other)))
        return {};
    LapComparison comparison;
    comparison.lap = lap->number;
    comparison.against = against->number;
    comparison.otherFile = wish.otherFile;
    comparison.losses = lossCards(lap->ridden(), against->ridden(), told.insight.circuit);
    return comparison;
}

int tell(const CommandLine &line, const Batch &batch, qsizetype place, const Wish &wish,
         const Maps &maps)
{
    const QString &file = batch.files[place];
    const std::optional<Told> told = tellReported(file, line, maps);
    if (!told)
        return FileFailed;
    std::optional<LapComparison> comparison;
    if (wish.comparesLaps()) {
        comparison = comparisonReported(*told, wish, line);
        if (!comparison)
            return FileFailed;
    }
    const Map *map = told->displayed.session->map();
    const QString name = map != nullptr ? map->name() : QString();
    const bool isJson = line.isSet(QStringLiteral("json"));
    const QByteArray text = isJson ? insightJson(name, told->insight, comparison)
                                   : insightText(name, told->insight, comparison);
    if (batch.isOfMany)
        printOut(isJson ? jsonOfOne(file, text) : textOfOne(file, text));
    else
        printOut(text);
    return Success;
}

} // namespace

int insight(const QStringList &arguments)
{
    CommandLine line(
        arguments,
        QStringLiteral("Tells where the time of a session is: the corners of its "
                       "circuit, which laps count, and what the usual lap loses where."));
    addBatchOptions(line);
    addMapOptions(line);
    line.addValue({QStringLiteral("lap")}, QStringLiteral("N"),
                  QStringLiteral("Compares lap N (default: the best one)."));
    line.addValue({QStringLiteral("against")}, QStringLiteral("M"),
                  QStringLiteral("Compares against lap M of the session, or with OTHER.ra1:M of "
                                 "another one on the same circuit (default: the best lap)."));
    line.addFlag(QStringLiteral("json"),
                 QStringLiteral("Writes JSON instead of tables; of several files a line each."));
    if (const auto status = line.parse(1, CommandLine::AnyNumber))
        return *status;
    const std::optional<Wish> wish = wishOf(line);
    const std::optional<Batch> batch = batchReported(line);
    if (!wish || !batch)
        return WrongUse;
    const Maps maps = mapsOf(line);
    return forEachFile(*batch,
                       [&](qsizetype place) { return tell(line, *batch, place, *wish, maps); });
}

} // namespace zuno::cli
