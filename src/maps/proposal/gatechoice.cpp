// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/proposal/gatechoice.h>

#include <algorithm>
#include <array>
#include <cmath>

#include <track/cuttingrules.h>

namespace zuno {

namespace {

// Metres.
constexpr double LeastGate = 3.0;
constexpr double MostGate = 40.0;

// Metres that a pass may be wider than any yet, and a neighbour nearer.
constexpr double Margin = 1.0;
constexpr double LittleMargin = 0.1;

// And a neighbour, where there is room.
constexpr double NeighbourMargin = 4.0;

// The part of the way between two passes that a gate may take up, and on a slower day.
constexpr double PausePart = 0.85;
constexpr double SlowPausePart = 0.92;

// Metres by which a receiver may be wrong in another way on another day, and the least gate for
// that.
constexpr double OtherDay = 2.25;
constexpr double LeastOtherDay = 4.5;

// Longer ways from line to line, in laps, are none; one with a stop in the pit lane is.
constexpr double OneLap = 1.3;

constexpr std::size_t LeastPoints = 2;
constexpr std::size_t EnoughPoints = 3;
constexpr std::size_t MostPoints = 5;

// How far apart timing points are: a part of the circuit, and gate sizes.
constexpr double ApartPart = 0.1;
constexpr double ApartGates = 5.0;

// A speed peak stands out by this part of its speed.
constexpr double PeakPart = 0.06;

// Whose passes a gate must hold, the first three with room for other days, to spare or just so:
// positions may have been lost in a few.
enum class Passes { OtherDays, AllEasily, All, Most };

double marginFor(Passes passes)
{
    if (passes == Passes::OtherDays)
        return OtherDay;
    return passes == Passes::All ? LittleMargin : Margin;
}

// Whether every lap from line to line passes a station.
bool isPassedByAll(const Circuit &circuit, std::size_t line, std::size_t i)
{
    const std::vector<Pass> &ends = circuit.at(line).passes;
    const std::vector<Pass> &passes = circuit.at(i).passes;
    for (std::size_t k = 1; k < ends.size(); ++k) {
        const double from = ends[k - 1].driven;
        const double to = ends[k].driven;
        if (to - from > OneLap * circuit.length())
            continue;
        const auto pass = std::upper_bound(
            passes.begin(), passes.end(), from,
            [](double driven, const Pass &candidate) { return driven < candidate.driven; });
        if (pass == passes.end() || pass->driven >= to)
            return false;
    }
    return true;
}

// Whether a station may hold a timing point with gates of that size.
bool fits(const Circuit &circuit, std::size_t i, double size, Passes passes)
{
    const Station &station = circuit.at(i);
    const double need = passes == Passes::Most ? station.usualNeed : station.need;
    return !station.passes.empty() && need + marginFor(passes) <= size
           && size + Margin <= circuit.clearance(i);
}

// Chooses timing points for one line and one gate size.
class PointChooser
{
public:
    PointChooser(const Circuit &circuit, std::size_t line, double size, Passes passes)
        : m_circuit(circuit)
        , m_line(line)
        , m_size(size)
        , m_seconds((PassPause + 3.0) * circuit.ride().interval())
    {
        for (std::size_t k = 0; k < circuit.size(); ++k)
            m_fits.push_back(fits(circuit, line + k, size, passes)
                             && (passes == Passes::Most || isPassedByAll(circuit, line, line + k)));
    }

    std::vector<std::size_t> choose()
    {
        for (const std::size_t k : peaks()) {
            if (m_chosen.size() < MostPoints && m_fits[k] && isApart(k))
                m_chosen.push_back(k);
        }
        while (m_chosen.size() < LeastPoints && addEvenly()) {}
        std::sort(m_chosen.begin(), m_chosen.end());
        for (std::size_t &k : m_chosen)
            k = (m_line + k) % m_circuit.size();
        return m_chosen;
    }

private:
    [[nodiscard]] double speed(std::size_t k) const { return m_circuit.at(m_line + k).speed; }

    [[nodiscard]] bool isApart(std::size_t k) const
    {
        const double gates = ApartGates * m_size;
        const auto isFar = [&](std::size_t other) {
            const double metres = m_circuit.between(k, other);
            const double slower = std::max(1.0, std::max(speed(k), speed(other)));
            return metres >= std::max(ApartPart * m_circuit.length(), gates)
                   && metres / slower >= m_seconds;
        };
        return isFar(0) && std::all_of(m_chosen.begin(), m_chosen.end(), isFar);
    }

