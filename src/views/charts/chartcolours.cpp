// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/chartcolours.h>

#include <algorithm>
#include <cmath>

#include <theme/themes.h>
#include <views/charts/chartaxis.h>

namespace zuno {

namespace {

constexpr double Reach = 15.0;
constexpr double RateLength = 100.0;
// So many shades, so that neighbours share one and are drawn in one go.
constexpr double Shades = 8.0;

} // namespace

std::vector<double> lossRates(const std::vector<double> &metres, const std::vector<double> &gaps)
{
    std::vector<double> rates;
    rates.reserve(metres.size());
    for (const double here : metres) {
        const double from = std::max(here - Reach, metres.front());
        const double to = std::min(here + Reach, metres.back());
        const double before = valueAtPosition(gaps, positionAmong(metres, from));
        const double after = valueAtPosition(gaps, positionAmong(metres, to));
        rates.push_back((after - before) / (to - from) * RateLength);
    }
    return rates;
}

QColor blended(const QColor &from, const QColor &to, double part)
{
    const auto mix
        = [part](int a, int b) { return static_cast<int>(std::lround(a + (part * (b - a)))); };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

QColor rateColour(double rate, const QColor &neutral)
{
    if (!(std::abs(rate) >= NoiseRate))
        return neutral;
    const double part = std::min(std::abs(rate) / FullRate, 1.0);
    return blended(neutral, theme().colour(rate > 0 ? Colour::Loss : Colour::Gain),
                   std::ceil(part * Shades) / Shades);
}

} // namespace zuno
