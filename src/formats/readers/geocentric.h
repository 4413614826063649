// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>

#include <formats/rawride.h>

namespace zuno {

/// Place, speed and course of a place and a velocity in the frame that turns with the earth (WGS
/// 84), metres and metres a second. Without a place far from anywhere near the ground.
[[nodiscard]] RawRow rowFromGeocentric(const std::array<double, 3> &place,
                                       const std::array<double, 3> &velocity);

} // namespace zuno
