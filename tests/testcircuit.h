// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QString>

#include <base/plane.h>
#include <session/recording/pointacquisition.h>

namespace zuno {

class Map;
class Session;

namespace test {

/// A circuit of straight pieces and arcs: "S200 R50:180 L40:30" is 200 metres straight on, 180
/// degrees to the right on a radius of 50 metres, and 30 to the left on 40. It begins at the line
/// and should end there.
class TestCircuit
{
public:
    explicit TestCircuit(const QString &pieces);

    [[nodiscard]] double length() const { return static_cast<double>(m_places.size()) * Step; }
    /// Metres east and north so far after the line, any round; @p left metres beside it.
    [[nodiscard]] PlaneVector at(double along, double left = 0.0) const;
    /// Its map: a point every @p spacing metres from @p first on, moved by @p moved (which gets the
    /// metres after the line) to the left.
    [[nodiscard]] std::unique_ptr<Map> map(double spacing = 5.0, double first = 0.0,
                                           const std::function<double(double)> &moved = {}) const;

private:
    static constexpr double Step = 0.5;
    std::vector<PlaneVector> m_places;
};

/// How one lap is ridden.
struct LapPlan
{
    /// m/s at a place, metres after the line.
    std::function<double(double)> speed;
    /// Where the receiver says the rider is, metres east and north of where he is.
    PlaneVector offset;
    /// Metres that he rides to the left of the line at a place.
    std::function<double(double)> left = {};
    /// Samples between these places have no position.
    double lostFrom = 0.0;
    double lostTo = 0.0;
};

/// Laps on a circuit, ten samples a second, from 100 metres before the line to 100 behind it; cut
/// into laps with @p map, the first of which is incomplete.
[[nodiscard]] std::unique_ptr<Session> rideLaps(const TestCircuit &circuit, const Map &map,
                                                const std::vector<LapPlan> &laps);

} // namespace test
} // namespace zuno
