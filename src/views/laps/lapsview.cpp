// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/laps/lapsview.h>

#include <QAction>
#include <QHeaderView>
#include <QIcon>
#include <QMenu>
#include <QMetaMethod>
#include <QTableView>
#include <QTimer>

#include <base/settings.h>
#include <theme/themedicon.h>
#include <track/map.h>
#include <views/laps/customtableviewdelegate.h>
#include <views/laps/lapselection.h>
#include <views/laps/lapstablemodel.h>

namespace zuno {

namespace {

// Above and below the text of a row together, pixels.
constexpr int RowPadding = 8;

} // namespace

LapsView::LapsView(QTableView &table, LapSelection &selection, const Settings &settings)
    : QObject(&table)
    , m_table(table)
    , m_selection(selection)
    , m_settings(settings)
    , m_model(new LapsTableModel(this))
    , m_validity(makeAction(Qt::Key_V, &LapsView::toggleValidity))
    , m_compare(makeAction(Qt::Key_C, &LapsView::compare))
    , m_reselect(makeAction(Qt::Key_R, &LapsView::reselect))
    , m_other(makeAction(Qt::Key_O, &LapsView::toggleOther))
    , m_export(makeAction(QKeySequence(Qt::CTRL | Qt::Key_E), &LapsView::exportLap))
{
    m_table.setModel(m_model);
    m_table.setItemDelegate(new CustomTableViewDelegate(this));
    m_table.verticalHeader()->hide();
    m_table.verticalHeader()->setDefaultSectionSize(m_table.fontMetrics().height() + RowPadding);
    m_table.horizontalHeader()->setHighlightSections(false);
    m_table.setToolTip(tr("V throws a lap out or takes it back, C compares, Ctrl+E exports; the "
                          "menu key shows everything that can be done with a lap"));
    m_model->setSelection(m_table.selectionModel());
    m_reselect->setText(tr("Reselect first lap"));
    m_reselect->setIcon(themedIcon(QStringLiteral("compare.png")));
    m_export->setText(tr("Export lap"));
    m_export->setIcon(themedIcon(QStringLiteral("export.png")));
    m_compare->setIcon(themedIcon(QStringLiteral("compare.png")));
    connectSelection();
}

void LapsView::connectSelection()
{
    connect(m_table.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) {
                if (current.isValid())
                    m_selection.setCurrentLap(current.row());
            });
    connect(&m_selection, &LapSelection::currentLapChanged, this, &LapsView::selectCurrentRow);
    connect(&m_selection, &LapSelection::shownChanged, this, &LapsView::updateActions);
    const auto chooseSector = [this](const QModelIndex &cell) {
        const int sector = LapsTableModel::sectionOf(cell.column());
        if (sector >= 0)
            Q_EMIT sectorChosen(sector);
    };
    connect(&m_table, &QTableView::clicked, this, chooseSector);
    // With the keys: Enter.
    connect(&m_table, &QTableView::activated, this, chooseSector);
    connect(&m_table, &QTableView::customContextMenuRequested, this, &LapsView::openMenu);
}

QAction *LapsView::makeAction(const QKeySequence &shortcut, void (LapsView::*run)())
{
    auto *action = new QAction(this);
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setShortcutVisibleInContextMenu(true);
    connect(action, &QAction::triggered, this, run);
    m_table.addAction(action);
    return action;
}

void LapsView::showLaps()
{
    const Session *session = m_selection.session();
    const Map *map = session != nullptr ? session->map() : nullptr;
    m_model->setLaps(session != nullptr ? &session->laps() : nullptr,
                     map != nullptr ? map->sectorCount() : 0);
    applyColumns();
    selectCurrentRow();
    updateActions();
    // With the first lap the charts appear and take room from the table.
    QTimer::singleShot(0, &m_table, [this] { m_table.scrollTo(m_table.currentIndex()); });
}

void LapsView::applyColumns()
{
    for (int column = 0; column < m_model->columnCount(); ++column) {
        const auto setting = LapsTableModel::settingOf(column);
        m_table.setColumnHidden(column, setting && !m_settings.isOn(*setting));
    }
    // Before the window is shown, the header does not know its padding yet and would cut its texts.
    m_table.horizontalHeader()->ensurePolished();
    m_table.resizeColumnsToContents();
}

void LapsView::selectCurrentRow()
{
    const int row = m_selection.currentIndex();
    if (row >= 0 && row < m_model->rowCount() && m_table.currentIndex().row() != row)
        m_table.selectRow(row);
    updateActions();
}

void LapsView::updateActions()
{
    const Lap *lap = m_selection.currentLap();
    const bool isValid = lap != nullptr && lap->isValid();
    m_validity->setText(isValid ? tr("Invalidate lap") : tr("Validate lap"));
    m_validity->setIcon(
        themedIcon(isValid ? QStringLiteral("invalidate.png") : QStringLiteral("check.png")));
    m_validity->setEnabled(lap != nullptr);
    m_compare->setText(m_selection.compared() ? tr("Compare to this lap")
                                              : tr("Compare this lap with..."));
    // Also where it does nothing but say why.
    m_compare->setEnabled(lap != nullptr);
    const bool isOther = m_selection.isOther(m_selection.session(), m_selection.currentIndex());
    m_other->setText(isOther ? tr("Draw no longer besides") : tr("Draw besides"));
    m_other->setEnabled(lap != nullptr);
    m_export->setEnabled(lap != nullptr
                         && isSignalConnected(QMetaMethod::fromSignal(&LapsView::exportRequested)));
}

void LapsView::fillMenu(QMenu &menu)
{
    updateActions();
    menu.addAction(m_validity);
    menu.addAction(m_compare);
    menu.addAction(m_reselect);
    menu.addAction(m_other);
    menu.addAction(m_export);
}

void LapsView::openMenu(const QPoint &position)
{
    if (m_selection.currentLap() == nullptr)
        return;
    QMenu menu;
    fillMenu(menu);
    menu.exec(m_table.viewport()->mapToGlobal(position));
}

void LapsView::toggleValidity()
{
    Session *session = m_selection.session();
    const Lap *lap = m_selection.currentLap();
    if (session == nullptr || lap == nullptr)
        return;
    session->setLapValid(static_cast<std::size_t>(m_selection.currentIndex()), !lap->isValid());
    m_model->refresh();
    updateActions();
    Q_EMIT validityChanged(session);
}

void LapsView::compare()
{
    const SessionLap lap = m_selection.current();
    if (!lap)
        return;
    if (lap == m_selection.reference())
        Q_EMIT refused(tr("This is the first lap itself; choose another one to compare it with."));
    Q_EMIT referenceChosen(lap);
}

void LapsView::reselect()
{
    Q_EMIT referenceMenuWanted();
}

void LapsView::toggleOther()
{
    if (!m_selection.toggleOther(m_selection.session(), m_selection.currentIndex()))
        Q_EMIT refused(tr("Six laps are drawn at most; take one away first."));
}

void LapsView::exportLap()
{
    if (const SessionLap lap = m_selection.current())
        Q_EMIT exportRequested(lap);
}

} // namespace zuno
