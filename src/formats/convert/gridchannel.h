// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <deque>

#include <formats/text/cells.h>

namespace zuno {

/// A channel of a recording at even times, from values at any times.
///
/// Values are interpolated. Where four or more fall into the time of one, their mean stands: an
/// accelerometer that is read a hundred times a second trembles, and a single one of its values
/// says little about a tenth of a second.
class GridChannel
{
public:
    explicit GridChannel(double step) : m_step(step) {}

    /// Sets the time of value 0; what was taken before is forgotten but for the last value.
    void begin(double time);
    /// Takes a value, in the order of time; NoValue is none.
    void take(double time, double value);
    /// Makes @p count values of what came, the last ones held.
    void finish(std::size_t count);

    [[nodiscard]] bool isEmpty() const { return m_values.empty(); }
    [[nodiscard]] std::deque<float> &values() { return m_values; }
    [[nodiscard]] const std::deque<float> &values() const { return m_values; }

private:
    void addToMean(double time, double value);
    void closeMean();

    std::deque<float> m_values;
    double m_step;
    double m_begin = NoValue;
    double m_lastTime = NoValue;
    double m_lastValue = NoValue;
    double m_sum = 0.0;
    qint64 m_summed = 0;
    qint64 m_place = -1;
};

} // namespace zuno
