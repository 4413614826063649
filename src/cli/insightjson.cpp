// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cli/insightjson.h>

#include <base/jsonwriter.h>
#include <cli/cornersjson.h>
#include <insight/consistency.h>

namespace zuno::cli {

namespace {

constexpr int Milli = 3;

std::optional<double> rounded(const std::optional<double> &value, int decimals)
{
    return value ? std::optional<double>(cli::rounded(*value, decimals)) : std::nullopt;
}

void writeLap(JsonWriter &json, const InsightLap &lap, const SessionInsight &insight)
{
    const RiddenLap ridden = lap.ridden();
    const std::vector<UnitLoss> losses
        = lossesAgainst(ridden, insight.laps[*insight.best].ridden(), insight.circuit);
    json.beginObject();
    json.member("number", lap.number);
    json.member("time", cli::rounded(lap.path.duration(), Milli));
    json.member("valid", lap.isValid);
    json.key("flags");
    json.beginArray();
    for (const LapFlag &flag : lap.flags)
        json.value(flagText(flag));
    json.endArray();
    const std::optional<PlaneVector> &offset = lap.path.offset();
    json.member("offsetEast", offset ? std::optional(cli::rounded(offset->x, 2)) : std::nullopt);
    json.member("offsetNorth", offset ? std::optional(cli::rounded(offset->y, 2)) : std::nullopt);
    json.key("unitTime");
    json.beginArray();
    for (const qint32 time : timesIn(insight.circuit.units, lap.path))
        json.value(cli::rounded(static_cast<double>(time) / 1000.0, Milli));
    json.endArray();
    json.key("unitLoss");
    json.beginArray();
    for (const UnitLoss &loss : losses)
        json.value(cli::rounded(loss.loss, Milli));
    json.endArray();
    json.key("unitLossBySpeed");
    json.beginArray();
    for (const UnitLoss &loss : losses)
        json.value(cli::rounded(loss.bySpeed, Milli));
    json.endArray();
    json.endObject();
}

void writeTop(JsonWriter &json, const SessionInsight &insight)
{
    json.key("top");
    if (!insight.hasEnoughLaps()) {
        json.null();
        return;
    }
    json.beginArray();
    for (const ListedLoss &listed : insight.list) {
        json.beginObject();
        json.member("unit", insight.circuit.unitLabel(listed.loss.unit));
        json.member("loss", cli::rounded(listed.loss.loss, Milli));
        json.member("bySpeed", cli::rounded(listed.loss.bySpeed, Milli));
        json.member("lap", insight.laps[listed.lap].number);
        json.member("against", insight.laps[listed.against].number);
        json.key("words");
        json.beginArray();
        for (const QString &text : causeTexts(listed.loss, insight.circuit))
            json.value(text);
        json.endArray();
        json.endObject();
    }
    json.endArray();
}

void writeFigures(JsonWriter &json, const CornerFigures &figures)
{
    json.beginObject();
    json.member("entrySpeed", cli::rounded(figures.entrySpeed, 1));
    json.member("lowestSpeed", cli::rounded(figures.lowestSpeed, 1));
    json.member("exitSpeed", cli::rounded(figures.exitSpeed, 1));
    json.member("brakingPoint", rounded(figures.brakingPoint, 1));
    json.member("maximumDeceleration", rounded(figures.maximumDeceleration, Milli));
    json.member("lean", rounded(figures.lean, 1));
    json.member("time", cli::rounded(figures.time, Milli));
    json.endObject();
}

void writeAllFigures(JsonWriter &json, const SessionInsight &insight)
{
    json.key("figures");
    json.beginObject();
    for (std::size_t corner = 0; corner < insight.circuit.corners.size(); ++corner) {
        json.key(QByteArray::number(insight.circuit.corners[corner].number));
        json.beginObject();
        for (const std::size_t i : insight.used) {
            const InsightLap &lap = insight.laps[i];
            if (!lap.figures[corner])
                continue;
            json.key(QByteArray::number(lap.number));
            writeFigures(json, *lap.figures[corner]);
        }
        json.endObject();
    }
    json.endObject();
}

void writeIdeal(JsonWriter &json, QByteArrayView name, const std::optional<UnitIdeal> &ideal)
{
    json.key(name);
    if (!ideal) {
        json.null();
        return;
    }
    json.beginObject();
    json.member("time", cli::rounded(static_cast<double>(ideal->time) / 1000.0, Milli));
    json.key("laps");
    json.beginArray();
    for (const qint32 lap : ideal->laps)
        json.value(lap);
    json.endArray();
    json.endObject();
}

void writeConsistency(JsonWriter &json, const SessionInsight &insight)
{
    const Consistency consistency = consistencyOf(insight);
    json.key("consistency");
    json.beginObject();
    json.key("spread");
    json.beginArray();
    for (const UnitSpread &spread : consistency.spreads) {
        json.beginObject();
        json.member("unit", insight.circuit.unitLabel(spread.unit));
        json.member("seconds", cli::rounded(spread.seconds, Milli));
        json.member("percent", cli::rounded(spread.percent, 2));
        json.endObject();
    }
    json.endArray();
    const std::optional<RollingBest> &rolling = consistency.rollingBest;
    json.member("rollingBest",
                rolling ? std::optional(cli::rounded(rolling->time, Milli)) : std::nullopt);
    writeIdeal(json, "ideal", consistency.ideal);
    writeIdeal(json, "twice", consistency.twice);
    const std::optional<Trend> &trend = consistency.trend;
    json.member("trend",
                trend ? std::optional(cli::rounded(trend->correlation, Milli)) : std::nullopt);
    json.endObject();
}

void writeInsight(JsonWriter &json, const SessionInsight &insight)
{
    json.member("rate", cli::rounded(insight.rate, 1));
    if (insight.lack != InsightLack::None) {
        json.key("corners");
        json.null();
        json.member("why", lackText(insight.lack));
        return;
    }
    writeCircuit(json, insight.circuit);
    json.member("bestLap", insight.laps[*insight.best].number);
    json.key("laps");
    json.beginArray();
    for (const InsightLap &lap : insight.laps)
        writeLap(json, lap, insight);
    json.endArray();
    writeTop(json, insight);
    writeAllFigures(json, insight);
    writeConsistency(json, insight);
}

void writeSpeeds(JsonWriter &json, QByteArrayView name, const std::optional<UnitSpeeds> &speeds)
{
    json.key(name);
    if (!speeds) {
        json.null();
        return;
    }
    json.beginObject();
    json.member("entrySpeed", cli::rounded(speeds->entry, 1));
    json.member("lowestSpeed", cli::rounded(speeds->lowest, 1));
    json.member("exitSpeed", cli::rounded(speeds->exit, 1));
    json.endObject();
}

double seconds(qint32 milliseconds)
{
    return cli::rounded(static_cast<double>(milliseconds) / 1000.0, Milli);
}

void writeCard(JsonWriter &json, const LossCard &card)
{
    json.beginObject();
    json.member("unit", card.label);
    json.member("from", cli::rounded(card.from, 1));
    json.member("to", cli::rounded(card.to, 1));
    json.member("loss", seconds(card.loss));
    json.member("bySpeed", cli::rounded(card.bySpeed, Milli));
    json.member("confirmed", card.isConfirmed);
    writeSpeeds(json, "speeds", card.lapSpeeds);
    writeSpeeds(json, "againstSpeeds", card.referenceSpeeds);
    json.key("words");
    json.beginArray();
    for (const QString &text : card.causes)
        json.value(text);
    json.endArray();
    json.endObject();
}

void writeComparison(JsonWriter &json, const LapComparison &comparison)
{
    json.member("lap", comparison.lap);
    json.member("against", comparison.against);
    if (!comparison.otherFile.isEmpty())
        json.member("againstFile", comparison.otherFile);
    json.key("losses");
    json.beginArray();
    for (const LossCard &card : comparison.losses.units)
        writeCard(json, card);
    json.endArray();
    json.member("sum", seconds(comparison.losses.total));
}

} // namespace

QByteArray insightJson(const QString &map, const SessionInsight &insight,
                       const std::optional<LapComparison> &comparison)
{
    JsonWriter json(JsonWriter::Numbers::RoundTrip);
    json.beginObject();
    json.member("map", map.isEmpty() ? std::optional<QString>() : map);
    writeInsight(json, insight);
    if (comparison && insight.lack == InsightLack::None)
        writeComparison(json, *comparison);
    json.endObject();
    return json.text() + '\n';
}

} // namespace zuno::cli
