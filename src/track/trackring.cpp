// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <track/trackring.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace zuno {

namespace {

// Metres; points that are nearer to each other are one.
constexpr double Repeated = 0.01;

// How much nearer another piece of track has to be than the one that a place came from: a
// hundredth of the way between them, three metres at most, so that neighbours are still reached.
constexpr double Loyalty = 0.01;
constexpr double MostLoyalty = 3.0;

} // namespace

TrackRing::TrackRing(const QList<QGeoCoordinate> &outline)
{
    const auto first = std::find_if(outline.cbegin(), outline.cend(),
                                    [](const QGeoCoordinate &place) { return place.isValid(); });
    if (first == outline.cend())
        return;
    m_plane.emplace(*first);
    for (const QGeoCoordinate &position : outline) {
        const PlaneVector place = m_plane->place(position);
        const bool isNew = m_nodes.empty() || (place - m_nodes.back().place).length() > Repeated;
        if (position.isValid() && isNew)
            m_nodes.push_back({place, position, 0.0});
    }
    while (m_nodes.size() > 1
           && (m_nodes.back().place - m_nodes.front().place).length() <= Repeated)
        m_nodes.pop_back();
    for (std::size_t i = 0; i < m_nodes.size(); ++i) {
        m_nodes[i].along = m_length;
        m_length += (after(i).place - m_nodes[i].place).length();
    }
}

const TrackRing::Node &TrackRing::after(std::size_t node) const
{
    return m_nodes[(node + 1) % m_nodes.size()];
}

double TrackRing::lengthOf(std::size_t node) const
{
    const double end = node + 1 < m_nodes.size() ? m_nodes[node + 1].along : m_length;
    return end - m_nodes[node].along;
}

RingPlace TrackRing::nearestOn(std::size_t node, PlaneVector to) const
{
    const PlaneVector begin = m_nodes[node].place;
    const PlaneVector way = after(node).place - begin;
    const double share = nearestPart(begin, after(node).place, to);
    const double along = m_nodes[node].along + (share * lengthOf(node));
    return {wrapped(along), (to - (begin + way * share)).length(), {}};
}

double TrackRing::between(double a, double b) const
{
    return std::fabs(std::remainder(a - b, m_length));
}

RingPlace TrackRing::nearest(const QGeoCoordinate &to) const
{
    return nearest(to, std::numeric_limits<double>::quiet_NaN());
}

RingPlace TrackRing::nearest(const QGeoCoordinate &to, double along) const
{
    if (isEmpty() || !to.isValid())
        return {};
    const PlaneVector place = m_plane->place(to);
    RingPlace best;
    double least = std::numeric_limits<double>::max();
    for (std::size_t i = 0; i < m_nodes.size(); ++i) {
        const RingPlace found = nearestOn(i, place);
        const double strange = std::isnan(along) ? 0.0 : Loyalty * between(found.along, along);
        const double cost = found.off + std::min(strange, MostLoyalty);
        if (cost < least) {
            least = cost;
            best = found;
        }
    }
    best.place = at(best.along);
    return best;
}

double TrackRing::wrapped(double along) const
{
    if (isEmpty())
        return 0.0;
    const double rest = std::fmod(along, m_length);
    const double positive = rest < 0.0 ? rest + m_length : rest;
    return positive < m_length ? positive : 0.0;
}

QGeoCoordinate TrackRing::at(double along) const
{
    if (isEmpty())
        return {};
    const double way = wrapped(along);
    const auto next
        = std::upper_bound(m_nodes.cbegin(), m_nodes.cend(), way,
                           [](double value, const Node &node) { return value < node.along; });
    const auto node = static_cast<std::size_t>(std::distance(m_nodes.cbegin(), next) - 1);
    const Node &begin = m_nodes[node];
    const double share = (way - begin.along) / lengthOf(node);
    if (share <= 0.0)
        return begin.position;
    return m_plane->coordinate(begin.place + (after(node).place - begin.place) * share);
}

QList<QGeoCoordinate> TrackRing::from(double along) const
{
    if (isEmpty())
        return {};
    const double start = wrapped(along);
    const QGeoCoordinate line = at(start);
    std::vector<std::pair<double, QGeoCoordinate>> between;
    for (const Node &node : m_nodes) {
        const double way = wrapped(node.along - start);
        // The line takes the place of a point that is there already.
        if (way > Repeated && way < m_length - Repeated)
            between.emplace_back(way, node.position);
    }
    std::sort(between.begin(), between.end(),
              [](const auto &a, const auto &b) { return a.first < b.first; });
    QList<QGeoCoordinate> outline {line};
    for (const auto &[way, position] : between)
        outline.append(position);
    outline.append(line);
    return outline;
}

} // namespace zuno
