// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <numbers>

namespace zuno {

/// Samples of a session are so many seconds apart.
inline constexpr double SampleStep = 0.1;
/// Suspension readings are so many seconds apart.
inline constexpr double ReadingStep = 0.01;
/// A gap between two measurements is filled up to this many seconds; beyond, nobody knows where the
/// motorcycle was.
inline constexpr double LongestBridge = 2.5;
/// Metres along a meridian, as great-circle distances count them (radius 6371.0072 km).
inline constexpr double MetresPerDegree = 111195.0;
inline constexpr double RadiansPerDegree = std::numbers::pi / 180;
/// Metres a second squared.
inline constexpr double Gravity = 9.80665;

} // namespace zuno
