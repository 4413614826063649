// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <demo/demorider.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>

namespace zuno::demo {

namespace {

constexpr double Gravity = 9.81;
constexpr double SampleTime = 0.1;
constexpr double DegreesPerRadian = 180 / std::numbers::pi;

// The pit lane, in metres along the main straight from the line (minus: before it). It lies farther
// from the line than a gate reaches, so riding through it is not a lap.
constexpr double PitLaneBeside = 38;
constexpr double PitLaneSpeed = 60 / 3.6;
constexpr double PitExitBegin = 160;
constexpr double PitEntryBegin = -330;
constexpr double PitRampLength = 180;

/// A metre of the way that will be ridden.
struct Metre
{
    double curvature = 0; ///< 1/m, left positive
    double left = 0; ///< metres beside the path
    double length = 1; ///< metres ridden for one metre of the path
    double pace = 1; ///< the part of the machine's abilities that is used
    double cap = 0; ///< m/s
};

/// The way of an outing, from station \a begin of a path on.
struct Way
{
    const Path &path;
    double begin = 0;
    std::vector<Metre> metres;

    [[nodiscard]] const Metre &metre(double ridden) const
    {
        return metres[std::min(static_cast<std::size_t>(ridden), metres.size() - 1)];
    }
};

/// What the rider wants at a station of the path.
struct Wish
{
    std::function<double(double)> left;
    std::function<double(double)> pace;
    std::function<double(double)> cap;
};

/// Ten times a second: how fast, and how far along the way.
struct Motion
{
    std::vector<double> speed; ///< m/s
    std::vector<double> ridden; ///< metres of the path since the start of the way
};

[[nodiscard]] Way planWay(const Path &path, double begin, double metres, const Wish &wish)
{
    Way way {path, begin, {}};
    for (int i = 0; i <= static_cast<int>(metres); ++i) {
        const double station = begin + i;
        const double left = wish.left(station);
        const double ahead = wish.left(station + 2);
        const double behind = wish.left(station - 2);
        const double bend = path.curvature(station);
        way.metres.push_back({bend + (ahead - 2 * left + behind) / 4, left,
                              std::hypot(1 - bend * left, (ahead - behind) / 4), wish.pace(station),
                              wish.cap(station)});
    }
    return way;
}

/// The part of the tyre that cornering leaves for driving and braking.
[[nodiscard]] double leftGrip(const Metre &metre, const Machine &machine, double speed)
{
    const double used
        = speed * speed * std::abs(metre.curvature) / (machine.cornering * Gravity * metre.pace);
    return std::sqrt(std::max(0.01, 1 - used * used));
}

/// The speed at each metre of the way: what the corners allow, then forwards what the engine can
/// reach, then backwards what the brakes can lose.
[[nodiscard]] std::vector<double> planSpeed(const Way &way, const Machine &machine)
{
    std::vector<double> speed;
    for (const Metre &metre : way.metres) {
        const double side = machine.cornering * Gravity * metre.pace;
        const double corner = std::sqrt(side / std::max(std::abs(metre.curvature), 1e-6));
        speed.push_back(std::min({corner, metre.cap, machine.topSpeed}));
    }
    speed.front() = speed.back() = 0;
    for (std::size_t i = 1; i < speed.size(); ++i) {
        const Metre &metre = way.metres[i - 1];
        const double v = speed[i - 1];
        const double engine
            = std::min(machine.traction * Gravity, machine.power / std::max(v, 1.0));
        const double gain
            = engine * metre.pace * leftGrip(metre, machine, v) - machine.drag * v * v;
        speed[i] = std::min(speed[i], std::sqrt(std::max(0.0, v * v + 2 * gain * metre.length)));
    }
    for (std::size_t i = speed.size() - 1; i > 0; --i) {
        const Metre &metre = way.metres[i];
        const double v = speed[i];
        const double loss = machine.braking * Gravity * metre.pace * leftGrip(metre, machine, v);
        speed[i - 1] = std::min(speed[i - 1], std::sqrt(v * v + 2 * loss * metre.length));
    }
    return speed;
}

/// The least speed of the metres from \a first to \a last.
[[nodiscard]] double slowest(const std::vector<double> &speed, double first, double last)
{
    const auto limit = static_cast<double>(speed.size() - 1);
    const auto from = static_cast<std::ptrdiff_t>(std::clamp(first, 0.0, limit));
    const auto to = static_cast<std::ptrdiff_t>(std::clamp(last, 0.0, limit));
    return *std::min_element(speed.begin() + from, speed.begin() + to + 1);
}

/// The speed \a beyond metres from the middle of the habit's corner, at metre \a i of the way.
[[nodiscard]] double habitualSpeed(const std::vector<double> &speed, double i, double beyond,
                                   const Habit &habit)
{
    const double usual = slowest(speed, i, i);
    const double part = beyond / habit.reach;
    switch (habit.kind) {
    case Habit::Kind::None:
        break;
    case Habit::Kind::BrakesEarly:
        return part > -1 && part <= 0 ? slowest(speed, i, i + habit.amount) : usual;
    case Habit::Kind::LateOnGas:
        return part >= 0 && part < 1 ? slowest(speed, i - habit.amount, i) : usual;
    case Habit::Kind::SlowInCorner: {
        const double bump = std::max(0.0, 1 - part * part);
        return usual - habit.amount / 3.6 * bump * bump;
    }
    }
    return usual;
}

/// The planned speed with the rider's habit in every other full lap.
[[nodiscard]] std::vector<double> withHabit(const std::vector<double> &speed, const Way &way,
                                            const Outing &outing)
{
    std::vector<double> habitual = speed;
    for (int lap = 1; lap <= outing.laps && outing.habit.kind != Habit::Kind::None; lap += 2) {
        const double middle = lap * way.path.length() + outing.habit.place - way.begin;
        for (double beyond = -outing.habit.reach; beyond <= outing.habit.reach; ++beyond) {
            const double i = std::floor(middle + beyond);
            habitual[static_cast<std::size_t>(i)] = habitualSpeed(speed, i, beyond, outing.habit);
        }
    }
    return habitual;
}

/// A hand on the throttle or brake takes a moment: running mean over 0.7 s. It keeps the sum and so
/// the distance.
[[nodiscard]] std::vector<double> softened(const std::vector<double> &speed)
{
    std::vector<double> soft(speed.size(), 0.0);
    for (std::size_t i = 3; i + 3 < speed.size(); ++i) {
        for (std::size_t k = i - 3; k <= i + 3; ++k)
            soft[i] += speed[k] / 7;
    }
    return soft;
}

/// Rides the way at the planned speed, after 3 s and before 4 s of standing still.
[[nodiscard]] Motion moveAlong(const Way &way, const std::vector<double> &planned)
{
    constexpr std::size_t standing = 30;
    std::vector<double> speed(standing, 0.0);
    const auto due = [&] { return static_cast<double>(speed.size() - standing) * SampleTime; };
    double clock = 0;
    for (std::size_t i = 0; i + 1 < planned.size(); ++i) {
        const double mean = (planned[i] + planned[i + 1]) / 2;
        const double next = clock + way.metres[i].length / std::max(mean, 0.1);
        while (due() < next)
            speed.push_back(
                std::lerp(planned[i], planned[i + 1], (due() - clock) / (next - clock)));
        clock = next;
    }
    speed.insert(speed.end(), 40, 0.0);

    Motion motion {softened(speed), {0.0}};
    for (std::size_t i = 1; i < motion.speed.size(); ++i) {
        const double step = (motion.speed[i - 1] + motion.speed[i]) / 2 * SampleTime;
        const double before = motion.ridden.back();
        motion.ridden.push_back(before + step / way.metre(before).length);
    }
    return motion;
}

[[nodiscard]] double driveAt(const Motion &motion, std::size_t i)
{
    if (i == 0 || i + 1 >= motion.speed.size())
        return 0;
    return (motion.speed[i + 1] - motion.speed[i - 1]) / (2 * SampleTime * Gravity);
}

/// To the right positive, in g.
[[nodiscard]] double sideAt(const Way &way, const Motion &motion, std::size_t i)
{
    const double speed = motion.speed[i];
    return -speed * speed * way.metre(motion.ridden[i]).curvature / Gravity;
}

[[nodiscard]] float quantised(double value, double steps)
{
    return static_cast<float>(std::round(value * steps) / steps);
}

/// What the sensors say, with their noise. The receiver's error wanders about half a metre within
/// half a minute. Values are rounded to what a logger resolves, which also hides the last bits in
/// which mathematical libraries differ.
[[nodiscard]] std::vector<Sample> record(const Way &way, const Motion &motion,
                                         const Position &origin, quint64 seed)
{
    constexpr double keep = 0.9967; // 0.1 s of 30 s
    const double fresh = 0.5 * std::sqrt(1 - keep * keep);
    Random random(seed);
    Point error {0.5 * random.bell(), 0.5 * random.bell()};
    std::vector<Sample> samples;
    for (std::size_t i = 0; i < motion.speed.size(); ++i) {
        const double ridden = motion.ridden[i];
        const Point place = way.path.at(way.begin + ridden, way.metre(ridden).left);
        const Position position
            = toPosition(origin, {place.east + error.east, place.north + error.north});
        const double speed = motion.speed[i] * 3.6;
        const double side = sideAt(way, motion, i);
        const double tilt = std::atan(side) * DegreesPerRadian;
        const double shake = 0.012 + 0.018 * std::min(1.0, speed / 150);
        samples.push_back({static_cast<quint32>(i * 100), static_cast<float>(position.longitude),
                           static_cast<float>(position.latitude),
                           quantised(std::max(0.0, speed + 0.12 * random.bell()), 100),
                           quantised(tilt + 0.4 * random.bell(), 10),
                           quantised(driveAt(motion, i) + shake * random.bell(), 1000),
                           quantised(side + shake * random.bell(), 1000)});
        error.east = keep * error.east + fresh * random.bell();
        error.north = keep * error.north + fresh * random.bell();
    }
    return samples;
}

/// Braking dives the front, driving squats the rear, a corner presses both; on top the bumps of the
/// ground, which are at the same places in every lap.
void recordSuspension(Ride &ride, const Way &way, const Motion &motion)
{
    const Wander wave(71, 4.5);
    const Wander bump(72, 0.9);
    const auto store = [](std::vector<double> &list, double value, double travel) {
        list.push_back(std::round(std::clamp(value, 0.0, travel) * 10) / 10);
    };
    const std::size_t count = motion.speed.size();
    for (std::size_t reading = 0; reading <= count * ReadingsPerSample; ++reading) {
        const std::size_t i = std::min(reading / ReadingsPerSample, count - 1);
        const std::size_t next = std::min(i + 1, count - 1);
        const double part = static_cast<double>(reading % ReadingsPerSample) / ReadingsPerSample;
        const double drive = std::lerp(driveAt(motion, i), driveAt(motion, next), part);
        const double side = std::lerp(sideAt(way, motion, i), sideAt(way, motion, next), part);
        const double load = std::hypot(1, side);
        const double station = std::fmod(
            way.begin + std::lerp(motion.ridden[i], motion.ridden[next], part), way.path.length());
        const double shake = std::min(1.0, motion.speed[i] / 40);
        const double front = shake * (6 * wave.at(station) + 5 * bump.at(station));
        const double wheelBase = 1.4;
        const double rear
            = shake * (4 * wave.at(station - wheelBase) + 3 * bump.at(station - wheelBase));
        store(ride.front, 36 * load - (drive < 0 ? 55 : 30) * drive + front, 130);
        store(ride.rear, 22 * load + 15 * drive + rear, 70);
    }
}

/// Milliseconds at which \a station is passed.
[[nodiscard]] double passingTime(const Way &way, const Motion &motion, double station)
{
    const auto after
        = std::lower_bound(motion.ridden.begin() + 1, motion.ridden.end() - 1, station - way.begin);
    const double step = *after - *(after - 1);
    const double part = step > 0 ? (station - way.begin - *(after - 1)) / step : 0;
    return (static_cast<double>(after - motion.ridden.begin() - 1) + part) * SampleTime * 1000;
}

[[nodiscard]] QList<QList<int>> timeSectors(const Way &way, const Motion &motion,
                                            const Circuit &circuit, int laps)
{
    QList<QList<int>> times;
    for (int lap = 1; lap <= laps; ++lap) {
        times.append(QList<int> {});
        double begin = passingTime(way, motion, lap * way.path.length());
        for (const double part : circuit.sectorEnds + QList<double> {1}) {
            const double end = passingTime(way, motion, (lap + part) * way.path.length());
            times.last().append(static_cast<int>(std::lround(end) - std::lround(begin)));
            begin = end;
        }
    }
    return times;
}

/// 1 in the pit lane, 0 on the track. The lane is left in lap 0, the out lap, and entered at the
/// end of the lap after the last full one.
[[nodiscard]] double pitShare(double station, double lapLength, int laps)
{
    return 1 - ramp((station - PitExitBegin) / PitRampLength)
           + ramp((station - (laps + 2) * lapLength - PitEntryBegin) / PitRampLength);
}

/// Riders warm up lap by lap and never ride two laps alike; out lap and in lap are no fast ones.
[[nodiscard]] double lapPace(int lap, const Outing &outing)
{
    if (lap < 1)
        return 0.62;
    if (lap > outing.laps)
        return 0.7;
    return 1 - 0.05 / lap + 0.015 * Wander(outing.seed + 1, 1).at(lap);
}

/// Loses the fix in the slow part after the half of a lap, away from every gate.
void loseFix(Ride &ride, const Way &way, const Motion &motion, int lap)
{
    const double station = (lap + 0.535) * way.path.length();
    const auto first = static_cast<std::size_t>(passingTime(way, motion, station) / 100);
    for (std::size_t i = first; i < first + SamplesWithoutFix; ++i)
        ride.samples[i].longitude = ride.samples[i].latitude = NoFix;
}

} // namespace

Ride rideCircuit(const Circuit &circuit, const Machine &machine, const Outing &outing)
{
    const Path path = circuit.path();
    const double lapLength = path.length();
    const double box = Random(outing.seed).uniform(100, 150);
    const Wander line(outing.seed + 2, 300);
    const Wander skill(outing.seed + 3, 110);
    const Wander ground(static_cast<quint64>(circuit.corners.size()), 170); // camber and surface
    const auto inPit = [&](double station) { return pitShare(station, lapLength, outing.laps); };

    Wish wish;
    wish.left = [&](double station) {
        return std::lerp(1.3 * line.at(station), circuit.pitSide * PitLaneBeside, inPit(station));
    };
    wish.pace = [&](double station) {
        const int lap = static_cast<int>(std::floor(station / lapLength));
        return outing.grip * lapPace(lap, outing) * (1 + 0.02 * skill.at(station))
               * (1 + 0.12 * ground.at(std::fmod(station, lapLength)));
    };
    wish.cap
        = [&](double station) { return inPit(station) > 0.05 ? PitLaneSpeed : machine.topSpeed; };
    const Way way = planWay(path, box, (outing.laps + 2) * lapLength, wish);
    const Motion motion = moveAlong(way, withHabit(planSpeed(way, machine), way, outing));

    Ride ride;
    ride.samples = record(way, motion, circuit.origin, outing.seed + 4);
    ride.outLapTime = static_cast<int>(std::lround(passingTime(way, motion, lapLength)));
    ride.sectorTimes = timeSectors(way, motion, circuit, outing.laps);
    if (outing.suspension)
        recordSuspension(ride, way, motion);
    if (outing.lapWithoutFix > 0)
        loseFix(ride, way, motion, outing.lapWithoutFix);
    return ride;
}

Ride rideRoad(const Path &road, const Position &origin, const Machine &machine,
              const Outing &outing)
{
    const Wander line(outing.seed + 2, 150);
    const Wander skill(outing.seed + 3, 200);
    Wish wish;
    wish.left = [&](double station) { return -1.5 + 0.6 * line.at(station); };
    wish.pace = [&](double station) { return outing.grip * (1 + 0.1 * skill.at(station)); };
    wish.cap = [&](double station) { return machine.topSpeed * (0.9 + 0.1 * skill.at(station)); };
    const Way way = planWay(road, 0, road.length(), wish);
    const Motion motion = moveAlong(way, planSpeed(way, machine));
    Ride ride;
    ride.samples = record(way, motion, origin, outing.seed + 4);
    return ride;
}

} // namespace zuno::demo
