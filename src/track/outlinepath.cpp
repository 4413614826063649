// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <track/outlinepath.h>

#include <algorithm>
#include <cmath>

namespace zuno {

namespace {

// Metres by which the outline must come nearer and go away again: what it sways is no approach.
constexpr double Swaying = 3.0;

// The cosine of 60 degrees.
constexpr double SameWay = 0.5;

} // namespace

OutlinePath::OutlinePath(const std::vector<PlaneVector> &places)
{
    for (const PlaneVector place : places) {
        // Neither a point that stands twice nor one that is no number.
        const double step = m_places.empty() ? 1.0 : (place - m_places.back()).length();
        if (!(step > 0.0))
            continue;
        m_along.push_back(m_places.empty() ? 0.0 : m_along.back() + step);
        m_places.push_back(place);
    }
}

OutlinePath::Spot OutlinePath::spotOn(std::size_t segment, PlaneVector place) const
{
    const PlaneVector from = m_places[segment];
    const double length = m_along[segment + 1] - m_along[segment];
    Spot spot;
    spot.heading = (m_places[segment + 1] - from) * (1.0 / length);
    const double part = nearestPart(from, m_places[segment + 1], place) * length;
    const PlaneVector away = place - (from + (spot.heading * part));
    spot.along = m_along[segment] + part;
    spot.distance = away.length();
    spot.offset = (spot.heading.x * away.y) - (spot.heading.y * away.x);
    return spot;
}

std::optional<OutlinePath::Spot> OutlinePath::nearest(PlaneVector place, PlaneVector heading) const
{
    std::optional<Spot> best;
    for (std::size_t segment = 0; segment + 1 < m_places.size(); ++segment) {
        const Spot spot = spotOn(segment, place);
        if (heading.length() > 0.0 && spot.heading * heading < SameWay)
            continue;
        if (!best || spot.distance < best->distance)
            best = spot;
    }
    return best;
}

std::vector<OutlinePath::Spot> OutlinePath::approaches(PlaneVector place, double radius) const
{
    std::vector<Spot> found;
    std::optional<Spot> nearest;
    double farthest = 0.0;
    for (std::size_t segment = 0; segment + 1 < m_places.size(); ++segment) {
        const Spot spot = spotOn(segment, place);
        if (nearest && spot.distance > nearest->distance + Swaying) {
            found.push_back(*nearest);
            nearest.reset();
            farthest = spot.distance;
        }
        farthest = std::max(farthest, spot.distance);
        const bool comesNearer = segment == 0 || spot.distance < farthest - Swaying;
        if (nearest ? spot.distance < nearest->distance : comesNearer)
            nearest = spot;
    }
    if (nearest)
        found.push_back(*nearest);
    std::erase_if(found, [radius](const Spot &spot) { return !(spot.distance < radius); });
    return found;
}

double OutlinePath::between(double along, double otherAlong) const
{
    const double direct = std::fabs(along - otherAlong);
    return std::min(direct, std::fabs(length() - direct));
}

} // namespace zuno
