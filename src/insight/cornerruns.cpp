// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/cornerruns.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace zuno {

namespace {

constexpr double Gravity = 9.81;
constexpr double Degrees = 180.0 / std::numbers::pi;

// 1/m; what turns less is straight.
constexpr double LeastCurvature = 0.0012;

// A run is cut where its curvature falls to this part of what it is on both sides, ...
constexpr double ValleyPart = 0.75;
// ... if both parts turn that much, degrees.
constexpr double LeastPartAngle = 20.0;

// What makes a corner: degrees turned and degrees of lean.
constexpr double CornerAngle = 15.0;
constexpr double CornerLean = 25.0;
constexpr double KinkAngle = 7.0;
constexpr double KinkLean = 36.0;

double curvatureAt(const Stations &curvature, std::size_t station)
{
    return curvature.values[station % curvature.size()];
}

// -1, 0 or 1.
int sideAt(const Stations &curvature, std::size_t station)
{
    const double k = curvatureAt(curvature, station);
    return std::fabs(k) < LeastCurvature ? 0 : (k > 0.0 ? 1 : -1);
}

// Pieces that turn one way.
CornerRuns oneSided(const Stations &curvature)
{
    const std::size_t count = curvature.size();
    std::size_t begin = 0;
    while (begin < count && sideAt(curvature, begin) != 0)
        ++begin;
    CornerRuns runs;
    // A circuit without a straight piece has no place to begin; there is none.
    if (begin == count)
        return runs;
    int before = 0;
    for (std::size_t i = begin; i < begin + count; ++i) {
        const int side = sideAt(curvature, i);
        if (side != 0 && side == before)
            runs.back().last = i;
        else if (side != 0)
            runs.push_back({i, i});
        before = side;
    }
    return runs;
}

// The station before which the run opens most between two parts that turn enough; none when it does
// not open enough.
std::optional<std::size_t> valleyOf(const CornerRun &run, const Stations &curvature)
{
    const double whole = turnedIn(run, curvature);
    if (whole < 2.0 * LeastPartAngle)
        return {};
    const std::size_t size = run.last - run.first + 1;
    std::vector<double> highestAfter(size, 0.0);
    for (std::size_t i = size - 1; i > 0; --i) {
        const double k = std::fabs(curvatureAt(curvature, run.first + i));
        highestAfter[i - 1] = std::max(highestAfter[i], k);
    }
    std::optional<std::size_t> valley;
    double deepest = ValleyPart;
    double highest = 0.0;
    double turned = 0.0;
    for (std::size_t i = 0; i < size; ++i) {
        const double k = std::fabs(curvatureAt(curvature, run.first + i));
        const double part = k / std::min(highest, highestAfter[i]);
        if (turned >= LeastPartAngle && whole - turned >= LeastPartAngle && part <= deepest) {
            valley = run.first + i;
            deepest = part;
        }
        highest = std::max(highest, k);
        turned += k * curvature.step() * Degrees;
    }
    return valley;
}

void cut(const CornerRun &run, const Stations &curvature, CornerRuns &parts)
{
    if (const std::optional<std::size_t> valley = valleyOf(run, curvature)) {
        cut({run.first, *valley - 1}, curvature, parts);
        cut({*valley, run.last}, curvature, parts);
    } else {
        parts.push_back(run);
    }
}

// Degrees of lean that the model rider needs.
double leanIn(const CornerRun &run, const CircuitShape &shape)
{
    double most = 0.0;
    for (std::size_t i = run.first; i <= run.last; ++i) {
        const double v = shape.hardSpeed.values[i % shape.hardSpeed.size()];
        most = std::max(most, v * v * std::fabs(curvatureAt(shape.curvature, i)) / Gravity);
    }
    return std::atan(most) * Degrees;
}

bool isCorner(const CornerRun &run, const CircuitShape &shape)
{
    const double angle = turnedIn(run, shape.curvature);
    const double lean = leanIn(run, shape);
    return (angle >= CornerAngle && lean >= CornerLean) || (angle >= KinkAngle && lean >= KinkLean);
}

} // namespace

double turnedIn(const CornerRun &run, const Stations &curvature)
{
    double turned = 0.0;
    for (std::size_t i = run.first; i <= run.last; ++i)
        turned += std::fabs(curvatureAt(curvature, i));
    return turned * curvature.step() * Degrees;
}

CornerRuns findRuns(const CircuitShape &shape)
{
    CornerRuns parts;
    for (const CornerRun &run : oneSided(shape.curvature))
        cut(run, shape.curvature, parts);
    std::erase_if(parts, [&](const CornerRun &run) { return !isCorner(run, shape); });
    const std::size_t count = shape.curvature.size();
    for (CornerRun &run : parts) {
        if (run.first >= count)
            run = {run.first - count, run.last - count};
    }
    std::sort(parts.begin(), parts.end(),
              [](const CornerRun &a, const CornerRun &b) { return a.first < b.first; });
    return parts;
}

} // namespace zuno
