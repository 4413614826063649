// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/proposal/ridepath.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include <base/numbers.h>
#include <session/recording/gpsquality.h>
#include <session/recording/trace.h>

namespace zuno {

namespace {

// Metres across a cell of the grid in which places are looked up.
constexpr double CellSize = 20.0;

// Metres that two passes of the same place may be apart: a track's width and the errors of a
// receiver.
constexpr double ReturnReach = 20.0;

// Cosine of the angle that headings at the same place may differ by, about 45 degrees.
constexpr double SameHeading = 0.7;

// How many nodes of one cell are looked at for a return. A rider who came back did so at one of
// the first; this bounds the time that a recording of nonsense takes.
constexpr std::ptrdiff_t LookedAt = 64;

// Metres between positions that are no way that was ridden; metres, and metres per second, that a
// receiver may jump when it is back.
constexpr double MostGap = 3000.0;
constexpr double JumpError = 100.0;
constexpr double JumpSpeed = 140.0;

// Metres before and after a node over which its speed is taken.
constexpr double SpeedReach = 10.0;

// The samples that have a position and time that can be believed.
Points believable(std::span<const PointAcquisition> samples)
{
    Points good;
    PositionJudge positions;
    for (const PointAcquisition &sample : samples) {
        // What some receivers give for no position.
        if (sample.dataCoordX == 0.0 && sample.dataCoordY == 0.0)
            continue;
        if (!good.empty() && sample.dataTimeStamp <= good.back().dataTimeStamp)
            continue;
        if (positions.judge(sample) == PositionJudge::Verdict::Good)
            good.push_back(sample);
    }
    return good;
}

// In the middle, whatever outliers there are.
QGeoCoordinate centreOf(const Points &points)
{
    if (points.empty())
        return {0.0, 0.0};
    std::vector<double> latitudes;
    std::vector<double> longitudes;
    for (const PointAcquisition &point : points) {
        latitudes.push_back(point.dataCoordY);
        longitudes.push_back(point.dataCoordX);
    }
    return {median(std::move(latitudes)), median(std::move(longitudes))};
}

// Takes what nobody can have ridden, and ways so long that they are no part of a lap, for gaps that
// lead nowhere: a glitch around the globe would be longer than all laps.
void closeJumps(LapPath &path)
{
    double spared = 0.0;
    for (std::size_t i = 1; i < path.size(); ++i) {
        PathNode &node = path[i];
        const double before = path[i - 1].driven + spared;
        const double step = node.driven - before;
        const double seconds = (node.time - path[i - 1].time) / 1000.0;
        if (step > MostGap || step > JumpError + (JumpSpeed * seconds)) {
            node.afterGap = true;
            spared += step - std::min(step, JumpError);
        }
        node.driven -= spared;
    }
}

} // namespace

RidePath::RidePath(std::span<const PointAcquisition> samples)
    : m_interval(usualInterval(samples))
    , m_plane({0.0, 0.0})
{
    const Points good = believable(samples);
    m_positionCount = good.size();
    const QGeoCoordinate centre = centreOf(good);
    m_plane = Plane(centre);
    m_coarse = lapPath(good, centre, Walk::Forwards);
    closeJumps(m_coarse);
    m_path = refined(m_coarse);
    closeJumps(m_path);
    for (std::size_t node = 0; node < m_path.size(); ++node) {
        const auto [x, y] = cellOf(m_path[node].place);
        m_cells[keyOf(x, y)].push_back(node);
    }
}

std::pair<qint64, qint64> RidePath::cellOf(PlaneVector place)
{
    return {static_cast<qint64>(std::floor(place.x / CellSize)),
            static_cast<qint64>(std::floor(place.y / CellSize))};
}

quint64 RidePath::keyOf(qint64 x, qint64 y)
{
    return (static_cast<quint64>(x) << 32U) ^ (static_cast<quint64>(y) & 0xFFFFFFFFU);
}

double RidePath::speedAt(std::size_t node) const
{
    std::size_t from = node;
    while (from > 0 && m_path[node].driven - m_path[from].driven < SpeedReach)
        --from;
    std::size_t to = node;
    while (to + 1 < m_path.size() && m_path[to].driven - m_path[node].driven < SpeedReach)
        ++to;
    const double time = m_path[to].time - m_path[from].time;
    return time > 0.0 ? (m_path[to].driven - m_path[from].driven) * 1000.0 / time : 0.0;
}

std::size_t RidePath::nodeAt(double driven) const
{
    const auto after
        = std::partition_point(m_path.begin(), m_path.end(),
                               [driven](const PathNode &node) { return node.driven <= driven; });
    return after == m_path.begin() ? 0 : static_cast<std::size_t>(after - m_path.begin()) - 1;
}

PathNode RidePath::at(double driven) const
{
    const std::size_t i = nodeAt(driven);
    PathNode node = m_path[i];
    if (i + 1 == m_path.size() || driven <= node.driven)
        return node;
    const PathNode &next = m_path[i + 1];
    const double part = (driven - node.driven) / (next.driven - node.driven);
    node.place = node.place + ((next.place - node.place) * part);
    const PlaneVector heading = node.heading + ((next.heading - node.heading) * part);
    if (heading.length() > 0.0)
        node.heading = heading * (1.0 / heading.length());
    node.time += part * (next.time - node.time);
    node.driven = driven;
    return node;
}

std::optional<std::size_t> RidePath::nextReturn(std::size_t node, double least) const
{
    const PathNode &here = m_path[node];
    const std::size_t from = nodeAt(here.driven + least) + 1;
    std::size_t found = m_path.size();
    const auto isThere = [&](std::size_t other) {
        const PathNode &there = m_path[other];
        return there.heading * here.heading > SameHeading
               && (there.place - here.place).length() < ReturnReach;
    };
    visitCells(here.place, ReturnReach, [&](const std::vector<std::size_t> &nodes) {
        auto next = std::lower_bound(nodes.begin(), nodes.end(), from);
        const auto end = next + std::min(LookedAt, nodes.end() - next);
        next = std::find_if(next, end, isThere);
        if (next != end)
            found = std::min(found, *next);
    });
    if (found == m_path.size())
        return {};
    const auto distance
        = [&](std::size_t other) { return (m_path[other].place - here.place).length(); };
    while (found + 1 < m_path.size() && distance(found + 1) < distance(found))
        ++found;
    return found;
}

double RidePath::stepAt(double time) const
{
    const auto after
        = std::partition_point(m_coarse.begin(), m_coarse.end(),
                               [time](const PathNode &node) { return node.time <= time; });
    if (after == m_coarse.begin() || after == m_coarse.end())
        return 0.0;
    return (after->place - (after - 1)->place).length();
}

std::vector<Pass> RidePath::passes(PlaneVector place, PlaneVector heading, double reach) const
{
    std::vector<Pass> found;
    visitCells(place, reach + CellSize, [&](const std::vector<std::size_t> &nodes) {
        for (const std::size_t i : nodes) {
            if (i + 1 >= m_path.size() || m_path[i + 1].afterGap)
                continue;
            const PlaneVector from = m_path[i].place - place;
            const PlaneVector step = m_path[i + 1].place - m_path[i].place;
            const double before = from * heading;
            const double gained = step * heading;
            if (before > 0.0 || before + gained <= 0.0)
                continue;
            const double part = -before / gained;
            const PlaneVector where = from + (step * part);
            Pass pass;
            pass.offset = (heading.x * where.y) - (heading.y * where.x);
            if (std::fabs(pass.offset) > reach || gained < SameHeading * step.length())
                continue;
            const PathNode &node = m_path[i];
            pass.time = node.time + (part * (m_path[i + 1].time - node.time));
            pass.driven = node.driven + (part * (m_path[i + 1].driven - node.driven));
            pass.speed = speedAt(i);
            pass.step = stepAt(pass.time);
            found.push_back(pass);
        }
    });
    std::sort(found.begin(), found.end(),
              [](const Pass &a, const Pass &b) { return a.driven < b.driven; });
    return found;
}

double RidePath::projectionError(const Pass &pass, PlaneVector place) const
{
    const auto after
        = std::partition_point(m_coarse.begin(), m_coarse.end(),
                               [&](const PathNode &node) { return node.time <= pass.time; });
    const auto distance = [place](const PathNode &node) { return (node.place - place).length(); };
    if (after == m_coarse.begin() || after == m_coarse.end())
        return 0.0;
    const auto nearest = distance(*after) < distance(*(after - 1)) ? after : after - 1;
    const auto next = nearest + 1;
    if (next == m_coarse.end())
        return 0.0;
    const PlaneVector step = next->place - nearest->place;
    const double part = ((place - nearest->place) * step) / (step * step);
    return std::fabs(nearest->time + (part * (next->time - nearest->time)) - pass.time);
}

double RidePath::riddenLength(double leastSpeed) const
{
    double ridden = 0.0;
    for (std::size_t i = 1; i < m_path.size(); ++i) {
        if (speedAt(i) >= leastSpeed)
            ridden += m_path[i].driven - m_path[i - 1].driven;
    }
    return ridden;
}

} // namespace zuno
