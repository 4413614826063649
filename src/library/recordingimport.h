// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>

class QWidget;

namespace zuno {

class ImportDialog;
class MapLibrary;
class SessionImport;
class Settings;

/// Lets the rider choose what to take of other loggers' files, and has it imported.
class RecordingImport final : public QObject
{
    Q_OBJECT

public:
    /// What it works with; all of it must outlive it.
    struct Parts
    {
        SessionImport &import;
        const MapLibrary &maps;
        const Settings &settings;
    };
    /// Its dialog stands on @p window.
    RecordingImport(const Parts &parts, QWidget *window);
    ~RecordingImport() override;

    /// Shows what the files hold, in the dialog that is open or in a new one.
    void offer(const QStringList &paths);

private:
    void importChosen();
    void close();

    Parts m_parts;
    QWidget *m_window;
    QPointer<ImportDialog> m_dialog;
    bool m_isImporting = false;
};

} // namespace zuno
