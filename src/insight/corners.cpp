// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/corners.h>

#include <algorithm>
#include <cmath>

namespace zuno {

namespace {

constexpr double StartPart = 0.1;
constexpr double MiddlePart = 0.5;
constexpr double EndPart = 0.9;

// Where @p part of a run's angle is turned: metres after the line, beyond the length for a run
// through the line. Each station stands for the step that leads to it.
double placeOf(double part, const CornerRun &run, const Stations &curvature)
{
    double whole = 0.0;
    for (std::size_t i = run.first; i <= run.last; ++i)
        whole += std::fabs(curvature.values[i % curvature.size()]);
    double rest = part * whole;
    for (std::size_t i = run.first; i <= run.last; ++i) {
        const double here = std::fabs(curvature.values[i % curvature.size()]);
        if (rest <= here && here > 0.0)
            return curvature.along(i) + (((rest / here) - 1.0) * curvature.step());
        rest -= here;
    }
    return curvature.along(run.last);
}

Corner cornerOf(const CornerRun &run, const Stations &curvature)
{
    Corner corner;
    corner.name = run.name;
    corner.start = placeOf(StartPart, run, curvature);
    corner.middle = placeOf(MiddlePart, run, curvature);
    corner.end = placeOf(EndPart, run, curvature);
    corner.angle = turnedIn(run, curvature);
    double sharpest = 0.0;
    double sum = 0.0;
    for (std::size_t i = run.first; i <= run.last; ++i) {
        const double k = curvature.values[i % curvature.size()];
        sharpest = std::max(sharpest, std::fabs(k));
        sum += k;
    }
    corner.isRight = sum > 0.0;
    corner.radius = sharpest > 0.0 ? 1.0 / sharpest : 0.0;
    return corner;
}

// Moves the corner by whole rounds so that its middle lies on the circuit.
void bringHome(Corner &corner, double length)
{
    const double rounds = std::floor(corner.middle / length) * length;
    corner.start -= rounds;
    corner.middle -= rounds;
    corner.end -= rounds;
}

// The fastest place from @p from to @p to, which may lie on another round.
double fastest(double from, double to, const Stations &speed)
{
    double place = from;
    double most = speed.at(from);
    const auto offer = [&](double along) {
        const double here = speed.at(along);
        if (here > most) {
            most = here;
            place = along;
        }
    };
    for (double station = std::ceil(from / speed.step()); station * speed.step() < to; ++station)
        offer(station * speed.step());
    offer(to);
    return place;
}

} // namespace

QString Corner::label() const
{
    return name.isEmpty() ? QString::number(number) : name;
}

Corners cornersOf(const CornerRuns &runs, const CircuitShape &shape)
{
    const double length = shape.curvature.along(shape.curvature.size());
    Corners corners;
    for (const CornerRun &run : runs) {
        corners.push_back(cornerOf(run, shape.curvature));
        bringHome(corners.back(), length);
    }
    std::sort(corners.begin(), corners.end(),
              [](const Corner &a, const Corner &b) { return a.middle < b.middle; });
    for (std::size_t i = 0; i < corners.size(); ++i) {
        Corner &corner = corners[i];
        corner.number = static_cast<int>(i) + 1;
        const double before = i > 0 ? corners[i - 1].end : corners.back().end - length;
        corner.boundary
            = before < corner.start ? fastest(before, corner.start, shape.softSpeed) : corner.start;
    }
    return corners;
}

} // namespace zuno