    // Stations (from the line on) where the speed peaks, the fastest first.
    [[nodiscard]] std::vector<std::size_t> peaks() const
    {
        std::vector<std::size_t> found;
        std::size_t top = 0;
        double low = speed(0);
        bool isRising = false;
        for (std::size_t k = 1; k < m_circuit.size(); ++k) {
            const double here = speed(k);
            if (isRising) {
                if (here > speed(top))
                    top = k;
                if (here < (1.0 - PeakPart) * speed(top)) {
                    found.push_back(top);
                    isRising = false;
                    low = here;
                }
            } else {
                low = std::min(low, here);
                if (here * (1.0 - PeakPart) > low) {
                    isRising = true;
                    top = k;
                }
            }
        }
        std::stable_sort(found.begin(), found.end(),
                         [this](std::size_t a, std::size_t b) { return speed(a) > speed(b); });
        // A gate may find room a little before the peak only.
        for (std::size_t &k : found) {
            for (std::size_t back = 0; back < 6 && back < k; ++back) {
                if (m_fits[k - back]) {
                    k -= back;
                    break;
                }
            }
        }
        return found;
    }

    // Into the longest way without a point, as near to its middle as there is room.
    bool addEvenly()
    {
        std::vector<std::size_t> ends {0, m_circuit.size()};
        ends.insert(ends.end(), m_chosen.begin(), m_chosen.end());
        std::sort(ends.begin(), ends.end());
        std::size_t from = 0;
        for (std::size_t i = 1; i + 1 < ends.size(); ++i) {
            if (ends[i + 1] - ends[i] > ends[from + 1] - ends[from])
                from = i;
        }
        // A third of the way when it is the whole circuit, so that another fits.
        const std::size_t way = ends[from + 1] - ends[from];
        const std::size_t wish = ends[from] + (m_chosen.empty() ? way / 3 : way / 2);
        std::size_t best = m_circuit.size();
        const auto distance = [wish](std::size_t k) { return k > wish ? k - wish : wish - k; };
        for (std::size_t k = 1; k < m_circuit.size(); ++k) {
            if (m_fits[k] && isApart(k)
                && (best == m_circuit.size() || distance(k) < distance(best)))
                best = k;
        }
        if (best == m_circuit.size())
            return false;
        m_chosen.push_back(best);
        return true;
    }

    const Circuit &m_circuit;
    std::size_t m_line;
    double m_size;
    // Between two points, which must not be met at once.
    double m_seconds;
    std::vector<bool> m_fits;
    // Counted from the line on.
    std::vector<std::size_t> m_chosen;
};

} // namespace

GateRoom lineRoom(const Circuit &circuit, std::size_t i)
{
    const Station &station = circuit.at(i);
    GateRoom room;
    room.least
        = std::max({LeastGate, (station.need + Margin) / LineReach, station.spread + Margin});
    // Who stands in the pit lane wanders about there, and receivers err otherwise on other days.
    const double clear = circuit.clearance(i);
    const double wish = std::max(room.least, (clear - NeighbourMargin) / LineReach);
    room.most = std::min({MostGate, wish, (clear - Margin) / LineReach});
    // He who is still inside when the line can be met again is counted twice.
    const double left = station.slowest * PassPause * circuit.ride().interval();
    room.most = std::min(room.most, PausePart * left / LineReach);
    const double slowly = SlowDay * station.slow * PassPause * circuit.ride().interval();
    room.slowDays = std::min(room.most, SlowPausePart * slowly / LineReach);
    room.otherDays = std::max({room.least, LeastOtherDay, circuit.usualNeed() + OtherDay});
    return room;
}

GateChoice chooseGates(const Circuit &circuit, std::size_t line, double part)
{
    const GateRoom room = lineRoom(circuit, line);
    const double most
        = std::max(room.least, std::min(room.most, std::max(room.slowDays, room.otherDays)));
    const double wish = std::max(UsualGateSize, 1.3 * (circuit.usualNeed() + Margin));
    GateChoice best;
    // Smaller where the track's pieces are near each other, larger where the samples are not.
    for (const Passes passes : {Passes::OtherDays, Passes::AllEasily, Passes::All, Passes::Most}) {
        const std::size_t enough = passes == Passes::OtherDays ? EnoughPoints : LeastPoints;
        for (const double factor : std::array {1.0, 0.8, 0.65, 0.5, 1.3, 0.4, 1.6}) {
            const double size
                = std::max(LeastGate, part * std::clamp(factor * wish, room.least, most));
            GateChoice choice {size, PointChooser(circuit, line, size, passes).choose()};
            if (best.size == 0.0 || choice.points.size() > best.points.size())
                best = std::move(choice);
            if (best.points.size() >= enough)
                return best;
        }
    }
    return best;
}

} // namespace zuno
