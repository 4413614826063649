// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/convert/agreement.h>

#include <algorithm>
#include <cmath>

namespace zuno {

namespace {

constexpr double LeastPairs = 50;

} // namespace

Agreement agreement(const std::deque<float> &recorded, const std::deque<float> &suggested,
                    const std::deque<bool> &counts)
{
    double n = 0;
    double meanX = 0;
    double meanY = 0;
    double xx = 0;
    double yy = 0;
    double xy = 0;
    const std::size_t size = std::min({recorded.size(), suggested.size(), counts.size()});
    for (std::size_t i = 0; i < size; ++i) {
        const double x = static_cast<double>(suggested[i]);
        const double y = static_cast<double>(recorded[i]);
        if (!counts[i] || std::isnan(x) || std::isnan(y))
            continue;
        // Welford's way, which does not lose what is small beside a large mean.
        ++n;
        const double dx = x - meanX;
        const double dy = y - meanY;
        meanX += dx / n;
        meanY += dy / n;
        xx += dx * (x - meanX);
        yy += dy * (y - meanY);
        xy += dx * (y - meanY);
    }
    if (n < LeastPairs || !(xx / n > 1e-8) || !(yy / n > 1e-12))
        return {};
    const double slope = xy / xx;
    return {xy / std::sqrt(xx * yy), slope, meanY - slope * meanX};
}

} // namespace zuno
