// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/laps/sessionmarks.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace zuno {

namespace {

// Remembers the first sample with the largest value; a smallest one is offered negated.
class Extreme
{
public:
    void offer(double value, const PointAcquisition &sample)
    {
        if (std::isnan(value) || (m_sample != nullptr && !(value > m_value)))
            return;
        m_value = value;
        m_sample = &sample;
    }
    [[nodiscard]] const PointAcquisition *sample() const { return m_sample; }

private:
    double m_value = 0.0;
    const PointAcquisition *m_sample = nullptr;
};

struct MarkedExtreme
{
    Mark mark;
    Extreme extreme;
};

// In the order in which they are looked for in a lap.
using Extremes = std::array<MarkedExtreme, 9>;

void offerReadings(const SuspensionChannel &channel, const PointAcquisition &sample,
                   Extreme &maximum, Extreme &minimum)
{
    for (const Reading &reading : channel.readings) {
        maximum.offer(static_cast<double>(reading.value), sample);
        minimum.offer(-static_cast<double>(reading.value), sample);
    }
}

Extremes findExtremes(std::span<const PointAcquisition> samples)
{
    Extremes all {{{Mark::MaximumSpeed, {}},
                   {Mark::Acceleration, {}},
                   {Mark::Deceleration, {}},
                   {Mark::RightAngle, {}},
                   {Mark::LeftAngle, {}},
                   {Mark::FrontSuspensionMaximum, {}},
                   {Mark::FrontSuspensionMinimum, {}},
                   {Mark::RearSuspensionMaximum, {}},
                   {Mark::RearSuspensionMinimum, {}}}};
    for (const PointAcquisition &sample : samples) {
        all[0].extreme.offer(sample.dataSpeed, sample);
        all[1].extreme.offer(sample.dataAccelXPHComputed, sample);
        all[2].extreme.offer(-sample.dataAccelXPHComputed, sample);
        all[3].extreme.offer(sample.dataAngle, sample);
        all[4].extreme.offer(-sample.dataAngle, sample);
        if (sample.hasReadings()) {
            offerReadings(sample.suspension1(), sample, all[5].extreme, all[6].extreme);
            offerReadings(sample.suspension2(), sample, all[7].extreme, all[8].extreme);
        }
    }
    return all;
}

bool holds(const Lap &lap, const PointAcquisition &sample)
{
    return std::any_of(
        lap.points().begin(), lap.points().end(), [&sample](const PointAcquisition &point) {
            return point.acquisitionNumber == sample.acquisitionNumber && point == sample;
        });
}

} // namespace

void assignMarks(const LapList &laps, std::span<const PointAcquisition> samples)
{
    Extremes extremes = findExtremes(samples);
    std::array<bool, std::tuple_size_v<Extremes>> given {};
    for (const auto &lap : laps) {
        QList<Mark> marks;
        for (std::size_t k = 0; lap->isValid() && k < extremes.size(); ++k) {
            const PointAcquisition *sample = extremes[k].extreme.sample();
            if (sample != nullptr && !given[k] && holds(*lap, *sample)) {
                marks.append(extremes[k].mark);
                given[k] = true;
            }
        }
        lap->setMarks(marks);
    }
}

} // namespace zuno
