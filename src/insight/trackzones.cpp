// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/trackzones.h>

#include <algorithm>

namespace zuno {

namespace {

constexpr int MostRanked = 3;

ZoneActs actsIn(const RiddenLap &lap, std::size_t index, const Corner &corner)
{
    ZoneActs acts;
    const auto &figures = lap.figures[index];
    if (!figures)
        return acts;
    if (figures->brakingPoint)
        acts.brakes = lap.path.timeAt(corner.start - *figures->brakingPoint);
    if (figures->gasPoint)
        acts.gas = lap.path.timeAt(*figures->gasPoint);
    return acts;
}

TrackZone zoneOf(std::size_t unit, const CircuitCorners &circuit, const RiddenLap &lap,
                 const RiddenLap *reference)
{
    const TrackPart &part = circuit.units[unit];
    TrackZone zone;
    zone.label = circuit.unitLabel(unit);
    zone.hasCorner = !part.isLine();
    zone.from = lap.path.timeAt(part.from);
    zone.to = lap.path.timeAt(part.to);
    if (part.isLine())
        return zone;
    const std::size_t last = part.firstCorner + part.cornerCount - 1;
    const std::size_t middle = part.firstCorner + (part.cornerCount / 2);
    const Corner &corner = circuit.corners[middle];
    zone.isRight = corner.isRight;
    zone.bendFrom = lap.path.timeAt(circuit.corners[part.firstCorner].start);
    zone.bendTo = lap.path.timeAt(circuit.corners[last].end);
    zone.middle = lap.path.timeAt(corner.middle);
    // Into a chicane somebody brakes for its first corner, and goes on the gas after its last.
    const auto acts = [&](const RiddenLap &ridden) {
        return ZoneActs {actsIn(ridden, part.firstCorner, circuit.corners[part.firstCorner]).brakes,
                         actsIn(ridden, last, circuit.corners[last]).gas};
    };
    zone.acts = acts(lap);
    if (reference != nullptr)
        zone.otherActs = acts(*reference);
    return zone;
}

void rank(TrackZones &zones)
{
    std::vector<TrackZone *> losses;
    for (TrackZone &zone : zones) {
        if (zone.loss.value_or(0.0) >= NoiseLoss)
            losses.push_back(&zone);
    }
    std::stable_sort(losses.begin(), losses.end(),
                     [](const TrackZone *a, const TrackZone *b) { return *a->loss > *b->loss; });
    for (int i = 0; i < std::min(MostRanked, static_cast<int>(losses.size())); ++i)
        losses[static_cast<std::size_t>(i)]->rank = i + 1;
}

} // namespace

TrackZones trackZones(const CircuitCorners &circuit, const RiddenLap &lap,
                      const RiddenLap *reference)
{
    TrackZones zones;
    for (std::size_t unit = 0; unit < circuit.units.size(); ++unit)
        zones.push_back(zoneOf(unit, circuit, lap, reference));
    if (reference == nullptr)
        return zones;
    for (const UnitLoss &loss : lossesAgainst(lap, *reference, circuit))
        zones[loss.unit].loss = loss.loss;
    rank(zones);
    return zones;
}

} // namespace zuno
