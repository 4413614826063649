// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <maps/mapfile.h>

namespace zuno {

/// The maps of the maps folder, and a watch on it: a map file that is added, changed or taken
/// away while the program runs shows at once.
class MapFolder : public QObject
{
    Q_OBJECT

public:
    explicit MapFolder(QObject *parent = nullptr);

    /// Loads the maps of @p folder and watches it. False when the folder does not exist; then
    /// there are no maps.
    bool open(const QString &folder);
    [[nodiscard]] const MapLibrary &library() const { return m_library; }
    /// Loads the maps again. Every map of before is gone; whoever points at one must have let go.
    void load();

Q_SIGNALS:
    /// The folder has changed, and has been at rest since. The maps are those of before still.
    void changed();

private:
    void watch();

    MapLibrary m_library;
    QFileSystemWatcher m_watcher;
    QTimer m_rest;
    QString m_folder;
};

} // namespace zuno
