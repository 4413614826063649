// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <limits>
#include <vector>

#include <QtGlobal>

namespace zuno {

/// @p value truncated toward zero; -2147483648 for NaN and for what a signed 32-bit integer
/// cannot hold.
[[nodiscard]] inline qint32 truncatedToInt(double value)
{
    // The comparisons are false for NaN.
    if (value > -2147483649.0 && value < 2147483648.0)
        return static_cast<qint32>(value);
    return std::numeric_limits<qint32>::min();
}

/// @p value rounded to the nearest integer, halves away from zero; -2147483648 for NaN and for
/// what a signed 32-bit integer cannot hold.
[[nodiscard]] inline qint32 roundedToInt(double value)
{
    const qint32 truncated = truncatedToInt(value);
    // Exact: a double and its integer part differ by a double. Several times faster than
    // std::round, and every sample of a lap is rounded.
    const double rest = value - static_cast<double>(truncated);
    if (rest >= 0.5 && rest < 1.0)
        return truncatedToInt(static_cast<double>(truncated) + 1.0);
    if (rest <= -0.5 && rest > -1.0)
        return truncatedToInt(static_cast<double>(truncated) - 1.0);
    return truncated;
}

/// A time stamp in whole milliseconds from a computed one: truncated toward zero, counted modulo
/// 2^32 as the logger's counter does; 0 when @p value is not finite.
[[nodiscard]] quint32 stampFromFloat(float value);

/// a + b and a - b, wrapping around at 32 bits.
[[nodiscard]] constexpr qint32 wrappedSum(qint32 a, qint32 b)
{
    return static_cast<qint32>(static_cast<quint32>(a) + static_cast<quint32>(b));
}
[[nodiscard]] constexpr qint32 wrappedDifference(quint32 a, quint32 b)
{
    return static_cast<qint32>(a - b);
}

/// The middle one of the sorted values, the upper one of two; 0 without any.
[[nodiscard]] double median(std::vector<double> values);

} // namespace zuno
