// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/modelspeed.h>

#include <algorithm>
#include <cmath>

namespace zuno {

namespace {

constexpr double Gravity = 9.81;
constexpr double MostSpeed = 70.0;
constexpr double Acceleration = 0.35;

double limitedBy(double neighbour, double acceleration, double step, double speed)
{
    return std::min(speed, std::sqrt((neighbour * neighbour) + (2.0 * acceleration * step)));
}

} // namespace

Stations modelSpeed(const Stations &curvature, double braking)
{
    Stations speed = curvature;
    std::vector<double> &v = speed.values;
    for (double &value : v) {
        const double k = std::fabs(value);
        value = k > 0.0 ? std::min(MostSpeed, std::sqrt(Gravity / k)) : MostSpeed;
    }
    const auto slowest = static_cast<std::size_t>(std::min_element(v.begin(), v.end()) - v.begin());
    const std::size_t count = v.size();
    for (std::size_t j = 1; j <= count; ++j) {
        const std::size_t i = (slowest + j) % count;
        v[i] = limitedBy(v[(i + count - 1) % count], Acceleration * Gravity, speed.step(), v[i]);
    }
    for (std::size_t j = 1; j <= count; ++j) {
        const std::size_t i = (slowest + count - (j % count)) % count;
        v[i] = limitedBy(v[(i + 1) % count], braking * Gravity, speed.step(), v[i]);
    }
    return speed;
}

double modelTime(const Stations &speed)
{
    double time = 0.0;
    for (std::size_t i = 0; i < speed.size(); ++i)
        time += 2.0 * speed.step() / (speed.values[i] + speed.values[(i + 1) % speed.size()]);
    return time;
}

} // namespace zuno
