// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <formats/convert/rideframe.h>

namespace zuno {

/// The gates that a file names; when it names no start line but when laps began, also the place
/// where most of them did.
[[nodiscard]] std::vector<RideGate> gatesOf(const RideFacts &facts, const RideFrame &frame);

} // namespace zuno
