// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is edited and what it gives; the form around it is in mapeditor.cpp.

#include <maps/editor/mapeditor.h>

#include <algorithm>
#include <cmath>

#include <QLocale>
#include <QMessageBox>
#include <QSignalBlocker>

#include <base/laptimes.h>
#include <maps/page/mapviewcontroller.h>
#include <session/laps/lap.h>

#include "ui_mapeditor.h"

namespace zuno {

namespace {

// Pixels beside the track at which a click still means the track.
constexpr double ClickReach = 12.0;

// Milliseconds between key strokes that belong together.
constexpr qint64 Pause = 1000;

// Lines of text that a warning takes, and that are seen without scrolling; pixels around them.
constexpr int WarningLines = 3;
constexpr int MostWarningLines = 6;
constexpr int LowWarningLines = 4;
constexpr int WarningMargin = 8;

// In a low window the lists of points and warnings scroll; the laps need the room more.
constexpr int LowWindow = 850;
constexpr int LowRows = 5;

QString metresText(double value)
{
    return MapEditor::tr("%1 m").arg(QLocale().toString(qRound(value)));
}

// A map without a session still shows where it lies.
Points pointsOf(const QList<QGeoCoordinate> &outline)
{
    Points points;
    for (const QGeoCoordinate &place : outline) {
        PointAcquisition point;
        point.dataCoordX = place.longitude();
        point.dataCoordY = place.latitude();
        points.push_back(point);
    }
    return points;
}

} // namespace

void MapEditor::showSession(int session)
{
    m_samples = session >= 0 ? m_content.samplesOf(session) : Points();
    m_proposal = m_samples.empty() ? MapProposal() : proposeMap(m_samples);
    fillOutlines();
    m_map->editPath(m_samples.empty() ? pointsOf(m_edit.draft().outline) : m_samples);
    showEdit();
}

void MapEditor::fillOutlines()
{
    m_outlines = {{&m_edit.path(), 0}};
    m_outline = m_edit.draft().outline;
    m_ui->cb_outline->clear();
    m_ui->cb_outline->addItem(tr("As it is"));
    // Without numbers: the laps of the table are counted from the line, which may be elsewhere.
    for (const FoundLap &lap : m_proposal.laps) {
        const QString text = timeText(qRound64(lap.time)) + u", " + metresText(lap.length);
        m_ui->cb_outline->addItem(text);
    }
    m_ui->cb_outline->setEnabled(m_ui->cb_outline->count() > 1);
}

void MapEditor::chooseOutline(int index)
{
    if (index <= 0) {
        m_edit.setOutline(m_outline);
    } else {
        const FoundLap &lap = m_proposal.laps[static_cast<std::size_t>(index - 1)];
        m_edit.setOutline(outlineOf(m_samples, lap, m_proposal.draft.start));
    }
    m_outlines.insert(&m_edit.path(), index);
    showEdit();
}

void MapEditor::select(int point)
{
    m_selected = std::clamp(point, MapEdit::NoPoint, m_edit.pointCount() - 1);
    showPoints();
    showOnMap();
}

// Strokes on the same thing, one after the other, are one step to undo.
void MapEditor::joinChanges(int kind)
{
    const bool isNext
        = kind == m_lastKind && m_sinceChange.isValid() && m_sinceChange.elapsed() < Pause;
    if (!isNext)
        m_edit.beginGesture();
    m_lastKind = kind;
    m_sinceChange.start();
}

void MapEditor::onDragged(int point, const QGeoCoordinate &place, bool done)
{
    if (!m_isDragging)
        m_edit.beginGesture();
    m_isDragging = !done;
    m_lastKind = NothingToJoin;
    m_selected = point;
    m_edit.movePoint(point, place);
    if (done)
        m_selected = m_edit.settle(point);
    // The page shows the point where the mouse is, so it is told even when nothing has changed.
    showPoints();
    showOnMap();
}

void MapEditor::onGateResized(double metres, bool done)
{
    if (!m_isDragging)
        m_edit.beginGesture();
    m_isDragging = !done;
    m_lastKind = NothingToJoin;
    // To the tenth of a metre that the box shows.
    m_edit.setGateSize(std::round(metres * 10.0) / 10.0);
    showOnMap();
}

void MapEditor::onTrackClicked(const QGeoCoordinate &place, double metresPerPixel)
{
    if (m_edit.path().nearest(place).off <= ClickReach * metresPerPixel)
        showAdded(m_edit.addPoint(place));
}

void MapEditor::nudge(double metres)
{
    if (m_selected == MapEdit::NoPoint)
        return;
    joinChanges(m_selected);
    m_edit.nudgePoint(m_selected, metres);
    const int settled = m_edit.settle(m_selected);
    if (settled != m_selected) {
        m_lastKind = settled;
        select(settled);
    }
}

void MapEditor::addPoint()
{
    showAdded(m_edit.addPoint());
}

void MapEditor::showAdded(int point)
{
    if (point != MapEdit::NoPoint)
        select(point);
    else if (m_edit.isFull())
        QMessageBox::information(
            this, windowTitle(),
            tr("A map has room for %1 timing points. Remove one of them to add "
               "another.")
                .arg(QLocale().toString(MaximumSectors)));
}

void MapEditor::removePoint()
{
    if (m_selected >= 0)
        m_edit.removePoint(m_selected);
}

void MapEditor::showEdit()
{
    m_selected = std::min(m_selected, m_edit.pointCount() - 1);
    const QSignalBlocker gateBlocker(m_ui->sb_gate);
    m_ui->sb_gate->setValue(m_edit.draft().gateSize);
    m_ui->cb_outline->setCurrentIndex(m_outlines.value(&m_edit.path(), 0));
    showPoints();
    showOnMap();
    showNameFault();
    m_checkSoon.start();
}

void MapEditor::showPoints()
{
    QTableWidget &table = *m_ui->tw_points;
    const QSignalBlocker blocker(table);
    table.setRowCount(m_edit.pointCount() + 1);
    for (int point = MapEdit::Start; point < m_edit.pointCount(); ++point) {
        const bool isOnLine = m_edit.place(point) == m_edit.draft().start;
        const QString name
            = point == MapEdit::Start ? tr("Start/finish") : QString::number(point + 1);
        const QString distance = metresText(m_edit.distance(point));
        const QString text
            = isOnLine && point != MapEdit::Start ? tr("%1 (on the line)").arg(distance) : distance;
        table.setItem(point + 1, 0, new QTableWidgetItem(name));
        table.setItem(point + 1, 1, new QTableWidgetItem(text));
    }
    table.setCurrentCell(m_selected + 1, 0);
    const int rows = height() < LowWindow ? std::min(table.rowCount(), LowRows) : table.rowCount();
    const int head = table.horizontalHeader()->sizeHint().height() + (2 * table.frameWidth());
    table.setFixedHeight(head + (rows * table.verticalHeader()->defaultSectionSize()));
    // The button says why no more can be added.
    m_ui->pb_add->setEnabled(m_edit.canAdd() || m_edit.isFull());
    m_ui->pb_remove->setEnabled(m_selected >= 0);
}

void MapEditor::showOnMap()
{
    QList<int> warned;
    for (const MapWarning &warning : m_laps.check().warnings) {
        for (const int point : {warning.point, warning.otherPoint}) {
            if (!warned.contains(point))
                warned.append(point);
        }
    }
    m_map->editDraft(m_edit.draft(), m_selected, warned);
}

void MapEditor::showCheck()
{
    const QList<MapWarning> before = m_laps.check().warnings;
    const qsizetype columns = m_laps.columnCount();
    MapCheck check = checkMap(m_samples, m_edit.draft());
    if (m_samples.empty()) {
        check.warnings.removeIf(
            [](const MapWarning &warning) { return warning.kind == MapWarning::Kind::NoPass; });
    }
    m_laps.setCheck(std::move(check), m_edit.pointCount());
    if (m_laps.columnCount() != columns || m_ui->tv_laps->columnWidth(0) == 0)
        m_ui->tv_laps->resizeColumnsToContents();
    m_ui->lb_summary->setText(summary());
    if (before != m_laps.check().warnings || m_ui->lw_warnings->count() == 0) {
        showWarnings();
        showOnMap();
    }
}

QString MapEditor::summary() const
{
    const MapCheck &check = m_laps.check();
    if (m_samples.empty())
        return tr("Choose a session to see the laps that the map gives.");
    if (check.bestLap < 0)
        return tr("No complete lap. Length: %1").arg(metresText(check.length));
    const CheckedLap &best = check.laps[static_cast<std::size_t>(check.bestLap)];
    const auto complete = std::count_if(check.laps.begin(), check.laps.end(),
                                        [](const CheckedLap &lap) { return lap.isComplete; });
    return tr("Complete laps: %1. Best: %2 (lap %3). Ideal: %4. Length: %5")
        .arg(QString::number(complete), timeText(best.time), QString::number(best.number),
             timeText(check.idealTime), metresText(check.length));
}

void MapEditor::showWarnings()
{
    QListWidget &list = *m_ui->lw_warnings;
    const QSignalBlocker blocker(list);
    list.clear();
    for (const MapWarning &warning : m_laps.check().warnings) {
        auto *item = new QListWidgetItem(warningText(warning), &list);
        item->setData(Qt::UserRole, warning.point);
        item->setIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning));
    }
    if (list.count() == 0 && !m_samples.empty()) {
        auto *item = new QListWidgetItem(tr("No problems found."), &list);
        item->setFlags(Qt::NoItemFlags);
    }
    const bool isWarned = !m_laps.check().warnings.isEmpty();
    const int most = height() < LowWindow ? LowWarningLines : MostWarningLines;
    const int lines = !isWarned ? 1 : std::min(WarningLines * list.count(), most);
    list.setFixedHeight((lines * list.fontMetrics().lineSpacing()) + (2 * list.frameWidth())
                        + WarningMargin);
}

} // namespace zuno
