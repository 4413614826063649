// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

#include <library/columnmemory.h>
#include <library/importreader.h>

class QLabel;
class QProgressBar;
class QPushButton;

namespace zuno {

class ImportTable;
class MapLibrary;
class Settings;

/// Shows what other loggers' files hold before anything is imported, and asks what of it to take.
///
/// The sessions stand in a folder of the dialog's own as long as it lives.
class ImportDialog final : public QDialog
{
    Q_OBJECT

public:
    ImportDialog(const MapLibrary &maps, const Settings &settings, QWidget *parent);

    /// Reads more files and shows what they hold.
    void add(const QStringList &paths);
    /// Where the sessions stand that the rider has chosen.
    [[nodiscard]] QStringList chosen() const;

public Q_SLOTS:
    /// Asks what the columns of the current line's file say, and reads it again.
    void matchColumns();

private:
    QWidget *makeFoot();
    void read(const QString &path);
    void take(const QString &path, const ImportOutcome &outcome);
    void showProgress(const QString &path, int percent);
    void refresh();

    const MapLibrary &m_maps;
    ColumnMemory m_columns;
    ImportReader m_reader;
    ImportTable *m_table;
    QLabel *m_state;
    QProgressBar *m_progress;
    QPushButton *m_match;
    QPushButton *m_import;
    int m_files = 0;
    int m_done = 0;
};

} // namespace zuno
