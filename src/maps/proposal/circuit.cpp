// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/proposal/circuit.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include <base/numbers.h>
#include <track/pitlane.h>

namespace zuno {

namespace {

constexpr double Spacing = 8.0;

// Metres to the sides within which somebody is on the track, or in the pit lane beside it.
constexpr double TrackReach = 25.0;

// Passes nearer to each other than this part of a lap are one.
constexpr double SamePass = 0.3;

// By how much once around may differ from the usual.
constexpr double LapTolerance = 0.1;

// Stations before and behind one over which its heading and its curvature are taken.
constexpr std::size_t HeadingStations = 2;

// He who is slower than this part of the usual speed is on his way out or in.
constexpr double RidingPart = 0.45;

// Of those who were no slower than @p least.
double slowestRider(const std::vector<double> &speeds, double least)
{
    double slowest = std::numeric_limits<double>::infinity();
    for (const double speed : speeds) {
        if (speed >= least)
            slowest = std::min(slowest, speed);
    }
    return std::isfinite(slowest) ? slowest : least;
}

double quantile(std::vector<double> values, double part)
{
    if (values.empty())
        return 0.0;
    const auto index = static_cast<std::ptrdiff_t>(part * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), values.begin() + index, values.end());
    return values[static_cast<std::size_t>(index)];
}

template<typename Value>
std::vector<double> valuesOf(const std::vector<Pass> &passes, Value value)
{
    std::vector<double> values;
    values.reserve(passes.size());
    for (const Pass &pass : passes)
        values.push_back(value(pass));
    return values;
}

double middle(std::vector<double> values)
{
    if (values.size() == 2)
        return (values[0] + values[1]) / 2.0;
    return quantile(std::move(values), 0.5);
}

// The farthest that the sample next to a pass may be from the station.
double needOf(const Pass &pass)
{
    return std::hypot(pass.offset, pass.step / 2.0);
}

} // namespace

Circuit::Circuit(const RidePath &ride, const RiddenLoop &loop)
    : m_ride(&ride)
    , m_length(loop.length)
{
    const auto count = static_cast<std::size_t>(std::max(8.0, std::round(m_length / Spacing)));
    m_stations.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        const PathNode node = ride.at(loop.from + (spacing() * static_cast<double>(i)));
        m_stations[i].place = node.place;
        m_stations[i].heading = node.heading;
    }
    moveToMiddle();
    head();
    for (Station &station : m_stations)
        measure(station);
    std::vector<double> needs;
    for (const Station &station : m_stations)
        needs.push_back(station.usualNeed);
    m_usualNeed = median(std::move(needs));
}

// The passes without doubles and without the pit lane.
std::vector<Pass> Circuit::passesOf(const Station &station) const
{
    std::vector<Pass> passes;
    for (const Pass &pass : m_ride->passes(station.place, station.heading, TrackReach)) {
        const bool isSame
            = !passes.empty() && pass.driven - passes.back().driven < SamePass * m_length;
        if (!isSame)
            passes.push_back(pass);
        else if (std::fabs(pass.offset) < std::fabs(passes.back().offset))
            passes.back() = pass;
    }
    const double offset = middle(valuesOf(passes, [](const Pass &pass) { return pass.offset; }));
    const double speed
        = quantile(valuesOf(passes, [](const Pass &pass) { return pass.speed; }), 0.7);
    std::erase_if(passes, [offset, speed](const Pass &pass) {
        return isInPitLane(pass.offset, pass.speed, offset, speed);
    });
    return passes;
}

void Circuit::moveToMiddle()
{
    for (Station &station : m_stations) {
        const auto offsets
            = valuesOf(passesOf(station), [](const Pass &pass) { return pass.offset; });
        const PlaneVector left {-station.heading.y, station.heading.x};
        station.place = station.place + (left * middle(offsets));
    }
}

void Circuit::head()
{
    const auto direction = [this](std::size_t from, std::size_t to) {
        const PlaneVector way = at(to).place - at(from).place;
        return way.length() > 0.0 ? way * (1.0 / way.length()) : PlaneVector {};
    };
    const std::size_t reach = HeadingStations;
    for (std::size_t i = 0; i < size(); ++i) {
        const PlaneVector in = direction(i + size() - reach, i);
        const PlaneVector out = direction(i, i + reach);
        Station &station = m_stations[i];
        const PlaneVector sum = in + out;
        if (sum.length() > 0.0)
            station.heading = sum * (1.0 / sum.length());
        const double turn = std::atan2((in.x * out.y) - (in.y * out.x), in * out);
        station.curvature = std::fabs(turn) / (spacing() * static_cast<double>(reach));
    }
}

void Circuit::measure(Station &station) const
{
    station.passes = passesOf(station);
    const std::vector<Pass> &passes = station.passes;
    const auto speeds = valuesOf(passes, [](const Pass &pass) { return pass.speed; });
    const auto needs = valuesOf(passes, needOf);
    const auto offsets = valuesOf(passes, [](const Pass &pass) { return std::fabs(pass.offset); });
    station.speed = middle(speeds);
    station.slowest = quantile(speeds, 0.0);
    station.slow = slowestRider(speeds, RidingPart * station.speed);
    station.spread = quantile(offsets, 1.0);
    station.need = quantile(needs, 1.0);
    station.usualNeed = quantile(needs, 0.8);
    for (const Pass &pass : passes)
        station.error = std::max(station.error, m_ride->projectionError(pass, station.place));
    for (std::size_t i = 1; i < passes.size(); ++i) {
        const double driven = passes[i].driven - passes[i - 1].driven;
        station.laps += std::fabs(driven - m_length) < LapTolerance * m_length ? 1 : 0;
    }
}

double Circuit::between(std::size_t a, std::size_t b) const
{
    const std::size_t direct = a > b ? a - b : b - a;
    return spacing() * static_cast<double>(std::min(direct, size() - direct));
}

double Circuit::clearance(std::size_t i) const
{
    const Station &station = at(i);
    double clear = ClearanceReach;
    const auto isPassing = [&station](double driven, double distance) {
        // On the way past a place, one has not driven much farther than one is away.
        const double reach = (1.6 * distance) + 10.0;
        const auto next
            = std::lower_bound(station.passes.begin(), station.passes.end(), driven - reach,
                               [](const Pass &pass, double value) { return pass.driven < value; });
        return next != station.passes.end() && next->driven <= driven + reach;
    };
    m_ride->visitCells(station.place, clear, [&](const std::vector<std::size_t> &nodes) {
        for (const std::size_t node : nodes) {
            const PathNode &there = m_ride->path()[node];
            const double distance = (there.place - station.place).length();
            if (distance < clear && !isPassing(there.driven, distance))
                clear = distance;
        }
    });
    return clear;
}

} // namespace zuno
