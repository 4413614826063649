// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <QTableView>

namespace zuno {

class Comparison;
class CornerTableModel;

/// The corners of the circuit in figures. A click on a row shows the place, F2 names the corner.
class CornerTable final : public QTableView
{
    Q_OBJECT

public:
    /// @p comparison must outlive the table.
    explicit CornerTable(const Comparison &comparison, QWidget *parent = nullptr);

    /// Marks the rows of a unit; none for the whole lap.
    void markUnit(std::optional<std::size_t> unit);
    /// Asks for the name of the current row's corner, and keeps it.
    void nameCurrent();

Q_SIGNALS:
    void unitChosen(std::size_t unit);
    /// The rider has called a corner so; it counts from 0.
    void named(std::size_t corner, const QString &name);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitColumns();

    const Comparison &m_comparison;
    CornerTableModel *m_model;
};

} // namespace zuno
