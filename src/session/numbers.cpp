// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/numbers.h>

#include <cmath>
#include <limits>

namespace zuno {

qint32 truncatedToInt(double value)
{
    // The comparisons are false for NaN.
    if (value > -2147483649.0 && value < 2147483648.0)
        return static_cast<qint32>(value);
    return std::numeric_limits<qint32>::min();
}

qint32 roundedToInt(double value)
{
    return truncatedToInt(std::round(value));
}

quint32 stampFromFloat(float value)
{
    if (!std::isfinite(value))
        return 0;
    constexpr double Modulus = 4294967296.0;
    double stamp = std::fmod(std::trunc(static_cast<double>(value)), Modulus);
    if (stamp < 0.0)
        stamp += Modulus;
    return static_cast<quint32>(stamp);
}

} // namespace zuno
