// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/idealtime/idealtimedialog.h>

#include <algorithm>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScreen>
#include <QTimer>

#include <views/idealtime/idealtimemodel.h>
#include <widgets/plaintexts.h>

#include "ui_idealtimedialog.h"

namespace zuno {

namespace {

// Above and below the text of a row together, pixels.
constexpr int RowPadding = 8;
// Left and right of the texts of a column together.
constexpr int ColumnPadding = 16;
// A name is no wider than this unless the rider widens the column, in characters.
constexpr int NameWidth = 40;

// So many sessions that are left out are named below the table, all of them in its tool tip.
constexpr qsizetype NamedSessions = 5;

// In characters and rows.
constexpr int DialogWidth = 170;
constexpr int DialogHeight = 22;

} // namespace

IdealTimeDialog::IdealTimeDialog(const IdealTimeSearch::Parts &parts,
                                 const QList<Session *> &sessions, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::IdealTimeDialog>())
    , m_search(parts, sessions)
    , m_model(new IdealTimeModel(this))
{
    m_ui->setupUi(this);
    m_ui->tw_idealTime->setModel(m_model);
    m_ui->tw_idealTime->setToolTip(
        tr("Enter or a double click shows the lap, Ctrl+C copies the table"));
    m_ui->lb_map->setText(tr("Computing the ideal time..."));
    m_ui->progressBar->setMaximum(static_cast<int>(m_search.size()));
    m_ui->stack->setCurrentWidget(m_ui->progressPage);
    m_ui->lb_leftOut->hide();
    m_ui->pb_copy->hide();
    m_ui->pb_close->setText(tr("Cancel"));
    connect(m_ui->pb_close, &QPushButton::clicked, this, &QDialog::reject);
    createActions();
    resize(DialogWidth * fontMetrics().averageCharWidth(),
           DialogHeight * (fontMetrics().height() + RowPadding));
    QTimer::singleShot(0, this, &IdealTimeDialog::step);
}

IdealTimeDialog::~IdealTimeDialog() = default;

void IdealTimeDialog::createActions()
{
    QTableView *table = m_ui->tw_idealTime;
    const auto add = [table](const QString &text, const QList<QKeySequence> &keys) {
        auto *action = new QAction(text, table);
        action->setShortcuts(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        action->setShortcutVisibleInContextMenu(true);
        table->addAction(action);
        return action;
    };
    connect(add(tr("Show this lap"), {Qt::Key_Return, Qt::Key_Enter}), &QAction::triggered, this,
            [this, table] { showLap(table->currentIndex()); });
    connect(add(tr("Copy table"), {QKeySequence::Copy}), &QAction::triggered, this,
            &IdealTimeDialog::copyTable);
    connect(table, &QTableView::doubleClicked, this, &IdealTimeDialog::showLap);
    connect(m_ui->pb_copy, &QPushButton::clicked, this, &IdealTimeDialog::copyTable);
}

void IdealTimeDialog::step()
{
    if (m_search.isDone()) {
        showResult();
        return;
    }
    m_search.step();
    m_ui->progressBar->setValue(static_cast<int>(m_search.handled()));
    // Closing the dialog stops its event loop, and with it the search.
    QTimer::singleShot(0, this, &IdealTimeDialog::step);
}

void IdealTimeDialog::showResult()
{
    showLeftOut();
    m_ui->pb_close->setText(tr("Close"));
    const IdealTime idealTime = m_search.result();
    const bool hasTimes = idealTime.bestContinuousLap()
                          || std::any_of(idealTime.sectors().begin(), idealTime.sectors().end(),
                                         [](const auto &sector) { return sector.has_value(); });
    m_ui->lb_map->setVisible(m_search.sessionCount() > 0);
    m_ui->lb_map->setText(
        tr("Map : %1").arg(m_search.mapName()) + u", "
        + tr("sessions : %1 of %2").arg(m_search.sessionCount()).arg(m_search.size()));
    if (!hasTimes) {
        m_ui->lb_state->setText(
            m_search.sessionCount() == 0
                ? tr("None of these sessions can be cut into laps, so there is no ideal time.")
                : tr("These sessions have no valid lap that went through a section, so there is "
                     "no ideal time."));
        m_ui->stack->setCurrentWidget(m_ui->statePage);
        return;
    }
    m_model->setIdealTime(idealTime);
    m_ui->pb_copy->show();
    m_ui->stack->setCurrentWidget(m_ui->tablePage);
    fitColumns();
    m_ui->tw_idealTime->selectRow(0);
    m_ui->tw_idealTime->setFocus();
}

void IdealTimeDialog::showLeftOut()
{
    QStringList lines = m_search.leftOut();
    m_ui->lb_leftOut->setVisible(!lines.isEmpty());
    m_ui->lb_leftOut->setToolTip(plainToolTip(lines.join(u'\n')));
    const qsizetype more = lines.size() - NamedSessions;
    if (more > 0)
        lines = lines.first(NamedSessions) << tr("and %1 more").arg(more);
    m_ui->lb_leftOut->setText(tr("Left out:") + u'\n' + lines.join(u'\n'));
}

void IdealTimeDialog::fitColumns()
{
    QTableView &table = *m_ui->tw_idealTime;
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + RowPadding);
    table.horizontalHeader()->ensurePolished();
    table.resizeColumnsToContents();
    for (int column = 0; column < IdealTimeModel::ColumnCount; ++column) {
        const bool isName
            = column == IdealTimeModel::SessionName || column == IdealTimeModel::Driver;
        const int width = table.columnWidth(column) + ColumnPadding;
        const int widest = NameWidth * table.fontMetrics().averageCharWidth();
        table.setColumnWidth(column, isName ? std::min(width, widest) : width);
    }
    // Some languages need more than the usual width.
    const int missing = table.horizontalHeader()->length() - table.viewport()->width();
    const int room = screen()->availableSize().width() - width();
    const int added = std::clamp(missing, 0, std::max(room, 0));
    resize(width() + added, height());
    move(std::max(x() - added / 2, 0), y());
}

void IdealTimeDialog::showLap(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    if (const auto ridden = m_model->riddenTime(index.row())) {
        Q_EMIT lapRequested(ridden->filePath, ridden->lapNumber);
        accept();
    }
}

void IdealTimeDialog::copyTable() const
{
    QGuiApplication::clipboard()->setText(m_model->toText());
}

} // namespace zuno
