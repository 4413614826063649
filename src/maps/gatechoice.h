// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <maps/circuit.h>

namespace zuno {

/// The stations at which a line may lie, the best first: the middles of straights that every lap
/// passes, by how fast they are; those where a gate finds no room between its neighbours later.
/// A circuit without straights has its line where it is fastest.
[[nodiscard]] std::vector<std::size_t> lineChoices(const Circuit &circuit);

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
