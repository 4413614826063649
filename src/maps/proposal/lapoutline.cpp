// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/proposal/lapoutline.h>

#include <algorithm>
#include <cmath>

#include <base/plane.h>
#include <track/lappath.h>

namespace zuno {

namespace {

// The parts of a lap's way, at both ends, in which it is at the line.
constexpr double EndPart = 0.25;

// Metres after the line within which the outline goes over into the lap's own way.
constexpr double BlendReach = 100.0;

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
            const double part = nearestPart(from.place, to.place, {});
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

} // namespace

QList<QGeoCoordinate> lapOutline(std::span<const PointAcquisition> samples,
                                 const QGeoCoordinate &start, double spacing)
{
    const LapWay way(samples, start);
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

} // namespace zuno
