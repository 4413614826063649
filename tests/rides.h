// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <QString>

#include <base/plane.h>
#include <maps/check/mapwarning.h>
#include <session/recording/pointacquisition.h>

namespace zuno::test {

/// A closed way around the origin of all rides, a place for each metre.
using Places = std::vector<PlaneVector>;

/// The track of a name: kart, mini, oval, circle, bends (no straights), lane (with a way there and
/// back), twins (straights side by side), eight, short, large, snake; shuttle is a road, ridden
/// there and back.
[[nodiscard]] const Places &trackOf(const QString &name);

/// A ride in words: "large 0.6-2.9 every 1000" is from 0.6 to 2.9 laps, a sample each 1000 ms;
/// "-large" is the other way round, and "then" goes on with another ride. Known are
///   every 200       milliseconds from sample to sample, usually 100
///   off 3           metres to both sides of the middle between which he rides, usually 2
///   drift 1.5       about how many metres the positions wander
///   pit -18         a pit lane, so many metres to the left, where the ride begins and ends
/// and between counts of laps, or with ~ between parts of every lap,
///   box 3.0-3.1     in the pit lane
///   slow ~0.1-0.2/0.3   at that part of the usual speed
///   wide 2.3-2.5/30     so many metres to the left
///   lost 2.1-2.4    without positions; "zero" with those of nowhere
///   far 1.2-1.5/400     so many metres to the north of where he is
///   clock 0.3-1.9   time stamps of half a second ago
[[nodiscard]] Points ridden(const QString &text);

/// "; Missed 0 #2 #3; Touch -1+0": what, at which gate, in which laps.
[[nodiscard]] QString shortText(const QList<MapWarning> &warnings);

} // namespace zuno::test
