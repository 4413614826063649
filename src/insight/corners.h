// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <QString>

#include <insight/cornerruns.h>

namespace zuno {

/// One corner of a circuit. Places are metres after the start/finish line in riding order; those of
/// a corner that runs through the line lie below 0 or beyond the circuit's length.
struct Corner
{
    /// Counts from 1 in the order of the middles. The official numbers of a circuit also count
    /// bends that nobody leans for.
    int number = 0;
    /// What the rider calls it; empty when nothing.
    QString name;
    bool isRight = false;
    /// Where 10, 50 and 90 % of the angle are turned: far steadier from lap to lap than the place
    /// where it turns most. The middle lies on the circuit: from 0 to less than its length.
    double start = 0.0;
    double middle = 0.0;
    double end = 0.0;
    /// Degrees.
    double angle = 0.0;
    /// Metres, where it turns most.
    double radius = 0.0;
    /// Where the way to it begins: the place after the corner before at which a rider who brakes
    /// softly is fastest. May lie below 0.
    double boundary = 0.0;

    /// The name, or the number.
    [[nodiscard]] QString label() const;
};

using Corners = std::vector<Corner>;

/// The corners of these runs, numbered, with their boundaries.
[[nodiscard]] Corners cornersOf(const CornerRuns &runs, const CircuitShape &shape);

} // namespace zuno
