// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <vector>

#include <QString>

#include <insight/circuitshape.h>

namespace zuno {

/// A piece of a circuit that is a corner: the stations from first to last. A run through the line
/// has a last station beyond the number of stations; first is always less than that.
struct CornerRun
{
    std::size_t first = 0;
    std::size_t last = 0;
    /// What the rider calls it; empty when nothing.
    QString name = {};

    friend bool operator==(const CornerRun &, const CornerRun &) = default;
};

using CornerRuns = std::vector<CornerRun>;

/// Degrees that a run turns; both ways count.
[[nodiscard]] double turnedIn(const CornerRun &run, const Stations &curvature);

/// The corners of a circuit, in the order of their first stations.
///
/// Pieces that turn one way, cut where they open enough in between; of these the ones that a rider
/// leans for: those that turn 15 degrees and need 25 degrees of lean, and fast ones that turn 7
/// degrees and need 36.
[[nodiscard]] CornerRuns findRuns(const CircuitShape &shape);

} // namespace zuno
