// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <memory>
#include <span>
#include <vector>

#include <QList>

#include <session/laps/lap.h>

namespace zuno {

class Map;

using LapList = std::vector<std::unique_ptr<Lap>>;

/// What the laps of a recording come to.
struct LapResults
{
    /// The time of a sector that nobody rode, milliseconds.
    static constexpr qint32 NoTime = 10000000;

    LapResults();

    LapList laps;
    /// Whole metres: the distances from sample to sample, each truncated.
    qint32 distance = 0;
    /// An index into laps.
    qint32 bestLap = 0;
    /// Milliseconds: one less than the sum of the best sector times; -1 without any.
    qint32 idealTime = -1;
    /// For each sector the best time in milliseconds (NoTime without one) and the index of its
    /// lap (-1 without one).
    std::array<qint32, MaximumSectors> bestSectorTimes {};
    std::array<qint32, MaximumSectors> bestSectorLaps {};
};

/// Cuts samples into laps at the start/finish line of @p map, with all figures, marks and records.
/// @p invalid are the numbers of the laps thrown out. No laps without a pass over the line or with
/// a map that is of no use.
[[nodiscard]] LapResults cutIntoLaps(std::span<const PointAcquisition> samples, const Map &map,
                                     const QList<quint8> &invalid);

/// Computes cumulated times, best lap, best sectors and ideal time from the laps and their flags.
/// @p map gives the number of sectors. Laps shorter than a tenth of the map's length, or of a time
/// of 0 or less, take no part.
void rankLaps(LapResults &results, const Map *map);

} // namespace zuno
