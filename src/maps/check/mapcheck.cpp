// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/check/mapcheck.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <utility>

#include <base/numbers.h>
#include <base/processorstate.h>
#include <maps/check/gatecrossing.h>
#include <maps/check/passcheck.h>
#include <maps/detection/mapdetection.h>
#include <session/laps/lapcutter.h>
#include <session/recording/trace.h>
#include <track/cuttingrules.h>
#include <track/map.h>
#include <track/outlinepath.h>

namespace zuno {

namespace {

using Kind = MapWarning::Kind;

// The line's number among the gates.
constexpr int Line = -1;

// Metres from the outline at which a rider is no more on it, wherever he is heading.
constexpr double OutlineReach = 60.0;

// Metres that a crossing may be before or behind its gate: a position a second is far from dense.
constexpr double AlongTolerance = 60.0;

// Finds out what is wrong; lives for one call of checkMap.
class MapChecker
{
public:
    MapChecker(std::span<const PointAcquisition> samples, const MapDraft &draft)
        : m_samples(samples)
        , m_draft(draft)
        , m_plane(draft.start)
        , m_outline(placesOf(draft.outline))
        , m_map(draft.toMap())
        , m_cut(cutIntoLaps(samples, *m_map, {}))
    {
        for (const QGeoCoordinate &point : draft.timingPoints.mid(0, MaximumSectors)) {
            if (point.isValid())
                m_gates.push_back(m_plane.place(point));
        }
    }

    MapCheck check()
    {
        describeLaps();
        checkLine();
        if (m_draft.timingPoints.size() > MaximumSectors)
            warn({Kind::TooManyPoints, MaximumSectors, -1, {}});
        turnOutline();
        for (int gate = Line; gate < gateCount(); ++gate)
            m_along[gate] = alongOf(gate);
        checkOrder();
        checkMissed();
        checkTouching();
        for (int gate = Line; gate < gateCount(); ++gate)
            checkPasses(gate);
        checkSpeed();
        if (!m_cut.laps.empty() && !isFound(m_samples, *m_map))
            warn({Kind::NotFound, Line, -1, {}});
        return std::move(m_result);
    }

private:
    [[nodiscard]] int gateCount() const { return static_cast<int>(m_gates.size()); }
    [[nodiscard]] PlaneVector centre(int gate) const
    {
        return gate == Line ? PlaneVector {} : m_gates[static_cast<std::size_t>(gate)];
    }
    [[nodiscard]] double radius(int gate) const
    {
        return (gate == Line ? LineReach : 1.0) * m_draft.gateSize;
    }
    // Whether a gate is the last one, and met together with the line.
    [[nodiscard]] bool isLastOnLine(int gate) const
    {
        return gate + 1 == gateCount() && gate > 0 && centre(gate).length() < radius(gate);
    }

    [[nodiscard]] std::vector<PlaneVector> placesOf(const QList<QGeoCoordinate> &list) const
    {
        std::vector<PlaneVector> places;
        places.reserve(static_cast<std::size_t>(list.size()));
        for (const QGeoCoordinate &place : list)
            places.push_back(m_plane.place(place));
        return places;
    }

    // The laps, the best one, the ideal time and the length of the outline.
    void describeLaps()
    {
        for (const auto &lap : m_cut.laps) {
            CheckedLap checked {
                lap->lapNumber(), lap->lapTime(), lap->distance(), lap->isComplete(), {}};
            for (int sector = 0; sector < m_map->sectorCount(); ++sector)
                checked.sectorTimes.append(lap->sectorTime(sector));
            m_result.laps.push_back(checked);
        }
        m_result.length = m_map->length();
        m_result.idealTime = m_cut.idealTime;
        const auto best = static_cast<std::size_t>(m_cut.bestLap);
        if (best < m_cut.laps.size() && m_cut.laps[best]->isComplete())
            m_result.bestLap = m_cut.bestLap;
    }

    void warn(const MapWarning &warning) { m_result.warnings.append(warning); }

