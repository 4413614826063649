// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

#include <formats/table/tablesheet.h>
#include <library/ridepreview.h>

class QComboBox;
class QLabel;
class QPushButton;
class QTableWidget;

namespace zuno {

class ColumnMemory;

/// Asks which column of a table says what, in which unit; what is guessed, or was chosen for a
/// table with the same heading, stands there first. Shows what the begin of the file gives so.
class ColumnDialog final : public QDialog
{
    Q_OBJECT

public:
    ColumnDialog(const QString &path, const ColumnMemory &memory, QWidget *parent);

    [[nodiscard]] ColumnMapping mapping() const;
    /// What the mapping is to be remembered by.
    [[nodiscard]] QString key() const;

private:
    void load(const QString &path);
    void fillTable(const ColumnMapping &mapping);
    void addRow(int column, const ColumnMapping &mapping);
    void chooseQuantity(int column);
    void fillUnits(int column, int unit);
    void preview();
    [[nodiscard]] QComboBox *box(int column, int cell) const;
    [[nodiscard]] int quantityAt(int column) const;

    TableSheet m_sheet;
    /// The begin of the file.
    QByteArray m_bytes;
    QTableWidget *m_table;
    RidePreview *m_preview;
    QLabel *m_state;
    QPushButton *m_accept;
};

} // namespace zuno
