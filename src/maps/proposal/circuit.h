// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <maps/proposal/lapsearch.h>
#include <maps/proposal/ridepath.h>

namespace zuno {

/// A place on a circuit, in the middle of the lines that were ridden there.
struct Station
{
    PlaneVector place;
    PlaneVector heading;
    /// The passes, but for those in the pit lane.
    std::vector<Pass> passes;
    /// Metres per second: the median of the passes, the slowest one, and the slowest who rode.
    double speed = 0.0;
    double slowest = 0.0;
    double slow = 0.0;
    /// Metres: the farthest pass to the side, the farthest that the nearest sample of a pass may
    /// be away, and the same for most passes.
    double spread = 0.0;
    double need = 0.0;
    double usualNeed = 0.0;
    /// Milliseconds that the lap times may differ from those of a line across the track.
    double error = 0.0;
    /// Radians per metre, without sign.
    double curvature = 0.0;
    /// How many times the circuit was ridden from here to here.
    int laps = 0;
};

/// A circuit as a recording shows it: places all around it, some eight metres apart, and the passes
/// of each.
class Circuit
{
public:
    /// @p ride must outlive it.
    Circuit(const RidePath &ride, const RiddenLoop &loop);

    [[nodiscard]] const RidePath &ride() const { return *m_ride; }
    [[nodiscard]] std::size_t size() const { return m_stations.size(); }
    /// Counts on from the last station to the first.
    [[nodiscard]] const Station &at(std::size_t i) const
    {
        return m_stations[i % m_stations.size()];
    }
    /// Metres around, and from station to station.
    [[nodiscard]] double length() const { return m_length; }
    [[nodiscard]] double spacing() const { return m_length / static_cast<double>(size()); }
    /// Metres: the median of what most passes of a station need.
    [[nodiscard]] double usualNeed() const { return m_usualNeed; }
    /// Metres of track between two stations, the shorter way around.
    [[nodiscard]] double between(std::size_t a, std::size_t b) const;
    /// Metres from a station to the nearest other way than past it: a neighbouring piece of the
    /// track, the pit lane, the paddock. At most ClearanceReach.
    [[nodiscard]] double clearance(std::size_t i) const;

    static constexpr double ClearanceReach = 80.0;

private:
    [[nodiscard]] std::vector<Pass> passesOf(const Station &station) const;
    void moveToMiddle();
    void head();
    void measure(Station &station) const;

    const RidePath *m_ride;
    double m_length = 0.0;
    double m_usualNeed = 0.0;
    std::vector<Station> m_stations;
};

} // namespace zuno
