// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>
#include <optional>
#include <span>
#include <vector>

#include <insight/lapflags.h>
#include <insight/losses.h>
#include <session/laps/lapcutter.h>

namespace zuno {

class Map;

/// One lap of a session that goes from line to line.
struct InsightLap
{
    qint32 number = 0;
    /// Whether the rider has not thrown it out.
    bool isValid = true;
    LapFlags flags;
    LapOnOutline path;
    LapFigures figures;

    /// Whether losses and consistency are taken from it.
    [[nodiscard]] bool isUsed() const { return isValid && flags.isEmpty(); }
    [[nodiscard]] RiddenLap ridden() const { return {path, figures}; }
};

/// Why a session tells nothing of its corners.
enum class InsightLack { None, NoCorners, NoCompleteLap, OutlineOff, RateTooLow };

/// Everything that a session tells about where its time is.
struct SessionInsight
{
    InsightLack lack = InsightLack::None;
    /// Empty when something lacks.
    CircuitCorners circuit;
    /// Hz.
    double rate = 0.0;
    /// All complete laps, in order.
    std::vector<InsightLap> laps;
    /// Indexes into laps of those that are used.
    std::vector<std::size_t> used;
    /// The quickest of those; of all laps, when none is used.
    std::optional<std::size_t> best;
    /// Where the usual lap loses; indexes are those of laps.
    std::vector<ListedLoss> list;

    [[nodiscard]] bool hasEnoughLaps() const { return used.size() >= LeastListLaps; }
    /// The lap with that number; nullptr without one.
    [[nodiscard]] const InsightLap *lap(qint32 number) const;
    /// The root mean square of the distances beside the outline, metres; the median of the laps.
    [[nodiscard]] double roughness() const;
    /// The error of the receiver, metres east and north, each the median of the laps.
    [[nodiscard]] PlaneVector offset() const;
};

/// Which way a lap goes around the map's outline.
[[nodiscard]] CircuitRing::Way wayAround(const Map &map, const Lap &lap);

/// A lap of a session on a circuit; @p samples are the session's, smoothed.
[[nodiscard]] LapOnOutline putOnOutline(const CircuitRing &ring,
                                        std::span<const PointAcquisition> samples, const Lap &lap);

/// Metres, east and north, by which the second lap's positions have to be shifted to lie as far
/// beside the track as the first one's (LapGap); none where the error of either is not known.
[[nodiscard]] PlaneVector shiftBetween(const LapOnOutline &first, const LapOnOutline &second);

/// The figures of each corner in a lap.
[[nodiscard]] LapFigures allFigures(const LapOnOutline &path, const CircuitCorners &circuit,
                                    const FigureValidity &validity);

/// What a session tells: @p samples are all of it, smoothed, @p laps what they were cut into.
[[nodiscard]] SessionInsight sessionInsight(CircuitCorners circuit,
                                            std::span<const PointAcquisition> samples,
                                            const LapList &laps);

/// The same on the map that the laps were cut with, whichever way they go around it.
[[nodiscard]] SessionInsight insightOf(const Map &map, const CornerEdits &edits,
                                       std::span<const PointAcquisition> samples,
                                       const LapList &laps);

} // namespace zuno
