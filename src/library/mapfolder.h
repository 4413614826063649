// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QFileSystemWatcher>
#include <QList>
#include <QObject>
#include <QTimer>

#include <track/mapfile.h>

namespace zuno {

/// The maps of the maps folder, and a watch on it: a map file that is added, changed or taken
/// away while the program runs shows at once. When the whole folder goes, as with a drive that is
/// taken out, its maps stay until it is there again.
class MapFolder : public QObject
{
    Q_OBJECT

public:
    explicit MapFolder(QObject *parent = nullptr);

    /// Loads the maps of @p folder and watches it. Every map of before is gone; whoever points at
    /// one must have let go. False when the folder is not there: then there are no maps, or those
    /// of before if it was open.
    bool open(const QString &folder);
    [[nodiscard]] const MapLibrary &library() const { return m_library; }

Q_SIGNALS:
    /// The folder is another than when it was loaded, and has been at rest since. The maps are
    /// those of before still.
    void changed();

private:
    /// Tells whether a file is still the one that was loaded.
    struct FileStamp
    {
        QString path;
        qint64 size = 0;
        QDateTime modified;

        friend bool operator==(const FileStamp &, const FileStamp &) = default;
    };

    [[nodiscard]] QList<FileStamp> stamps() const;
    [[nodiscard]] bool isAway() const;
    void look();
    void watch();

    MapLibrary m_library;
    QList<FileStamp> m_loaded;
    QFileSystemWatcher m_watcher;
    QTimer m_rest;
    QString m_folder;
    /// The device that the folder was on when its maps were loaded.
    QByteArray m_drive;
};

} // namespace zuno
