// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <vector>

#include <base/plane.h>

namespace zuno {

/// Once around a circuit, in the plane and in riding order.
class OutlinePath
{
public:
    explicit OutlinePath(const std::vector<PlaneVector> &places);

    /// A place on the outline, seen from a place nearby.
    struct Spot
    {
        /// Metres from the outline's first point.
        double along = 0.0;
        /// Metres from the place.
        double distance = 0.0;
        /// Metres by which the place lies left of the outline.
        double offset = 0.0;
        /// Of length 1.
        PlaneVector heading;
    };

    /// Metres, from the first point to the last.
    [[nodiscard]] double length() const { return m_along.empty() ? 0.0 : m_along.back(); }
    /// The nearest spot; with a @p heading, of those where the outline goes within 60 degrees of
    /// it. None on an outline of less than two places.
    [[nodiscard]] std::optional<Spot> nearest(PlaneVector place, PlaneVector heading = {}) const;
    /// Every spot at which the outline comes near @p place and goes away again, within @p radius.
    [[nodiscard]] std::vector<Spot> approaches(PlaneVector place, double radius) const;
    /// Metres of track between two spots, the shorter way around.
    [[nodiscard]] double between(double along, double otherAlong) const;

private:
    [[nodiscard]] Spot spotOn(std::size_t segment, PlaneVector place) const;

    std::vector<PlaneVector> m_places;
    std::vector<double> m_along;
};

} // namespace zuno
