// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <formats/rideexport.h>

namespace zuno {

class Lap;
class Session;

/// What is known of the session, the start line and the timing points of its map included, where it
/// has one, without its samples.
[[nodiscard]] RideToExport describedRide(const Session &session);
/// The same with all samples, at which it only points. Their speeds are those that were recorded as
/// long as the session has not been smoothed.
[[nodiscard]] RideToExport rideOf(const Session &session);
/// One lap of it, with the speeds that the program shows.
[[nodiscard]] RideToExport rideOf(const Session &session, const Lap &lap);

} // namespace zuno
