// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/laps/customtableviewdelegate.h>

#include <theme/themes.h>
#include <views/laps/lapstablemodel.h>

namespace zuno {

void CustomTableViewDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    QStyleOptionViewItem coloured = option;
    // The fall-back of both roles is a colour, which reads as false.
    if (index.data(LapsTableModel::SelectedRecordRole).toBool())
        coloured.palette.setBrush(QPalette::Highlight, theme().colour(Colour::BestLap));
    if (index.data(LapsTableModel::SelectedSectionRole).toBool())
        coloured.palette.setBrush(QPalette::Highlight, theme().colour(Colour::BestSection));
    QStyledItemDelegate::paint(painter, coloured, index);
}

} // namespace zuno
