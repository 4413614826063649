// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <vector>

namespace zuno {

class CircuitRing;

/// Numbers at even steps once around a circuit; the first stands on the start/finish line.
class Stations
{
public:
    Stations() = default;
    /// Steps of about two metres around a ring of that length.
    explicit Stations(double length);

    [[nodiscard]] std::size_t size() const { return values.size(); }
    /// Metres from one to the next.
    [[nodiscard]] double step() const { return m_step; }
    [[nodiscard]] double along(std::size_t i) const { return static_cast<double>(i) * m_step; }
    /// The value that many metres after the line, linear between two stations; any round.
    [[nodiscard]] double at(double along) const;

    std::vector<double> values;

private:
    double m_step = 0.0;
};

/// How much the ring turns, in 1/m, right positive.
///
/// The angle at each point of the ring is spread over the stations as a Gaussian, which keeps the
/// angles that corners turn. How wide it is (sigma, metres) @p widths say for each vertex.
/// Smoothing the curvature so is the usual way with lines that satellite receivers recorded.
[[nodiscard]] Stations curvatureOf(const CircuitRing &ring, const std::vector<double> &widths);

} // namespace zuno
