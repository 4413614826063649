// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/proposal/proposalworth.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include <maps/check/mapcheck.h>
#include <maps/check/plainline.h>
#include <track/cuttingrules.h>

namespace zuno {

namespace {

using Kind = MapWarning::Kind;

// Milliseconds by which a lap time may differ from that of a plain line across the track.
constexpr double MostError = 40.0;

// Milliseconds between a lap's end and the pass of the line that is meant by it.
constexpr double SamePass = 3000.0;

// What a lap with a wrong time counts, and one without a section's time; what one pass that counts
// twice takes away, and one that is missing.
constexpr double WrongTime = 0.5;
constexpr double NoSection = 0.7;
constexpr double Repeated = 0.5;
constexpr double Lost = 0.5;

// Timing points that a proposal should have, the one on the line included.
constexpr qsizetype LeastPoints = 3;

// The nearest of rising values; one that is farther than all when there is none.
double nearest(const std::vector<double> &stamps, double stamp)
{
    const auto next = std::lower_bound(stamps.begin(), stamps.end(), stamp);
    double found = next == stamps.end() ? -1e12 : *next;
    if (next != stamps.begin() && std::fabs(*(next - 1) - stamp) < std::fabs(found - stamp))
        found = *(next - 1);
    return found;
}

// Nothing that this recording's laps suffer from; the choice of lines has seen to it.
bool isForOtherDays(const MapWarning &warning)
{
    return warning.kind == Kind::SlowPass || warning.kind == Kind::NotFound;
}

int lostLaps(const MapCheck &check)
{
    return static_cast<int>(
        std::count_if(check.laps.begin(), check.laps.end(), [&check](const CheckedLap &lap) {
            return isMoreThanOnce(lap.distance, check.length);
        }));
}

bool hasPlainTime(const FoundLap &lap, std::span<const PointAcquisition> samples,
                  const std::vector<double> &stamps)
{
    const double first = samples[lap.first].dataTimeStamp;
    const double last = samples[lap.last].dataTimeStamp;
    const double from = nearest(stamps, first);
    const double to = nearest(stamps, last);
    return std::fabs(from - first) < SamePass && std::fabs(to - last) < SamePass
           && std::fabs(to - from - lap.time) < MostError;
}

} // namespace

ProposalWorth worthOf(std::span<const PointAcquisition> samples, const MapProposal &proposal,
                      const Station &line)
{
    const MapCheck check = checkMap(samples, proposal.draft);
    const std::vector<double> stamps = linePasses(
        samples, Plane(proposal.draft.start), line.heading, LineReach * proposal.draft.gateSize);
    ProposalWorth worth;
    worth.lost = lostLaps(check);
    worth.isSound = std::all_of(check.warnings.begin(), check.warnings.end(), isForOtherDays)
                    && proposal.draft.timingPoints.size() >= LeastPoints;
    for (const FoundLap &lap : proposal.laps) {
        const bool isPlain = hasPlainTime(lap, samples, stamps);
        worth.laps += isPlain ? 1.0 : WrongTime;
        worth.isSound = worth.isSound && isPlain;
    }
    worth.laps -= Lost * worth.lost;
    double faults = proposal.draft.timingPoints.size() >= LeastPoints ? 0.0 : 0.25;
    for (const MapWarning &warning : check.warnings) {
        if (isForOtherDays(warning))
            continue;
        const auto laps = static_cast<double>(warning.laps.size());
        if (warning.kind == Kind::MissedPoint)
            worth.laps -= (1.0 - NoSection) * laps;
        else if (warning.kind == Kind::CountedTwice)
            worth.laps -= Repeated * laps;
        else
            faults += laps > 0.0 && laps * 4.0 < static_cast<double>(check.laps.size()) ? 0.3 : 1.0;
    }
    worth.laps = std::max(worth.laps, 0.1) / (1.0 + faults);
    return worth;
}

} // namespace zuno
