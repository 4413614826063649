// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/curvature.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include <insight/circuitring.h>

namespace zuno {

namespace {

// Metres from station to station.
constexpr double Step = 2.0;

// How many sigmas a Gaussian reaches to either side.
constexpr double Reach = 4.0;

// The angle by which the ring turns at a vertex; radians, right positive.
double turnAt(const CircuitRing &ring, std::size_t i)
{
    const std::vector<CircuitRing::Vertex> &vertices = ring.vertices();
    const std::size_t count = vertices.size();
    const PlaneVector in = vertices[i].place - vertices[(i + count - 1) % count].place;
    const PlaneVector out = vertices[(i + 1) % count].place - vertices[i].place;
    return std::atan2((in.y * out.x) - (in.x * out.y), in * out);
}

void spread(Stations &stations, double along, double angle, double sigma)
{
    const auto count = static_cast<std::ptrdiff_t>(stations.size());
    const double reach = std::min(Reach * sigma, stations.along(stations.size()) / 2.0);
    const auto first = static_cast<std::ptrdiff_t>(std::ceil((along - reach) / stations.step()));
    const auto last = static_cast<std::ptrdiff_t>(std::floor((along + reach) / stations.step()));
    const double height = angle / (sigma * std::sqrt(2.0 * std::numbers::pi));
    for (std::ptrdiff_t j = first; j <= last; ++j) {
        const double away = ((static_cast<double>(j) * stations.step()) - along) / sigma;
        const auto station = static_cast<std::size_t>(((j % count) + count) % count);
        stations.values[station] += height * std::exp(-0.5 * away * away);
    }
}

} // namespace

Stations::Stations(double length)
{
    const double count = std::max(std::round(length / Step), 1.0);
    values.assign(static_cast<std::size_t>(count), 0.0);
    m_step = length / count;
}

double Stations::at(double along) const
{
    if (values.empty())
        return 0.0;
    const double position = along / m_step;
    const double below = std::floor(position);
    const auto count = static_cast<std::ptrdiff_t>(values.size());
    const auto i = static_cast<std::ptrdiff_t>(below) % count;
    const auto from = static_cast<std::size_t>(i < 0 ? i + count : i);
    return std::lerp(values[from], values[(from + 1) % values.size()], position - below);
}

Stations curvatureOf(const CircuitRing &ring, const std::vector<double> &widths)
{
    Stations stations(ring.length());
    for (std::size_t i = 0; i < ring.vertices().size(); ++i)
        spread(stations, ring.vertices()[i].along, turnAt(ring, i), widths[i]);
    return stations;
}

} // namespace zuno
