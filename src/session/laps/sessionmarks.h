// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>

#include <session/laps/lapcutter.h>

namespace zuno {

/// Finds the session's extremes among @p samples (the first sample with the largest or smallest
/// value of each kind) and marks the lap that holds each: the first valid lap with a point that
/// equals the extreme in every field. A sample that gave way to a point on the line marks none.
void assignMarks(const LapList &laps, std::span<const PointAcquisition> samples);

} // namespace zuno
