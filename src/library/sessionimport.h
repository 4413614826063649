// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>

class QStatusBar;
class QWidget;

namespace zuno {

class AcquisitionLibrary;
class DownloadInProgress;
class Settings;

/// What became of the files of an import.
struct ImportResult
{
    Q_DECLARE_TR_FUNCTIONS(ImportResult)

public:
    /// All in one line, for the status bar. What is out of the ordinary shows only when there is
    /// any of it.
    [[nodiscard]] QString summary() const;
    /// The names behind the summary, for its tool tip; empty when there is none to name.
    [[nodiscard]] QString details() const;
    /// Shows both until the status bar has something else to tell: the tool tip takes its time.
    void showIn(QStatusBar &bar) const;

    int imported = 0;
    /// How many recordings the folder held already.
    int present = 0;
    /// Names of files that hold no session.
    QStringList foreign;
    /// Names that another recording bears in the folder; these files were left out.
    QStringList taken;
    /// Names of files that could not be copied.
    QStringList failed;
    bool isCancelled = false;
};

/// Copies session files into the folder "Imported Sessions" of the acquisition folder, which is
/// made when it is missing, and loads them. An existing file is never overwritten, and a file is
/// copied whole or not at all.
///
/// What is dropped on the window is imported as well. A few files are copied at each turn of the
/// event loop. A long import shows a window with its progress, which can cancel it; what was copied
/// until then stays.
class SessionImport final : public QObject
{
    Q_OBJECT

public:
    /// @p window takes the drops and is the parent of the progress window.
    SessionImport(AcquisitionLibrary &library, const Settings &settings, QWidget *window);

    /// Begins to import files, in their order; of a folder, all session files at any depth. What
    /// is given while an import runs is appended to it.
    void start(const QStringList &paths);
    /// Where a file of that name stands once it is imported: an ending ".RA1" becomes ".ra1",
    /// which is the only one that a library looks for.
    [[nodiscard]] QString importedPath(const QString &fileName) const;

Q_SIGNALS:
    void finished(const zuno::ImportResult &result);

private:
    void step();
    void takeFolder(const QString &path);
    void takeFile(const QString &path);
    void load(const QString &target);
    void compare(const QString &path, const QString &target);
    void showProgress();
    void cancel();
    void finish();

    AcquisitionLibrary &m_library;
    const Settings &m_settings;
    QWidget *m_window;
    QTimer m_turn;
    QElapsedTimer m_running;
    QString m_folder;
    QStringList m_waiting;
    qsizetype m_done = 0;
    ImportResult m_result;
    QPointer<DownloadInProgress> m_progress;
};

} // namespace zuno
