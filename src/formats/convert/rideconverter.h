// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <formats/convert/convertedride.h>
#include <formats/convert/roworder.h>

namespace zuno {

/// Makes samples of the rows of a file, one outing after the other, while they are read.
///
/// What it keeps is the samples of the outing at hand; an outing of more than twelve hours is cut.
class RideConverter final : public RowSink
{
public:
    using Done = std::function<void(ConvertedRide &&)>;
    /// @p facts are those that the reader fills while it reads; @p done gets each outing that has
    /// at least a second.
    RideConverter(const RideFacts &facts, Done done);

    void take(const RawRow &row) override;
    [[nodiscard]] bool isCancelled() const override { return m_isCancelled && m_isCancelled(); }
    void setCancelled(std::function<bool()> isCancelled) { m_isCancelled = std::move(isCancelled); }
    /// Ends the last outing.
    void finish();

private:
    void takeOrdered(const RawRow &row);
    void takeFixes();
    void endOuting();
    void giveOuting();

    const RideFacts &m_facts;
    Done m_done;
    std::function<bool()> m_isCancelled;
    RowOrder m_order;
    PositionFilter m_filter;
    RideFrame m_frame;
    std::vector<Fix> m_fixes;
    Fix m_lastFix;
    double m_speed = NoValue;
    double m_course = NoValue;
    double m_movedAt = NoValue;
    double m_measuredSeconds = 0.0;
    qint64 m_steps = 0;
    qint64 m_gaps = 0;
    qint64 m_dropped = 0;
};

} // namespace zuno
