// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include <QList>
#include <QString>

#include <insight/laponoutline.h>
#include <insight/units.h>

namespace zuno {

/// What makes a lap unlike the others. Such laps are left out of insight only; the rider may throw
/// them out of the session.
enum class LapFlagKind { FromPits, IntoPits, Stopped, Slow, PositionsOff, Gap, HeldUp };

struct LapFlag
{
    LapFlagKind kind = LapFlagKind::Slow;
    /// How much slower than the quicker laps, in whole per cent; only of a slow lap.
    int percent = 0;

    friend bool operator==(const LapFlag &, const LapFlag &) = default;
};

using LapFlags = QList<LapFlag>;

/// The flags of all laps of a session that go from line to line, each in the order of the kinds.
/// @p segments are those of the circuit.
[[nodiscard]] std::vector<LapFlags> flagLaps(std::span<const LapOnOutline *const> laps,
                                             const TrackParts &segments);

/// "from the pits", "slow +8 %", in the language of the program.
[[nodiscard]] QString flagText(const LapFlag &flag);

} // namespace zuno
