// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/laps/lapcutter.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include <base/numbers.h>
#include <base/processorstate.h>
#include <session/laps/sessionmarks.h>
#include <session/recording/trace.h>
#include <track/cuttingrules.h>
#include <track/map.h>

namespace zuno {

namespace {

constexpr double None = std::numeric_limits<double>::quiet_NaN();

// Cuts one recording; lives for one call of cutIntoLaps.
class LapCutter
{
public:
    LapCutter(std::span<const PointAcquisition> samples, const Map &map,
              const QList<quint8> &invalid)
        : m_samples(samples)
        , m_map(map)
        , m_invalid(invalid)
        , m_trace(m_samples)
        , m_line(map.startPoint(), LineReach * map.gateSize())
    {
    }

    LapResults cut()
    {
        for (std::size_t i = 0; i < m_samples.size(); ++i)
            visit(i);
        if (!m_results.laps.empty())
            m_results.laps.push_back(makeLap());
        return std::move(m_results);
    }

private:
    void visit(std::size_t i)
    {
        measureStep(i);
        if (!wentToLapBefore(i))
            append(i);
        if (m_scan.isPass(&m_line, m_trace, i))
            crossLine(i);
        addDistance(i);
    }

    // Measured once, and given to the lap, too.
    void measureStep(std::size_t i)
    {
        const bool isStep = m_previous != Trace::None && m_trace.hasPosition(i);
        m_step = isStep ? m_trace.at(m_previous).distanceTo(m_trace.at(i)) : None;
    }

    void append(std::size_t i)
    {
        append(m_samples[i], m_trace.place(i));
        if (!m_trace.hasPosition(i))
            return;
        // A lap begins with a crossing, which is no sample: from there it is another way.
        if (m_last != Trace::None && m_last == m_previous)
            m_places.back().step = m_step;
        m_last = i;
    }

    void append(const PointAcquisition &point, const TracePlace &place)
    {
        m_points.push_back(point);
        m_places.push_back(place);
    }

    // A stretch without positions at the line belongs to the old lap up to the moment of the
    // crossing, and to the new one from then on.
    [[nodiscard]] bool wentToLapBefore(std::size_t i) const
    {
        return i < m_gapEnd && m_samples[i].dataTimeStamp < m_crossingStamp;
    }

    void crossLine(std::size_t i)
    {
        const std::size_t next = m_trace.next(i);
        PointAcquisition crossing = m_samples[i];
        m_gapEnd = 0;
        m_points.pop_back();
        m_places.pop_back();
        m_last = Trace::None;
        if (next != Trace::None) {
            crossing = crossingPoint(m_samples[i], m_samples[next], m_line.centre());
            m_gapEnd = next;
            m_crossingStamp = crossing.dataTimeStamp;
            for (std::size_t j = i + 1; j < next; ++j) {
                if (wentToLapBefore(j))
                    append(j);
            }
        }
        const TracePlace place(positionOf(crossing));
        append(crossing, place);
        const std::size_t length = m_points.size();
        m_results.laps.push_back(makeCrossedLap());
        // The next lap will be about as long.
        m_points.reserve(length + (length / 8));
        m_places.reserve(length + (length / 8));
        append(crossing, place);
    }

    std::unique_ptr<Lap> makeLap()
    {
        auto lap = std::make_unique<Lap>();
        lap->setLapNumber(static_cast<qint32>(m_results.laps.size()) + 1);
        lap->setPoints(std::exchange(m_points, {}), Trace(std::exchange(m_places, {})), &m_map);
        return lap;
    }

    std::unique_ptr<Lap> makeCrossedLap()
    {
        std::unique_ptr<Lap> lap = makeLap();
        lap->setEndsAtLine(true);
        lap->setIsValid(std::find(m_invalid.begin(), m_invalid.end(), lap->lapNumber())
                        == m_invalid.end());
        lap->setIsComplete(lap->lapNumber() != 1 && isOnceAround(lap->distance(), m_map.length()));
        return lap;
    }

