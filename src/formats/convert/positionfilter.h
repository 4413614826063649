// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <formats/rawride.h>

namespace zuno {

/// A measured place.
struct Fix
{
    double time = 0.0;
    double latitude = NoValue;
    double longitude = NoValue;
    double speed = NoValue;
    double course = NoValue;
    /// Nobody can have ridden here from the fix before; the way between them is not known.
    bool isApart = false;
};

/// The difference of two longitudes, the short way around; degrees.
[[nodiscard]] double longitudeStep(double from, double to);
/// Metres between two places that are near each other.
[[nodiscard]] double metresBetween(const Fix &a, const Fix &b);

/// Lets through what a receiver measured, once: no positions held between two measurements, no
/// place at (0, 0), none that nobody can have ridden to.
class PositionFilter
{
public:
    struct Counts
    {
        qint64 jumps = 0;
        qint64 repeats = 0;
        qint64 zeros = 0;
        qint64 fixes = 0;
    };

    /// Takes the position of a row, in the order of time, and adds what is certain now to @p fixes.
    void take(const Fix &fix, bool isFresh, std::vector<Fix> &fixes);
    /// Adds what was waiting.
    void finish(std::vector<Fix> &fixes);
    /// Whether what was let through so far is worth nothing: a wrong place from before the receiver
    /// knew where it was. Asked after take(), it is said once.
    [[nodiscard]] bool hasBeenWrong();
    [[nodiscard]] const Counts &counts() const { return m_counts; }

private:
    [[nodiscard]] bool isRepeat(const Fix &fix, std::vector<Fix> &fixes);
    [[nodiscard]] bool isReachable(const Fix &from, const Fix &to) const;
    void suspect(const Fix &fix, std::vector<Fix> &fixes);
    void accept(const Fix &fix, std::vector<Fix> &fixes);

    Fix m_last;
    Fix m_held;
    std::vector<Fix> m_suspects;
    Counts m_counts;
    double m_since = 0.0;
    bool m_hasLast = false;
    bool m_isHeld = false;
    bool m_wasWrong = false;
};

} // namespace zuno
