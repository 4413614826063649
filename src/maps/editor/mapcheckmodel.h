// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractTableModel>

#include <maps/check/mapcheck.h>

namespace zuno {

/// The laps and sectors that a map makes of a session, a row each lap; the best lap and the best
/// time of each sector in colour, as in the laps table.
class MapCheckModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Number, LapTime, FirstSector };

    using QAbstractTableModel::QAbstractTableModel;

    /// @p sectors is the number of the map's timing points.
    void setCheck(MapCheck check, int sectors);
    [[nodiscard]] const MapCheck &check() const { return m_check; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    [[nodiscard]] QString text(int row, int column) const;
    [[nodiscard]] QVariant background(int row, int column) const;
    void findBestSectors();

    MapCheck m_check;
    int m_sectors = 0;
    QList<int> m_bestSectors;
};

} // namespace zuno
