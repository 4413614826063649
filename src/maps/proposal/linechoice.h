// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <maps/proposal/circuit.h>

namespace zuno {

/// The stations at which a line may lie, the best first: the middles of straights that every lap
/// passes, by how fast they are; those where a gate finds no room between its neighbours later, and
/// those after others that are more than 900 m from where the recording begins, or where slow
/// riders would be counted twice. A circuit without straights has its line where it is fastest.
[[nodiscard]] std::vector<std::size_t> lineChoices(const Circuit &circuit);

} // namespace zuno
