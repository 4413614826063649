// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QPointer>

namespace zuno {

class AcquisitionLibrary;
class DownloadInProgress;
class InformationWriter;
class LibraryTree;
class SessionDisplay;
class Settings;

/// The one pass over the library that gives the sessions of releases before 1.4.0.0 their
/// information: displays every session and rewrites its file, with a window that shows how far it
/// is and can cancel it.
class UpgradePass : public QObject
{
    Q_OBJECT

public:
    /// What the pass works with; all of it must outlive the pass.
    struct Parts
    {
        AcquisitionLibrary &library;
        LibraryTree &tree;
        SessionDisplay &display;
        InformationWriter &writer;
        const Settings &settings;
    };
    explicit UpgradePass(const Parts &parts, QObject *parent = nullptr);

    /// Runs the pass when the settings say that it has not run yet, and notes that it has, also
    /// when it was cancelled. True when it has run now.
    bool runOnce();

private:
    void run();
    void rest();
    void handle(const QString &path);
    void showProgress();

    Parts m_parts;
    QPointer<DownloadInProgress> m_window;
    qsizetype m_counter = 0;
};

} // namespace zuno
