// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <vector>

#include <insight/circuitring.h>
#include <insight/lapsamples.h>

namespace zuno {

/// One lap, from line to line, on the outline of its circuit: when it was where, and how fast.
///
/// The lap's own error of the receiver is taken out first (lapOffset). Then each sample has its
/// place, the nearest on the outline near the place before, never going back. The lap begins at
/// place 0 and ends at the outline's length, at the moments at which it was cut: so the times
/// between any places once around add up to the lap time.
///
/// A value; it keeps nothing of the ring or of the samples. Times are seconds since the lap's
/// start.
class LapOnOutline
{
public:
    LapOnOutline() = default;
    /// @p samples as for lapSamples().
    LapOnOutline(const CircuitRing &ring, std::span<const PointAcquisition> samples,
                 const LapSpan &span);

    /// A sample on the outline.
    struct Node
    {
        double time = 0.0;
        double place = 0.0;
        /// Metres beside the outline, to either side; once the receiver's error is taken out.
        double aside = 0.0;
    };

    [[nodiscard]] double duration() const { return m_duration; }
    [[nodiscard]] double length() const { return m_length; }
    /// Metres east and north; none when it could not be told.
    [[nodiscard]] const std::optional<PlaneVector> &offset() const { return m_offset; }
    /// The root of the mean square of the distances beside the outline, of samples within 25
    /// metres.
    [[nodiscard]] double roughness() const { return m_roughness; }
    /// Those of the lap's samples that have a place, in order, between the line and the line.
    [[nodiscard]] const std::vector<Node> &nodes() const { return m_nodes; }
    /// All samples, also those just before and after the lap.
    [[nodiscard]] const std::vector<LapSample> &samples() const { return m_samples; }

    /// When the lap was at a place, metres after the line; 0 and the duration outside of the
    /// circuit.
    [[nodiscard]] double timeAt(double place) const;
    /// Where it was. Before the lap's start as far before the line as its speeds went, below 0.
    [[nodiscard]] double placeAt(double time) const;
    /// m/s.
    [[nodiscard]] double speedAt(double time) const;
    [[nodiscard]] double speedAtPlace(double place) const { return speedAt(timeAt(place)); }
    /// Seconds that the speeds alone take between two places: what the receiver's positions do not
    /// touch.
    [[nodiscard]] double timeBySpeed(double from, double to) const;
    /// The longest time without a position that touches the time between @p from and @p to.
    [[nodiscard]] double longestGap(double from, double to) const;

private:
    std::vector<CircuitRing::Spot> place(const CircuitRing &ring, PlaneVector shift);
    void measureRoughness();
    void integrateSpeeds();
    [[nodiscard]] std::size_t sampleBefore(double time) const;
    [[nodiscard]] double slownessUpTo(double place) const;

    std::vector<LapSample> m_samples;
    std::vector<Node> m_nodes;
    // Seconds by speed from the line up to every second metre.
    std::vector<double> m_bySpeed;
    std::optional<PlaneVector> m_offset;
    double m_duration = 0.0;
    double m_length = 0.0;
    double m_roughness = 0.0;
};

} // namespace zuno
