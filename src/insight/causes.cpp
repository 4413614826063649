// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/causes.h>

#include <algorithm>
#include <cmath>

namespace zuno {

namespace {

constexpr double KmhPerMs = 3.6;

// Parts that cost this much of the loss by speed are worth a word.
constexpr double SecondPart = 0.25;

// km/h that are worth a word, and metres: more than the noise, less than another kind of riding.
constexpr double LeastSlower = 4.0;
constexpr double LeastSlowerInCorner = 2.0;
constexpr double MostFasterArrival = 2.0;
constexpr double LeastEarlier = 5.0;
constexpr double LeastLater = 8.0;
constexpr double MostMetres = 100.0;

constexpr double Step = 2.0;

enum class Where { Line, Before, In, After };

// A part of a corner's segment, and what it cost.
struct Part
{
    std::size_t corner = 0;
    Where where = Where::In;
    double from = 0.0;
    double to = 0.0;
    double loss = 0.0;
};

class CauseFinder
{
public:
    CauseFinder(const RiddenLap &slow, const RiddenLap &good) : m_slow(slow), m_good(good) {}

    void add(std::size_t corner, Where where, double from, double to)
    {
        Part part {corner, where, from, to, 0.0};
        part.loss = m_slow.path.timeBySpeed(from, to) - m_good.path.timeBySpeed(from, to);
        m_parts.push_back(part);
    }

    [[nodiscard]] Causes causes(double bySpeed)
    {
        std::stable_sort(m_parts.begin(), m_parts.end(),
                         [](const Part &a, const Part &b) { return a.loss > b.loss; });
        Causes found;
        for (std::size_t i = 0; i < std::min<std::size_t>(m_parts.size(), 2); ++i) {
            const Part &part = m_parts[i];
            if (part.loss > 0.0 && (i == 0 || part.loss >= SecondPart * bySpeed))
                found.append(causeIn(part));
        }
        return found;
    }

private:
    [[nodiscard]] Cause causeIn(const Part &part) const
    {
        const std::optional<CornerFigures> &slow = m_slow.figures[part.corner];
        const std::optional<CornerFigures> &good = m_good.figures[part.corner];
        std::optional<Cause> cause;
        if (slow && good) {
            cause = part.where == Where::Line     ? std::nullopt
                    : part.where == Where::Before ? before(*slow, *good)
                    : part.where == Where::In     ? inside(*slow, *good)
                                                  : after(*slow, *good);
        }
        if (!cause)
            cause = Cause {kindOf(part.where), 0, mostSlower(part), {}};
        cause->corner = part.corner;
        return *cause;
    }

    static std::optional<Cause> before(const CornerFigures &slow, const CornerFigures &good)
    {
        const double arrival = good.arrivalSpeed - slow.arrivalSpeed;
        if (arrival >= LeastSlower)
            return Cause {CauseKind::ArrivesSlower, 0, arrival, {}};
        if (slow.brakingPoint && good.brakingPoint && arrival >= -MostFasterArrival) {
            const double earlier = *slow.brakingPoint - *good.brakingPoint;
            if (earlier >= LeastEarlier && earlier <= MostMetres)
                return Cause {CauseKind::BrakesEarlier, 0, earlier, {}};
        }
        const double into = good.entrySpeed - slow.entrySpeed;
        if (into >= LeastSlower)
            return Cause {CauseKind::SlowerInto, 0, into, {}};
        return {};
    }

    static std::optional<Cause> inside(const CornerFigures &slow, const CornerFigures &good)
    {
        const double slower = good.lowestSpeed - slow.lowestSpeed;
        if (slower < LeastSlowerInCorner)
            return {};
        return Cause {CauseKind::SlowerLowest, 0, slower, {}};
    }

    static std::optional<Cause> after(const CornerFigures &slow, const CornerFigures &good)
    {
        const double slower = good.exitSpeed - slow.exitSpeed;
        if (slower < LeastSlowerInCorner)
            return {};
        Cause cause {CauseKind::SlowerExit, 0, slower, {}};
        if (slow.gasPoint && good.gasPoint) {
            const double later = *slow.gasPoint - *good.gasPoint;
            if (later >= LeastLater && later <= MostMetres)
                cause.gasLater = later;
        }
        return cause;
    }

    static CauseKind kindOf(Where where)
    {
        return where == Where::In      ? CauseKind::SlowerIn
               : where == Where::After ? CauseKind::SlowerAfter
                                       : CauseKind::SlowerBefore;
    }

    // km/h, the largest difference of a part.
    [[nodiscard]] double mostSlower(const Part &part) const
    {
        double most = 0.0;
        for (double place = part.from; place <= part.to; place += Step) {
            const double slower = m_good.path.speedAtPlace(place) - m_slow.path.speedAtPlace(place);
            most = std::max(most, slower * KmhPerMs);
        }
        return most;
    }

    const RiddenLap &m_slow;
    const RiddenLap &m_good;
    std::vector<Part> m_parts;
};

} // namespace

Causes causesOf(const RiddenLap &slow, const RiddenLap &good, const TrackPart &unit, double bySpeed,
                const Corners &corners, const TrackParts &segments)
{
    CauseFinder finder(slow, good);
    // What is lost between the line and the way to the first corner is lost on the way to it.
    if (unit.isLine())
        finder.add(unit.firstCorner, Where::Line, unit.from, unit.to);
    const std::size_t lines = segments.size() - corners.size();
    for (std::size_t i = unit.firstCorner; i < unit.firstCorner + unit.cornerCount; ++i) {
        const TrackPart &segment = segments[lines + i];
        const double start = std::max(corners[i].start, segment.from);
        const double end = std::min(corners[i].end, segment.to);
        finder.add(i, Where::Before, segment.from, start);
        finder.add(i, Where::In, start, end);
        finder.add(i, Where::After, end, segment.to);
    }
    return finder.causes(bySpeed);
}

} // namespace zuno