    void checkLine()
    {
        const LapList &laps = m_cut.laps;
        if (laps.empty()) {
            warn({Kind::NoPass, Line, -1, {}});
            return;
        }
        const bool hasComplete = std::any_of(laps.begin(), laps.end(),
                                             [](const auto &lap) { return lap->isComplete(); });
        if (!hasComplete)
            warn({Kind::NoLapComplete, Line, -1, {}});
        for (std::size_t i = 1; i + 1 < laps.size(); ++i) {
            if (staysInLine(*laps[i]))
                m_repeats.append(laps[i]->lapNumber());
        }
        if (!m_repeats.isEmpty())
            warn({Kind::CountedTwice, Line, -1, m_repeats});
    }

    [[nodiscard]] bool staysInLine(const Lap &lap) const
    {
        return std::all_of(lap.points().begin(), lap.points().end(), [this](const auto &point) {
            const QGeoCoordinate position = positionOf(point);
            return !position.isValid() || m_plane.place(position).length() <= radius(Line);
        });
    }

    // A circuit may be ridden the other way round than its outline was drawn, which cutting does
    // not mind.
    void turnOutline()
    {
        int sense = 0;
        for (const GateCrossing &crossing : crossingsOf(Line)) {
            const auto spot = m_outline.nearest(crossing.place);
            if (spot)
                sense += spot->heading * crossing.heading < 0.0 ? -1 : 1;
        }
        if (sense >= 0)
            return;
        std::vector<PlaneVector> places = placesOf(m_draft.outline);
        std::reverse(places.begin(), places.end());
        m_outline = OutlinePath(places);
    }

    // Where a gate is along the outline; none for one that is nowhere near it.
    [[nodiscard]] std::optional<double> alongOf(int gate) const
    {
        const auto spot = m_outline.nearest(centre(gate));
        if (!spot || spot->distance > OutlineReach)
            return {};
        return spot->along;
    }

    // Metres from the line to a gate: the outline need not begin at the line.
    [[nodiscard]] std::optional<double> fromLine(int gate) const
    {
        const auto line = m_along.at(Line);
        const auto here = m_along.at(gate);
        if (!line || !here)
            return {};
        if (isLastOnLine(gate))
            return m_outline.length();
        return *here >= *line ? *here - *line : *here - *line + m_outline.length();
    }

    void checkOrder()
    {
        m_firstLost = gateCount();
        for (int gate = 1; gate < gateCount() && m_firstLost == gateCount(); ++gate) {
            const auto before = fromLine(gate - 1);
            const auto here = fromLine(gate);
            if (!before || !here || *here > *before)
                continue;
            warn({Kind::PointOutOfOrder, gate, gate - 1, {}});
            m_firstLost = gate;
        }
    }

    // Of the points that a lap misses only the first: until it has come, the others are not
    // looked for. Points out of order need no second warning.
    void checkMissed()
    {
        std::map<int, QList<int>> missed;
        if (const auto line = m_outline.nearest({})) {
            const QList<int> laps = lapsBesideLine(m_cut.laps, m_plane, *line, m_result.length);
            if (!laps.isEmpty())
                missed[Line] = laps;
        }
        for (const auto &lap : m_cut.laps) {
            const int gate = lap->crossedSectors();
            if (lap->isComplete() && gate < std::min(gateCount(), m_firstLost))
                missed[gate].append(lap->lapNumber());
        }
        for (const auto &[gate, laps] : missed)
            warn({Kind::MissedPoint, gate, -1, laps});
        const int last = gateCount() - 1;
        const bool isWhole = m_draft.timingPoints.size() <= MaximumSectors;
        if (last >= 0 && isWhole && !(centre(last).length() < radius(last)))
            warn({Kind::LastNotOnLine, last, -1, {}});
    }

    void checkTouching()
    {
        for (int gate = Line; gate < gateCount(); ++gate) {
            for (int other = std::max(0, gate + 1); other < gateCount(); ++other) {
                if (isLastOnLine(other) && gate == Line)
                    continue;
                const double reach = radius(gate) + radius(other);
                if ((centre(gate) - centre(other)).length() >= reach)
                    continue;
                // Gates on neighbouring pieces of track may touch: each has its own turn.
                const auto from = m_along[gate];
                const auto to = m_along[other];
                if (!from || !to || m_outline.between(*from, *to) < LineReach * reach)
                    warn({Kind::GatesTouch, gate, other, {}});
            }
        }
    }

