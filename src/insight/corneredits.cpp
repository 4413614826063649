// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/corneredits.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace zuno {

namespace {

// Metres by which an edit's place may miss its corner, and the track.
constexpr double Reach = 60.0;

// Degrees that both parts of a split corner turn at least.
constexpr double LeastPart = 5.0;

// Applies edits to the runs of one circuit.
class CornerEditor
{
public:
    CornerEditor(CornerRuns &runs, const CircuitRing &ring, const CircuitShape &shape)
        : m_runs(runs)
        , m_ring(ring)
        , m_curvature(shape.curvature)
        , m_step(shape.curvature.step())
        , m_count(shape.curvature.size())
    {
    }

    void apply(const CornerEdit &edit)
    {
        const std::optional<std::size_t> station = stationOf(edit.place);
        const std::optional<std::size_t> run = station ? runAt(*station) : std::nullopt;
        if (!run)
            return;
        switch (edit.kind) {
        case CornerEdit::Kind::Rename:
            m_runs[*run].name = edit.name;
            break;
        case CornerEdit::Kind::Join:
            join(*run);
            break;
        case CornerEdit::Kind::Split:
            split(*run, *station);
            break;
        case CornerEdit::Kind::Delete:
            m_runs.erase(m_runs.begin() + static_cast<std::ptrdiff_t>(*run));
            break;
        }
    }

private:
    [[nodiscard]] std::optional<std::size_t> stationOf(const QGeoCoordinate &place) const
    {
        if (!place.isValid())
            return {};
        const CircuitRing::Spot spot
            = m_ring.nearest(m_ring.place(place.latitude(), place.longitude()));
        if (spot.distance > Reach)
            return {};
        return static_cast<std::size_t>(std::lround(spot.along / m_step)) % m_count;
    }

    // Stations from the run's first one on, once around.
    [[nodiscard]] std::size_t into(const CornerRun &run, std::size_t station) const
    {
        return (station + m_count - run.first) % m_count;
    }

    [[nodiscard]] std::size_t missedBy(const CornerRun &run, std::size_t station) const
    {
        const std::size_t in = into(run, station);
        const std::size_t length = run.last - run.first;
        return in <= length ? 0 : std::min(in - length, m_count - in);
    }

    // The run that holds a station, or comes nearest to it.
    [[nodiscard]] std::optional<std::size_t> runAt(std::size_t station) const
    {
        std::optional<std::size_t> nearest;
        double least = Reach;
        for (std::size_t i = 0; i < m_runs.size(); ++i) {
            const double missed = static_cast<double>(missedBy(m_runs[i], station)) * m_step;
            if (missed < least) {
                least = missed;
                nearest = i;
            }
        }
        return nearest;
    }

    void join(std::size_t i)
    {
        if (m_runs.size() < 2)
            return;
        const std::size_t next = (i + 1) % m_runs.size();
        m_runs[i].last = m_runs[i].first + into(m_runs[i], m_runs[next].last % m_count);
        if (m_runs[i].name.isEmpty())
            m_runs[i].name = m_runs[next].name;
        m_runs.erase(m_runs.begin() + static_cast<std::ptrdiff_t>(next));
    }

    void split(std::size_t i, std::size_t station)
    {
        CornerRun &run = m_runs[i];
        const std::size_t in = into(run, station);
        if (in == 0 || in > run.last - run.first)
            return;
        CornerRun rest {run.first + in, run.last, {}};
        const CornerRun before {run.first, rest.first - 1, run.name};
        if (turnedIn(before, m_curvature) < LeastPart || turnedIn(rest, m_curvature) < LeastPart)
            return;
        run = before;
        if (rest.first >= m_count) {
            rest = {rest.first - m_count, rest.last - m_count, {}};
            m_runs.insert(m_runs.begin(), rest);
        } else {
            m_runs.insert(m_runs.begin() + static_cast<std::ptrdiff_t>(i) + 1, rest);
        }
    }

    CornerRuns &m_runs;
    const CircuitRing &m_ring;
    const Stations &m_curvature;
    double m_step;
    std::size_t m_count;
};

} // namespace

CornerRuns applyEdits(CornerRuns runs, const CornerEdits &edits, const CircuitRing &ring,
                      const CircuitShape &shape)
{
    CornerEditor editor(runs, ring, shape);
    for (const CornerEdit &edit : edits)
        editor.apply(edit);
    return runs;
}

} // namespace zuno
