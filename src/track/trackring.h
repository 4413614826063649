// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <QGeoCoordinate>
#include <QList>

#include <base/plane.h>

namespace zuno {

/// A place on the way around a circuit.
struct RingPlace
{
    /// Metres along the outline from its first point, less than its length.
    double along = 0.0;
    /// Metres from the place that was asked about.
    double off = 0.0;
    QGeoCoordinate place;
};

/// The outline of a circuit as a way around: places on it by their distance from its first point.
/// Its end leads back to its beginning, whether or not it says so.
///
/// Works in the plane that touches the earth at the first point. Without two places that differ
/// the length is 0 and every place invalid.
class TrackRing
{
public:
    TrackRing() = default;
    /// Points without a position, and those that repeat the one before, are left out.
    explicit TrackRing(const QList<QGeoCoordinate> &outline);

    /// Metres once around.
    [[nodiscard]] double length() const { return m_length; }
    [[nodiscard]] bool isEmpty() const { return m_length <= 0.0; }

    /// The place of the outline that lies nearest to @p to.
    [[nodiscard]] RingPlace nearest(const QGeoCoordinate &to) const;
    /// The same for a place that was at @p along before: where two pieces of track are about as
    /// near, as at a crossing, the one that the place came from is taken.
    [[nodiscard]] RingPlace nearest(const QGeoCoordinate &to, double along) const;
    /// The place that far along; any number of rounds, forwards and backwards.
    [[nodiscard]] QGeoCoordinate at(double along) const;
    /// @p along within one round, from 0 to less than length().
    [[nodiscard]] double wrapped(double along) const;
    /// Once around from @p along to there, with the outline's own points between.
    [[nodiscard]] QList<QGeoCoordinate> from(double along) const;

private:
    struct Node
    {
        PlaneVector place;
        QGeoCoordinate position;
        double along = 0.0;
    };

    [[nodiscard]] RingPlace nearestOn(std::size_t node, PlaneVector to) const;
    /// Metres from one to the other the shorter way around.
    [[nodiscard]] double between(double a, double b) const;
    [[nodiscard]] const Node &after(std::size_t node) const;
    [[nodiscard]] double lengthOf(std::size_t node) const;

    std::vector<Node> m_nodes;
    std::optional<Plane> m_plane;
    double m_length = 0.0;
};

} // namespace zuno
