// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <insight/curvature.h>

namespace zuno {

/// What the outline of a circuit says of riding on it. All stations are those of one ring.
struct CircuitShape
{
    /// 1/m, right positive.
    Stations curvature;
    /// m/s of a model rider who brakes hard, and of one who brakes softly.
    Stations hardSpeed;
    Stations softSpeed;
};

/// The shape of a ring that is not empty. The curvature is taken twice: the second time as smooth
/// as half a second's ride at the speed that the first one allows, so that a fast bend is seen
/// through the position noise that would hide it, and a hairpin is not flattened.
[[nodiscard]] CircuitShape shapeOf(const CircuitRing &ring);

} // namespace zuno