    // Where the laps met a gate. A sector's end is looked at in complete laps only: before and
    // after them, riders come from the paddock.
    [[nodiscard]] std::vector<GateCrossing> crossingsOf(int gate) const
    {
        std::vector<GateCrossing> crossings;
        const LapList &laps = m_cut.laps;
        for (std::size_t i = 0; i + 1 < laps.size(); ++i) {
            const Lap &lap = *laps[i];
            if (m_repeats.contains(lap.lapNumber()))
                continue;
            if (gate == Line) {
                addCrossing(crossings, lap, lap.points().back().dataTimeStamp);
            } else if (lap.isComplete()) {
                if (const auto passing = lap.sectorEnd(gate))
                    addCrossing(crossings, lap, passing->timeStamp);
            }
        }
        return crossings;
    }

    void addCrossing(std::vector<GateCrossing> &crossings, const Lap &lap, quint32 time) const
    {
        if (auto crossing = crossingAt(m_samples, m_plane, time)) {
            crossing->lap = lap.lapNumber();
            crossings.push_back(*crossing);
        }
    }

    void checkPasses(int gate)
    {
        const auto along = m_along[gate];
        if (!along || isLastOnLine(gate))
            return;
        MapWarning second {Kind::SecondTrack, gate, -1, {}};
        MapWarning otherWay {Kind::OtherWay, gate, -1, {}};
        std::vector<std::pair<GateCrossing, double>> onTrack;
        for (const GateCrossing &crossing : crossingsOf(gate)) {
            const auto spot = m_outline.nearest(crossing.place, crossing.heading);
            if (!spot || spot->distance > OutlineReach)
                otherWay.laps.append(crossing.lap);
            else if (m_outline.between(spot->along, *along) > radius(gate) + AlongTolerance)
                second.laps.append(crossing.lap);
            else
                onTrack.emplace_back(crossing, spot->offset);
        }
        otherWay.laps += pitLaneLaps(onTrack);
        std::sort(otherWay.laps.begin(), otherWay.laps.end());
        if (!second.laps.isEmpty() || hasSecondTrack(gate, *along))
            warn(second);
        if (!otherWay.laps.isEmpty())
            warn(otherWay);
    }

    // Whether slower days are in danger of passes that count twice.
    void checkSpeed()
    {
        std::vector<double> speeds;
        for (const GateCrossing &crossing : crossingsOf(Line))
            speeds.push_back(crossing.speed);
        const double least = leastSpeed(m_draft.gateSize, usualInterval(m_samples));
        if (speeds.empty() || !(median(speeds) * SlowDay < least))
            return;
        MapWarning warning {Kind::SlowPass, Line, -1, {}};
        warning.speed = static_cast<int>(std::ceil(least * 3.6));
        warn(warning);
    }

    // Whether the outline comes through a gate at another place than where the gate stands.
    [[nodiscard]] bool hasSecondTrack(int gate, double along) const
    {
        const auto spots = m_outline.approaches(centre(gate), radius(gate));
        return std::any_of(spots.begin(), spots.end(), [&](const OutlinePath::Spot &spot) {
            return m_outline.between(spot.along, along) > radius(gate);
        });
    }

    std::span<const PointAcquisition> m_samples;
    const MapDraft &m_draft;
    Plane m_plane;
    OutlinePath m_outline;
    std::unique_ptr<const Map> m_map;
    LapResults m_cut;
    std::vector<PlaneVector> m_gates;
    // The laps that only lead from one counting of a pass of the line to the next.
    QList<int> m_repeats;
    // By gate, the line's included.
    std::map<int, std::optional<double>> m_along;
    // The first point that comes before the one before it.
    int m_firstLost = 0;
    MapCheck m_result;
};

} // namespace

MapCheck checkMap(std::span<const PointAcquisition> samples, const MapDraft &draft)
{
    clearVectorRegisters();
    if (!draft.start.isValid()) {
        MapCheck check;
        check.length = draft.toMap()->length();
        check.warnings.append({Kind::NoLine, Line, -1, {}});
        return check;
    }
    return MapChecker(samples, draft).check();
}

} // namespace zuno
