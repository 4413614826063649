// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/chartstate.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include <session/laps/lap.h>
#include <session/laps/lapgap.h>
#include <session/sessionlap.h>

namespace zuno {

namespace {

// The least that can be looked at: ten metres, half a second.
constexpr double ShortestDistance = 10.0;
constexpr double ShortestTime = 0.5;

// How far from the edge a cursor comes into sight, in parts of what is visible.
constexpr double SightMargin = 0.1;

std::unique_ptr<LapTrack> trackOf(const SessionLap &lap)
{
    return lap->points().empty() ? nullptr : std::make_unique<LapTrack>(lap);
}

} // namespace

ChartState::~ChartState() = default;

void ChartState::showLap(const SessionLap &lap)
{
    if (!lap && m_first == nullptr)
        return;
    replaceLaps(lap ? trackOf(lap) : nullptr, nullptr, nullptr);
}

void ChartState::showLaps(const SessionLap &first, const SessionLap &second)
{
    auto firstTrack = trackOf(first);
    auto secondTrack = trackOf(second);
    std::unique_ptr<LapComparison> comparison;
    if (firstTrack != nullptr && secondTrack != nullptr) {
        comparison
            = std::make_unique<LapComparison>(*firstTrack, *secondTrack, LapGap(*first, *second));
    }
    replaceLaps(std::move(firstTrack), std::move(secondTrack), std::move(comparison));
}

void ChartState::replaceLaps(std::unique_ptr<LapTrack> first, std::unique_ptr<LapTrack> second,
                             std::unique_ptr<LapComparison> comparison)
{
    const bool isSameTrack
        = first != nullptr && m_first != nullptr && first->mapName() == m_first->mapName();
    const bool keepsVisible = isSameTrack && isZoomed();
    const double pinnedPlace = isSameTrack ? m_first->places(m_axis)[m_pinned] : 0.0;
    m_first = std::move(first);
    m_second = m_first != nullptr ? std::move(second) : nullptr;
    m_comparison = std::move(comparison);
    computeWhole();
    m_visible = keepsVisible ? m_visible.movedInto(m_whole) : m_whole;
    m_pinned = m_first != nullptr ? nearestSample(m_first->places(m_axis), pinnedPlace) : 0;
    m_hovered.reset();
    m_selected.reset();
    Q_EMIT contentChanged();
}

void ChartState::computeWhole()
{
    m_whole = m_first != nullptr ? m_first->range(m_axis) : AxisRange {};
    // By distance, the second lap is drawn at the places of the first.
    if (m_second != nullptr && m_axis == AxisKind::Time)
        m_whole = m_whole.united(m_second->range(m_axis));
}

void ChartState::setAxis(AxisKind axis)
{
    if (axis == m_axis)
        return;
    const bool wasZoomed = isZoomed();
    const AxisKind before = m_axis;
    m_axis = axis;
    computeWhole();
    if (wasZoomed && m_first != nullptr) {
        m_visible = AxisRange {m_first->converted(m_visible.from, before, axis),
                               m_first->converted(m_visible.to, before, axis)}
                        .zoomed(1.0, 0.0, m_whole, shortest());
    } else {
        m_visible = m_whole;
    }
    m_selected.reset();
    Q_EMIT contentChanged();
}

double ChartState::shortest() const
{
    return m_axis == AxisKind::Distance ? ShortestDistance : ShortestTime;
}

double ChartState::cursorPlace() const
{
    return m_first != nullptr ? m_first->places(m_axis)[cursor()] : 0.0;
}

double ChartState::secondPosition() const
{
    if (m_comparison == nullptr)
        return std::numeric_limits<double>::quiet_NaN();
    return m_comparison->positions(m_axis)[cursor()];
}

void ChartState::hover(double place)
{
    if (m_first != nullptr)
        moveCursor(m_pinned, nearestSample(m_first->places(m_axis), place));
}

void ChartState::endHover()
{
    moveCursor(m_pinned, std::nullopt);
}

void ChartState::pin(double place)
{
    if (m_first == nullptr)
        return;
    const std::size_t sample = nearestSample(m_first->places(m_axis), place);
    moveCursor(sample, m_hovered ? std::optional(sample) : std::nullopt);
}

void ChartState::lead(double place)
{
    if (m_first != nullptr)
        pinAndShow(nearestSample(m_first->places(m_axis), place));
}

void ChartState::pinTime(double seconds)
{
    if (m_first != nullptr)
        pinAndShow(nearestSample(m_first->places(AxisKind::Time), seconds));
}

void ChartState::pinSample(int index)
{
    if (m_first != nullptr && index >= 0 && static_cast<std::size_t>(index) < m_first->size())
        pinAndShow(static_cast<std::size_t>(index));
}

void ChartState::step(int samples)
{
    if (m_first == nullptr)
        return;
    const auto last = static_cast<std::ptrdiff_t>(m_first->size()) - 1;
    const auto wanted = static_cast<std::ptrdiff_t>(cursor()) + samples;
    pinAndShow(static_cast<std::size_t>(std::clamp(wanted, std::ptrdiff_t {0}, last)));
}

void ChartState::stepSeconds(int seconds)
{
    if (m_first == nullptr)
        return;
    const std::vector<double> &times = m_first->places(AxisKind::Time);
    pinAndShow(nearestSample(times, times[cursor()] + seconds));
}

// A cursor that is led by the keys stays in sight, and where it is led.
void ChartState::pinAndShow(std::size_t sample)
{
    moveCursor(sample, std::nullopt);
    const double place = cursorPlace();
    if (m_visible.contains(place))
        return;
    const double margin = m_visible.span() * SightMargin;
    const double start
        = place < m_visible.from ? place - margin : place + margin - m_visible.span();
    setVisible(AxisRange {start, start + m_visible.span()}.movedInto(m_whole));
}

void ChartState::moveCursor(std::size_t pinned, std::optional<std::size_t> hovered)
{
    const std::size_t before = cursor();
    m_pinned = pinned;
    m_hovered = hovered;
    if (cursor() != before)
        Q_EMIT cursorChanged();
}

void ChartState::zoom(double factor, double around)
{
    setVisible(m_visible.zoomed(factor, around, m_whole, shortest()));
}

void ChartState::scroll(double part)
{
    const double by = m_visible.span() * part;
    setVisible(AxisRange {m_visible.from + by, m_visible.to + by}.movedInto(m_whole));
}

void ChartState::showRange(const AxisRange &range)
{
    setVisible(range.zoomed(1.0, (range.from + range.to) / 2, m_whole, shortest()));
}

void ChartState::setVisible(const AxisRange &range)
{
    if (range == m_visible)
        return;
    m_visible = range;
    Q_EMIT visibleChanged();
}

void ChartState::select(const std::optional<AxisRange> &range)
{
    if (range == m_selected)
        return;
    m_selected = range;
    Q_EMIT selectedChanged();
}

void ChartState::showSector(int sector)
{
    if (m_first == nullptr)
        return;
    const auto &sectors = m_first->sectors();
    const auto found = std::find_if(sectors.begin(), sectors.end(),
                                    [=](const SectorStretch &s) { return s.sector == sector; });
    if (found != sectors.end())
        showTimes(found->time);
}

void ChartState::showTimes(const AxisRange &seconds)
{
    if (m_first == nullptr)
        return;
    showRange({m_first->converted(seconds.from, AxisKind::Time, m_axis),
               m_first->converted(seconds.to, AxisKind::Time, m_axis)});
    const std::vector<double> &times = m_first->places(AxisKind::Time);
    const Points &points = m_first->points();
    const auto from = static_cast<std::ptrdiff_t>(nearestSample(times, seconds.from));
    const auto to = static_cast<std::ptrdiff_t>(nearestSample(times, seconds.to));
    m_isSectorShown = true;
    Q_EMIT stretchShown(Points(points.begin() + from, points.begin() + to + 1));
}

void ChartState::showWhole()
{
    setVisible(m_whole);
    if (m_isSectorShown && m_first != nullptr)
        Q_EMIT stretchShown(m_first->points());
    m_isSectorShown = false;
}

} // namespace zuno
