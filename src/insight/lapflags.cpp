// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/lapflags.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include <QCoreApplication>

#include <base/numbers.h>

namespace zuno {

namespace {

constexpr double KmhPerMs = 3.6;

// Metres after the line, and before it, in which a pit lane is looked for: stretches of that many
// metres far beside the outline, on which somebody goes slowly for the place.
constexpr double PitReach = 300.0;
constexpr double PitStretch = 60.0;
constexpr double PitStep = 2.0;
constexpr double PitAside = 8.0;
constexpr double PitRoughness = 4.0;
constexpr double FromPitsSpeed = 0.78;
constexpr double IntoPitsSpeed = 0.70;

// km/h, seconds.
constexpr double StoppedSpeed = 10.0;
constexpr double StoppedTime = 2.0;

constexpr double SlowPart = 0.07;

// Metres beside the outline at which nobody is as fast as on it, and for how many seconds.
constexpr double OffAside = 20.0;
constexpr double OffSpeed = 0.8;
constexpr double OffTime = 3.0;

constexpr double GapTime = 2.0;

// Somebody held up loses this much in one segment, seconds and part of it, and rides the rest as
// quickly as ever.
constexpr double HeldUpTime = 1.5;
constexpr double HeldUpPart = 0.15;
constexpr double HeldUpRest = 0.015;

// Judges the laps of one session against each other.
class Flagger
{
public:
    Flagger(std::span<const LapOnOutline *const> laps, const TrackParts &segments) : m_laps(laps)
    {
        std::vector<double> times;
        std::vector<double> roughness;
        for (const LapOnOutline *lap : laps) {
            times.push_back(lap->duration());
            roughness.push_back(lap->roughness());
            if (m_best == nullptr || lap->duration() < m_best->duration())
                m_best = lap;
        }
        // The lower one of two: of two laps, one may have gone through the pits.
        std::sort(roughness.begin(), roughness.end());
        m_roughness = roughness[(roughness.size() - 1) / 2];
        std::sort(times.begin(), times.end());
        times.resize((times.size() + 1) / 2);
        m_reference = median(std::move(times));
        for (const TrackPart &segment : segments)
            addSegment(segment);
    }

    [[nodiscard]] LapFlags flagsOf(const LapOnOutline &lap) const
    {
        LapFlags flags;
        const auto add = [&flags](bool holds, LapFlagKind kind) {
            if (holds)
                flags.append({kind, 0});
        };
        const double length = lap.length();
        add(isInPits(lap, 0.0, PitReach, FromPitsSpeed), LapFlagKind::FromPits);
        add(isInPits(lap, length - PitReach, length, IntoPitsSpeed), LapFlagKind::IntoPits);
        add(isStopped(lap), LapFlagKind::Stopped);
        const double slower = (lap.duration() / m_reference) - 1.0;
        if (slower > SlowPart)
            flags.append({LapFlagKind::Slow, roundedToInt(100.0 * slower)});
        add(isOff(lap), LapFlagKind::PositionsOff);
        add(lap.longestGap(0.0, lap.duration()) > GapTime, LapFlagKind::Gap);
        add(flags.isEmpty() && isHeldUp(lap), LapFlagKind::HeldUp);
        return flags;
    }

private:
    struct Segment
    {
        double from = 0.0;
        double to = 0.0;
        double median = 0.0;
    };

    void addSegment(const TrackPart &part)
    {
        std::vector<double> times;
        for (const LapOnOutline *lap : m_laps)
            times.push_back(lap->timeAt(part.to) - lap->timeAt(part.from));
        m_segments.push_back({part.from, part.to, median(std::move(times))});
    }

    // Metres that the lap's samples lie beside a stretch of the outline, the mean.
    static std::optional<double> asideOn(const LapOnOutline &lap, double from)
    {
        const auto &nodes = lap.nodes();
        auto node = std::lower_bound(
            nodes.begin(), nodes.end(), from,
            [](const LapOnOutline::Node &n, double value) { return n.place < value; });
        double sum = 0.0;
        int count = 0;
        for (; node != nodes.end() && node->place <= from + PitStretch; ++node, ++count)
            sum += node->aside;
        return count > 0 ? std::optional<double>(sum / count) : std::nullopt;
    }

