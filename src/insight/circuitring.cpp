// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/circuitring.h>

#include <algorithm>
#include <cmath>

#include <base/numbers.h>
#include <track/map.h>

namespace zuno {

namespace {

// Metres; nearer points are one.
constexpr double Repeated = 0.5;

// Metres by which the ends of an outline miss each other: less is nothing, more is no closed line
// at all. And the metres over which it is spread.
constexpr double LeastMiss = 0.3;
constexpr double MostMiss = 15.0;
constexpr double MissSpread = 50.0;

// Metres; the longest circuits have a quarter of it.
constexpr double MostLength = 100000.0;

// Metres of ring to an entry of the index.
constexpr double IndexStep = 10.0;

using Places = std::vector<PlaneVector>;

double cross(PlaneVector a, PlaneVector b)
{
    return (a.x * b.y) - (a.y * b.x);
}

Places differing(const QList<QGeoCoordinate> &outline, const GroundPlane &plane)
{
    Places places;
    for (const QGeoCoordinate &point : outline) {
        if (!point.isValid())
            continue;
        const PlaneVector place = plane.place(point);
        if (places.empty() || (place - places.back()).length() >= Repeated)
            places.push_back(place);
    }
    while (places.size() > 1 && (places.back() - places.front()).length() < Repeated)
        places.pop_back();
    return places;
}

// Moves the places within MissSpread of the first one sideways: the first by all of @p shift, the
// farthest by nothing.
template<typename Iterator>
void bend(Iterator first, Iterator last, PlaneVector shift)
{
    double driven = 0.0;
    PlaneVector before = *first;
    for (Iterator it = first; it != last; ++it) {
        driven += (*it - before).length();
        if (driven >= MissSpread)
            return;
        before = *it;
        *it = *it + (shift * (1.0 - (driven / MissSpread)));
    }
}

void joinEnds(Places &places)
{
    const std::size_t last = places.size() - 1;
    const PlaneVector out = places[last] - places[last - 1];
    const PlaneVector in = places[1] - places[0];
    PlaneVector heading = (out * (1.0 / out.length())) + (in * (1.0 / in.length()));
    const double length = heading.length();
    if (!(length > 0.0))
        return;
    heading = heading * (1.0 / length);
    const PlaneVector left {-heading.y, heading.x};
    const double miss = (places.front() - places.back()) * left;
    if (std::fabs(miss) < LeastMiss || std::fabs(miss) > MostMiss)
        return;
    bend(places.begin(), places.end(), left * (-miss / 2.0));
    bend(places.rbegin(), places.rend(), left * (miss / 2.0));
}

} // namespace

CircuitRing::CircuitRing(const Map &map, Way way) : m_way(way)
{
    if (!map.startPoint().isValid())
        return;
    m_plane.emplace(map.startPoint());
    Places places = differing(map.trackPoints(), *m_plane);
    if (places.size() < 3)
        return;
    joinEnds(places);
    if (way == Way::Backwards)
        std::reverse(places.begin(), places.end());
    for (const PlaneVector place : places)
        m_vertices.push_back({place, 0.0});
    close();
    if (m_length > 0.0 && m_length <= MostLength)
        startAt(m_plane->place(map.startPoint()));
    else
        m_vertices.clear();
}

// Measures the ring from its first vertex.
void CircuitRing::close()
{
    std::vector<double> steps;
    m_length = 0.0;
    for (std::size_t i = 0; i < m_vertices.size(); ++i) {
        m_vertices[i].along = m_length;
        const Vertex &next = m_vertices[(i + 1) % m_vertices.size()];
        steps.push_back((next.place - m_vertices[i].place).length());
        m_length += steps.back();
    }
    // The points that stand on the line were not drawn.
    if (m_spacing <= 0.0)
        m_spacing = median(std::move(steps));
    m_index.clear();
    std::size_t segment = 0;
    for (double along = 0.0; along < m_length && m_length <= MostLength; along += IndexStep) {
        while (segment + 1 < m_vertices.size() && m_vertices[segment + 1].along <= along)
            ++segment;
        m_index.push_back(segment);
    }
}

void CircuitRing::startAt(PlaneVector line)
{
    const Spot spot = nearest(line);
    const std::size_t segment = segmentAt(spot.along);
    const PlaneVector heading {spot.left.y, -spot.left.x};
    const Vertex &before = m_vertices[segment];
    const PlaneVector place = before.place + (heading * (spot.along - before.along));
    std::vector<Vertex> turned {{place, 0.0}};
    for (std::size_t i = 1; i <= m_vertices.size(); ++i) {
        const Vertex &vertex = m_vertices[(segment + i) % m_vertices.size()];
        if ((vertex.place - place).length() >= Repeated)
            turned.push_back(vertex);
    }
    m_vertices = std::move(turned);
    close();
}

std::size_t CircuitRing::segmentAt(double along) const
{
    const auto entry = static_cast<std::size_t>(std::max(along, 0.0) / IndexStep);
    std::size_t segment = m_index[std::min(entry, m_index.size() - 1)];
    while (segment + 1 < m_vertices.size() && m_vertices[segment + 1].along <= along)
        ++segment;
    return segment;
}

PlaneVector CircuitRing::place(double latitude, double longitude) const
{
    return m_plane ? m_plane->place(latitude, longitude) : PlaneVector();
}

QGeoCoordinate CircuitRing::coordinate(double along) const
{
    if (isEmpty())
        return {};
    const double here = wrapped(along);
    const std::size_t segment = segmentAt(here);
    const Vertex &from = m_vertices[segment];
    const Vertex &to = m_vertices[(segment + 1) % m_vertices.size()];
    const PlaneVector way = to.place - from.place;
    return m_plane->coordinate(from.place + (way * ((here - from.along) / way.length())));
}

double CircuitRing::wrapped(double along) const
{
    if (!(m_length > 0.0))
        return 0.0;
    const double rest = std::fmod(along, m_length);
    const double positive = rest < 0.0 ? rest + m_length : rest;
    return positive < m_length ? positive : 0.0;
}

CircuitRing::Spot CircuitRing::nearest(PlaneVector place, double from, double to) const
{
    Spot best;
    double bestSquare = -1.0;
    const double end = std::min(to, m_length);
    for (std::size_t i = segmentAt(from); i < m_vertices.size() && m_vertices[i].along <= end;
         ++i) {
        const PlaneVector start = m_vertices[i].place;
        const bool isLast = i + 1 == m_vertices.size();
        const PlaneVector way = m_vertices[isLast ? 0 : i + 1].place - start;
        const double length = (isLast ? m_length : m_vertices[i + 1].along) - m_vertices[i].along;
        const PlaneVector heading = way * (1.0 / length);
        const double low = std::max(0.0, from - m_vertices[i].along);
        const double high = std::min(length, end - m_vertices[i].along);
        const double part = std::min(std::max((place - start) * heading, low), high);
        const PlaneVector away = place - (start + (heading * part));
        const double square = away * away;
        if (bestSquare < 0.0 || square < bestSquare) {
            bestSquare = square;
            best.along = m_vertices[i].along + part;
            best.left = {-heading.y, heading.x};
            best.aside = cross(heading, away);
        }
    }
    best.distance = std::sqrt(std::max(bestSquare, 0.0));
    return best;
}

} // namespace zuno
