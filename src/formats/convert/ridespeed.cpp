// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/convert/ridespeed.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace zuno {

namespace {

constexpr double Moving = 3.0; // m/s

Fix fixOf(const Place &place)
{
    return {0, place.latitude, place.longitude};
}

// The places around sample i: the nearest known ones within a tenth of a second, or nothing.
struct Neighbours
{
    const Place *before = nullptr;
    const Place *after = nullptr;
    double seconds = 0.0;
};

Neighbours neighbours(const std::deque<Place> &places, std::size_t i)
{
    std::size_t first = i > 0 && places[i - 1].isKnown() ? i - 1 : i;
    std::size_t last = i + 1 < places.size() && places[i + 1].isKnown() ? i + 1 : i;
    if (first == last || !places[first].isKnown() || !places[last].isKnown())
        return {};
    return {&places[first], &places[last], SampleStep * static_cast<double>(last - first)};
}

double speedFromPositions(const std::deque<Place> &places, std::size_t i)
{
    const Neighbours around = neighbours(places, i);
    return around.before == nullptr
               ? NoValue
               : metresBetween(fixOf(*around.before), fixOf(*around.after)) / around.seconds;
}

// Holds or bridges what is missing.
void fillSpeeds(std::deque<Place> &places)
{
    std::size_t known = places.size();
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (std::isnan(places[i].speed))
            continue;
        const float from = known < places.size() ? places[known].speed : places[i].speed;
        const std::size_t begin = known < places.size() ? known + 1 : 0;
        for (std::size_t k = begin; k < i; ++k) {
            const float share
                = static_cast<float>(k - begin + 1) / static_cast<float>(i - begin + 1);
            places[k].speed = from + (places[i].speed - from) * share;
        }
        known = i;
    }
    const float last = known < places.size() ? places[known].speed : 0.0F;
    for (std::size_t k = known < places.size() ? known + 1 : 0; k < places.size(); ++k)
        places[k].speed = last;
}

// Metres by the positions for each metre by the speeds.
double pathRatio(const std::deque<Place> &places)
{
    double byPositions = 0;
    double bySpeed = 0;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const double computed = speedFromPositions(places, i);
        if (computed > Moving && !std::isnan(places[i].speed)) {
            byPositions += computed;
            bySpeed += static_cast<double>(places[i].speed);
        }
    }
    return bySpeed > 0 ? byPositions / bySpeed : 0;
}

double likeliestUnit(double ratio)
{
    constexpr std::array Units {1.0, 1 / 3.6, 0.44704, 1852 / 3600.0};
    return *std::min_element(Units.begin(), Units.end(), [ratio](double a, double b) {
        return std::abs(std::log(a / ratio)) < std::abs(std::log(b / ratio));
    });
}

void scaleSpeeds(std::deque<Place> &places, double factor)
{
    for (Place &place : places)
        place.speed = static_cast<float>(static_cast<double>(place.speed) * factor);
}

void computeSpeeds(std::deque<Place> &places)
{
    std::vector<float> speeds;
    speeds.reserve(places.size());
    for (std::size_t i = 0; i < places.size(); ++i)
        speeds.push_back(static_cast<float>(speedFromPositions(places, i)));
    for (std::size_t i = 0; i < places.size(); ++i)
        places[i].speed = speeds[i];
    fillSpeeds(places);
}

double courseFromPositions(const std::deque<Place> &places, std::size_t i)
{
    const Neighbours around = neighbours(places, i);
    if (around.before == nullptr)
        return NoValue;
    const double north = around.after->latitude - around.before->latitude;
    const double east = longitudeStep(around.before->longitude, around.after->longitude)
                        * std::cos(around.before->latitude * RadiansPerDegree);
    const double metres = std::hypot(north, east) * MetresPerDegree;
    return metres < Moving * around.seconds ? NoValue : std::atan2(east, north) / RadiansPerDegree;
}

// Whether the receiver's courses are there and point where the motorcycle goes.
bool areCoursesGood(const std::deque<Place> &places)
{
    double moving = 0;
    double known = 0;
    double off = 0;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const double computed = courseFromPositions(places, i);
        if (std::isnan(computed))
            continue;
        ++moving;
        if (std::isnan(places[i].course))
            continue;
        ++known;
        off += std::abs(std::remainder(static_cast<double>(places[i].course) - computed, 360.0));
    }
    return known > moving / 2 && off / known < 20;
}

} // namespace

ChannelSource completeSpeed(std::deque<Place> &places, bool isUnitUnknown)
{
    const auto known = std::count_if(places.begin(), places.end(),
                                     [](const Place &place) { return !std::isnan(place.speed); });
    if (2 * known < std::ssize(places)) {
        computeSpeeds(places);
        return ChannelSource::Computed;
    }
    const double ratio = pathRatio(places);
    if (isUnitUnknown && ratio > 0)
        scaleSpeeds(places, likeliestUnit(ratio));
    const double rest = pathRatio(places);
    const bool hasMoved = std::any_of(places.begin(), places.end(), [](const Place &place) {
        return static_cast<double>(place.speed) > Moving;
    });
    // A speed that stands still while the positions go on is none.
    if ((hasMoved && (rest > 2.5 || (rest > 0 && rest < 0.4))) || (!hasMoved && rest > 2.5)) {
        computeSpeeds(places);
        return ChannelSource::Replaced;
    }
    fillSpeeds(places);
    return ChannelSource::Recorded;
}

void completeCourse(std::deque<Place> &places)
{
    const bool keep = areCoursesGood(places);
    float last = 0.0F;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const bool isSlow = static_cast<double>(places[i].speed) < Moving;
        if (!keep || std::isnan(places[i].course) || isSlow) {
            const double computed = isSlow ? NoValue : courseFromPositions(places, i);
            places[i].course = std::isnan(computed) ? last : static_cast<float>(computed);
        }
        last = places[i].course;
    }
}

} // namespace zuno
