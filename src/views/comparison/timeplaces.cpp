// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/comparison/timeplaces.h>

#include <algorithm>
#include <cmath>

#include <QLocale>

#include <insight/trackzones.h>

namespace zuno {

namespace {

// Metres; shorter steps would take the noise of the positions for winning and losing.
constexpr double Step = 20.0;

// What a lap lost and won between the ends of a unit, by the gap at every step.
void addWonAndLost(TimePlace &place, const TrackPart &part, const RiddenLap &lap,
                   const RiddenLap &reference)
{
    const auto gap = [&](double at) { return lap.path.timeAt(at) - reference.path.timeAt(at); };
    const double begin = gap(part.from);
    double least = std::min(place.loss, 0.0);
    double most = std::max(place.loss, 0.0);
    for (double at = part.from + Step; at < part.to; at += Step) {
        least = std::min(least, gap(at) - begin);
        most = std::max(most, gap(at) - begin);
    }
    // Either something was won first and lost again, or the other way about.
    place.won = std::max(-least, most - place.loss);
    place.lost = place.won + place.loss;
}

QString capitalized(QString text)
{
    if (!text.isEmpty())
        text[0] = text[0].toUpper();
    return text;
}

TimePlace placeOf(const UnitLoss &loss, const RiddenLap &lap, const RiddenLap &reference,
                  const CircuitCorners &circuit)
{
    const TrackPart &part = circuit.units[loss.unit];
    TimePlace place;
    place.unit = loss.unit;
    place.label = circuit.unitLabel(loss.unit);
    place.corners = part.cornerCount;
    place.isRight = place.corners == 1 && circuit.corners[part.firstCorner].isRight;
    place.loss = loss.loss;
    place.isConfirmed = loss.isConfirmed();
    addWonAndLost(place, part, lap, reference);
    for (const Cause &cause : loss.causes) {
        const QString corner
            = place.corners == 1 ? QString() : circuit.corners[cause.corner].label();
        place.causes.append(capitalized(causeText(cause, corner)));
    }
    return place;
}

void rank(TimePlaces &found)
{
    for (std::size_t i = 0; i < found.places.size(); ++i) {
        found.total += found.places[i].loss;
        if (found.places[i].loss >= NoiseLoss)
            found.largest.push_back(i);
    }
    std::stable_sort(found.largest.begin(), found.largest.end(), [&](std::size_t a, std::size_t b) {
        return found.places[a].loss > found.places[b].loss;
    });
    if (found.largest.size() > MostLargest)
        found.largest.resize(MostLargest);
}

} // namespace

QString TimePlace::title() const
{
    const bool isNumber = !label.isEmpty() && label.front().isDigit();
    if (corners == 0)
        return tr("Start/finish");
    if (!isNumber)
        return label;
    return corners == 1 ? tr("Corner %1").arg(label) : tr("Corners %1").arg(label);
}

QString TimePlace::side() const
{
    if (corners != 1)
        return {};
    return isRight ? tr("right") : tr("left");
}

QString TimePlace::spoken() const
{
    const QString seconds = QLocale().toString(std::fabs(loss), 'f', 2);
    QStringList parts {title()};
    if (!side().isEmpty())
        parts.append(side());
    parts.append(loss >= 0.0 ? tr("%1 seconds lost").arg(seconds)
                             : tr("%1 seconds won").arg(seconds));
    if (isConfirmed)
        parts += causes;
    return parts.join(QStringLiteral(", "));
}

std::vector<std::size_t> TimePlaces::others() const
{
    std::vector<std::size_t> rest;
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (std::ranges::find(largest, i) == largest.end())
            rest.push_back(i);
    }
    return rest;
}

double TimePlaces::sumOfOthers() const
{
    double sum = 0.0;
    for (const std::size_t i : others())
        sum += places[i].loss;
    return sum;
}

TimePlaces placesAgainst(const RiddenLap &lap, const RiddenLap &reference,
                         const CircuitCorners &circuit)
{
    TimePlaces found;
    for (const UnitLoss &loss : lossesAgainst(lap, reference, circuit))
        found.places.push_back(placeOf(loss, lap, reference, circuit));
    rank(found);
    return found;
}

TimePlaces placesAgainstBest(const InsightLap &lap, const SessionInsight &insight)
{
    TimePlaces found;
    found.isAgainstBest = true;
    const RiddenLap ridden = lap.ridden();
    for (const std::size_t i : insight.used) {
        const InsightLap &other = insight.laps[i];
        if (other.number == lap.number)
            continue;
        const std::vector<UnitLoss> losses = lossesAgainst(ridden, other.ridden(), insight.circuit);
        found.places.resize(losses.size());
        for (const UnitLoss &loss : losses) {
            TimePlace &place = found.places[loss.unit];
            if (place.label.isEmpty() || loss.loss > place.loss)
                place = placeOf(loss, ridden, other.ridden(), insight.circuit);
        }
    }
    // Where the lap itself is the best, it lost nothing.
    for (TimePlace &place : found.places) {
        if (place.loss < 0.0) {
            place.loss = place.won = place.lost = 0.0;
            place.causes.clear();
        }
    }
    rank(found);
    return found;
}

} // namespace zuno
