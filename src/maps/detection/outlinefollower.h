// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>
#include <vector>

#include <QGeoCoordinate>

#include <session/recording/pointacquisition.h>
#include <track/lappath.h>

namespace zuno {

class Map;

/// The way of a recording, ready to be held against the outlines of maps.
class OutlineFollower
{
public:
    explicit OutlineFollower(std::span<const PointAcquisition> samples);

    /// Whether the ride follows the outline of @p map: over at least once the outline's length,
    /// most of where it went is on the outline, in its direction, and it comes nearly everywhere on
    /// it.
    [[nodiscard]] bool follows(const Map &map) const;

private:
    [[nodiscard]] std::vector<PlaneVector> outlineOf(const Map &map) const;

    QGeoCoordinate m_origin;
    // Some ten metres apart; only where the rider was moving.
    LapPath m_places;
    PlaneVector m_least;
    PlaneVector m_most;
};

} // namespace zuno
