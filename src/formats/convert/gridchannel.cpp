// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/convert/gridchannel.h>

#include <algorithm>
#include <cmath>

#include <formats/convert/ridelimits.h>

namespace zuno {

namespace {

constexpr qint64 EnoughForMean = 4;
// Times that agree to a tenth of a millisecond are the same.
constexpr double SameTime = 1e-4;

} // namespace

void GridChannel::begin(double time)
{
    m_begin = time;
    m_values.clear();
    m_summed = 0;
    m_sum = 0;
    m_place = -1;
}

void GridChannel::closeMean()
{
    if (m_summed >= EnoughForMean && m_place >= 0 && m_place < std::ssize(m_values))
        m_values[static_cast<std::size_t>(m_place)]
            = static_cast<float>(m_sum / static_cast<double>(m_summed));
    m_summed = 0;
    m_sum = 0;
}

void GridChannel::addToMean(double time, double value)
{
    const auto place = static_cast<qint64>(std::floor((time - m_begin) / m_step + 0.5));
    if (place != m_place)
        closeMean();
    m_place = place;
    m_sum += value;
    ++m_summed;
}

void GridChannel::take(double time, double value)
{
    if (std::isnan(value))
        return;
    if (!std::isnan(m_begin)) {
        const double span = time - m_lastTime;
        double due = m_begin + m_step * static_cast<double>(m_values.size());
        while (due <= time + SameTime) {
            double filled = NoValue;
            if (time - due <= SameTime)
                filled = value;
            else if (span > 0 && span <= LongestBridge)
                filled = m_lastValue + (value - m_lastValue) * (due - m_lastTime) / span;
            m_values.push_back(static_cast<float>(filled));
            due = m_begin + m_step * static_cast<double>(m_values.size());
        }
        addToMean(time, value);
    }
    m_lastTime = time;
    m_lastValue = value;
}

void GridChannel::finish(std::size_t count)
{
    closeMean();
    // Nothing came, or nothing in time.
    if (m_values.empty())
        return;
    const double end = m_begin + m_step * static_cast<double>(count);
    const bool holds = end - m_lastTime < LongestBridge;
    m_values.resize(count, static_cast<float>(holds ? m_lastValue : NoValue));
}

} // namespace zuno
