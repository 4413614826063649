// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/recordingrate.h>

#include <algorithm>
#include <cmath>

#include <base/numbers.h>

namespace zuno {

namespace {

// km/h: slower than that nothing changes from sample to sample.
constexpr double Riding = 30.0;

// km/h by which a speed may leave the straight line between its neighbours although it was put
// there: programs that convert recordings round speeds to hundredths.
constexpr double Rounding = 0.025;

// Milliseconds; more is a gap.
constexpr qint32 MostStep = 150;

// Hz. Measured rates come out too low where speeds are steady, or stored in steps of a km/h.
constexpr double CornerRate = 1.4;
constexpr double BrakingRate = 1.7;
constexpr double FullRate = 3.0;

} // namespace

double recordingRate(std::span<const PointAcquisition> samples)
{
    double time = 0.0;
    double changes = 0.0;
    double measured = 0.0;
    int bends = 0;
    for (std::size_t i = 1; i + 1 < samples.size(); ++i) {
        const qint32 step
            = wrappedDifference(samples[i].dataTimeStamp, samples[i - 1].dataTimeStamp);
        const auto before = static_cast<double>(samples[i - 1].rawSpeed);
        const auto here = static_cast<double>(samples[i].rawSpeed);
        const auto after = static_cast<double>(samples[i + 1].rawSpeed);
        if (step <= 0 || step > MostStep || !(here >= Riding))
            continue;
        time += static_cast<double>(step) / 1000.0;
        if (here != before)
            changes += 1.0;
        bends = std::fabs((after - here) - (here - before)) > Rounding ? bends + 1 : 0;
        // A measurement between two samples bends the line at both.
        if (bends > 0 && bends != 2)
            measured += 1.0;
    }
    return time >= 1.0 ? std::min(changes, measured) / time : 0.0;
}

bool carriesCorners(double rate)
{
    return rate >= CornerRate;
}

FigureValidity figureValidity(double rate, std::span<const PointAcquisition> samples)
{
    FigureValidity validity;
    validity.brakingPoint = rate >= BrakingRate;
    validity.maximumDeceleration = rate >= FullRate;
    // Without a sensor it is 0 all the time.
    const bool hasLean = std::any_of(samples.begin(), samples.end(), [](const auto &point) {
        return point.dataAngle != 0.0 && std::isfinite(point.dataAngle);
    });
    validity.lean = hasLean && rate >= FullRate;
    return validity;
}

} // namespace zuno
