// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/lapoffset.h>

#include <cmath>

namespace zuno {

namespace {

constexpr std::size_t LeastSamples = 50;
// Metres beside the outline; farther away somebody was off the track.
constexpr double MostAside = 25.0;
// Metres from which on a distance counts less.
constexpr double HuberLimit = 1.5;
constexpr int Rounds = 8;
// Of the normal matrix: its larger eigenvalue to its smaller one.
constexpr double MostCondition = 20.0;

struct Normals
{
    double xx = 0.0;
    double xy = 0.0;
    double yy = 0.0;
    double xd = 0.0;
    double yd = 0.0;

    void add(const CircuitRing::Spot &spot, double weight)
    {
        const PlaneVector n = spot.left;
        xx += weight * n.x * n.x;
        xy += weight * n.x * n.y;
        yy += weight * n.y * n.y;
        xd += weight * n.x * spot.aside;
        yd += weight * n.y * spot.aside;
    }
    [[nodiscard]] bool isSound() const
    {
        const double middle = (xx + yy) / 2.0;
        const double half = std::hypot((xx - yy) / 2.0, xy);
        return middle - half > 0.0 && middle + half <= MostCondition * (middle - half);
    }
    [[nodiscard]] PlaneVector solution() const
    {
        const double determinant = (xx * yy) - (xy * xy);
        return {((yy * xd) - (xy * yd)) / determinant, ((xx * yd) - (xy * xd)) / determinant};
    }
};

} // namespace

std::optional<PlaneVector> lapOffset(const std::vector<CircuitRing::Spot> &spots)
{
    PlaneVector offset;
    for (int round = 0; round < Rounds; ++round) {
        Normals normals;
        std::size_t count = 0;
        for (const CircuitRing::Spot &spot : spots) {
            if (std::fabs(spot.aside) > MostAside || spot.distance > MostAside)
                continue;
            const double rest = std::fabs(spot.aside - (spot.left * offset));
            normals.add(spot, rest <= HuberLimit ? 1.0 : HuberLimit / rest);
            ++count;
        }
        if (count < LeastSamples || !normals.isSound())
            return {};
        offset = normals.solution();
    }
    return offset;
}

} // namespace zuno
