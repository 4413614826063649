// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTreeWidget>

#include <formats/import/importer.h>

namespace zuno {

class MapLibrary;

/// What files give that are to be imported: a line for each session, with a box to choose it, and
/// one for each file that gives none, with the reason.
class ImportTable final : public QTreeWidget
{
    Q_OBJECT

public:
    enum Column { File, Kind, Date, Circuit, Duration, Rate, Laps, Remarks };

    explicit ImportTable(QWidget *parent = nullptr);

    /// Shows what became of the file at @p path, instead of what was shown of it before. Circuit
    /// and laps are those that @p maps give.
    void showOutcome(const QString &path, const ImportOutcome &outcome, const MapLibrary &maps);
    /// Where the sessions stand that are chosen.
    [[nodiscard]] QStringList chosen() const;
    /// The file of the current line when it is a table whose columns can be matched; otherwise
    /// empty.
    [[nodiscard]] QString currentTable() const;

private:
    QTreeWidgetItem *addLine(int row, const QString &path, const ImportOutcome &outcome);
    void describe(QTreeWidgetItem &item, const ImportedSession &session,
                  const ImportOutcome &outcome, const MapLibrary &maps) const;
    [[nodiscard]] int removeLines(const QString &path);
};

} // namespace zuno
