// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <vector>

#include <QString>

#include <insight/losses.h>

namespace zuno {

/// Where somebody braked and went on the gas again, in seconds since the start of his lap.
struct ZoneActs
{
    std::optional<double> brakes;
    std::optional<double> gas;
};

/// What charts and map show of a unit of the circuit. All moments are seconds since the start of
/// the lap that is looked at.
struct TrackZone
{
    /// What it is called in short: "3", "7-9", a corner's name.
    QString label;
    /// Whether it has a corner; the piece between the line and the first one has none.
    bool hasCorner = true;
    /// The side of the corner that is meant by its sign.
    bool isRight = false;
    double from = 0.0;
    double to = 0.0;
    /// From where its corners begin to turn to where they have turned.
    double bendFrom = 0.0;
    double bendTo = 0.0;
    /// In the middle of the corner that bears the sign.
    double middle = 0.0;
    /// Seconds that the lap takes longer here than the one it is compared with.
    std::optional<double> loss;
    /// From 1 for the largest of the three losses that a rider is shown; 0 for any other.
    int rank = 0;
    /// Of the lap, and of the one that it is compared with.
    ZoneActs acts;
    ZoneActs otherActs;
};

using TrackZones = std::vector<TrackZone>;

/// Seconds; a smaller difference is noise of the receivers.
inline constexpr double NoiseLoss = 0.02;

/// The units of the circuit in @p lap, compared with @p reference unless it is nullptr. They join,
/// and their losses add up to the difference of the lap times.
[[nodiscard]] TrackZones trackZones(const CircuitCorners &circuit, const RiddenLap &lap,
                                    const RiddenLap *reference);

} // namespace zuno
