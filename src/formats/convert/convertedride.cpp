// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/convert/convertedride.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include <formats/convert/agreement.h>
#include <formats/convert/ridespeed.h>

namespace zuno {

namespace {

constexpr double MostLean = 60.0;
// Below, metres a second, nothing is known of turns, and accelerations are those of the paddock.
constexpr double Moving = 3.0;
constexpr double Compared = 5.0;
// What was recorded counts when it agrees so far: accelerations along the course are known well
// from the receiver's speed, turns less so.
constexpr double AlongAgrees = 0.9;
constexpr double AcrossAgrees = 0.6;

/// What speed and turn say.
struct Suggested
{
    std::deque<float> along;
    std::deque<float> across;
    std::deque<float> lean;
    std::deque<bool> counts;
};

// The slope of the line through five samples (least squares), per second; @p value gives the
// difference of sample i + k from sample i.
template<typename Difference>
double slopeAt(std::size_t i, std::size_t size, Difference value)
{
    const auto at = [&](int k) {
        const auto j = static_cast<qint64>(i) + k;
        return j < 0 || j >= static_cast<qint64>(size) ? 0.0 : value(static_cast<std::size_t>(j));
    };
    if (i < 2 || i + 2 >= size)
        return i > 0 && i + 1 < size ? (at(1) - at(-1)) / (2 * SampleStep) : 0.0;
    return (2 * at(2) + at(1) - at(-1) - 2 * at(-2)) / (10 * SampleStep);
}

Suggested suggest(const std::deque<Place> &places)
{
    Suggested suggested;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const double speed = static_cast<double>(places[i].speed);
        const double change = slopeAt(i, places.size(), [&](std::size_t j) {
            return static_cast<double>(places[j].speed) - speed;
        });
        const double turn = slopeAt(i, places.size(), [&](std::size_t j) {
            return std::remainder(static_cast<double>(places[j].course - places[i].course), 360.0);
        });
        const double across = speed < Moving ? 0.0 : speed * turn * RadiansPerDegree / Gravity;
        const double lean = std::atan(across) / RadiansPerDegree;
        suggested.along.push_back(static_cast<float>(change / Gravity));
        suggested.across.push_back(static_cast<float>(across));
        suggested.lean.push_back(static_cast<float>(std::clamp(lean, -MostLean, MostLean)));
        suggested.counts.push_back(speed > Compared && places[i].isKnown());
    }
    return suggested;
}

// Values in G may be a little off; others are metres a second squared or counts of a converter.
double scaleOf(double slope)
{
    const double size = std::abs(slope);
    if (size > 0.4 && size < 2.5)
        return 1.0;
    return size > 7 && size < 13 ? 1 / Gravity : 1 / size;
}

/// What may be a channel.
struct Candidate
{
    const std::deque<float> *values;
    Agreement agrees;
};

Candidate best(std::initializer_list<const GridChannel *> channels,
               const std::deque<float> &suggested, const std::deque<bool> &counts, double enough)
{
    Candidate chosen {nullptr, {}};
    for (const GridChannel *channel : channels) {
        const Candidate candidate {&channel->values(),
                                   agreement(channel->values(), suggested, counts)};
        if (std::abs(candidate.agrees.correlation) < enough)
            continue;
        // The file's own name for a channel comes first, and is enough.
        if (chosen.values == nullptr
            || std::abs(candidate.agrees.correlation) > std::abs(chosen.agrees.correlation))
            chosen = candidate;
        if (channel == *channels.begin())
            break;
    }
    return chosen;
}

enum class Scale { AsRecorded, Accelerations };

// Makes the channel of what was recorded, or of what is suggested where that is missing.
ChannelSource choose(const Candidate &chosen, const std::deque<float> &suggested, Scale scale,
                     bool wasThere, std::deque<float> &values)
{
    if (chosen.values == nullptr) {
        values = suggested;
        return wasThere ? ChannelSource::Replaced : ChannelSource::Computed;
    }
    const bool isAcceleration = scale == Scale::Accelerations;
    const double sign = chosen.agrees.correlation < 0 ? -1.0 : 1.0;
    const double factor = sign * (isAcceleration ? scaleOf(chosen.agrees.slope) : 1.0);
    // A logger that is mounted aslant shows a part of gravity all the time.
    const double tilt = isAcceleration && std::abs(chosen.agrees.offset * factor) > 0.05
                            ? chosen.agrees.offset
                            : 0.0;
    std::deque<float> made;
    for (std::size_t i = 0; i < suggested.size(); ++i) {
        const double recorded
            = i < chosen.values->size() ? static_cast<double>((*chosen.values)[i]) : NoValue;
        made.push_back(std::isnan(recorded) ? suggested[i]
                                            : static_cast<float>((recorded - tilt) * factor));
    }
    values = std::move(made);
    return sign < 0 ? ChannelSource::Turned : ChannelSource::Recorded;
}

bool hasValues(std::initializer_list<const GridChannel *> channels)
{
    return std::any_of(channels.begin(), channels.end(),
                       [](const GridChannel *channel) { return !channel->isEmpty(); });
}

void completeReadings(std::deque<float> &values, std::size_t count)
{
    if (values.empty())
        values.resize(count, 0.0F);
    float last = 0.0F;
    for (float &value : values) {
        if (std::isnan(value))
            value = last;
        last = value;
    }
}

} // namespace

