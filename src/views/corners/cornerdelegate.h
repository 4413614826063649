// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStyledItemDelegate>

namespace zuno {

class CornerTableModel;
struct CornerSpread;

/// Paints the corner table: the difference stands smaller and in its colour behind the figure, and
/// how far the laps lie apart is a row of dots (a circle is the selected lap, a square the
/// reference).
class CornerDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    CornerDelegate(const CornerTableModel &model, QObject *parent)
        : QStyledItemDelegate(parent)
        , m_model(model)
    {
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override;

private:
    void paintSpread(QPainter &painter, const QRect &room, int row) const;

    const CornerTableModel &m_model;
};

} // namespace zuno
