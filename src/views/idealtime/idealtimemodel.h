// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractTableModel>

#include <session/idealtime.h>

namespace zuno {

/// An ideal time over sessions as a table: a row for each sector, then the total, the best lap and
/// the best continuous lap.
class IdealTimeModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        Section,
        BestTime,
        SessionName,
        Driver,
        LapNumber,
        InBestLap,
        Difference,
    };
    static constexpr int ColumnCount = Difference + 1;

    using QAbstractTableModel::QAbstractTableModel;

    void setIdealTime(IdealTime idealTime);
    /// The lap that a row tells of; nothing for a row without a time, and for the total.
    [[nodiscard]] std::optional<RiddenTime> riddenTime(int row) const;
    /// The whole table with its header, a line for each row, cells divided by tabs.
    [[nodiscard]] QString toText() const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    // The rows after those of the sectors, in their order.
    enum class Kind { Sector, Total, BestLap, ContinuousLap };
    static constexpr int FurtherRows = 3;

    [[nodiscard]] int sectorCount() const;
    [[nodiscard]] Kind kindOf(int row) const;
    [[nodiscard]] QString text(int row, int column) const;
    [[nodiscard]] QString title(int row) const;
    [[nodiscard]] QString lapText(int row) const;
    [[nodiscard]] std::optional<qint32> time(int row) const;
    [[nodiscard]] std::optional<qint32> timeInBestLap(int row) const;
    [[nodiscard]] std::optional<qint32> difference(int row) const;

    IdealTime m_idealTime;
};

} // namespace zuno
