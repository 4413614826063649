// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <vector>

#include <QStringList>

#include <insight/losses.h>

namespace zuno {

/// A stretch of time of a lap, seconds since its start.
struct LapStretch
{
    double from = 0.0;
    double to = 0.0;
};

/// km/h: at the start of a unit's first corner, the lowest in any of its corners, and at the end of
/// the last.
struct UnitSpeeds
{
    double entry = 0.0;
    double lowest = 0.0;
    double exit = 0.0;
};

/// What is told of one unit of a lap against another lap.
struct LossCard
{
    std::size_t unit = 0;
    /// What the unit is called: "4", "7-9", a corner's name.
    QString label;
    /// Metres after the line; units join.
    double from = 0.0;
    double to = 0.0;
    LapStretch lap;
    LapStretch reference;
    /// What the lap took longer, whole milliseconds; negative is a gain. Those of all units add up
    /// to the difference of the lap times.
    qint32 loss = 0;
    /// Seconds by the speeds alone.
    double bySpeed = 0.0;
    /// Whether the speeds say so too.
    bool isConfirmed = false;
    /// None in a unit without a corner, and where positions were missing in one of its corners.
    std::optional<UnitSpeeds> lapSpeeds;
    std::optional<UnitSpeeds> referenceSpeeds;
    /// Why, dearest first, as sentences in the language of the program; only of a confirmed loss.
    QStringList causes;

    /// Whether it is large enough, and sure enough, to be told as a loss.
    [[nodiscard]] bool isWorthTelling() const;
};

/// A lap against another, unit by unit in the order of the track.
struct LossCards
{
    std::vector<LossCard> units;
    /// Milliseconds: the sum of the units' losses, and what the lap took longer.
    qint32 total = 0;

    /// Indexes of the units that are worth telling, the largest first, three at most.
    [[nodiscard]] std::vector<std::size_t> largest() const;
};

/// All units of @p lap against @p reference, which may be of another session of the circuit; both
/// must be on the outline of @p circuit.
[[nodiscard]] LossCards lossCards(const RiddenLap &lap, const RiddenLap &reference,
                                  const CircuitCorners &circuit);

/// One loss, as of a session's list, with the two laps that it was found in.
[[nodiscard]] LossCard lossCard(const UnitLoss &loss, const RiddenLap &lap,
                                const RiddenLap &reference, const CircuitCorners &circuit);

/// The causes as sentences, with the corner's name where the unit has several.
[[nodiscard]] QStringList causeTexts(const UnitLoss &loss, const CircuitCorners &circuit);

} // namespace zuno
