// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>

#include <maps/proposal/circuit.h>
#include <maps/proposal/mapproposal.h>

namespace zuno {

/// How good a proposal is.
struct ProposalWorth
{
    /// Its laps; one with a wrong time or without a section's time counts less.
    double laps = 0.0;
    /// How many times the circuit was ridden without a pass of the line: through the pit lane
    /// beside it, say, or without positions there.
    int lost = 0;
    /// Nothing is wrong with the laps that there are.
    bool isSound = false;
};

/// @p samples are those that were proposed from, @p line the station at the proposal's start.
[[nodiscard]] ProposalWorth worthOf(std::span<const PointAcquisition> samples,
                                    const MapProposal &proposal, const Station &line);

} // namespace zuno
