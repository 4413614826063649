// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/losscards.h>

#include <algorithm>

#include <base/numbers.h>

namespace zuno {

namespace {

constexpr std::size_t MostTold = 3;

std::optional<UnitSpeeds> speedsOf(const RiddenLap &lap, const TrackPart &unit)
{
    std::optional<UnitSpeeds> speeds;
    for (std::size_t i = 0; i < unit.cornerCount; ++i) {
        const std::optional<CornerFigures> &figures = lap.figures[unit.firstCorner + i];
        if (!figures)
            return {};
        if (!speeds)
            speeds = UnitSpeeds {figures->entrySpeed, figures->lowestSpeed, figures->exitSpeed};
        speeds->lowest = std::min(speeds->lowest, figures->lowestSpeed);
        speeds->exit = figures->exitSpeed;
    }
    return speeds;
}

LapStretch stretchOf(const LapOnOutline &lap, const TrackPart &unit)
{
    return {lap.timeAt(unit.from), lap.timeAt(unit.to)};
}

} // namespace

bool LossCard::isWorthTelling() const
{
    return isConfirmed && loss >= roundedToInt(1000.0 * LeastListedLoss);
}

std::vector<std::size_t> LossCards::largest() const
{
    std::vector<std::size_t> indexes;
    for (std::size_t i = 0; i < units.size(); ++i) {
        if (units[i].isWorthTelling())
            indexes.push_back(i);
    }
    std::stable_sort(indexes.begin(), indexes.end(), [this](std::size_t a, std::size_t b) {
        return units[a].loss > units[b].loss;
    });
    indexes.resize(std::min(indexes.size(), MostTold));
    return indexes;
}

LossCard lossCard(const UnitLoss &loss, const RiddenLap &lap, const RiddenLap &reference,
                  const CircuitCorners &circuit)
{
    const TrackPart &unit = circuit.units[loss.unit];
    LossCard card;
    card.unit = loss.unit;
    card.label = circuit.unitLabel(loss.unit);
    card.from = unit.from;
    card.to = unit.to;
    card.lap = stretchOf(lap.path, unit);
    card.reference = stretchOf(reference.path, unit);
    card.loss = roundedToInt(1000.0 * loss.loss);
    card.bySpeed = loss.bySpeed;
    card.isConfirmed = loss.isConfirmed();
    card.lapSpeeds = speedsOf(lap, unit);
    card.referenceSpeeds = speedsOf(reference, unit);
    if (card.isConfirmed && card.loss > 0)
        card.causes = causeTexts(loss, circuit);
    return card;
}

LossCards lossCards(const RiddenLap &lap, const RiddenLap &reference, const CircuitCorners &circuit)
{
    LossCards cards;
    for (const UnitLoss &loss : lossesAgainst(lap, reference, circuit)) {
        cards.units.push_back(lossCard(loss, lap, reference, circuit));
        cards.total += cards.units.back().loss;
    }
    return cards;
}

QStringList causeTexts(const UnitLoss &loss, const CircuitCorners &circuit)
{
    const bool isOne = circuit.units[loss.unit].cornerCount == 1;
    QStringList texts;
    for (const Cause &cause : loss.causes)
        texts.append(causeText(cause, isOne ? QString() : circuit.corners[cause.corner].label()));
    return texts;
}

} // namespace zuno
