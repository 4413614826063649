// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <vector>

#include <QGeoCoordinate>

#include <insight/groundplane.h>

namespace zuno {

class Map;

/// Once around a circuit, as its map draws it: a closed line in the plane, in riding order, on
/// which places are metres from the start/finish line.
///
/// Points nearer to each other than half a metre are one. Where the two ends of the drawn line miss
/// each other sideways, as they do when one lap was recorded, that is spread over 50 metres on
/// either side: it would be a bend on the straight.
class CircuitRing
{
public:
    /// Riders go around as the outline is drawn, or the other way.
    enum class Way { AsDrawn, Backwards };

    CircuitRing() = default;
    /// Empty when the map has no start point, less than three places that differ, or an outline
    /// that is longer than any circuit (100 km).
    explicit CircuitRing(const Map &map, Way way = Way::AsDrawn);

    /// A point of the outline. The first one stands on the start/finish line.
    struct Vertex
    {
        PlaneVector place;
        /// Metres from the start/finish line.
        double along = 0.0;
    };

    /// A place on the ring, seen from a place beside it.
    struct Spot
    {
        /// Metres from the start/finish line, 0 to length().
        double along = 0.0;
        /// Metres from the place.
        double distance = 0.0;
        /// Metres by which the place lies left of the line there.
        double aside = 0.0;
        /// Square to the line, to the left, of length 1.
        PlaneVector left;
    };

    [[nodiscard]] bool isEmpty() const { return m_vertices.empty(); }
    [[nodiscard]] Way way() const { return m_way; }
    /// Metres once around.
    [[nodiscard]] double length() const { return m_length; }
    /// Metres between neighbouring points, the median.
    [[nodiscard]] double spacing() const { return m_spacing; }
    [[nodiscard]] const std::vector<Vertex> &vertices() const { return m_vertices; }
    /// The place of a position in degrees in the ring's plane.
    [[nodiscard]] PlaneVector place(double latitude, double longitude) const;
    /// The coordinate so many metres after the line; any number of rounds.
    [[nodiscard]] QGeoCoordinate coordinate(double along) const;
    /// @p along within one round, from 0 to less than length().
    [[nodiscard]] double wrapped(double along) const;

    /// The nearest place between @p from and @p to (metres after the line, limited to one round).
    [[nodiscard]] Spot nearest(PlaneVector place, double from, double to) const;
    /// The nearest place of all.
    [[nodiscard]] Spot nearest(PlaneVector place) const { return nearest(place, 0.0, m_length); }

private:
    void close();
    void startAt(PlaneVector line);
    [[nodiscard]] std::size_t segmentAt(double along) const;

    std::vector<Vertex> m_vertices;
    // The segment of every tenth metre, to find one quickly.
    std::vector<std::size_t> m_index;
    std::optional<GroundPlane> m_plane;
    double m_length = 0.0;
    double m_spacing = 0.0;
    Way m_way = Way::AsDrawn;
};

} // namespace zuno
