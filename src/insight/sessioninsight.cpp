// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/sessioninsight.h>

#include <algorithm>
#include <cmath>

#include <base/numbers.h>
#include <base/processorstate.h>
#include <insight/recordingrate.h>

namespace zuno {

namespace {

// Samples of the recording around a lap that go with it.
constexpr std::size_t Around = 50;

// How many samples of a lap tell which way it goes.
constexpr std::size_t WaySamples = 40;

// The samples of a lap and some around it.
std::span<const PointAcquisition> around(std::span<const PointAcquisition> samples, const Lap &lap)
{
    const std::size_t first = lap.points().front().acquisitionNumber;
    const std::size_t last = lap.points().back().acquisitionNumber;
    if (first < 1 || last < first || last > samples.size())
        return lap.points();
    const std::size_t from = first > Around ? first - Around : 0;
    const std::size_t to = std::min(last + Around, samples.size());
    return samples.subspan(from, to - from);
}

InsightLap insightLap(const Lap &lap, const CircuitCorners &circuit,
                      std::span<const PointAcquisition> samples, const FigureValidity &validity)
{
    InsightLap result;
    result.number = lap.lapNumber();
    result.isValid = lap.isValid();
    result.path = putOnOutline(circuit.ring, samples, lap);
    result.figures = allFigures(result.path, circuit, validity);
    return result;
}

void flag(std::vector<InsightLap> &laps, const TrackParts &segments)
{
    std::vector<const LapOnOutline *> paths;
    paths.reserve(laps.size());
    for (const InsightLap &lap : laps)
        paths.push_back(&lap.path);
    const std::vector<LapFlags> flags = flagLaps(paths, segments);
    for (std::size_t i = 0; i < laps.size(); ++i)
        laps[i].flags = flags[i];
}

void choose(SessionInsight &insight)
{
    const auto quickerOf = [&](std::optional<std::size_t> best, std::size_t i) {
        const bool isQuicker
            = !best || insight.laps[i].path.duration() < insight.laps[*best].path.duration();
        return isQuicker ? i : best;
    };
    for (std::size_t i = 0; i < insight.laps.size(); ++i) {
        if (insight.laps[i].isUsed())
            insight.used.push_back(i);
    }
    for (const std::size_t i : insight.used)
        insight.best = quickerOf(insight.best, i);
    for (std::size_t i = 0; i < insight.laps.size() && insight.used.empty(); ++i)
        insight.best = quickerOf(insight.best, i);
}

void list(SessionInsight &insight)
{
    std::vector<RiddenLap> ridden;
    for (const std::size_t i : insight.used)
        ridden.push_back(insight.laps[i].ridden());
    insight.list = listLosses(ridden, insight.circuit);
    for (ListedLoss &listed : insight.list) {
        listed.lap = insight.used[listed.lap];
        listed.against = insight.used[listed.against];
    }
}

InsightLack lackOf(const SessionInsight &insight, const Lap *best)
{
    if (insight.circuit.isEmpty())
        return InsightLack::NoCorners;
    if (best == nullptr || best->lapTime() <= 0)
        return InsightLack::NoCompleteLap;
    if (!isCredible(insight.circuit, static_cast<double>(best->lapTime()) / 1000.0))
        return InsightLack::OutlineOff;
    return carriesCorners(insight.rate) ? InsightLack::None : InsightLack::RateTooLow;
}

// Of the complete laps; nullptr without one.
const Lap *quickest(const LapList &laps)
{
    const Lap *best = nullptr;
    for (const auto &lap : laps) {
        if (lap->isComplete() && (best == nullptr || lap->lapTime() < best->lapTime()))
            best = lap.get();
    }
    return best;
}

} // namespace

const InsightLap *SessionInsight::lap(qint32 number) const
{
    const auto found = std::find_if(
        laps.begin(), laps.end(), [number](const InsightLap &lap) { return lap.number == number; });
    return found != laps.end() ? &*found : nullptr;
}

double SessionInsight::roughness() const
{
    std::vector<double> values;
    for (const InsightLap &lap : laps)
        values.push_back(lap.path.roughness());
    return median(std::move(values));
}

PlaneVector SessionInsight::offset() const
{
    std::vector<double> east;
    std::vector<double> north;
    for (const InsightLap &lap : laps) {
        if (const std::optional<PlaneVector> &offset = lap.path.offset()) {
            east.push_back(offset->x);
            north.push_back(offset->y);
        }
    }
    return {median(std::move(east)), median(std::move(north))};
}

CircuitRing::Way wayAround(const Map &map, const Lap &lap)
{
    const CircuitRing ring(map);
    if (ring.isEmpty())
        return ring.way();
    double last = 0.0;
    int forwards = 0;
    const std::size_t step = std::max<std::size_t>(lap.points().size() / WaySamples, 1);
    for (std::size_t i = 0; i < lap.points().size(); i += step) {
        const PointAcquisition &point = lap.points()[i];
        if (!point.hasPosition())
            continue;
        const double here = ring.nearest(ring.place(point.dataCoordY, point.dataCoordX)).along;
        forwards += ring.wrapped(here - last) < ring.length() / 2.0 ? 1 : -1;
        last = here;
    }
    return forwards >= 0 ? CircuitRing::Way::AsDrawn : CircuitRing::Way::Backwards;
}

LapOnOutline putOnOutline(const CircuitRing &ring, std::span<const PointAcquisition> samples,
                          const Lap &lap)
{
    if (lap.points().empty() || ring.isEmpty())
        return {};
    return {ring, around(samples, lap),
            LapSpan {lap.points().front().dataTimeStamp, lap.points().back().dataTimeStamp}};
}

PlaneVector shiftBetween(const LapOnOutline &first, const LapOnOutline &second)
{
    if (!first.offset() || !second.offset())
        return {};
    return *first.offset() - *second.offset();
}

LapFigures allFigures(const LapOnOutline &path, const CircuitCorners &circuit,
                      const FigureValidity &validity)
{
    LapFigures figures;
    for (std::size_t i = 0; i < circuit.corners.size(); ++i)
        figures.push_back(figuresOf(path, circuit.corners[i], circuit.segmentOf(i), validity));
    return figures;
}

SessionInsight sessionInsight(CircuitCorners circuit, std::span<const PointAcquisition> samples,
                              const LapList &laps)
{
    clearVectorRegisters();
    SessionInsight insight;
    insight.circuit = std::move(circuit);
    insight.rate = recordingRate(samples);
    insight.lack = lackOf(insight, quickest(laps));
    if (insight.lack != InsightLack::None) {
        insight.circuit = {};
        return insight;
    }
    const FigureValidity validity = figureValidity(insight.rate, samples);
    for (const auto &lap : laps) {
        if (lap->isComplete())
            insight.laps.push_back(insightLap(*lap, insight.circuit, samples, validity));
    }
    flag(insight.laps, insight.circuit.segments);
    choose(insight);
    list(insight);
    return insight;
}

SessionInsight insightOf(const Map &map, const CornerEdits &edits,
                         std::span<const PointAcquisition> samples, const LapList &laps)
{
    clearVectorRegisters();
    const Lap *best = quickest(laps);
    const CircuitRing::Way way
        = best != nullptr ? wayAround(map, *best) : CircuitRing::Way::AsDrawn;
    return sessionInsight(findCorners(map, edits, way), samples, laps);
}

} // namespace zuno
