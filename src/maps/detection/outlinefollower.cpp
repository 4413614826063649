// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/detection/outlinefollower.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <unordered_map>

#include <session/recording/trace.h>
#include <track/map.h>

namespace zuno {

namespace {

// Metres that an outline is wide to each side: a track, and the errors of two receivers. Also
// across a cell of the grid in which outlines are looked up.
constexpr double Width = 25.0;

// The cosine of 60 degrees.
constexpr double SameWay = 0.5;

// Metres from place to place of the ride, and of an outline at most.
constexpr double Spacing = 10.0;

// Metres per second; he who is slower pushes, or stands while the receiver wanders.
constexpr double Moving = 3.0;

// Metres of an outline: less is no circuit, more is no map file that means it.
constexpr double LeastOutline = 100.0;
constexpr double MostOutline = 100000.0;

// The part of the way that must be on the outline, and of the outline that must be visited.
constexpr double MostOfIt = 0.8;

// Metres of outline that count as visited together.
constexpr double Stretch = 50.0;

// Once around an outline in cells.
class OutlineGrid
{
public:
    explicit OutlineGrid(const std::vector<PlaneVector> &outline)
    {
        double along = 0.0;
        for (std::size_t i = 1; i < outline.size(); ++i) {
            const PlaneVector step = outline[i] - outline[i - 1];
            const double length = step.length();
            if (!(length > 0.0))
                continue;
            const int pieces = static_cast<int>(length / Spacing) + 1;
            for (int k = 0; k < pieces; ++k) {
                const double part = static_cast<double>(k) / pieces;
                const PlaneVector place = outline[i - 1] + (step * part);
                m_cells[keyOf(place, 0, 0)].push_back(
                    {place, step * (1.0 / length), along + (part * length)});
            }
            along += length;
        }
    }

    /// Metres along the outline to where a rider is on it; none where he is not.
    [[nodiscard]] std::optional<double> along(const PathNode &node) const
    {
        std::optional<double> found;
        double nearest = Width;
        for (int x = -1; x <= 1; ++x) {
            for (int y = -1; y <= 1; ++y) {
                const auto cell = m_cells.find(keyOf(node.place, x, y));
                if (cell == m_cells.end())
                    continue;
                for (const Place &there : cell->second) {
                    const double distance = (there.place - node.place).length();
                    if (distance < nearest && there.heading * node.heading > SameWay) {
                        nearest = distance;
                        found = there.along;
                    }
                }
            }
        }
        return found;
    }

private:
    struct Place
    {
        PlaneVector place;
        PlaneVector heading;
        double along = 0.0;
    };

    static quint64 keyOf(PlaneVector place, int right, int up)
    {
        const auto x = static_cast<qint64>(std::floor(place.x / Width)) + right;
        const auto y = static_cast<qint64>(std::floor(place.y / Width)) + up;
        return (static_cast<quint64>(x) << 32U) ^ (static_cast<quint64>(y) & 0xFFFFFFFFU);
    }

    std::unordered_map<quint64, std::vector<Place>> m_cells;
};

// What of a ride is on the outline, over once the outline's length at a time.
class Window
{
public:
    explicit Window(double length) : m_visits(static_cast<std::size_t>(length / Stretch) + 1, 0) {}

    void add(std::optional<double> along)
    {
        ++m_places;
        if (along && m_visits[stretchOf(*along)]++ == 0)
            ++m_visited;
        m_on += along ? 1 : 0;
    }
    void remove(std::optional<double> along)
    {
        --m_places;
        if (along && --m_visits[stretchOf(*along)] == 0)
            --m_visited;
        m_on -= along ? 1 : 0;
    }
    [[nodiscard]] bool isAround() const
    {
        return m_on >= MostOfIt * m_places
               && m_visited >= MostOfIt * static_cast<double>(m_visits.size());
    }

private:
    [[nodiscard]] std::size_t stretchOf(double along) const
    {
        return std::min(static_cast<std::size_t>(along / Stretch), m_visits.size() - 1);
    }

    std::vector<int> m_visits;
    int m_places = 0;
    int m_on = 0;
    int m_visited = 0;
};

bool isWithin(PlaneVector place, PlaneVector least, PlaneVector most)
{
    return place.x >= least.x - Width && place.x <= most.x + Width && place.y >= least.y - Width
           && place.y <= most.y + Width;
}

} // namespace

OutlineFollower::OutlineFollower(std::span<const PointAcquisition> samples)
{
    const auto first = std::find_if(samples.begin(), samples.end(),
                                    [](const auto &sample) { return sample.hasPosition(); });
    if (first == samples.end())
        return;
    m_origin = positionOf(*first);
    const PathNode *last = nullptr;
    const LapPath path = refined(lapPath(samples, m_origin, Walk::Forwards));
    for (const PathNode &node : path) {
        const bool isNext = last == nullptr || node.driven - last->driven >= Spacing;
        if (!isNext)
            continue;
        const double seconds = last == nullptr ? 0.0 : (node.time - last->time) / 1000.0;
        if (last != nullptr && node.driven - last->driven >= Moving * seconds) {
            if (m_places.empty())
                m_least = m_most = node.place;
            m_least = {std::min(m_least.x, node.place.x), std::min(m_least.y, node.place.y)};
            m_most = {std::max(m_most.x, node.place.x), std::max(m_most.y, node.place.y)};
            m_places.push_back(node);
        }
        last = &node;
    }
}

// Empty for a circuit elsewhere: most of them are done with at their first place.
std::vector<PlaneVector> OutlineFollower::outlineOf(const Map &map) const
{
    const Plane plane(m_origin);
    std::vector<PlaneVector> outline;
    for (const QGeoCoordinate &point : map.trackPoints()) {
        const PlaneVector place = plane.place(point);
        const bool isNear = point.isValid() && isWithin(place, m_least, m_most);
        if (!isNear && outline.empty())
            break;
        if (point.isValid())
            outline.push_back(place);
    }
    return outline;
}

bool OutlineFollower::follows(const Map &map) const
{
    // Not of a length that is no number either.
    if (m_places.empty() || !(map.length() > LeastOutline && map.length() < MostOutline))
        return false;
    const std::vector<PlaneVector> outline = outlineOf(map);
    if (outline.size() < 2)
        return false;
    const OutlineGrid grid(outline);
    Window window(map.length());
    std::vector<std::optional<double>> on;
    on.reserve(m_places.size());
    std::size_t begin = 0;
    for (const PathNode &node : m_places) {
        on.push_back(grid.along(node));
        window.add(on.back());
        if (node.driven - m_places[begin].driven < map.length())
            continue;
        if (window.isAround())
            return true;
        while (node.driven - m_places[begin].driven >= map.length())
            window.remove(on[begin++]);
    }
    return false;
}

} // namespace zuno
