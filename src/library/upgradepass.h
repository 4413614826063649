// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QObject>
#include <QStringList>
#include <QThreadPool>
#include <QTimer>

#include <library/libraryfolder.h>
#include <library/work/upgradeone.h>

namespace zuno {

class AcquisitionLibrary;
class MapLibrary;
class Settings;

/// The one pass over the library that gives the sessions of releases before 1.4.0.0 their
/// information: computes what displaying each would, and rewrites its file where that is news.
///
/// The work is done on threads of its own, file by file, each of which gets and gives back values;
/// only the library's sessions are told here. A program that was ended meanwhile begins again, and
/// finds the files that are done as they should be.
class UpgradePass : public QObject
{
    Q_OBJECT

public:
    /// What the pass works with; all of it must outlive the pass.
    struct Parts
    {
        AcquisitionLibrary &library;
        const Settings &settings;
    };
    explicit UpgradePass(const Parts &parts, QObject *parent = nullptr);
    /// Waits for the files that are being worked on.
    ~UpgradePass() override;

    /// Begins with the library in @p folder when the settings say that the pass has not run yet.
    /// True when it has begun.
    bool start(const LibraryFolder &folder);
    [[nodiscard]] bool isRunning() const { return m_isRunning; }
    /// Leaves out what has not begun; the pass counts as done.
    void cancel();

    /// What is done, and how many sessions there are, for the rider.
    [[nodiscard]] static QString title();
    [[nodiscard]] static QString description(qsizetype sessions);

Q_SIGNALS:
    void advanced(qsizetype done, qsizetype all);
    /// All is done, or was left out.
    void finished();

private:
    void sort(const QStringList &paths);
    void next();
    void begin(const QString &path);
    void take(const QString &path, const Upgraded &upgraded);
    void finish();

    Parts m_parts;
    LibraryFolder m_folder;
    std::shared_ptr<const MapLibrary> m_maps;
    QStringList m_waiting;
    // Somebody may still be writing them.
    QStringList m_young;
    QTimer m_rest;
    qsizetype m_all = 0;
    qsizetype m_done = 0;
    int m_begun = 0;
    bool m_isRunning = false;
    // Last, so that it is waited for before anything else goes.
    QThreadPool m_pool;
};

} // namespace zuno
