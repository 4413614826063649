// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractListModel>
#include <QStyledItemDelegate>

#include <views/comparison/timeplaces.h>

namespace zuno {

/// The corners that are none of the largest losses, a row each.
class PlaceListModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void setPlaces(const TimePlaces &places);
    [[nodiscard]] const TimePlace &at(int row) const
    {
        return m_places[static_cast<std::size_t>(row)];
    }
    /// The row of a unit; -1 without one.
    [[nodiscard]] int rowOf(std::size_t unit) const;
    /// Seconds; the longest bar, of 0.1 at least, so that noise makes no long ones.
    [[nodiscard]] double scale() const { return m_scale; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

private:
    std::vector<TimePlace> m_places;
    double m_scale = 0.0;
};

/// Paints a row of that list: what was won and lost as a thin bar, what came of it as a thick one.
class PlaceDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    PlaceDelegate(const PlaceListModel &model, QObject *parent)
        : QStyledItemDelegate(parent)
        , m_model(model)
    {
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override;

private:
    const PlaceListModel &m_model;
};

} // namespace zuno
