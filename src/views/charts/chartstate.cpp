// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/chartstate.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include <session/laps/lap.h>
#include <session/laps/lapgap.h>
#include <session/session.h>
#include <session/sessionlap.h>
#include <views/charts/channel.h>

namespace zuno {

namespace {

// The least that can be looked at: ten metres, half a second.
constexpr double ShortestDistance = 10.0;
constexpr double ShortestTime = 0.5;

// How far from the edge a cursor comes into sight, in parts of what is visible.
constexpr double SightMargin = 0.1;

// What is shown beside a zone, metres.
constexpr double ZoneMargin = 40.0;

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
    replaceLaps({.first = lap ? trackOf(lap) : nullptr});
}

void ChartState::showLaps(const SessionLap &first, const SessionLap &second)
{
    showLaps(first, second, {});
}

void ChartState::showLaps(const SessionLap &first, const SessionLap &second,
                          const std::vector<SessionLap> &others)
{
    Laps laps;
    laps.first = first ? trackOf(first) : nullptr;
    if (laps.first == nullptr) {
        replaceLaps({});
        return;
    }
    laps.second = second ? trackOf(second) : nullptr;
    if (laps.second != nullptr) {
        laps.comparison
            = std::make_unique<LapComparison>(*laps.first, *laps.second, LapGap(*first, *second));
    }
    for (const SessionLap &other : others) {
        if (!other || other->points().empty() || laps.others.size() == MostOthers)
            continue;
        const LapTrack track(other);
        laps.others.push_back({track, {*laps.first, track, LapGap(*first, *other)}});
    }
    replaceLaps(std::move(laps));
}

void ChartState::showRide(const Session &session)
{
    if (session.samples().empty()) {
        replaceLaps({});
        return;
    }
    Lap whole;
    whole.setPoints(session.samples());
    replaceLaps({.first = trackOf({&session, &whole}), .isRide = true});
}

void ChartState::replaceLaps(Laps laps)
{
    const bool isSameTrack = laps.first != nullptr && m_first != nullptr && !m_isRide
                             && !laps.isRide && laps.first->mapName() == m_first->mapName();
    const bool keepsVisible = isSameTrack && isZoomed();
    const double pinnedPlace = isSameTrack ? m_first->places(m_axis)[m_pinned] : 0.0;
    m_first = std::move(laps.first);
    m_second = m_first != nullptr ? std::move(laps.second) : nullptr;
    m_comparison = std::move(laps.comparison);
    m_others = std::move(laps.others);
    m_isRide = laps.isRide;
    m_zones.clear();
    computeWhole();
    m_visible = keepsVisible ? m_visible.movedInto(m_whole) : m_whole;
    m_pinned = m_first != nullptr ? nearestSample(m_first->places(m_axis), pinnedPlace) : 0;
    m_hovered.reset();
    m_selected.reset();
    if (!keepsVisible)
        m_shownZone.reset();
    if (!isSameTrack) {
        m_measured.reset();
        m_isMeasuring = false;
    }
    Q_EMIT contentChanged();
}

void ChartState::computeWhole()
{
    m_whole = m_first != nullptr ? m_first->range(m_axis) : AxisRange {};
    // By distance, the second lap is drawn at the places of the first.
    if (m_axis != AxisKind::Time)
        return;
    if (m_second != nullptr)
        m_whole = m_whole.united(m_second->range(m_axis));
    for (const OtherLap &other : m_others)
        m_whole = m_whole.united(other.track.range(m_axis));
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
    setShownZone(std::nullopt);
    setVisible(m_visible.zoomed(factor, around, m_whole, shortest()));
}

void ChartState::scroll(double part)
{
    const double by = m_visible.span() * part;
    setVisible(AxisRange {m_visible.from + by, m_visible.to + by}.movedInto(m_whole));
}

void ChartState::showRange(const AxisRange &range)
{
    setShownZone(std::nullopt);
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
    showRange({placeOf(seconds.from), placeOf(seconds.to)});
    sendStretch(seconds);
}

void ChartState::sendStretch(const AxisRange &seconds)
{
    const std::vector<double> &times = m_first->places(AxisKind::Time);
    const Points &points = m_first->points();
    const auto from = static_cast<std::ptrdiff_t>(nearestSample(times, seconds.from));
    const auto to = static_cast<std::ptrdiff_t>(nearestSample(times, seconds.to));
    m_isSectorShown = true;
    Q_EMIT stretchShown(Points(points.begin() + from, points.begin() + to + 1));
}

double ChartState::placeOf(double seconds) const
{
    return m_first != nullptr ? m_first->converted(seconds, AxisKind::Time, m_axis) : 0.0;
}

double ChartState::placeOfSecond(double seconds) const
{
    constexpr double None = std::numeric_limits<double>::quiet_NaN();
    if (m_comparison == nullptr)
        return None;
    if (m_axis == AxisKind::Time)
        return seconds;
    const double wanted = positionAmong(m_second->places(AxisKind::Time), seconds);
    const std::vector<double> &positions = m_comparison->positions(AxisKind::Distance);
    const auto after = std::find_if(positions.begin(), positions.end(),
                                    [=](double position) { return position >= wanted; });
    return after == positions.end()
               ? None
               : m_first->places(
                   AxisKind::Distance)[static_cast<std::size_t>(after - positions.begin())];
}

void ChartState::setZones(TrackZones zones)
{
    m_zones = std::move(zones);
    if (m_shownZone.value_or(0) >= m_zones.size())
        setShownZone(std::nullopt);
    Q_EMIT zonesChanged();
}

void ChartState::setShownZone(std::optional<std::size_t> zone)
{
    if (zone == m_shownZone)
        return;
    m_shownZone = zone;
    Q_EMIT shownZoneChanged();
}

std::size_t ChartState::slowestIn(const AxisRange &seconds) const
{
    const std::vector<double> &times = m_first->places(AxisKind::Time);
    std::size_t slowest = nearestSample(times, (seconds.from + seconds.to) / 2);
    const std::size_t last = nearestSample(times, seconds.to);
    const auto speedAt
        = [this](std::size_t i) { return channels().front().value(m_first->points()[i]); };
    for (std::size_t i = nearestSample(times, seconds.from); i <= last; ++i) {
        if (m_first->hasFix(i) && !(speedAt(i) >= speedAt(slowest)))
            slowest = i;
    }
    return slowest;
}

void ChartState::showZone(std::size_t zone)
{
    if (m_first == nullptr || zone >= m_zones.size())
        return;
    if (zone == m_shownZone) {
        showWhole();
        return;
    }
    const AxisRange seconds {m_zones[zone].from, m_zones[zone].to};
    const auto metres = [this](double time, double more) {
        const double place = m_first->converted(time, AxisKind::Time, AxisKind::Distance) + more;
        return m_first->range(AxisKind::Distance).clamped(place);
    };
    const AxisRange wide {metres(seconds.from, -ZoneMargin), metres(seconds.to, ZoneMargin)};
    const auto converted = [this](double place, AxisKind to) {
        return m_first->converted(place, AxisKind::Distance, to);
    };
    showRange({converted(wide.from, m_axis), converted(wide.to, m_axis)});
    moveCursor(slowestIn(seconds), std::nullopt);
    setShownZone(zone);
    sendStretch({converted(wide.from, AxisKind::Time), converted(wide.to, AxisKind::Time)});
}

std::optional<std::size_t> ChartState::zoneAtCursor() const
{
    if (m_first == nullptr)
        return std::nullopt;
    const double now = m_first->places(AxisKind::Time)[cursor()];
    for (std::size_t i = 0; i < m_zones.size(); ++i) {
        if (now >= m_zones[i].from && now < m_zones[i].to)
            return i;
    }
    return std::nullopt;
}

void ChartState::showNextZone(int direction)
{
    const std::size_t count = m_zones.size();
    const auto hasCorner = [this](std::size_t i) { return m_zones[i].hasCorner; };
    std::size_t zone = m_shownZone.value_or(zoneAtCursor().value_or(0));
    if (!m_shownZone && zone < count && hasCorner(zone)) {
        showZone(zone);
        return;
    }
    const std::size_t step = direction < 0 ? count - 1 : 1;
    for (std::size_t i = 0; i < count; ++i) {
        zone = (zone + step) % count;
        if (!hasCorner(zone))
            continue;
        if (zone != m_shownZone)
            showZone(zone);
        return;
    }
}

void ChartState::showRank(int rank)
{
    const auto found = std::find_if(m_zones.begin(), m_zones.end(),
                                    [=](const TrackZone &zone) { return zone.rank == rank; });
    if (rank > 0 && found != m_zones.end())
        showZone(static_cast<std::size_t>(found - m_zones.begin()));
}

void ChartState::setMeasuring(bool measuring)
{
    if (m_first == nullptr || measuring == m_isMeasuring)
        return;
    m_isMeasuring = measuring;
    m_isMeasuringEnd = false;
    m_measured.reset();
    Q_EMIT measureChanged();
}

void ChartState::measureAt(double place)
{
    if (!m_isMeasuring)
        return;
    const double metres = m_first->converted(place, m_axis, AxisKind::Distance);
    const double begin = m_isMeasuringEnd && m_measured ? m_measured->from : metres;
    m_isMeasuringEnd = !m_isMeasuringEnd;
    m_measured = AxisRange {std::min(begin, metres), std::max(begin, metres)};
    Q_EMIT measureChanged();
}

void ChartState::measure(const AxisRange &range)
{
    if (!m_isMeasuring)
        return;
    m_isMeasuringEnd = false;
    m_measured = AxisRange {m_first->converted(range.from, m_axis, AxisKind::Distance),
                            m_first->converted(range.to, m_axis, AxisKind::Distance)};
    Q_EMIT measureChanged();
}

std::optional<AxisRange> ChartState::measured() const
{
    if (!m_measured || m_first == nullptr)
        return std::nullopt;
    return AxisRange {m_first->converted(m_measured->from, AxisKind::Distance, m_axis),
                      m_first->converted(m_measured->to, AxisKind::Distance, m_axis)};
}

void ChartState::showWhole()
{
    setShownZone(std::nullopt);
    setVisible(m_whole);
    if (m_isSectorShown && m_first != nullptr)
        Q_EMIT stretchShown(m_first->points());
    m_isSectorShown = false;
}

} // namespace zuno
