// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <maps/proposal/circuit.h>

namespace zuno {

/// Metres: the size of gates where nothing speaks against it, made for the riders and receivers of
/// other days, too.
inline constexpr double UsualGateSize = 12.0;

/// Metres within which the size of a gate may be for a line to work.
struct GateRoom
{
    double least = 0.0;
    double most = 0.0;
    /// What the receivers and riders of other days need, and what slower days allow.
    double otherDays = 0.0;
    double slowDays = 0.0;
    [[nodiscard]] bool isEnough() const { return least <= most; }
    /// Whether nobody is counted twice who passes the line at half the speed.
    [[nodiscard]] bool holdsOnSlowDays() const { return otherDays <= slowDays; }
};

/// The room for a line at station @p i: every pass fits in and nothing else does, and everybody
/// has left before the line can be met again, if there is room for that on slower days as well.
[[nodiscard]] GateRoom lineRoom(const Circuit &circuit, std::size_t i);

/// The gates that go with a line.
struct GateChoice
{
    /// Metres.
    double size = 0.0;
    /// The stations of the timing points in riding order, without the last one, on the line.
    std::vector<std::size_t> points;
};

/// A gate size that every pass of the line fits in and that keeps clear of the neighbours, and two
/// to five timing points where the speed peaks, otherwise evenly. The size is @p part of that, for
/// where the positions are so poor that no size does both.
[[nodiscard]] GateChoice chooseGates(const Circuit &circuit, std::size_t line, double part);

} // namespace zuno
