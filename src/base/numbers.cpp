// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/numbers.h>

#include <algorithm>
#include <cmath>

namespace zuno {

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

double median(std::vector<double> values)
{
    if (values.empty())
        return 0.0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace zuno
