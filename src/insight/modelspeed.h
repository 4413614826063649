// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <insight/curvature.h>

namespace zuno {

/// How hard the model rider brakes, in G: as hard as a motorcycle can, and as one does who looks
/// for the place between two corners where he is fastest.
inline constexpr double HardBraking = 0.9;
inline constexpr double SoftBraking = 0.5;

/// How fast a model rider goes around a circuit of that curvature, m/s.
///
/// The usual simulation of a point mass: one G across the track gives the fastest he may be at each
/// station, 70 m/s at most; then, from the slowest station once around, no more than 0.35 G of
/// acceleration forwards, and no more than @p braking (G) backwards.
[[nodiscard]] Stations modelSpeed(const Stations &curvature, double braking);

/// Seconds that he takes once around.
[[nodiscard]] double modelTime(const Stations &speed);

} // namespace zuno
