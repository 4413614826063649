// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <QList>
#include <QString>

#include <insight/figures.h>

namespace zuno {

/// What a lap did otherwise than the one that was quicker.
enum class CauseKind {
    ArrivesSlower,
    BrakesEarlier,
    SlowerInto,
    SlowerLowest,
    SlowerExit,
    SlowerBefore,
    SlowerIn,
    SlowerAfter,
};

/// One reason for a loss.
struct Cause
{
    CauseKind kind = CauseKind::SlowerIn;
    /// An index into the circuit's corners.
    std::size_t corner = 0;
    /// km/h; metres of BrakesEarlier.
    double amount = 0.0;
    /// With SlowerExit: by how many metres later somebody accelerated.
    std::optional<double> gasLater;
};

using Causes = QList<Cause>;

/// The figures of each corner of a circuit in a lap.
using LapFigures = std::vector<std::optional<CornerFigures>>;

/// A lap with its figures.
struct RiddenLap
{
    const LapOnOutline &path;
    const LapFigures &figures;
};

/// Why @p slow lost against @p good in @p unit, @p bySpeed seconds by the speeds alone: the part of
/// a corner (the way to it, the corner, the way after it) that cost most by the speeds, and the
/// next if it cost a quarter of that.
[[nodiscard]] Causes causesOf(const RiddenLap &slow, const RiddenLap &good, const TrackPart &unit,
                              double bySpeed, const Corners &corners, const TrackParts &segments);

/// A cause as a sentence in the language of the program. @p label names the corner, where the unit
/// has several; empty where it need not be said.
[[nodiscard]] QString causeText(const Cause &cause, const QString &label);

} // namespace zuno
