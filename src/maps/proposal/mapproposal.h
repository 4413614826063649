// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include <QGeoCoordinate>
#include <QList>

#include <session/recording/pointacquisition.h>
#include <track/mapdraft.h>

namespace zuno {

/// One time around the circuit, found in a recording without a map.
struct FoundLap
{
    /// Samples: the lap runs from first to last, both included.
    std::size_t first = 0;
    std::size_t last = 0;
    /// Metres.
    double length = 0.0;
    /// Milliseconds.
    double time = 0.0;
};

/// Why a recording gives no map.
enum class NoProposal {
    None, ///< It gives one.
    NoPositions, ///< Hardly a sample has a position.
    NoMovement, ///< The recorder stood about.
    NoLap, ///< The way never comes back to where it was, in the same direction.
};

/// The map that a recording suggests.
struct MapProposal
{
    /// Without a name; empty when there is no proposal.
    MapDraft draft;
    /// In riding order, cut at the draft's start.
    std::vector<FoundLap> laps;
    /// The lap that the outline follows, an index into laps.
    std::size_t typicalLap = 0;
    NoProposal reason = NoProposal::NoLap;
};

/// Finds the circuit in the smoothed samples of a recording: the line in the middle of the fastest
/// straight that every lap passes, the outline of the most typical lap, three to six timing points
/// with the last one on the line, and a gate size.
[[nodiscard]] MapProposal proposeMap(std::span<const PointAcquisition> samples);

/// The way through @p lap as an outline: points about 8 m apart at even distances, from the line
/// around to the line, the first and the last at @p start.
[[nodiscard]] QList<QGeoCoordinate> outlineOf(std::span<const PointAcquisition> samples,
                                              const FoundLap &lap, const QGeoCoordinate &start);

} // namespace zuno