    [[nodiscard]] bool isInPits(const LapOnOutline &lap, double from, double to,
                                double speedPart) const
    {
        const double least = std::max(PitAside, PitRoughness * m_roughness);
        const auto timeOn = [](const LapOnOutline &ride, double place) {
            return ride.timeAt(place + PitStretch) - ride.timeAt(place);
        };
        for (double place = std::max(from, 0.0); place + PitStretch <= to; place += PitStep) {
            const std::optional<double> aside = asideOn(lap, place);
            if (aside && *aside >= least
                && timeOn(*m_best, place) <= speedPart * timeOn(lap, place))
                return true;
        }
        return false;
    }

    static bool isStopped(const LapOnOutline &lap)
    {
        return lasts(lap, StoppedTime, [](const LapSample &sample) {
            return sample.speed * KmhPerMs < StoppedSpeed;
        });
    }

    // Whether what @p holds says is so for that many seconds of the lap without a break.
    template<typename Condition>
    static bool lasts(const LapOnOutline &lap, double seconds, Condition holds)
    {
        double since = std::numeric_limits<double>::infinity();
        for (const LapSample &sample : lap.samples()) {
            if (sample.time < 0.0 || sample.time > lap.duration())
                continue;
            since = holds(sample) ? std::min(since, sample.time)
                                  : std::numeric_limits<double>::infinity();
            if (sample.time - since >= seconds)
                return true;
        }
        return false;
    }

    [[nodiscard]] bool isOff(const LapOnOutline &lap) const
    {
        const auto &nodes = lap.nodes();
        std::size_t next = 0;
        return lasts(lap, OffTime, [&](const LapSample &sample) {
            while (next < nodes.size() && nodes[next].time < sample.time)
                ++next;
            const bool isPlaced = next < nodes.size() && nodes[next].time == sample.time;
            if (!sample.hasFix || (isPlaced && nodes[next].aside <= OffAside))
                return false;
            return sample.speed > OffSpeed * m_best->speedAtPlace(lap.placeAt(sample.time));
        });
    }

    [[nodiscard]] bool isHeldUp(const LapOnOutline &lap) const
    {
        return std::any_of(m_segments.begin(), m_segments.end(), [&](const Segment &segment) {
            const double time = lap.timeAt(segment.to) - lap.timeAt(segment.from);
            const double lost = time - segment.median;
            const double rest = m_reference - segment.median;
            return lost > HeldUpTime && lost > HeldUpPart * segment.median
                   && std::fabs((lap.duration() - time) - rest) <= HeldUpRest * rest;
        });
    }

    std::span<const LapOnOutline *const> m_laps;
    std::vector<Segment> m_segments;
    const LapOnOutline *m_best = nullptr;
    // Seconds: the median of the quicker half of the laps.
    double m_reference = 0.0;
    double m_roughness = 0.0;
};

QString translated(const char *text)
{
    return QCoreApplication::translate("zuno::LapFlag", text);
}

} // namespace

std::vector<LapFlags> flagLaps(std::span<const LapOnOutline *const> laps,
                               const TrackParts &segments)
{
    std::vector<LapFlags> flags;
    if (laps.empty())
        return flags;
    const Flagger flagger(laps, segments);
    for (const LapOnOutline *lap : laps)
        flags.push_back(flagger.flagsOf(*lap));
    return flags;
}

QString flagText(const LapFlag &flag)
{
    switch (flag.kind) {
    case LapFlagKind::FromPits:
        return translated(QT_TRANSLATE_NOOP("zuno::LapFlag", "from the pits"));
    case LapFlagKind::IntoPits:
        return translated(QT_TRANSLATE_NOOP("zuno::LapFlag", "into the pits"));
    case LapFlagKind::Stopped:
        return translated(QT_TRANSLATE_NOOP("zuno::LapFlag", "stopped"));
    case LapFlagKind::Slow:
        return translated(QT_TRANSLATE_NOOP("zuno::LapFlag", "slow +%1 %")).arg(flag.percent);
    case LapFlagKind::PositionsOff:
        return translated(QT_TRANSLATE_NOOP("zuno::LapFlag", "positions off"));
    case LapFlagKind::Gap:
        return translated(QT_TRANSLATE_NOOP("zuno::LapFlag", "gap"));
    case LapFlagKind::HeldUp:
        return translated(QT_TRANSLATE_NOOP("zuno::LapFlag", "held up"));
    }
    return {};
}

} // namespace zuno
