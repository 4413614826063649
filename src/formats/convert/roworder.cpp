// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/convert/roworder.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace zuno {

namespace {

// Clocks were seen to go back by 12 ms; a second is no trembling any more.
constexpr double LargestStepBack = 1.0;
// So many rows in a row prove another time.
constexpr std::size_t Proof = 3;
constexpr double ProofStep = 10.0;
constexpr std::size_t MostWaiting = 16;

} // namespace

RowOrder::RowOrder(Out out, Pause pause) : m_out(std::move(out)), m_pause(std::move(pause)) {}

void RowOrder::take(const RawRow &row)
{
    if (std::isnan(row.time)) {
        ++m_dropped;
        return;
    }
    const double step = row.time - m_latest;
    if (step > LongestPause || step < -LargestStepBack) {
        suspect(row);
        return;
    }
    m_dropped += std::ssize(m_suspects);
    m_suspects.clear();
    insert(row);
}

void RowOrder::suspect(const RawRow &row)
{
    const double step = m_suspects.empty() ? 0.0 : row.time - m_suspects.back().time;
    if (step < -LargestStepBack || step > ProofStep) {
        m_dropped += std::ssize(m_suspects);
        m_suspects.clear();
    }
    m_suspects.push_back(row);
    if (m_suspects.size() < Proof)
        return;
    flush();
    m_pause();
    m_latest = m_given = NoValue;
    for (const RawRow &proven : std::exchange(m_suspects, {}))
        insert(proven);
}

void RowOrder::insert(const RawRow &row)
{
    if (row.time < m_given) {
        ++m_dropped;
        return;
    }
    const auto place
        = std::upper_bound(m_waiting.begin(), m_waiting.end(), row,
                           [](const RawRow &a, const RawRow &b) { return a.time < b.time; });
    m_waiting.insert(place, row);
    m_latest = m_waiting.back().time;
    if (m_waiting.size() > MostWaiting) {
        m_given = m_waiting.front().time;
        m_out(m_waiting.front());
        m_waiting.pop_front();
    }
}

void RowOrder::flush()
{
    for (const RawRow &row : m_waiting)
        m_out(row);
    m_waiting.clear();
}

void RowOrder::finish()
{
    m_dropped += std::ssize(m_suspects);
    m_suspects.clear();
    flush();
}

} // namespace zuno
