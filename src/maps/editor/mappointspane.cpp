// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/editor/mappointspane.h>

#include "ui_mappointspane.h"

#include <algorithm>

#include <QSignalBlocker>

#include <maps/editor/mapedit.h>
#include <maps/editor/metrestext.h>

namespace zuno {

namespace {

constexpr int LowRows = 5;

} // namespace

MapPointsPane::MapPointsPane(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::MapPointsPane>())
{
    m_ui->setupUi(this);
    m_ui->tw_points->verticalHeader()->hide();
    connect(m_ui->tw_points, &QTableWidget::currentCellChanged, this, [this](int row) {
        if (row >= 0)
            Q_EMIT pointSelected(row - 1);
    });
    connect(m_ui->pb_add, &QPushButton::clicked, this, &MapPointsPane::addRequested);
    connect(m_ui->pb_remove, &QPushButton::clicked, this, &MapPointsPane::removeRequested);
}

MapPointsPane::~MapPointsPane() = default;

QWidget &MapPointsPane::list()
{
    return *m_ui->tw_points;
}

void MapPointsPane::showPoints(const MapEdit &edit, int selected, bool isLow)
{
    QTableWidget &table = *m_ui->tw_points;
    const QSignalBlocker blocker(table);
    table.setRowCount(edit.pointCount() + 1);
    for (int point = MapEdit::Start; point < edit.pointCount(); ++point) {
        const bool isOnLine = edit.place(point) == edit.draft().start;
        const QString name
            = point == MapEdit::Start ? tr("Start/finish") : QString::number(point + 1);
        const QString distance = metresText(edit.distance(point));
        const QString text
            = isOnLine && point != MapEdit::Start ? tr("%1 (on the line)").arg(distance) : distance;
        table.setItem(point + 1, 0, new QTableWidgetItem(name));
        table.setItem(point + 1, 1, new QTableWidgetItem(text));
    }
    table.setCurrentCell(selected + 1, 0);
    const int rows = isLow ? std::min(table.rowCount(), LowRows) : table.rowCount();
    const int head = table.horizontalHeader()->sizeHint().height() + (2 * table.frameWidth());
    table.setFixedHeight(head + (rows * table.verticalHeader()->defaultSectionSize()));
    // The button says why no more can be added.
    m_ui->pb_add->setEnabled(edit.canAdd() || edit.isFull());
    m_ui->pb_remove->setEnabled(selected >= 0);
}

} // namespace zuno