    void addDistance(std::size_t i)
    {
        if (!m_trace.hasPosition(i))
            return;
        if (m_previous != Trace::None)
            m_results.distance = wrappedSum(m_results.distance, truncatedToInt(m_step));
        m_previous = i;
    }

    std::span<const PointAcquisition> m_samples;
    const Map &m_map;
    const QList<quint8> &m_invalid;
    Trace m_trace;
    Gate m_line;
    LapResults m_results;
    // The lap that is being ridden.
    Points m_points;
    std::vector<TracePlace> m_places;
    // The sample before that has a position, of all and of the lap's own, and the way from there.
    std::size_t m_previous = Trace::None;
    std::size_t m_last = Trace::None;
    double m_step = None;
    std::size_t m_gapEnd = 0;
    quint32 m_crossingStamp = 0;
    PassScan m_scan;
};

// Tells what is a lap from what only passing the line twice, or standing there, has made.
void judgeLap(Lap &lap, double length)
{
    const bool isShort = lap.distance() < ShortestLapPart * length;
    lap.setIsRanked(lap.lapTime() > 0 && !isShort);
    const bool isFromLineToLine = lap.startsAtLine() && lap.endsAtLine() && !lap.isComplete();
    const bool isBrief = isShort || lap.lapTime() < ShortestLapTime;
    lap.setIsCountedTwice(lap.lapTime() < 0 || (isFromLineToLine && isBrief));
}

void rankLapTimes(LapResults &results)
{
    qint32 best = LapResults::NoTime;
    qint64 sum = 0;
    qint64 cumulated = 0;
    results.bestLap = 0;
    for (std::size_t i = 0; i < results.laps.size(); ++i) {
        Lap &lap = *results.laps[i];
        lap.setIsBest(false);
        // A pass that counts twice may take back a little time.
        sum += lap.lapTime();
        cumulated = std::max(cumulated, sum);
        lap.setCumulatedTime(static_cast<quint32>(cumulated));
        if (lap.isComplete() && lap.isValid() && lap.isRanked() && lap.lapTime() < best) {
            best = lap.lapTime();
            results.bestLap = static_cast<qint32>(i);
        }
    }
    if (!results.laps.empty())
        results.laps[static_cast<std::size_t>(results.bestLap)]->setIsBest(true);
}

// The best time of one sector, and its part of the ideal time.
void rankSector(LapResults &results, int sector)
{
    const auto s = static_cast<std::size_t>(sector);
    for (std::size_t i = 0; i < results.laps.size(); ++i) {
        Lap &lap = *results.laps[i];
        lap.setBestSector(sector, false);
        const qint32 time = lap.sectorTime(sector);
        if (lap.isValid() && lap.isRanked() && time != -1 && time < results.bestSectorTimes[s]) {
            results.bestSectorTimes[s] = time;
            results.bestSectorLaps[s] = static_cast<qint32>(i);
        }
    }
    if (results.bestSectorLaps[s] >= 0) {
        results.laps[static_cast<std::size_t>(results.bestSectorLaps[s])]->setBestSector(sector,
                                                                                         true);
        results.idealTime = wrappedSum(results.idealTime, results.bestSectorTimes[s]);
    }
}

} // namespace

LapResults::LapResults()
{
    bestSectorTimes.fill(NoTime);
    bestSectorLaps.fill(-1);
}

LapResults cutIntoLaps(std::span<const PointAcquisition> samples, const Map &map,
                       const QList<quint8> &invalid)
{
    clearVectorRegisters();
    if (!map.isUsable())
        return {};
    LapResults results = LapCutter(samples, map, invalid).cut();
    assignMarks(results.laps, samples);
    rankLaps(results, &map);
    return results;
}

void rankLaps(LapResults &results, const Map *map)
{
    for (const auto &lap : results.laps)
        judgeLap(*lap, map != nullptr ? map->length() : 0.0);
    rankLapTimes(results);
    results.bestSectorTimes.fill(LapResults::NoTime);
    results.bestSectorLaps.fill(-1);
    results.idealTime = -1;
    const int sectors = map != nullptr ? map->sectorCount() : 0;
    for (int sector = 0; sector < sectors; ++sector)
        rankSector(results, sector);
}

} // namespace zuno
