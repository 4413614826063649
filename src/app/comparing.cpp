// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/comparing.h>

#include <QAction>
#include <QWidget>

#include <base/settings.h>
#include <track/map.h>
#include <views/charts/lapcharts.h>
#include <views/comparison/comparisonbar.h>
#include <views/comparison/lapchooser.h>
#include <views/corners/cornernames.h>
#include <views/corners/cornertable.h>
#include <views/corners/wherepane.h>
#include <views/laps/lapselection.h>
#include <views/laps/lapspane.h>
#include <views/laps/lapsview.h>

namespace zuno {

Comparing::Comparing(const Parts &parts, Comparison::Sources sources, QWidget *window)
    : QObject(window)
    , m_parts(parts)
    , m_comparison(parts.selection, parts.settings, std::move(sources))
    , m_bar(new ComparisonBar(m_comparison, parts.selection, window))
    , m_where(new WherePane(m_comparison, window))
    , m_corners(new CornerTable(m_comparison, window))
{
    m_parts.laps.addCorners(m_corners);
    connectParts();
    createKeys();
}

void Comparing::connectParts()
{
    const LapsView *table = &m_parts.laps.table();
    ChartState *state = &m_parts.charts.state();
    connect(table, &LapsView::referenceChosen, &m_comparison, &Comparison::chooseLap);
    connect(table, &LapsView::referenceMenuWanted, m_bar, &ComparisonBar::openMenu);
    connect(table, &LapsView::validityChanged, &m_comparison, &Comparison::refresh);
    connect(m_bar, &ComparisonBar::refused, this, &Comparing::noticed);
    connect(m_bar, &ComparisonBar::otherFileWanted, this, &Comparing::chooseOtherFile);
    connect(m_where, &WherePane::referenceMenuWanted, m_bar, &ComparisonBar::openMenu);
    connect(m_where, &WherePane::unitChosen, state, &ChartState::showZone);
    connect(m_corners, &CornerTable::unitChosen, state, &ChartState::showZone);
    connect(m_corners, &CornerTable::named, this, &Comparing::nameCorner);
    connect(&m_comparison, &Comparison::noticed, this, &Comparing::noticed);
    connect(&m_comparison, &Comparison::changed, this,
            [this] { m_parts.charts.state().setZones(m_comparison.zones()); });
    connect(state, &ChartState::shownZoneChanged, this, &Comparing::mark);
    m_parts.charts.state().setZones(m_comparison.zones());
}

void Comparing::addKey(const QString &text, const QKeySequence &key, const QList<QWidget *> &where,
                       const std::function<void()> &run)
{
    auto *action = new QAction(this);
    // The sheet of keys lists those of the laps table and of the charts already.
    const bool isNew
        = key == QKeySequence(Qt::Key_X) || key[0].keyboardModifiers() != Qt::NoModifier;
    if (isNew)
        action->setText(text);
    else
        action->setWhatsThis(text);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, run);
    for (QWidget *widget : where)
        widget->addAction(action);
}

// The laps table has C and R of its own, the charts those that lead through the lap.
void Comparing::createKeys()
{
    ChartState *state = &m_parts.charts.state();
    const QList<QWidget *> beside {m_bar, m_where, m_corners, &m_parts.map};
    const QList<QWidget *> withCharts = beside + QList<QWidget *> {&m_parts.charts};
    const QList<QWidget *> withLaps {m_bar, m_where, &m_parts.laps, &m_parts.map};
    const QList<QWidget *> everywhere = withLaps + QList<QWidget *> {&m_parts.charts};
    addKey(tr("Compare with this lap"), Qt::Key_C, withCharts,
           [this] { m_comparison.chooseLap(m_parts.selection.current()); });
    addKey(tr("Choose the reference"), Qt::Key_R, withCharts, [this] { m_bar->openMenu(); });
    addKey(tr("No comparison"), QKeySequence(Qt::SHIFT | Qt::Key_R), everywhere,
           [this] { m_comparison.clear(); });
    addKey(tr("Swap lap and reference"), Qt::Key_X, everywhere, [this] { m_comparison.swap(); });
    addKey(tr("Largest loss"), Qt::Key_1, withLaps, [state] { state->showRank(1); });
    addKey(tr("Second largest loss"), Qt::Key_2, withLaps, [state] { state->showRank(2); });
    addKey(tr("Third largest loss"), Qt::Key_3, withLaps, [state] { state->showRank(3); });
    addKey(tr("Corner before"), Qt::Key_Comma, withLaps, [state] { state->showNextZone(-1); });
    addKey(tr("Next corner"), Qt::Key_Period, withLaps, [state] { state->showNextZone(1); });
    addKey(tr("The whole lap"), Qt::Key_Escape, withLaps, [state] { state->showWhole(); });
}

void Comparing::mark()
{
    const std::optional<std::size_t> unit = m_parts.charts.state().shownZone();
    m_where->markUnit(unit);
    m_corners->markUnit(unit);
}

void Comparing::chooseOtherFile()
{
    LapChooser chooser(m_comparison, m_bar);
    if (chooser.exec() != QDialog::Accepted)
        return;
    if (const std::optional<ReferenceChoice> choice = chooser.chosen())
        m_comparison.choose(*choice);
}

void Comparing::nameCorner(std::size_t corner, const QString &name)
{
    const Map *map = m_parts.selection.current().map();
    if (map == nullptr)
        return;
    const QString problem = zuno::nameCorner(m_parts.settings.mapsFolder() + map->name(),
                                             m_comparison.insight().circuit, corner, name);
    if (problem.isEmpty())
        m_comparison.refresh();
    else
        Q_EMIT noticed(tr("The name could not be kept: %1").arg(problem));
}

} // namespace zuno
