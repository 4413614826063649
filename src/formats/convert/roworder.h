// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <deque>
#include <functional>
#include <vector>

#include <formats/rawride.h>

namespace zuno {

/// Puts rows into the order of their time and finds where one outing ends and the next begins.
///
/// Clocks of loggers go back by some milliseconds, and a damaged row has any time. So the latest
/// rows wait until nothing can come before them, and a row that is far from its neighbours counts
/// only when the rows after it go on from there.
class RowOrder
{
public:
    /// A pause of more than this many seconds separates two outings.
    static constexpr double LongestPause = 300.0;

    using Out = std::function<void(const RawRow &)>;
    using Pause = std::function<void()>;
    RowOrder(Out out, Pause pause);

    void take(const RawRow &row);
    /// Gives the rows that wait.
    void finish();
    /// Rows that were left out since their time was nonsense.
    [[nodiscard]] qint64 dropped() const { return m_dropped; }

private:
    void suspect(const RawRow &row);
    void insert(const RawRow &row);
    void flush();

    Out m_out;
    Pause m_pause;
    std::deque<RawRow> m_waiting;
    std::vector<RawRow> m_suspects;
    double m_latest = NoValue;
    double m_given = NoValue;
    qint64 m_dropped = 0;
};

} // namespace zuno
