// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/proposal/mapproposal.h>

#include <algorithm>
#include <cmath>
#include <optional>

#include <base/numbers.h>
#include <base/processorstate.h>
#include <maps/proposal/circuit.h>
#include <maps/proposal/gatechoice.h>
#include <maps/proposal/lapoutline.h>
#include <maps/proposal/linechoice.h>
#include <maps/proposal/proposalworth.h>
#include <session/laps/lapcutter.h>
#include <track/cuttingrules.h>
#include <track/map.h>

namespace zuno {

namespace {

constexpr double OutlineSpacing = 8.0;

// A recording with fewer positions says nothing.
constexpr std::size_t LeastPositions = 20;

// Metres, at so many metres per second; who stands about or pushes does not come so far.
constexpr double LeastWay = 150.0;
constexpr double LeastSpeed = 4.0;

// By how much a lap that may yet become complete differs from the outline's length.
constexpr double NearlyAround = 0.25;

// How many lines are tried before the best of them is taken.
constexpr std::size_t TriedLines = 6;

// And how large their gates are tried to be.
constexpr double GateParts[] = {1.0, 0.8, 0.6};

// A later one must be worth so much of a lap more.
constexpr double BetterBy = 0.2;

// A perfect one may have a lap less: the ride may begin or end on the other side of its line.
constexpr double PerfectBonus = 1.1;

std::span<const PointAcquisition> samplesOf(std::span<const PointAcquisition> samples,
                                            const FoundLap &lap)
{
    if (lap.last >= samples.size() || lap.first >= lap.last)
        return {};
    return samples.subspan(lap.first, lap.last - lap.first + 1);
}

FoundLap foundLap(std::span<const PointAcquisition> samples, const Lap &lap)
{
    const auto after = [samples](quint32 time) {
        return std::partition_point(
            samples.begin(), samples.end(),
            [time](const PointAcquisition &sample) { return sample.dataTimeStamp <= time; });
    };
    FoundLap found;
    const auto first = after(lap.points().front().dataTimeStamp) - samples.begin();
    const auto last = after(lap.points().back().dataTimeStamp) - samples.begin();
    const auto count = static_cast<std::ptrdiff_t>(samples.size());
    found.first = static_cast<std::size_t>(std::max<std::ptrdiff_t>(first - 1, 0));
    found.last = static_cast<std::size_t>(std::min(last, count - 1));
    found.length = lap.distance();
    found.time = lap.lapTime();
    return found;
}

// The lap that is the least unusual.
std::size_t typicalOf(const std::vector<FoundLap> &laps)
{
    std::vector<double> lengths;
    std::vector<double> times;
    for (const FoundLap &lap : laps) {
        lengths.push_back(lap.length);
        times.push_back(lap.time);
    }
    const double length = median(std::move(lengths));
    const double time = median(std::move(times));
    const auto oddity = [length, time](const FoundLap &lap) {
        return (std::fabs(lap.length - length) / length)
               + (0.2 * std::fabs(lap.time - time) / time);
    };
    const auto best
        = std::min_element(laps.begin(), laps.end(), [&](const FoundLap &a, const FoundLap &b) {
              return oddity(a) < oddity(b);
          });
    return static_cast<std::size_t>(best - laps.begin());
}

// Once around the circuit through its stations, for cutting the first time.
QList<QGeoCoordinate> roughOutline(const Circuit &circuit, std::size_t line)
{
    QList<QGeoCoordinate> outline;
    for (std::size_t k = 0; k <= circuit.size(); ++k)
        outline.append(circuit.ride().plane().coordinate(circuit.at(line + k).place));
    return outline;
}

// The laps from the line to the line that are so long, within a part of it.
std::vector<FoundLap> lapsOfLength(std::span<const PointAcquisition> samples, const LapList &laps,
                                   double length, double tolerance)
{
    std::vector<FoundLap> found;
    for (std::size_t i = 1; i + 1 < laps.size(); ++i) {
        if (std::fabs(laps[i]->distance() - length) < tolerance * length)
            found.push_back(foundLap(samples, *laps[i]));
    }
    return found;
}

// The outline of a lap by whose length it counts as complete, and most others with it. A lap is as
// long as the steps from sample to sample, which in a dense recording are hardly longer than
// positions wander: an outline through fewer places may be too short for it.
QList<QGeoCoordinate> completeOutline(std::span<const PointAcquisition> samples,
                                      const std::vector<FoundLap> &laps, const FoundLap &typical,
                                      const QGeoCoordinate &start)
{
    QList<QGeoCoordinate> best;
    std::size_t most = 0;
    bool isLong = false;
    for (const double part : {1.0, 0.5, 0.25, 0.125}) {
        const QList<QGeoCoordinate> outline
            = lapOutline(samplesOf(samples, typical), start, OutlineSpacing * part);
        double length = 0.0;
        for (qsizetype i = 1; i < outline.size(); ++i)
            length += outline[i - 1].distanceTo(outline[i]);
        const auto complete = static_cast<std::size_t>(
            std::count_if(laps.begin(), laps.end(), [length](const FoundLap &lap) {
                return isOnceAround(lap.length, length);
            }));
        if (best.isEmpty() || complete > most || (complete == most && !isLong)) {
            best = outline;
            most = complete;
            isLong = typical.length < (1.0 + (LengthTolerance / 2.0)) * length;
        }
        if (isLong && most == laps.size())
            break;
    }
    return best;
}

MapProposal proposalAt(std::span<const PointAcquisition> samples, const Circuit &circuit,
                       std::size_t line, double gatePart)
{
    const Plane &plane = circuit.ride().plane();
    const GateChoice gates = chooseGates(circuit, line, gatePart);
    MapProposal proposal;
    MapDraft &draft = proposal.draft;
    draft.start = plane.coordinate(circuit.at(line).place);
    draft.gateSize = std::round(gates.size * 2.0) / 2.0;
    draft.outline = roughOutline(circuit, line);
    for (const std::size_t point : gates.points)
        draft.timingPoints.append(plane.coordinate(circuit.at(point).place));
    draft.timingPoints.append(draft.start);

    const std::unique_ptr<const Map> map = draft.toMap();
    const LapResults cut = cutIntoLaps(samples, *map, {});
    proposal.laps = lapsOfLength(samples, cut.laps, map->length(), NearlyAround);
    if (proposal.laps.empty())
        return proposal;
    const FoundLap typical = proposal.laps[typicalOf(proposal.laps)];
    const QList<QGeoCoordinate> outline
        = completeOutline(samples, proposal.laps, typical, draft.start);
    if (outline.size() > 2)
        draft.outline = outline;
    proposal.laps = lapsOfLength(samples, cut.laps, draft.toMap()->length(), LengthTolerance);
    if (proposal.laps.empty())
        return proposal;
    proposal.typicalLap = typicalOf(proposal.laps);
    proposal.reason = NoProposal::None;
    return proposal;
}

} // namespace

MapProposal proposeMap(std::span<const PointAcquisition> samples)
{
    clearVectorRegisters();
    MapProposal best;
    const RidePath ride(samples);
    if (ride.positionCount() < LeastPositions) {
        best.reason = NoProposal::NoPositions;
        return best;
    }
    if (ride.riddenLength(LeastSpeed) < LeastWay) {
        best.reason = NoProposal::NoMovement;
        return best;
    }
    const auto loop = findLoop(ride);
    if (!loop)
        return best;
    const Circuit circuit(ride, *loop);
    std::vector<std::size_t> lines = lineChoices(circuit);
    lines.resize(std::min(lines.size(), TriedLines));
    double bestWorth = 0.0;
    for (const std::size_t line : lines) {
        for (const double part : GateParts) {
            MapProposal proposal = proposalAt(samples, circuit, line, part);
            if (proposal.reason != NoProposal::None)
                continue;
            const ProposalWorth worth = worthOf(samples, proposal, circuit.at(line));
            const bool isPerfect = worth.isSound && worth.lost == 0;
            if (worth.laps + (isPerfect ? PerfectBonus : -BetterBy) > bestWorth) {
                bestWorth = worth.laps;
                best = std::move(proposal);
            }
            if (isPerfect)
                return best;
            // What passes beside a sound line does so with smaller gates, too.
            if (worth.isSound)
                break;
        }
    }
    return best;
}

QList<QGeoCoordinate> outlineOf(std::span<const PointAcquisition> samples, const FoundLap &lap,
                                const QGeoCoordinate &start)
{
    return lapOutline(samplesOf(samples, lap), start, OutlineSpacing);
}

} // namespace zuno
