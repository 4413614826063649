// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <QList>

#include <demo/democircuit.h>

namespace zuno::demo {

/// One sample as the logger stores it.
struct Sample
{
    quint32 time = 0; ///< ms since the start of the recording
    float longitude = 0; ///< degrees
    float latitude = 0; ///< degrees
    float speed = 0; ///< km/h
    float lean = 0; ///< degrees, left negative
    float drive = 0; ///< longitudinal acceleration in g, braking negative
    float side = 0; ///< lateral acceleration in g, left negative
};

/// What a rider on a motorcycle can do.
struct Machine
{
    double cornering = 1; ///< g
    double braking = 1; ///< g, the drag included
    double traction = 0.5; ///< g, the most before the front wheel lifts
    double power = 350; ///< W per kg of the whole
    double drag = 0.001; ///< 1/m: the deceleration is this times the square of the speed
    double topSpeed = 80; ///< m/s
};

/// What a rider does wrong in one corner, in every other lap, the first one included: so what he
/// loses there is known, and he has ridden it better more than once.
struct Habit
{
    enum class Kind {
        None,
        BrakesEarly, ///< amount: metres
        SlowInCorner, ///< amount: km/h
        LateOnGas, ///< amount: metres
    };

    Kind kind = Kind::None;
    double place = 0; ///< metres after the line: the middle of the corner
    double reach = 0; ///< metres before or after it that he rides otherwise at most
    double amount = 0;
};

/// How a machine is ridden on one outing.
struct Outing
{
    int laps = 1; ///< from line to line, between the out lap and the in lap; 1 or more
    double grip = 1; ///< 1 on a dry track
    bool suspension = false; ///< with suspension readings
    int lapWithoutFix = 0; ///< a full lap (1 .. laps) without a fix for 8 s; 0: none
    quint64 seed = 0;
    Habit habit = {};
};

/// A recorded outing.
struct Ride
{
    std::vector<Sample> samples; ///< ten a second
    std::vector<double> front; ///< suspension in mm, ten readings a sample and one more
    std::vector<double> rear;
    int outLapTime = 0; ///< ms until the line is first crossed
    QList<QList<int>> sectorTimes; ///< of each lap from line to line, in ms
};

/// Samples without a fix carry this in both coordinates: the largest single-precision value.
constexpr float NoFix = 3.4028234663852886e38F;
constexpr int SamplesWithoutFix = 80;
constexpr int ReadingsPerSample = 10;

/// From the pit lane out on the track, round it and back into the pit lane, standing still for some
/// seconds at both ends.
[[nodiscard]] Ride rideCircuit(const Circuit &circuit, const Machine &machine,
                               const Outing &outing);
/// From one end of \a road to the other; of the outing, only the grip and the seed count.
[[nodiscard]] Ride rideRoad(const Path &road, const Position &origin, const Machine &machine,
                            const Outing &outing);

} // namespace zuno::demo
