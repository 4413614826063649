// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>

#include <insight/figures.h>

namespace zuno {

/// How many times a second the receiver really measured, Hz. A recording has ten samples a second
/// whatever the receiver did; what lies between its measurements repeats the last one or runs
/// straight to the next. 0 without a second of riding.
[[nodiscard]] double recordingRate(std::span<const PointAcquisition> samples);

/// Whether laps on the outline can be made of it at all: more than one measurement a second.
[[nodiscard]] bool carriesCorners(double rate);
/// The figures that recordings of a rate carry: braking points from 2 Hz on, decelerations and lean
/// from 5 Hz on, and lean only where @p samples have any.
[[nodiscard]] FigureValidity figureValidity(double rate, std::span<const PointAcquisition> samples);

} // namespace zuno
