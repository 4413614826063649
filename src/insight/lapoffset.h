// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <vector>

#include <insight/circuitring.h>

namespace zuno {

/// Metres by which a receiver stood beside where it was, for a whole lap: its error changes over
/// minutes, and a metre of it makes and unmakes a tenth of a second in a hairpin.
///
/// A robust least-squares fit (Huber's weights at 1.5 metres, eight rounds) of one vector to the
/// sideways distances of the samples from the outline. None with less than 50 samples within 25
/// metres of it, nor where nearly all of them go one way.
[[nodiscard]] std::optional<PlaneVector> lapOffset(const std::vector<CircuitRing::Spot> &spots);

} // namespace zuno
