// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/consistency.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

#include <base/processorstate.h>

namespace zuno {

namespace {

constexpr std::size_t SpreadLaps = 5;
constexpr std::size_t TrendLaps = 8;
constexpr std::size_t TwiceLaps = 7;
constexpr double Significance = 0.05;

// Metres from one place to the next at which a rolling lap may begin.
constexpr double RollingStep = 10.0;

// Between two of the sorted values where the part falls between them.
double quantile(const std::vector<double> &sorted, double part)
{
    const double position = part * static_cast<double>(sorted.size() - 1);
    const auto below = static_cast<std::size_t>(position);
    const std::size_t above = std::min(below + 1, sorted.size() - 1);
    return std::lerp(sorted[below], sorted[above], position - std::floor(position));
}

// Ranks from 1, the mean of them for values that are the same.
std::vector<double> ranksOf(std::span<const double> values)
{
    std::vector<double> ranks;
    for (const double value : values) {
        double below = 0.0;
        double same = 0.0;
        for (const double other : values) {
            below += other < value ? 1.0 : 0.0;
            same += other == value ? 1.0 : 0.0;
        }
        ranks.push_back(below + ((same + 1.0) / 2.0));
    }
    return ranks;
}

// The probability that Student's t with that many degrees of freedom lies farther from 0. The
// finite series for whole degrees: Abramowitz and Stegun, 26.7.3 and 26.7.4.
double beyond(double t, std::size_t degrees)
{
    const double angle = std::atan(std::fabs(t) / std::sqrt(static_cast<double>(degrees)));
    const double cosine = std::cos(angle);
    const bool isOdd = degrees % 2 == 1;
    double term = isOdd ? cosine : 1.0;
    double sum = degrees > 1 ? term : 0.0;
    for (std::size_t k = isOdd ? 3 : 2; k + 1 < degrees; k += 2) {
        const auto n = static_cast<double>(k);
        term *= cosine * cosine * (n - 1.0) / n;
        sum += term;
    }
    const double within = isOdd ? (angle + (std::sin(angle) * sum)) * 2.0 / std::numbers::pi
                                : std::sin(angle) * sum;
    return std::clamp(1.0 - within, 0.0, 1.0);
}

class SessionLaps
{
public:
    explicit SessionLaps(const SessionInsight &insight) : m_insight(insight)
    {
        for (const std::size_t i : insight.used)
            m_times.push_back(timesIn(insight.circuit.units, insight.laps[i].path));
    }

    [[nodiscard]] std::vector<UnitSpread> spreads() const
    {
        std::vector<UnitSpread> spreads;
        for (std::size_t unit = 0; unit < m_insight.circuit.units.size(); ++unit) {
            std::vector<double> times;
            for (const std::vector<qint32> &lap : m_times)
                times.push_back(static_cast<double>(lap[unit]) / 1000.0);
            std::sort(times.begin(), times.end());
            const double seconds = quantile(times, 0.75) - quantile(times, 0.25);
            spreads.push_back({unit, seconds, 100.0 * seconds / quantile(times, 0.5)});
        }
        std::stable_sort(
            spreads.begin(), spreads.end(),
            [](const UnitSpread &a, const UnitSpread &b) { return a.seconds > b.seconds; });
        return spreads;
    }

    // The lap times of each unit at @p rank, 0 being the best.
    [[nodiscard]] UnitIdeal ideal(std::size_t rank) const
    {
        UnitIdeal ideal;
        std::vector<std::size_t> order(m_times.size());
        for (std::size_t unit = 0; unit < m_insight.circuit.units.size(); ++unit) {
            std::iota(order.begin(), order.end(), std::size_t {0});
            std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
                return m_times[a][unit] < m_times[b][unit];
            });
            ideal.time += m_times[order[rank]][unit];
            ideal.laps.push_back(m_insight.laps[m_insight.used[order[rank]]].number);
        }
        return ideal;
    }

    [[nodiscard]] std::optional<RollingBest> rollingBest() const
    {
        std::optional<RollingBest> best;
        const auto offer = [&best](const RollingBest &rolling) {
            if (!best || rolling.time < best->time)
                best = rolling;
        };
        for (std::size_t i = 0; i < m_insight.used.size(); ++i) {
            const InsightLap &lap = m_insight.laps[m_insight.used[i]];
            offer({lap.path.duration(), lap.number, 0.0});
            if (i + 1 == m_insight.used.size())
                break;
            const InsightLap &next = m_insight.laps[m_insight.used[i + 1]];
            if (next.number != lap.number + 1)
                continue;
            for (double place = RollingStep; place < lap.path.length(); place += RollingStep) {
                const double begun = lap.path.duration() - lap.path.timeAt(place);
                offer({begun + next.path.timeAt(place), lap.number, place});
            }
        }
        return best;
    }

    [[nodiscard]] std::optional<Trend> trend() const
    {
        std::vector<double> times;
        for (const std::size_t i : m_insight.used)
            times.push_back(m_insight.laps[i].path.duration());
        const std::optional<Trend> trend = trendOf(times);
        return trend && trend->probability < Significance ? trend : std::nullopt;
    }

private:
    const SessionInsight &m_insight;
    // Milliseconds of each used lap in each unit.
    std::vector<std::vector<qint32>> m_times;
};

} // namespace

std::optional<Trend> trendOf(std::span<const double> values)
{
    if (values.size() < 3)
        return {};
    const std::vector<double> ranks = ranksOf(values);
    const auto count = static_cast<double>(values.size());
    const double middle = (count + 1.0) / 2.0;
    double xx = 0.0;
    double yy = 0.0;
    double xy = 0.0;
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        const double x = static_cast<double>(i) + 1.0 - middle;
        const double y = ranks[i] - middle;
        xx += x * x;
        yy += y * y;
        xy += x * y;
    }
    if (!(yy > 0.0))
        return {};
    Trend trend;
    trend.correlation = std::clamp(xy / std::sqrt(xx * yy), -1.0, 1.0);
    const double rest = 1.0 - (trend.correlation * trend.correlation);
    trend.probability = rest > 0.0 ? beyond(trend.correlation * std::sqrt((count - 2.0) / rest),
                                            values.size() - 2)
                                   : 0.0;
    return trend;
}

Consistency consistencyOf(const SessionInsight &insight)
{
    clearVectorRegisters();
    Consistency consistency;
    if (insight.used.empty())
        return consistency;
    const SessionLaps laps(insight);
    const std::size_t count = insight.used.size();
    if (count >= SpreadLaps)
        consistency.spreads = laps.spreads();
    if (count >= TrendLaps)
        consistency.trend = laps.trend();
    consistency.rollingBest = laps.rollingBest();
    consistency.ideal = laps.ideal(0);
    if (count >= TwiceLaps)
        consistency.twice = laps.ideal(1);
    return consistency;
}

} // namespace zuno
