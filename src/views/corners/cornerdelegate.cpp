// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/corners/cornerdelegate.h>

#include <QPainter>

#include <theme/themes.h>
#include <views/corners/cornertablemodel.h>

namespace zuno {

namespace {

constexpr int Padding = 5;
constexpr int RowPadding = 6;
constexpr int SpreadRoom = 70;
constexpr double DotSize = 2.0;
constexpr double MarkSize = 3.5;

QFont differenceFont(QFont font, bool isOwnColumn)
{
    if (isOwnColumn)
        font.setBold(true);
    return font;
}

} // namespace

QSize CornerDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QString text
        = index.data().toString() + index.data(CornerTableModel::DifferenceRole).toString();
    QFont bold = option.font;
    bold.setBold(true);
    int width = QFontMetrics(bold).horizontalAdvance(text) + (4 * Padding);
    if (index.column() == CornerTableModel::Spread)
        width += SpreadRoom;
    return {width, option.fontMetrics.height() + RowPadding};
}

void CornerDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    const bool isChosen = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (isChosen)
        painter->fillRect(option.rect, theme().colour(Colour::SelectedRow));
    QRect room = option.rect.adjusted(Padding, 0, -Padding, 0);
    const QString difference = index.data(CornerTableModel::DifferenceRole).toString();
    const bool isOwnColumn = index.column() == CornerTableModel::Difference;
    if (!difference.isEmpty()) {
        const auto colour = static_cast<Colour>(index.data(CornerTableModel::ColourRole).toInt());
        const bool isLoss = isChosen && colour == Colour::Loss;
        painter->setFont(differenceFont(option.font, isOwnColumn));
        painter->setPen(theme().colour(isLoss     ? Colour::SelectedLoss
                                       : isChosen ? Colour::SelectedText
                                                  : colour));
        painter->drawText(room, Qt::AlignRight | Qt::AlignVCenter, difference);
        const QString widest = QStringLiteral("+88");
        room.setRight(room.right() - Padding
                      - std::max(painter->fontMetrics().horizontalAdvance(difference),
                                 painter->fontMetrics().horizontalAdvance(widest)));
    }
    painter->setFont(option.font);
    painter->setPen(theme().colour(isChosen ? Colour::SelectedText : Colour::Text));
    const auto alignment = static_cast<Qt::Alignment>(index.data(Qt::TextAlignmentRole).toInt());
    const QString text = index.data().toString();
    painter->drawText(room, static_cast<int>(alignment), text);
    if (index.column() == CornerTableModel::Spread) {
        room.setRight(room.right() - option.fontMetrics.horizontalAdvance(text) - (2 * Padding));
        paintSpread(*painter, room, index.row());
    }
    painter->restore();
}

void CornerDelegate::paintSpread(QPainter &painter, const QRect &room, int row) const
{
    const CornerSpread spread = m_model.spreadOf(row);
    const double least = spread.least();
    const double range = spread.most() - least;
    if (range <= 0.0 || room.width() < SpreadRoom / 2)
        return;
    const QRectF line = QRectF(room).adjusted(MarkSize, 0, -MarkSize, 0);
    const auto at = [&](double time) {
        const double part = std::clamp((time - least) / range, 0.0, 1.0);
        return QPointF(line.left() + (part * line.width()), line.center().y());
    };
    painter.setPen(theme().colour(Colour::Edge));
    painter.drawLine(at(least), at(spread.most()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme().colour(Colour::ThirdText));
    for (const double time : spread.times)
        painter.drawEllipse(at(time), DotSize, DotSize);
    if (spread.reference) {
        painter.setBrush(theme().lap(1));
        const QPointF mark(MarkSize - 0.5, MarkSize - 0.5);
        painter.drawRect(QRectF(at(*spread.reference) - mark, at(*spread.reference) + mark));
    }
    if (spread.selected) {
        painter.setBrush(theme().lap(0));
        painter.drawEllipse(at(*spread.selected), MarkSize, MarkSize);
    }
}

} // namespace zuno
