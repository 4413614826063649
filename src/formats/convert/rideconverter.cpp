// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/convert/rideconverter.h>

#include <cmath>
#include <utility>

namespace zuno {

namespace {

// Samples: twelve hours, which take 70 MB at most, suspension included.
constexpr std::size_t LongestOuting = 432000;
constexpr std::size_t ShortestOuting = 10;
// A speed that came with a neighbouring row is as good as one of the position's own row.
constexpr double Neighbouring = 0.3;

} // namespace

RideConverter::RideConverter(const RideFacts &facts, Done done)
    : m_facts(facts)
    , m_done(std::move(done))
    , m_order([this](const RawRow &row) { takeOrdered(row); }, [this] { endOuting(); })
{
}

void RideConverter::take(const RawRow &row)
{
    m_order.take(row);
}

void RideConverter::takeOrdered(const RawRow &row)
{
    if (!std::isnan(row.speed)) {
        m_speed = row.speed;
        m_course = row.course;
        m_movedAt = row.time;
    }
    Fix fix {row.time, row.latitude, row.longitude, row.speed, row.course};
    if (std::isnan(fix.speed) && std::abs(row.time - m_movedAt) < Neighbouring) {
        fix.speed = m_speed;
        if (std::isnan(fix.course))
            fix.course = m_course;
    }
    m_filter.take(fix, row.isFresh, m_fixes);
    if (m_filter.hasBeenWrong())
        m_frame.clear();
    takeFixes();
    m_frame.takeChannels(row);
}

void RideConverter::takeFixes()
{
    for (const Fix &fix : m_fixes) {
        const double step = fix.time - m_lastFix.time;
        // A receiver that was silent for so long begins anew, whatever else was recorded.
        if (!m_frame.isEmpty() && step > RowOrder::LongestPause)
            giveOuting();
        if (!m_frame.isEmpty() && step > LongestBridge) {
            ++m_gaps;
        } else if (!m_frame.isEmpty()) {
            m_measuredSeconds += step;
            ++m_steps;
        }
        m_frame.take(fix);
        m_lastFix = fix;
    }
    m_fixes.clear();
    if (m_frame.size() >= LongestOuting)
        endOuting();
}

void RideConverter::endOuting()
{
    m_filter.finish(m_fixes);
    for (const Fix &fix : m_fixes)
        m_frame.take(fix);
    m_fixes.clear();
    giveOuting();
    m_filter = {};
}

void RideConverter::giveOuting()
{
    m_frame.finish();
    ConvertedRide ride;
    ride.frame = std::exchange(m_frame, {});
    ride.report.positions = m_filter.counts();
    ride.report.droppedRows = m_order.dropped() - std::exchange(m_dropped, m_order.dropped());
    ride.report.gaps = std::exchange(m_gaps, 0);
    const double seconds = std::exchange(m_measuredSeconds, 0.0);
    const auto steps = static_cast<double>(std::exchange(m_steps, 0));
    ride.report.rate = seconds > 0 ? steps / seconds : 0.0;
    if (ride.size() < ShortestOuting)
        return;
    completeRide(ride, m_facts.isSpeedUnitUnknown);
    m_done(std::move(ride));
}

void RideConverter::finish()
{
    m_order.finish();
    endOuting();
}

} // namespace zuno
