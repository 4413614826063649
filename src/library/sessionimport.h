// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QDateTime>
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
struct Recording;
class Session;
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
    /// The names of imported files that stand under another name, as theirs was taken by another
    /// recording: "ride.ra1 (ride (2).ra1)".
    QStringList renamed;
    /// Names of files that could not be copied.
    QStringList failed;
    /// Where the newest of the recordings that were handled stands in the library.
    QString path;
    /// Why nothing could be imported; empty otherwise.
    QString problem;
    bool isCancelled = false;
};

/// Copies session files into the folder "Imported Sessions" of the acquisition folder, which is
/// made when it is missing, and loads them. Each is looked at first, whatever its name: what is no
/// session is not copied. A file is copied whole or not at all. An existing file is only replaced
/// when it is the beginning of the same recording, as a copy is that was broken off; another
/// recording of the same name gets a number.
///
/// Files of other loggers are only found, for somebody else to import: those whose content or name
/// tells that they may be recordings.
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

    /// Begins to import files, in their order; of a folder, all recordings at any depth. What is
    /// given while an import runs is appended to it.
    void start(const QStringList &paths);
    /// The name that a file gets in the library, which only looks for those that end in ".ra1" and
    /// are not hidden.
    [[nodiscard]] static QString importedName(const QString &fileName);
    /// Whether the file may be a recording of another logger, by its content or its name.
    [[nodiscard]] static bool isOthers(const QString &path);
    /// The endings of other loggers' files, as a file dialog wants them: "*.vbo *.csv ...".
    [[nodiscard]] static QString othersPattern();

Q_SIGNALS:
    void finished(const zuno::ImportResult &result);
    /// There were files of other loggers among those to import.
    void othersFound(const QStringList &paths);

private:
    void step();
    void takeFolder(const QString &path);
    void takeFile(const QString &path);
    void takeSession(const QString &path, const Session &session);
    void place(const QString &path, const QString &target);
    void replace(const QString &path, const QString &target);
    [[nodiscard]] bool makeFolder();
    void showProgress();
    void note(const QString &target, const Recording &recording);
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
    /// When the recording at the result's path began.
    QDateTime m_newest;
    QStringList m_others;
    QPointer<DownloadInProgress> m_progress;
};

} // namespace zuno