RideSample ConvertedRide::sample(std::size_t i) const
{
    constexpr float NoPlace = std::numeric_limits<float>::max();
    const Place &place = frame.places()[i];
    RideSample sample;
    sample.milliseconds = static_cast<quint32>(100 * i);
    sample.longitude = place.isKnown() ? static_cast<float>(place.longitude) : NoPlace;
    sample.latitude = place.isKnown() ? static_cast<float>(place.latitude) : NoPlace;
    sample.speed = std::clamp(place.speed * 3.6F, 0.0F, 1000.0F);
    sample.lean = std::clamp(frame.lean.values()[i], -90.0F, 90.0F);
    sample.along = std::clamp(frame.along.values()[i], -10.0F, 10.0F);
    sample.across = std::clamp(frame.across.values()[i], -10.0F, 10.0F);
    return sample;
}

void completeRide(ConvertedRide &ride, bool isSpeedUnitUnknown)
{
    RideFrame &frame = ride.frame;
    ConversionReport &report = ride.report;
    report.speed = completeSpeed(frame.places(), isSpeedUnitUnknown);
    completeCourse(frame.places());
    const Suggested suggested = suggest(frame.places());
    const auto along = {&std::as_const(frame.along), &std::as_const(frame.axes[0]),
                        &std::as_const(frame.axes[1]), &std::as_const(frame.axes[2])};
    const auto across = {&std::as_const(frame.across), &std::as_const(frame.axes[0]),
                         &std::as_const(frame.axes[1]), &std::as_const(frame.axes[2])};
    const Candidate alongChosen = best(along, suggested.along, suggested.counts, AlongAgrees);
    const Candidate acrossChosen = best(across, suggested.across, suggested.counts, AcrossAgrees);
    const Candidate leanChosen
        = best({&std::as_const(frame.lean)}, suggested.lean, suggested.counts, AcrossAgrees);
    report.along = choose(alongChosen, suggested.along, Scale::Accelerations, hasValues(along),
                          frame.along.values());
    report.across = choose(acrossChosen, suggested.across, Scale::Accelerations, hasValues(across),
                           frame.across.values());
    report.lean = choose(leanChosen, suggested.lean, Scale::AsRecorded,
                         !std::as_const(frame.lean).isEmpty(), frame.lean.values());
    report.hasSuspension = !frame.front.isEmpty() || !frame.rear.isEmpty();
    if (report.hasSuspension) {
        completeReadings(frame.front.values(), 10 * frame.size() + 1);
        completeReadings(frame.rear.values(), 10 * frame.size() + 1);
    }
    for (GridChannel &axis : frame.axes)
        axis.values().clear();
}

} // namespace zuno
