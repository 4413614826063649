// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/losses.h>

#include <algorithm>
#include <numeric>

#include <base/numbers.h>

namespace zuno {

namespace {

// What the loss by speed may be of the loss.
constexpr double LeastPart = 0.5;
constexpr double MostPart = 2.0;

// So many laps make the second best one the good one.
constexpr std::size_t SecondBestLaps = 5;

constexpr std::size_t MostListed = 3;

qint32 timeIn(const LapOnOutline &lap, const TrackPart &part)
{
    const auto moment = [&lap](double place) { return roundedToInt(1000.0 * lap.timeAt(place)); };
    return moment(part.to) - moment(part.from);
}

UnitLoss lossIn(std::size_t unit, const RiddenLap &lap, const RiddenLap &reference,
                const CircuitCorners &circuit)
{
    const TrackPart &part = circuit.units[unit];
    UnitLoss loss;
    loss.unit = unit;
    loss.loss = static_cast<double>(timeIn(lap.path, part) - timeIn(reference.path, part)) / 1000.0;
    loss.bySpeed
        = lap.path.timeBySpeed(part.from, part.to) - reference.path.timeBySpeed(part.from, part.to);
    loss.causes = causesOf(lap, reference, part, loss.bySpeed, circuit.corners, circuit.segments);
    return loss;
}

// The usual lap of one unit against the good one.
ListedLoss usualLoss(std::size_t unit, std::span<const RiddenLap> laps,
                     const CircuitCorners &circuit)
{
    std::vector<qint32> times;
    for (const RiddenLap &lap : laps)
        times.push_back(timeIn(lap.path, circuit.units[unit]));
    std::vector<std::size_t> order(laps.size());
    std::iota(order.begin(), order.end(), std::size_t {0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return times[a] < times[b]; });
    ListedLoss listed;
    listed.lap = order[order.size() / 2];
    listed.against = order[laps.size() >= SecondBestLaps ? 1 : 0];
    listed.loss = lossIn(unit, laps[listed.lap], laps[listed.against], circuit);
    return listed;
}

} // namespace

bool UnitLoss::isConfirmed() const
{
    const double part = loss != 0.0 ? bySpeed / loss : 0.0;
    return part >= LeastPart && part <= MostPart;
}

std::vector<qint32> timesIn(const TrackParts &parts, const LapOnOutline &lap)
{
    std::vector<qint32> times;
    for (const TrackPart &part : parts)
        times.push_back(timeIn(lap, part));
    return times;
}

std::vector<UnitLoss> lossesAgainst(const RiddenLap &lap, const RiddenLap &reference,
                                    const CircuitCorners &circuit)
{
    std::vector<UnitLoss> losses;
    for (std::size_t unit = 0; unit < circuit.units.size(); ++unit)
        losses.push_back(lossIn(unit, lap, reference, circuit));
    return losses;
}

std::vector<ListedLoss> listLosses(std::span<const RiddenLap> laps, const CircuitCorners &circuit)
{
    std::vector<ListedLoss> list;
    if (laps.size() < LeastListLaps)
        return list;
    for (std::size_t unit = 0; unit < circuit.units.size(); ++unit) {
        ListedLoss listed = usualLoss(unit, laps, circuit);
        if (listed.loss.loss >= LeastListedLoss && listed.loss.isConfirmed())
            list.push_back(std::move(listed));
    }
    std::stable_sort(list.begin(), list.end(), [](const ListedLoss &a, const ListedLoss &b) {
        return a.loss.loss > b.loss.loss;
    });
    if (list.size() > MostListed)
        list.resize(MostListed);
    return list;
}

} // namespace zuno
