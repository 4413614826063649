// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/proposal/linechoice.h>

#include <algorithm>
#include <cmath>

#include <maps/proposal/gatechoice.h>

namespace zuno {

namespace {

// The radius of a straight's bends in metres, as a part of the circuit's length: what is straight
// on a large circuit does not fit on a small one.
constexpr double BendPart = 1.0 / 12.0;
constexpr double LeastBend = 60.0;
constexpr double MostBend = 250.0;

// Metres, and as a part of the circuit.
constexpr double LeastStraight = 32.0;
constexpr double LeastStraightPart = 0.02;

// The line may be moved this part of a straight away from its middle to where a gate has room.
constexpr double MovedPart = 0.35;

// And this part for times that are less sensitive to how the line is passed: a whole such part
// away counts as so many milliseconds.
constexpr double FinePart = 0.2;
constexpr double FineCost = 8.0;

// What a straight's speed counts for when a gate has no room there, and with a smaller gate than
// usual.
constexpr double NoRoom = 0.5;
constexpr double LittleRoom = 0.85;

// And where passes at half the speed count twice, at least.
constexpr double SlowDays = 0.7;

// Milliseconds by which times may be off at the line: more than the first counts, more than the
// second as much as a quarter of the speed.
constexpr double SmallError = 15.0;
constexpr double LargeError = 60.0;
constexpr double ErrorPart = 0.25;

// Metres per second, and as a part of the circuit's: he who passed no faster was in the pit lane.
constexpr double PitSpeed = 18.0;
constexpr double PitPart = 0.7;

// Metres from where a recording begins, within which a line's map is sure to be found for it.
constexpr double LeastFromBegin = 2.0;
constexpr double MostFromBegin = 900.0;

struct Straight
{
    std::size_t first = 0;
    std::size_t count = 0;
    double speed = 0.0;
};

std::vector<Straight> straightsOf(const Circuit &circuit)
{
    const double bend = std::clamp(BendPart * circuit.length(), LeastBend, MostBend);
    const auto isStraight = [&](std::size_t i) { return circuit.at(i).curvature * bend < 1.0; };
    std::size_t begin = 0;
    while (begin < circuit.size() && isStraight(begin))
        ++begin;
    std::vector<Straight> straights;
    if (begin == circuit.size())
        return straights;
    const double least = std::max(LeastStraight, LeastStraightPart * circuit.length());
    Straight straight;
    for (std::size_t k = 0; k <= circuit.size(); ++k) {
        const std::size_t i = begin + k;
        if (k < circuit.size() && isStraight(i)) {
            if (straight.count++ == 0)
                straight = {i % circuit.size(), 1, 0.0};
            straight.speed = std::max(straight.speed, circuit.at(i).speed);
            continue;
        }
        if (static_cast<double>(straight.count) * circuit.spacing() >= least)
            straights.push_back(straight);
        straight = {};
    }
    return straights;
}

int mostLaps(const Circuit &circuit)
{
    int most = 0;
    for (std::size_t i = 0; i < circuit.size(); ++i)
        most = std::max(most, circuit.at(i).laps);
    return most;
}

double meanSpeed(const Circuit &circuit)
{
    double seconds = 0.0;
    double metres = 0.0;
    for (std::size_t i = 0; i < circuit.size(); ++i) {
        if (circuit.at(i).speed > 0.0) {
            metres += circuit.spacing();
            seconds += circuit.spacing() / circuit.at(i).speed;
        }
    }
    return seconds > 0.0 ? metres / seconds : 0.0;
}

// What a lap less counts: all with few of them, hardly anything with many.
double lapsWorth(int laps, int most)
{
    if (laps <= 0)
        return 0.0;
    const double lost = static_cast<double>(most - laps) / most;
    return std::max(0.01, 1.0 - (2.0 * lost * lost));
}

struct Choice
{
    std::size_t station = 0;
    double worth = 0.0;
};

// What a place for the line counts for the room that its gate has.
double roomWorth(const Circuit &circuit, std::size_t i)
{
    const GateRoom room = lineRoom(circuit, i);
    if (!room.isEnough())
        return NoRoom;
    const double fit = std::min(room.most / UsualGateSize, UsualGateSize / room.least);
    const double slow = std::min(1.0, room.slowDays / room.otherDays);
    return (LittleRoom + ((1.0 - LittleRoom) * std::min(1.0, fit)))
           * (SlowDays + ((1.0 - SlowDays) * slow));
}

// The station a little away at which the times are the least sensitive.
std::size_t refinedChoice(const Circuit &circuit, const Straight &straight, std::size_t i)
{
    const auto reach = static_cast<std::size_t>(FinePart * static_cast<double>(straight.count)) + 1;
    const double worth = roomWorth(circuit, i);
    const auto cost = [&](std::size_t station) {
        return circuit.at(station).error
               + (FineCost * circuit.between(station % circuit.size(), i)
                  / (circuit.spacing() * static_cast<double>(reach)));
    };
    std::size_t best = i;
    for (std::size_t k = i + circuit.size() - reach; k <= i + circuit.size() + reach; ++k) {
        if (circuit.at(k).laps >= circuit.at(i).laps && cost(k) < cost(best)
            && roomWorth(circuit, k % circuit.size()) >= 0.98 * worth)
            best = k % circuit.size();
    }
    return best;
}

// Riders switch on in the pit lane, and a map is looked for near where they did.
int drawbacks(const Circuit &circuit, std::size_t i)
{
    const PlaneVector begin = circuit.ride().path().front().place;
    const double away = (circuit.at(i).place - begin).length();
    const bool isFound = away > LeastFromBegin && away < MostFromBegin;
    return (isFound ? 0 : 1) + (lineRoom(circuit, i).holdsOnSlowDays() ? 0 : 1);
}

Choice choiceOn(const Circuit &circuit, const Straight &straight, int most)
{
    const std::size_t middle = straight.first + (straight.count / 2);
    const auto reach
        = static_cast<std::size_t>(MovedPart * static_cast<double>(straight.count)) + 1;
    Choice best {middle % circuit.size(), 0.0};
    for (std::size_t k = 0; k < 2 * reach; ++k) {
        const std::size_t away = (k + 1) / 2;
        const std::size_t i
            = (k % 2 == 0 ? middle + away : middle + circuit.size() - away) % circuit.size();
        const double laps = lapsWorth(circuit.at(i).laps, most);
        if (laps * straight.speed <= best.worth)
            continue;
        const double worth = straight.speed * laps * roomWorth(circuit, i);
        if (worth > 1.001 * best.worth)
            best = {i, worth};
    }
    best.station = refinedChoice(circuit, straight, best.station);
    const double error = (circuit.at(best.station).error - SmallError) / (LargeError - SmallError);
    best.worth *= 1.0 - (ErrorPart * std::clamp(error, 0.0, 1.0));
    return best;
}

} // namespace

std::vector<std::size_t> lineChoices(const Circuit &circuit)
{
    const int most = mostLaps(circuit);
    std::vector<Choice> choices;
    for (const Straight &straight : straightsOf(circuit))
        choices.push_back(choiceOn(circuit, straight, most));
    // Last, and on circuits without straights: wherever it is fast.
    Choice fastest;
    for (std::size_t i = 0; i < circuit.size(); ++i) {
        const Station &station = circuit.at(i);
        const double worth = station.speed * lapsWorth(station.laps, most) * NoRoom * NoRoom;
        if (worth > fastest.worth)
            fastest = {i, worth};
    }
    choices.push_back(fastest);
    const double pitSpeed = std::min(PitSpeed, PitPart * meanSpeed(circuit));
    std::erase_if(choices, [&](const Choice &choice) {
        return choice.worth <= 0.0 || circuit.at(choice.station).speed < pitSpeed;
    });
    std::stable_sort(choices.begin(), choices.end(),
                     [](const Choice &a, const Choice &b) { return a.worth > b.worth; });
    // Of others only what is wrong with these: on slower days, or for finding the map.
    std::stable_sort(choices.begin(), choices.end(), [&](const Choice &a, const Choice &b) {
        return drawbacks(circuit, a.station) < drawbacks(circuit, b.station);
    });
    std::vector<std::size_t> stations;
    stations.reserve(choices.size());
    for (const Choice &choice : choices)
        stations.push_back(choice.station);
    return stations;
}

} // namespace zuno
