// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include <QObject>

#include <insight/trackzones.h>
#include <views/charts/chartaxis.h>
#include <views/charts/lapcomparison.h>
#include <views/charts/laptrack.h>

namespace zuno {

class Session;
struct SessionLap;

/// A lap that is drawn along with the two that are compared.
struct OtherLap
{
    LapTrack track;
    /// The first lap with it.
    LapComparison comparison;
};

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
    /// The same with up to MostOthers further laps; without a @p second one only those.
    void showLaps(const SessionLap &first, const SessionLap &second,
                  const std::vector<SessionLap> &others);
    /// Shows all samples of a session that has no laps as if they were one, from 0 on both axes.
    void showRide(const Session &session);

    static constexpr std::size_t MostOthers = 4;

    /// nullptr without one.
    [[nodiscard]] const LapTrack *first() const { return m_first.get(); }
    [[nodiscard]] const LapTrack *second() const { return m_second.get(); }
    /// There while there are two laps.
    [[nodiscard]] const LapComparison *comparison() const { return m_comparison.get(); }
    [[nodiscard]] const std::vector<OtherLap> &others() const { return m_others; }
    /// Whether it is a whole session that is shown.
    [[nodiscard]] bool isRide() const { return m_isRide; }

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

    /// The units of the circuit in the first lap. They go with the lap: whoever knows them gives
    /// them again after contentChanged().
    void setZones(TrackZones zones);
    [[nodiscard]] const TrackZones &zones() const { return m_zones; }
    /// A place of the axis for a moment of the first lap, in seconds since its start.
    [[nodiscard]] double placeOf(double seconds) const;
    /// The same for a moment of the second lap: where the first was at that place of the track, or
    /// against time that moment. Not a number without a second lap, or where the first was not.
    [[nodiscard]] double placeOfSecond(double seconds) const;
    /// The zone that charts and map were last brought to, and are still at.
    [[nodiscard]] std::optional<std::size_t> shownZone() const { return m_shownZone; }
    /// Shows a zone with 40 metres more on each side, the cursor at its lowest speed; the whole lap
    /// when it is the one that is shown. Nothing for one that there is not.
    void showZone(std::size_t zone);
    /// Shows the zone with a corner after the one that is shown, or before it (@p direction below
    /// 0), around the lap; at first the one at the cursor.
    void showNextZone(int direction);
    /// Shows the zone of that rank, nothing without one.
    void showRank(int rank);

    /// Whether clicks set the two places between which is measured.
    [[nodiscard]] bool isMeasuring() const { return m_isMeasuring; }
    void setMeasuring(bool measuring);
    /// Sets the first place, then the second, then the first anew.
    void measureAt(double place);
    /// Sets both, as the mouse is drawn over them.
    void measure(const AxisRange &range);
    /// The places set so far, on the axis; equal as long as there is one.
    [[nodiscard]] std::optional<AxisRange> measured() const;

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
    void zonesChanged();
    /// Another zone is shown, or none.
    void shownZoneChanged();
    /// Measuring began or ended, or a place was set.
    void measureChanged();
    /// The samples of a sector or piece that was zoomed to, and afterwards those of the whole lap.
    void stretchShown(const zuno::Points &points);

private:
    struct Laps
    {
        std::unique_ptr<LapTrack> first = {};
        std::unique_ptr<LapTrack> second = {};
        std::unique_ptr<LapComparison> comparison = {};
        std::vector<OtherLap> others = {};
        bool isRide = false;
    };
    void replaceLaps(Laps laps);
    void setShownZone(std::optional<std::size_t> zone);
    void sendStretch(const AxisRange &seconds);
    [[nodiscard]] std::size_t slowestIn(const AxisRange &seconds) const;
    [[nodiscard]] std::optional<std::size_t> zoneAtCursor() const;
    void computeWhole();
    void setVisible(const AxisRange &range);
    void moveCursor(std::size_t pinned, std::optional<std::size_t> hovered);
    void pinAndShow(std::size_t sample);
    [[nodiscard]] double shortest() const;

    std::unique_ptr<LapTrack> m_first;
    std::unique_ptr<LapTrack> m_second;
    std::unique_ptr<LapComparison> m_comparison;
    std::vector<OtherLap> m_others;
    TrackZones m_zones;
    std::optional<std::size_t> m_shownZone;
    /// Metres of the first lap, so that they stay with another axis or lap.
    std::optional<AxisRange> m_measured;
    bool m_isMeasuring = false;
    bool m_isMeasuringEnd = false;
    bool m_isRide = false;
    AxisKind m_axis = AxisKind::Distance;
    AxisRange m_whole;
    AxisRange m_visible;
    std::optional<AxisRange> m_selected;
    bool m_isSectorShown = false;
    std::size_t m_pinned = 0;
    std::optional<std::size_t> m_hovered;
};

} // namespace zuno
