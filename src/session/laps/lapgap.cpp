// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/laps/lapgap.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include <base/processorstate.h>
#include <session/laps/lap.h>
#include <session/recording/trace.h>
#include <track/lappath.h>

namespace zuno {

namespace {

constexpr double NotThere = std::numeric_limits<double>::quiet_NaN();

// Metres that two riders at the same place on the track may be apart across it, if they have
// driven the same distance: its width, a run-off area and the error of two receivers.
constexpr double AcrossReach = 60.0;

// How far ahead a match is looked for: so many times the distance driven since the last one, and
// so many metres more. Bounded, as it costs time.
constexpr double DrivenReach = 1.5;
constexpr double MinimumReach = 40.0;
constexpr double MaximumReach = 3000.0;

// How much a metre more or less than the distance driven counts against a metre across the track.
constexpr double DrivenWeight = 0.25;

// Metres before the end of the second lap within which a match of the first lap's end makes sure
// that both laps went once around.
constexpr double EndReach = 300.0;

// Both riders are at the same place at these times of theirs.
struct Match
{
    double first = 0.0;
    double second = 0.0;
};
using Matches = std::vector<Match>;

// Matches the places of one path with the other's, in the order of both.
class Matcher
{
public:
    Matcher(const LapPath &first, const LapPath &second) : m_first(first), m_second(second) {}

    // @p together: both paths start at the same place.
    [[nodiscard]] Matches matches(bool together)
    {
        Matches found;
        if (m_first.empty() || m_second.size() < 2)
            return found;
        std::size_t i = 0;
        if (together) {
            found.push_back({0.0, 0.0});
            m_started = true;
            i = 1;
        }
        for (; i < m_first.size(); ++i) {
            const std::optional<Place> place = next(m_first[i]);
            if (!place)
                continue;
            m_last = *place;
            m_lastDriven = m_first[i].driven;
            m_started = true;
            found.push_back({m_first[i].time, timeAt(*place)});
        }
        return found;
    }

    // Metres from the last match to the end of the second path.
    [[nodiscard]] double rest() const { return m_second.back().driven - drivenAt(m_last); }

private:
    // Between two nodes of the second path.
    struct Place
    {
        std::size_t node = 0;
        double part = 0.0;
    };

    [[nodiscard]] double timeAt(Place at) const
    {
        return std::lerp(m_second[at.node].time, m_second[at.node + 1].time, at.part);
    }
    [[nodiscard]] double drivenAt(Place at) const
    {
        return std::lerp(m_second[at.node].driven, m_second[at.node + 1].driven, at.part);
    }

    // How far @p node lies ahead of the line across the track at node @p k.
    [[nodiscard]] double ahead(const PathNode &node, std::size_t k) const
    {
        return (node.place - m_second[k].place) * m_second[k].heading;
    }

    // Where on the second path @p node is; none when it is at no place ahead of the last.
    [[nodiscard]] std::optional<Place> next(const PathNode &node) const
    {
        const double driven = node.driven - m_lastDriven;
        const double start = drivenAt(m_last);
        // The first match of paths that start apart may be anywhere in the first half.
        const double reach = m_started
                                 ? std::min((DrivenReach * driven) + MinimumReach, MaximumReach)
                                 : m_second.back().driven / 2.0;
        std::optional<Place> best;
        double bestCost = AcrossReach;
        double here = ahead(node, m_last.node);
        for (std::size_t k = m_last.node;
             k + 1 < m_second.size() && m_second[k].driven - start <= reach; ++k) {
            const double then = ahead(node, k + 1);
            const double before = std::exchange(here, then);
            if (before < 0.0 || then >= 0.0 || m_second[k + 1].afterGap)
                continue;
            const Place place {k, before / (before - then)};
            if (k == m_last.node && place.part < m_last.part)
                continue;
            const double cost
                = costOf(node, place, m_started ? driven - drivenAt(place) + start : 0.0);
            if (cost < bestCost) {
                best = place;
                bestCost = cost;
            }
        }
        return best ? best : atEnd(node);
    }

    // The last place itself is on no piece of the path, but at the end of one.
    [[nodiscard]] std::optional<Place> atEnd(const PathNode &node) const
    {
        const std::size_t last = m_second.size() - 1;
        const PlaneVector away = node.place - m_second[last].place;
        if (away.x != 0.0 || away.y != 0.0
            || m_second[last].driven - drivenAt(m_last) > MinimumReach)
            return {};
        return Place {last - 1, 1.0};
    }

