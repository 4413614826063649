// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/import/lapgate.h>

#include <algorithm>
#include <cmath>

namespace zuno {

namespace {

constexpr double SamePlace = 30.0; // metres
constexpr std::size_t MostMarks = 500;

std::vector<Fix> placesAt(const std::vector<double> &times, const RideFrame &frame)
{
    std::vector<Fix> places;
    for (const double time : times) {
        const double at = (time - frame.begin()) / SampleStep;
        if (!(at >= 0 && at < static_cast<double>(frame.size()) - 1) || places.size() >= MostMarks)
            continue;
        const auto i = static_cast<std::size_t>(at);
        const Place &a = frame.places()[i];
        const Place &b = frame.places()[i + 1];
        const double share = at - std::floor(at);
        if (a.isKnown() && b.isKnown())
            places.push_back({time, a.latitude + (b.latitude - a.latitude) * share,
                              a.longitude + longitudeStep(a.longitude, b.longitude) * share});
    }
    return places;
}

// A mark that was set by hand in the paddock is far from the others.
Fix mostCommon(const std::vector<Fix> &places)
{
    const auto neighbours = [&places](const Fix &place) {
        return std::count_if(places.begin(), places.end(), [&place](const Fix &other) {
            return metresBetween(place, other) < SamePlace;
        });
    };
    const Fix centre
        = *std::max_element(places.begin(), places.end(), [&](const Fix &a, const Fix &b) {
              return neighbours(a) < neighbours(b);
          });
    Fix mean {0, 0, 0};
    double count = 0;
    for (const Fix &place : places) {
        if (metresBetween(place, centre) < SamePlace) {
            mean.latitude += place.latitude - centre.latitude;
            mean.longitude += longitudeStep(centre.longitude, place.longitude);
            ++count;
        }
    }
    return {0, centre.latitude + mean.latitude / count, centre.longitude + mean.longitude / count};
}

} // namespace

std::vector<RideGate> gatesOf(const RideFacts &facts, const RideFrame &frame)
{
    std::vector<RideGate> gates = facts.gates;
    const bool hasStart = std::any_of(gates.begin(), gates.end(),
                                      [](const RideGate &gate) { return gate.isStart; });
    if (hasStart)
        return gates;
    const std::vector<Fix> places = placesAt(facts.lapMarks, frame);
    if (places.empty())
        return gates;
    const Fix place = mostCommon(places);
    const QGeoCoordinate start(place.latitude, place.longitude);
    gates.push_back({QStringLiteral("Start"), start, start, true, false});
    return gates;
}

} // namespace zuno
