// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/proposal/lapsearch.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include <base/numbers.h>
#include <maps/proposal/ridepath.h>

namespace zuno {

namespace {

// Metres from place to place along the way from which returns are looked for; of a way that no
// recording of laps is as long as, so many places at most.
constexpr double LeastStride = 10.0;
constexpr double MostStrides = 200000.0;

double strideOf(const RidePath &ride)
{
    return std::max(LeastStride, ride.length() / MostStrides);
}

// Metres after which a return is one: less is a turn on the spot.
constexpr double LeastReturn = 100.0;

// A lap has so many metres at least, and is ridden at so many metres per second.
constexpr double LeastLap = 250.0;
constexpr double LeastMeanSpeed = 7.0;

// He who is slower is not riding.
constexpr double LeastSpeed = 5.0;

// So many places, one after the other or not, must have been passed again.
constexpr std::size_t LeastReturns = 6;

// By how much the lengths of laps may differ.
constexpr double Tolerance = 1.1;

// Metres within which one rides back on the same road, and the part of a lap that may be such.
constexpr double SameRoad = 8.0;
constexpr double MostRetraced = 0.4;

// How many lengths are tried.
constexpr int Attempts = 6;

// A place that was passed again: metres driven up to it, and from there to the next time.
struct Return
{
    double driven = 0.0;
    double length = 0.0;
};
using Returns = std::vector<Return>;

Returns returnsOf(const RidePath &ride)
{
    Returns returns;
    for (double driven = 0.0; driven < ride.length(); driven += strideOf(ride)) {
        const std::size_t node = ride.nodeAt(driven);
        if (ride.path()[node].heading.length() == 0.0 || ride.speedAt(node) < LeastSpeed)
            continue;
        const auto next = ride.nextReturn(node, LeastReturn);
        if (next && ride.speedAt(*next) >= LeastSpeed) {
            const double from = ride.path()[node].driven;
            returns.push_back({from, ride.path()[*next].driven - from});
        }
    }
    return returns;
}

// The returns of the most frequent length; in the order of the way.
Returns mostFrequent(Returns returns)
{
    const auto byLength = [](const Return &a, const Return &b) { return a.length < b.length; };
    std::sort(returns.begin(), returns.end(), byLength);
    std::size_t bestFirst = 0;
    std::size_t bestCount = 0;
    std::size_t end = 0;
    for (std::size_t first = 0; first < returns.size(); ++first) {
        while (end < returns.size() && returns[end].length <= Tolerance * returns[first].length)
            ++end;
        if (end - first > bestCount) {
            bestCount = end - first;
            bestFirst = first;
        }
    }
    const auto first = returns.begin() + static_cast<std::ptrdiff_t>(bestFirst);
    Returns chosen(first, first + static_cast<std::ptrdiff_t>(bestCount));
    std::sort(chosen.begin(), chosen.end(),
              [](const Return &a, const Return &b) { return a.driven < b.driven; });
    return chosen;
}

// How many places, and gaps, there are up to each stride of the way.
class Tally
{
public:
    Tally(const RidePath &ride, const Returns &returns)
        : m_stride(strideOf(ride))
        , m_counts(static_cast<std::size_t>(ride.length() / m_stride) + 2, 0.0)
    {
        std::vector<bool> isShared(m_counts.size(), false);
        for (const Return &place : returns) {
            isShared[indexOf(place.driven)] = true;
            isShared[indexOf(place.driven + place.length)] = true;
        }
        std::vector<double> gaps(m_counts.size(), 0.0);
        for (const PathNode &node : ride.path())
            gaps[indexOf(node.driven)] += node.afterGap ? GapWeight : 0.0;
        for (std::size_t i = 1; i < m_counts.size(); ++i)
            m_counts[i] = m_counts[i - 1] + (isShared[i - 1] ? 1.0 : 0.0) - gaps[i - 1];
    }

    // The part of a loop that others passed too; less with gaps.
    [[nodiscard]] double shared(const Return &loop) const
    {
        const std::size_t from = indexOf(loop.driven);
        const std::size_t to = indexOf(loop.driven + loop.length);
        return to > from ? (m_counts[to] - m_counts[from]) / static_cast<double>(to - from) : 0.0;
    }

private:
    // A gap counts as so many places that nobody else passed.
    static constexpr double GapWeight = 5.0;

    [[nodiscard]] std::size_t indexOf(double driven) const
    {
        return std::min(static_cast<std::size_t>(std::max(0.0, driven) / m_stride),
                        m_counts.size() - 1);
    }

    double m_stride;
    std::vector<double> m_counts;
};

bool isRetraced(const RidePath &ride, const Return &loop)
{
    int places = 0;
    int retraced = 0;
    const std::size_t from = ride.nodeAt(loop.driven);
    const std::size_t to = ride.nodeAt(loop.driven + loop.length);
    for (double driven = 0.0; driven < loop.length; driven += LeastStride) {
        const PathNode here = ride.at(loop.driven + driven);
        bool isBack = false;
        ride.visitCells(here.place, SameRoad, [&](const std::vector<std::size_t> &nodes) {
            const auto first = std::lower_bound(nodes.begin(), nodes.end(), from);
            const auto last = std::upper_bound(first, nodes.end(), to);
            isBack = isBack || std::any_of(first, last, [&](std::size_t node) {
                         const PathNode &there = ride.path()[node];
                         return there.heading * here.heading < -0.7
                                && (there.place - here.place).length() < SameRoad;
                     });
        });
        ++places;
        retraced += isBack ? 1 : 0;
    }
    return retraced > MostRetraced * places;
}

double meanSpeed(const RidePath &ride, const Return &loop)
{
    const double time = ride.at(loop.driven + loop.length).time - ride.at(loop.driven).time;
    return time > 0.0 ? loop.length * 1000.0 / time : 0.0;
}

// Of loops of about the same length the one to go by.
std::optional<Return> bestLoop(const RidePath &ride, const Returns &loops)
{
    const Tally tally(ride, loops);
    std::vector<double> lengths;
    for (const Return &loop : loops)
        lengths.push_back(loop.length);
    const double half = median(std::move(lengths));
    std::optional<Return> best;
    double bestWorth = -1e9;
    for (const Return &loop : loops) {
        if (meanSpeed(ride, loop) < LeastMeanSpeed)
            continue;
        const double worth = tally.shared(loop) - (0.5 * std::fabs(loop.length - half) / half);
        if (worth > bestWorth) {
            bestWorth = worth;
            best = loop;
        }
    }
    return best;
}

} // namespace

std::optional<RiddenLoop> findLoop(const RidePath &ride)
{
    Returns returns = returnsOf(ride);
    for (int attempt = 0; attempt < Attempts; ++attempt) {
        const Returns loops = mostFrequent(returns);
        if (loops.size() < LeastReturns)
            return {};
        const auto best = bestLoop(ride, loops);
        if (best && best->length >= LeastLap && !isRetraced(ride, *best))
            return RiddenLoop {best->driven, best->length};
        const auto [least, most]
            = std::minmax_element(loops.begin(), loops.end(), [](const Return &a, const Return &b) {
                  return a.length < b.length;
              });
        std::erase_if(returns, [least = least->length, most = most->length](const Return &place) {
            return place.length >= least && place.length <= most;
        });
    }
    return {};
}

} // namespace zuno
