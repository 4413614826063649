// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>
#include <vector>

#include <base/plane.h>
#include <session/recording/pointacquisition.h>

namespace zuno {

/// The time stamps, milliseconds, at which the way through @p samples crosses, in the direction
/// @p heading (of length 1), the line across that lies in the origin of @p plane and reaches
/// less than @p reach metres to each side. Between two samples the speed is taken as even.
[[nodiscard]] std::vector<double> linePasses(std::span<const PointAcquisition> samples,
                                             const Plane &plane, PlaneVector heading, double reach);

} // namespace zuno
