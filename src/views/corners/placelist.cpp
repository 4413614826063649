// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/corners/placelist.h>

#include <algorithm>

#include <QPainter>

#include <base/units.h>
#include <theme/themes.h>
#include <views/corners/differencecolour.h>

namespace zuno {

namespace {

constexpr double LeastScale = 0.1;
constexpr int RowPadding = 3;
constexpr int Margin = 4;
constexpr int ThinBar = 3;
constexpr int MostLabelShare = 3;

void fill(QPainter &painter, double from, double to, const QRect &row, int height, Colour colour)
{
    const QRectF bar(std::min(from, to), row.center().y() - (height / 2.0) + 0.5,
                     std::fabs(to - from), height);
    painter.fillRect(bar, theme().colour(colour));
}

} // namespace

void PlaceListModel::setPlaces(const TimePlaces &places)
{
    beginResetModel();
    m_places.clear();
    m_scale = LeastScale;
    for (const std::size_t i : places.others()) {
        m_places.push_back(places.places[i]);
        m_scale = std::max({m_scale, m_places.back().won, m_places.back().lost});
    }
    endResetModel();
}

int PlaceListModel::rowOf(std::size_t unit) const
{
    const auto found = std::ranges::find(m_places, unit, &TimePlace::unit);
    return found != m_places.end() ? static_cast<int>(found - m_places.begin()) : -1;
}

int PlaceListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_places.size());
}

QVariant PlaceListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const TimePlace &place = at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return place.title();
    case Qt::AccessibleTextRole:
        return place.spoken();
    case Qt::ToolTipRole:
        return QStringLiteral("<qt>%1</qt>").arg(place.spoken().toHtmlEscaped());
    default:
        return {};
    }
}

QSize PlaceDelegate::sizeHint(const QStyleOptionViewItem &option,
                              const QModelIndex & /*index*/) const
{
    return {0, option.fontMetrics.height() + RowPadding};
}

void PlaceDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    const TimePlace &place = m_model.at(index.row());
    const QRect row = option.rect.adjusted(Margin, 0, -Margin, 0);
    const bool isChosen = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    if (isChosen)
        painter->fillRect(option.rect, theme().colour(Colour::SelectedRow));
    painter->setFont(option.font);
    painter->setPen(theme().colour(isChosen ? Colour::SelectedText : Colour::Text));
    const int label = row.width() / MostLabelShare;
    painter->drawText(row, Qt::AlignLeft | Qt::AlignVCenter,
                      option.fontMetrics.elidedText(place.title(), Qt::ElideRight, label));
    const QString figure = shownNumber(place.loss, 3, true);
    const int figureWidth = option.fontMetrics.horizontalAdvance(QStringLiteral("+00.000"));
    const Colour colour = place.isConfirmed ? differenceColour(place.loss) : Colour::ThirdText;
    painter->setPen(theme().colour(isChosen ? Colour::SelectedText : colour));
    painter->drawText(row, Qt::AlignRight | Qt::AlignVCenter, figure);
    const double left = row.left() + label + Margin;
    const double right = row.right() - figureWidth - Margin;
    const double middle = (left + right) / 2.0;
    const double perSecond = (right - left) / 2.0 / m_model.scale();
    const int thick = option.fontMetrics.height() / 2;
    fill(*painter, middle - (place.won * perSecond), middle, row, ThinBar, Colour::Gain);
    fill(*painter, middle, middle + (place.lost * perSecond), row, ThinBar, Colour::Loss);
    fill(*painter, middle, middle + (place.loss * perSecond), row, thick, colour);
    painter->setPen(theme().colour(Colour::Zero));
    painter->drawLine(QPointF(middle, row.top() + 2), QPointF(middle, row.bottom() - 2));
    painter->restore();
}

} // namespace zuno
