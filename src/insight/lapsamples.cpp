// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/lapsamples.h>

#include <algorithm>
#include <cmath>

#include <base/numbers.h>
#include <session/recording/trace.h>

namespace zuno {

namespace {

constexpr double Gravity = 9.81;
constexpr double KmhPerMs = 3.6;

// Seconds around a lap that count: who brakes for a corner begins up to 3 seconds before the way to
// it does, and a lowest speed is looked for up to 1.5 seconds after a corner.
constexpr double Before = 5.0;
constexpr double After = 2.0;

// Samples to either side that a slope is taken over, and the seconds that they span at most.
constexpr std::size_t SlopeReach = 3;
constexpr double SlopeTime = 0.35;

LapSample sampleOf(const PointAcquisition &point, double time)
{
    LapSample sample;
    sample.time = time;
    sample.speed = static_cast<double>(point.rawSpeed) / KmhPerMs;
    sample.lean = point.dataAngle;
    sample.latitude = point.dataCoordY;
    sample.longitude = point.dataCoordX;
    sample.hasFix = positionOf(point).isValid() && std::isfinite(sample.speed);
    return sample;
}

// Gives samples without a position the speeds between those around them.
void bridgeSpeeds(std::vector<LapSample> &samples)
{
    std::size_t known = samples.size();
    for (std::size_t i = 0; i < samples.size(); ++i) {
        if (!samples[i].hasFix)
            continue;
        const double from = known < i ? samples[known].speed : samples[i].speed;
        const double began = known < i ? samples[known].time : samples[i].time - 1.0;
        for (std::size_t j = known < i ? known + 1 : 0; j < i; ++j) {
            const double part = (samples[j].time - began) / (samples[i].time - began);
            samples[j].speed = std::lerp(from, samples[i].speed, std::max(part, 0.0));
        }
        known = i;
    }
    const double last = known < samples.size() ? samples[known].speed : 0.0;
    for (std::size_t j = known < samples.size() ? known + 1 : 0; j < samples.size(); ++j)
        samples[j].speed = last;
}

double slopeAt(const std::vector<LapSample> &samples, std::size_t i)
{
    const std::size_t first = i > SlopeReach ? i - SlopeReach : 0;
    const std::size_t last = std::min(i + SlopeReach, samples.size() - 1);
    double count = 0.0;
    double t = 0.0;
    double v = 0.0;
    double tt = 0.0;
    double tv = 0.0;
    for (std::size_t j = first; j <= last; ++j) {
        const double time = samples[j].time - samples[i].time;
        if (std::fabs(time) > SlopeTime)
            continue;
        const double speed = samples[j].speed - samples[i].speed;
        count += 1.0;
        t += time;
        v += speed;
        tt += time * time;
        tv += time * speed;
    }
    const double divisor = (count * tt) - (t * t);
    return divisor > 0.0 ? ((count * tv) - (t * v)) / divisor / Gravity : 0.0;
}

} // namespace

double LapSpan::duration() const
{
    return static_cast<double>(wrappedDifference(last, first)) / 1000.0;
}

std::vector<LapSample> lapSamples(std::span<const PointAcquisition> samples, const LapSpan &span)
{
    std::vector<LapSample> taken;
    const double end = span.duration() + After;
    for (const PointAcquisition &point : samples) {
        const double time
            = static_cast<double>(wrappedDifference(point.dataTimeStamp, span.first)) / 1000.0;
        const bool isLater = taken.empty() || time > taken.back().time;
        if (time >= -Before && time <= end && isLater)
            taken.push_back(sampleOf(point, time));
    }
    bridgeSpeeds(taken);
    for (std::size_t i = 0; i < taken.size(); ++i)
        taken[i].slope = slopeAt(taken, i);
    return taken;
}

} // namespace zuno
