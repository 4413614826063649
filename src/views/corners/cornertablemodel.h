// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <span>
#include <vector>

#include <QAbstractTableModel>

#include <insight/sessioninsight.h>

namespace zuno {

class Comparison;

/// The times of the laps of a session in one corner.
struct CornerSpread
{
    /// Seconds, of the laps that count.
    std::vector<double> times;
    std::optional<double> selected;
    std::optional<double> reference;

    [[nodiscard]] double least() const;
    [[nodiscard]] double most() const;
};

/// The corners of the circuit in the selected lap, a row each, with the differences to the
/// reference.
class CornerTableModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Time, Difference, BrakesAt, Entry, Minimum, Exit, Lean, OnTheGas, Spread };
    enum Role {
        /// The difference to the reference as it stands behind the figure; empty without one.
        DifferenceRole = Qt::UserRole + 1,
        /// Its colour, an int of Colour.
        ColourRole,
    };

    /// @p comparison must outlive the model.
    explicit CornerTableModel(const Comparison &comparison, QObject *parent = nullptr);

    /// The unit of the circuit in which a row's corner lies.
    [[nodiscard]] std::size_t unitOf(int row) const;
    [[nodiscard]] CornerSpread spreadOf(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    /// What stands in a cell: the lap's figure and the difference to the reference.
    struct Cell
    {
        QString text;
        QString difference = {};
        /// Which way is slower: seconds, or as many per cent of a second, above 0.
        double slower = 0.0;
    };
    [[nodiscard]] Cell cell(int row, int column) const;
    [[nodiscard]] Cell nameCell(int row) const;
    [[nodiscard]] Cell timeCell(int row, bool isDifference) const;
    [[nodiscard]] double timeIn(const InsightLap &lap, int row) const;
    [[nodiscard]] const CornerFigures *figures(const InsightLap *lap, int row) const;

    const Comparison &m_comparison;
};

} // namespace zuno