    [[nodiscard]] double costOf(const PathNode &node, Place place, double drivenMore) const
    {
        const PathNode &from = m_second[place.node];
        const PathNode &to = m_second[place.node + 1];
        const double across
            = (node.place - (from.place + ((to.place - from.place) * place.part))).length();
        const bool sameWay = node.heading * (from.heading + to.heading) > 0.0;
        return sameWay ? std::hypot(across, DrivenWeight * drivenMore)
                       : std::numeric_limits<double>::infinity();
    }

    const LapPath &m_first;
    const LapPath &m_second;
    Place m_last;
    double m_lastDriven = 0.0;
    bool m_started = false;
};

std::vector<double> elapsedTimes(const Points &points)
{
    std::vector<double> times;
    times.reserve(points.size());
    double latest = 0.0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        latest = std::max(latest, elapsedTime(points, i));
        times.push_back(latest);
    }
    return times;
}

// Where the second rider went if his receiver had stood as far beside it as the first one's.
LapPath shifted(LapPath path, PlaneVector shift)
{
    for (PathNode &node : path)
        node.place = node.place + shift;
    return path;
}

Matches matchLaps(const Lap &first, const Lap &second, PlaneVector shift)
{
    clearVectorRegisters();
    const Points &points = second.points();
    const auto located = std::find_if(points.begin(), points.end(), [](const auto &point) {
        return positionOf(point).isValid();
    });
    if (located == points.end() || first.points().empty())
        return {};
    const QGeoCoordinate origin = positionOf(*located);
    const bool startTogether = first.startsAtLine() && second.startsAtLine();
    const bool endTogether = first.endsAtLine() && second.endsAtLine();
    // From the end at which both are known to be at the same place.
    const Walk walk = !startTogether && endTogether ? Walk::Backwards : Walk::Forwards;
    const LapPath path = lapPath(first.points(), origin, walk);
    const LapPath other = refined(shifted(lapPath(points, origin, walk), shift));
    Matcher matcher(path, other);
    Matches matches = matcher.matches(startTogether || endTogether);

    const Match end {elapsedTime(first.points(), first.points().size() - 1),
                     elapsedTime(points, points.size() - 1)};
    if (walk == Walk::Backwards) {
        std::reverse(matches.begin(), matches.end());
        for (Match &match : matches)
            match = {end.first - match.first, end.second - match.second};
    } else if (endTogether && !matches.empty()) {
        const bool bothComplete = first.isComplete() && second.isComplete();
        if (bothComplete || matcher.rest() < EndReach) {
            while (matches.size() > 1 && matches.back().first >= end.first)
                matches.pop_back();
            matches.push_back(end);
        }
    }
    return matches;
}

// Where @p x lies among rising values, as an index with a fraction.
double indexOf(const std::vector<double> &values, double x)
{
    if (values.empty() || std::isnan(x))
        return NotThere;
    if (!(x > values.front()))
        return 0.0;
    const auto above = std::upper_bound(values.begin(), values.end(), x);
    if (above == values.end())
        return static_cast<double>(values.size() - 1);
    const auto i = static_cast<double>(above - values.begin() - 1);
    return i + ((x - *(above - 1)) / (*above - *(above - 1)));
}

} // namespace

LapGap::LapGap(const Lap &first, const Lap &second, PlaneVector shift)
    : m_firstElapsed(elapsedTimes(first.points()))
    , m_secondElapsed(elapsedTimes(second.points()))
    , m_secondTimes(m_firstElapsed.size(), NotThere)
{
    const Matches matches = matchLaps(first, second, shift);
    std::size_t k = 0;
    for (std::size_t i = 0; i < m_firstElapsed.size(); ++i) {
        const double time = m_firstElapsed[i];
        while (k + 1 < matches.size() && matches[k + 1].first <= time)
            ++k;
        if (k >= matches.size() || time < matches[k].first)
            continue;
        const Match &from = matches[k];
        if (time == from.first)
            m_secondTimes[i] = from.second;
        else if (k + 1 < matches.size())
            m_secondTimes[i] = from.second
                               + ((time - from.first) * (matches[k + 1].second - from.second)
                                  / (matches[k + 1].first - from.first));
    }
}

double LapGap::gap(std::size_t i) const
{
    return m_firstElapsed.at(i) - m_secondTimes.at(i);
}

double LapGap::secondPoint(std::size_t i) const
{
    return secondPointAt(m_secondTimes.at(i));
}

double LapGap::secondPointAt(double elapsed) const
{
    return indexOf(m_secondElapsed, elapsed);
}

double LapGap::firstPointAt(double elapsed) const
{
    return indexOf(m_firstElapsed, elapsed);
}

} // namespace zuno
