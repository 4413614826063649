// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <memory>
#include <optional>

#include <QObject>

#include <views/charts/chartaxis.h>
#include <views/charts/lapcomparison.h>
#include <views/charts/laptrack.h>

namespace zuno {

struct SessionLap;

/// What the rider looks at in the charts: the laps, the axis, the visible stretch of it and the
/// cursor. Charts, value labels and map listen to it and know nothing of each other.
///
/// The cursor stands on a sample of the first lap. It has a pinned place, and one under the mouse
/// as long as the mouse is over a chart; the latter counts.
class ChartState : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    ~ChartState() override;

    /// Shows one lap; none or a lap without samples shows none. The visible stretch and the
    /// cursor stay at their places when the lap before was ridden on the same map.
    void showLap(const SessionLap &lap);
    /// Shows two laps, the first of which is the one that axis and cursor belong to.
    void showLaps(const SessionLap &first, const SessionLap &second);

    /// nullptr without one.
    [[nodiscard]] const LapTrack *first() const { return m_first.get(); }
    [[nodiscard]] const LapTrack *second() const { return m_second.get(); }
    /// There while there are two laps.
    [[nodiscard]] const LapComparison *comparison() const { return m_comparison.get(); }

    [[nodiscard]] AxisKind axis() const { return m_axis; }
    /// Keeps what is visible and where the cursor stands.
    void setAxis(AxisKind axis);

    /// The stretch from the start of the laps to the end of the longer one.
    [[nodiscard]] AxisRange whole() const { return m_whole; }
    [[nodiscard]] AxisRange visible() const { return m_visible; }
    [[nodiscard]] bool isZoomed() const { return m_visible != m_whole; }
    /// The stretch that is being selected with the mouse.
    [[nodiscard]] const std::optional<AxisRange> &selected() const { return m_selected; }

    /// The sample of the first lap under the cursor, and its place; 0 without a lap.
    [[nodiscard]] std::size_t cursor() const { return m_hovered.value_or(m_pinned); }
    [[nodiscard]] double cursorPlace() const;
    /// Where the second lap is then: at the same place on the track, or at the same time, as a
    /// fractional index. Not a number without a second lap or where it is not.
    [[nodiscard]] double secondPosition() const;

    /// Moves the cursor to the sample next to a place, for as long as the mouse is there.
    void hover(double place);
    /// Brings the cursor back to its pinned place.
    void endHover();
    void pin(double place);
    /// Pins the cursor and brings it into sight.
    void lead(double place);
    void step(int samples);
    void stepSeconds(int seconds);

    void zoom(double factor, double around);
    /// Moves the visible stretch by a part of its length.
    void scroll(double part);
    /// Shows a stretch; too short a one is made longer.
    void showRange(const AxisRange &range);
    /// Shows the whole laps again.
    void showWhole();
    void select(const std::optional<AxisRange> &range);
    /// Shows a sector of the first lap (counts from 0) and says so; nothing for one without a
    /// time.
    void showSector(int sector);
    /// Shows a piece of the first lap, seconds since its start, and says so.
    void showTimes(const AxisRange &seconds);

public Q_SLOTS:
    /// Pins the cursor to a sample of the first lap, as from the map; nothing for one that it has
    /// not got.
    void pinSample(int index);
    /// Pins the cursor to the sample next to a moment of the first lap, seconds since its start.
    void pinTime(double seconds);

Q_SIGNALS:
    /// Other laps are shown, or the axis is another; visible stretch and cursor may be others too.
    void contentChanged();
    void visibleChanged();
    void selectedChanged();
    void cursorChanged();
    /// The samples of a sector or piece that was zoomed to, and afterwards those of the whole lap.
    void stretchShown(const zuno::Points &points);

private:
    void replaceLaps(std::unique_ptr<LapTrack> first, std::unique_ptr<LapTrack> second,
                     std::unique_ptr<LapComparison> comparison);
    void computeWhole();
    void setVisible(const AxisRange &range);
    void moveCursor(std::size_t pinned, std::optional<std::size_t> hovered);
    void pinAndShow(std::size_t sample);
    [[nodiscard]] double shortest() const;

    std::unique_ptr<LapTrack> m_first;
    std::unique_ptr<LapTrack> m_second;
    std::unique_ptr<LapComparison> m_comparison;
    AxisKind m_axis = AxisKind::Distance;
    AxisRange m_whole;
    AxisRange m_visible;
    std::optional<AxisRange> m_selected;
    bool m_isSectorShown = false;
    std::size_t m_pinned = 0;
    std::optional<std::size_t> m_hovered;
};

} // namespace zuno
