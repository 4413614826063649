// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <span>

#include <base/plane.h>
#include <session/recording/pointacquisition.h>

namespace zuno {

/// Where a lap met a gate, and how.
struct GateCrossing
{
    /// The lap's number.
    int lap = 0;
    PlaneVector place;
    /// Of length 1.
    PlaneVector heading;
    /// Metres per second.
    double speed = 0.0;
};

/// Where a rider was at a time stamp, and where he was heading; the lap is not filled in. None when
/// he had no position then, or did not move.
[[nodiscard]] std::optional<GateCrossing> crossingAt(std::span<const PointAcquisition> samples,
                                                     const Plane &plane, quint32 time);

} // namespace zuno
