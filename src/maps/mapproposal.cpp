// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/mapproposal.h>

#include <algorithm>
#include <cmath>
#include <optional>

#include <maps/circuit.h>
#include <maps/draftlaps.h>
#include <maps/gatechoice.h>
#include <maps/linechoice.h>
#include <maps/mapcheck.h>

namespace zuno {

namespace {

constexpr double OutlineSpacing = 8.0;

// The parts of a lap's way, at both ends, in which it is at the line.
constexpr double EndPart = 0.25;

// Metres after the line within which the outline goes over into the lap's own way.
constexpr double BlendReach = 100.0;

// A recording with fewer positions says nothing.
constexpr std::size_t LeastPositions = 20;

// Metres, at so many metres per second; who stands about or pushes does not come so far.
constexpr double LeastWay = 150.0;
constexpr double LeastSpeed = 4.0;

// By how much a complete lap differs from the outline's length, and one that may yet become so.
constexpr double LengthTolerance = 0.1;
constexpr double NearlyAround = 0.25;

// How many lines are tried before the best of them is taken.
constexpr std::size_t TriedLines = 4;

// And how large their gates are tried to be.
constexpr double GateParts[] = {1.0, 0.7, 0.5};

// A later one must be better by so much; without a fault nothing else is tried.
constexpr double BetterBy = 1.05;

double median(std::vector<double> values)
{
    if (values.empty())
        return 0.0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// The way of a lap between its ends on the line.
class LapWay
{
public:
    LapWay(std::span<const PointAcquisition> samples, const QGeoCoordinate &start)
        : m_path(refined(lapPath(samples, start, Walk::Forwards)))
    {
        if (m_path.size() < 2)
            return;
        const double length = m_path.back().driven;
        m_from = nearest(0.0, EndPart * length);
        m_to = nearest((1.0 - EndPart) * length, length);
    }

    [[nodiscard]] double length() const { return m_to - m_from; }

    // At so many metres from the line; the ends are bent to the start point.
    [[nodiscard]] PlaneVector at(double driven) const
    {
        const double reach = std::min(BlendReach, length() / 4.0);
        const double before = std::max(0.0, 1.0 - (driven / reach));
        const double after = std::max(0.0, 1.0 - ((length() - driven) / reach));
        return placeAt(m_from + driven) - (placeAt(m_from) * before) - (placeAt(m_to) * after);
    }

private:
    [[nodiscard]] PlaneVector placeAt(double driven) const
    {
        const auto next
            = std::partition_point(m_path.begin(), m_path.end(), [driven](const PathNode &node) {
                  return node.driven <= driven;
              });
        if (next == m_path.begin() || next == m_path.end())
            return (next == m_path.begin() ? m_path.front() : m_path.back()).place;
        const PathNode &before = *(next - 1);
        const double part = (driven - before.driven) / (next->driven - before.driven);
        return before.place + ((next->place - before.place) * part);
    }

    // Where, between two distances, the way is nearest to the start point.
    [[nodiscard]] double nearest(double least, double most) const
    {
        double best = least;
        double bestDistance = placeAt(least).length();
        for (std::size_t i = 0; i + 1 < m_path.size(); ++i) {
            const PathNode &from = m_path[i];
            const PathNode &to = m_path[i + 1];
            if (to.driven < least || from.driven > most)
                continue;
            const PlaneVector step = to.place - from.place;
            const double part = std::clamp(-(from.place * step) / (step * step), 0.0, 1.0);
            const double distance = (from.place + (step * part)).length();
            if (distance < bestDistance) {
                bestDistance = distance;
                best = from.driven + (part * (to.driven - from.driven));
            }
        }
        return best;
    }

    LapPath m_path;
    double m_from = 0.0;
    double m_to = 0.0;
};

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

QList<QGeoCoordinate> evenOutline(std::span<const PointAcquisition> samples, const FoundLap &lap,
                                  const QGeoCoordinate &start, double spacing)
{
    if (lap.last >= samples.size() || lap.first >= lap.last)
        return {};
    const LapWay way(samples.subspan(lap.first, lap.last - lap.first + 1), start);
    if (!(way.length() > spacing))
        return {};
    const auto steps = static_cast<int>(std::round(way.length() / spacing));
    const Plane plane(start);
    QList<QGeoCoordinate> outline {start};
    for (int i = 1; i < steps; ++i)
        outline.append(plane.coordinate(way.at(way.length() * i / steps)));
    outline.append(start);
    return outline;
}

// An outline by whose length the lap counts as complete, and others with it. A lap is as long as
// the steps from sample to sample, which on a small circuit are hardly longer than positions
// wander: an outline through fewer places is too short for it.
QList<QGeoCoordinate> completeOutline(std::span<const PointAcquisition> samples,
                                      const FoundLap &lap, const QGeoCoordinate &start)
{
    QList<QGeoCoordinate> outline;
    for (const double part : {1.0, 0.5, 0.25}) {
        outline = evenOutline(samples, lap, start, OutlineSpacing * part);
        double length = 0.0;
        for (qsizetype i = 1; i < outline.size(); ++i)
            length += outline[i - 1].distanceTo(outline[i]);
        if (lap.length < (1.0 + (LengthTolerance / 2.0)) * length)
            break;
    }
    return outline;
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

    const DraftLaps cut(samples, draft);
    const double around = cut.map().length();
    proposal.laps = lapsOfLength(samples, cut.laps(), around, NearlyAround);
    if (proposal.laps.empty())
        return proposal;
    const FoundLap typical = proposal.laps[typicalOf(proposal.laps)];
    const QList<QGeoCoordinate> outline = completeOutline(samples, typical, draft.start);
    if (outline.size() > 2)
        draft.outline = outline;
    proposal.laps = lapsOfLength(samples, cut.laps(), draft.toMap()->length(), LengthTolerance);
    if (proposal.laps.empty())
        return proposal;
    proposal.typicalLap = typicalOf(proposal.laps);
    proposal.reason = NoProposal::None;
    return proposal;
}

// What is wrong with a proposal, by how much it matters; the laps that it gives stand against it.
double faultsOf(const MapCheck &check)
{
    double faults = 0.0;
    for (const MapWarning &warning : check.warnings) {
        const bool isOneLap
            = !warning.laps.isEmpty()
              && static_cast<std::size_t>(warning.laps.size()) * 4 < check.laps.size();
        faults += isOneLap ? 0.3 : 1.0;
    }
    return faults;
}

} // namespace

MapProposal proposeMap(std::span<const PointAcquisition> samples)
{
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
            const double faults = faultsOf(checkMap(samples, proposal.draft));
            const double worth = static_cast<double>(proposal.laps.size()) / (1.0 + faults);
            if (worth > BetterBy * bestWorth) {
                best = std::move(proposal);
                bestWorth = worth;
            }
            if (faults == 0.0)
                return best;
        }
    }
    return best;
}

QList<QGeoCoordinate> outlineOf(std::span<const PointAcquisition> samples, const FoundLap &lap,
                                const QGeoCoordinate &start)
{
    return evenOutline(samples, lap, start, OutlineSpacing);
}

} // namespace zuno
