// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/corners/cornertable.h>

#include <array>

#include <QHeaderView>
#include <QInputDialog>
#include <QKeyEvent>

#include <views/comparison/comparison.h>
#include <views/corners/cornerdelegate.h>
#include <views/corners/cornertablemodel.h>

namespace zuno {

namespace {

constexpr int RowPadding = 6;

} // namespace

CornerTable::CornerTable(const Comparison &comparison, QWidget *parent)
    : QTableView(parent)
    , m_comparison(comparison)
    , m_model(new CornerTableModel(comparison, this))
{
    setObjectName(QStringLiteral("tw_corners"));
    setAccessibleName(tr("Corners"));
    setModel(m_model);
    setItemDelegate(new CornerDelegate(*m_model, this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + RowPadding);
    horizontalHeader()->setHighlightSections(false);
    setToolTip(tr("A click shows the corner in charts and map, F2 gives it a name"));
    const auto choose
        = [this](const QModelIndex &cell) { Q_EMIT unitChosen(m_model->unitOf(cell.row())); };
    connect(this, &QTableView::clicked, this, choose);
    connect(m_model, &QAbstractItemModel::modelReset, this, &CornerTable::fitColumns);
    fitColumns();
}

void CornerTable::markUnit(std::optional<std::size_t> unit)
{
    for (int row = 0; unit && row < m_model->rowCount(); ++row) {
        if (m_model->unitOf(row) != *unit)
            continue;
        // Of several corners the rider may have chosen one.
        const int current = currentIndex().row();
        if (current < 0 || m_model->unitOf(current) != *unit || !selectionModel()->hasSelection())
            selectRow(row);
        return;
    }
    clearSelection();
}

void CornerTable::nameCurrent()
{
    const int row = currentIndex().row();
    if (row < 0 || row >= m_model->rowCount())
        return;
    const auto corner = static_cast<std::size_t>(row);
    const Corner &named = m_comparison.insight().circuit.corners[corner];
    bool isGiven = false;
    const QString name
        = QInputDialog::getText(this, tr("Name of the corner"), tr("Corner %1:").arg(named.number),
                                QLineEdit::Normal, named.name, &isGiven);
    if (isGiven && name.simplified() != named.name)
        Q_EMIT this->named(corner, name.simplified());
}

void CornerTable::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_F2)
        nameCurrent();
    else if (isEnter && currentIndex().isValid())
        Q_EMIT unitChosen(m_model->unitOf(currentIndex().row()));
    else
        QTableView::keyPressEvent(event);
}

void CornerTable::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    fitColumns();
}

// What tells least gives way first.
void CornerTable::fitColumns()
{
    using Column = CornerTableModel::Column;
    constexpr std::array Least {Column::Entry, Column::Lean, Column::OnTheGas, Column::BrakesAt};
    for (const int column : Least)
        showColumn(column);
    horizontalHeader()->ensurePolished();
    resizeColumnsToContents();
    for (const int column : Least) {
        if (horizontalHeader()->length() <= viewport()->width())
            break;
        hideColumn(column);
    }
    horizontalHeader()->setStretchLastSection(true);
}

} // namespace zuno
