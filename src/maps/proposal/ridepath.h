// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

#include <base/plane.h>
#include <session/recording/pointacquisition.h>
#include <track/lappath.h>

namespace zuno {

/// One time that a rider came by a place, heading the same way.
struct Pass
{
    /// Milliseconds since the path's first sample; metres driven up to here.
    double time = 0.0;
    double driven = 0.0;
    /// Metres left of the place.
    double offset = 0.0;
    /// Metres per second.
    double speed = 0.0;
    /// Metres between the samples before and after.
    double step = 0.0;
};

/// The way of a whole recording, ready to be asked who was where. Positions that nobody can have
/// ridden to are left out.
class RidePath
{
public:
    explicit RidePath(std::span<const PointAcquisition> samples);

    /// How many samples have a position that can be believed.
    [[nodiscard]] std::size_t positionCount() const { return m_positionCount; }
    /// Seconds from sample to sample, as a rule.
    [[nodiscard]] double interval() const { return m_interval; }
    [[nodiscard]] const Plane &plane() const { return m_plane; }
    [[nodiscard]] const LapPath &path() const { return m_path; }
    /// Metres.
    [[nodiscard]] double length() const { return m_path.empty() ? 0.0 : m_path.back().driven; }
    /// Metres per second around a node of the path.
    [[nodiscard]] double speedAt(std::size_t node) const;
    /// The node at @p driven metres, or the last before.
    [[nodiscard]] std::size_t nodeAt(double driven) const;
    /// The path's place and heading at @p driven metres, at its ends beyond them.
    [[nodiscard]] PathNode at(double driven) const;

    /// Calls @p visit with every node that may lie within @p radius of @p place, and some more,
    /// cell by cell, as a rising list of nodes.
    template<typename Visit>
    void visitCells(PlaneVector place, double radius, const Visit &visit) const
    {
        const auto [left, bottom] = cellOf(place - PlaneVector {radius, radius});
        const auto [right, top] = cellOf(place + PlaneVector {radius, radius});
        for (qint64 x = left; x <= right; ++x) {
            for (qint64 y = bottom; y <= top; ++y) {
                const auto found = m_cells.find(keyOf(x, y));
                if (found != m_cells.end())
                    visit(found->second);
            }
        }
    }

    /// The next node, at least @p least metres after @p node, at which the rider was at the same
    /// place and heading the same way again; none when he never was.
    [[nodiscard]] std::optional<std::size_t> nextReturn(std::size_t node, double least) const;
    /// The passes, in time order, by a place within @p reach metres of it to the sides.
    [[nodiscard]] std::vector<Pass> passes(PlaneVector place, PlaneVector heading,
                                           double reach) const;
    /// Milliseconds between @p pass of a line across the track and the moment that cutting takes
    /// for it, which projects @p place onto the way: they differ where riders pass at an angle.
    [[nodiscard]] double projectionError(const Pass &pass, PlaneVector place) const;
    /// Metres that were ridden, not walked or stood.
    [[nodiscard]] double riddenLength(double leastSpeed) const;

private:
    [[nodiscard]] static std::pair<qint64, qint64> cellOf(PlaneVector place);
    [[nodiscard]] static quint64 keyOf(qint64 x, qint64 y);
    [[nodiscard]] double stepAt(double time) const;

    std::size_t m_positionCount = 0;
    double m_interval = 0.1;
    Plane m_plane;
    // The recorded places, and with others between those that are far apart.
    LapPath m_coarse;
    LapPath m_path;
    std::unordered_map<quint64, std::vector<std::size_t>> m_cells;
};

} // namespace zuno
