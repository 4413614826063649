// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/mapfolder.h>

#include <chrono>

#include <QDir>
#include <QDirIterator>
#include <QStorageInfo>

namespace zuno {

namespace {

// Copying a set of maps makes a burst of changes; one reload follows the last of them.
constexpr std::chrono::milliseconds Rest {300};

// Nobody tells when a drive is back.
constexpr std::chrono::milliseconds Return {1000};

} // namespace

MapFolder::MapFolder(QObject *parent) : QObject(parent)
{
    m_rest.setSingleShot(true);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, [this] { m_rest.start(Rest); });
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this,
            [this] { m_rest.start(Rest); });
    connect(&m_rest, &QTimer::timeout, this, &MapFolder::look);
}

bool MapFolder::open(const QString &folder)
{
    const QString clean = QDir::cleanPath(folder);
    const bool isOther = clean != m_folder;
    m_folder = clean;
    if (isOther)
        m_loaded.clear();
    const bool isThere = !isAway();
    if (isOther || isThere) {
        // Before the maps: what changes meanwhile is loaded once more.
        m_loaded = stamps();
        m_drive = QStorageInfo(m_folder).device();
        m_library.clear();
        if (isThere)
            m_library.loadMaps(m_folder);
    }
    watch();
    return isThere;
}

// Where a drive was, an empty folder may be left. A relative path is one of wherever the program
// was started.
bool MapFolder::isAway() const
{
    const QDir folder(m_folder);
    return !QDir::isAbsolutePath(m_folder) || !folder.exists()
           || (!m_loaded.isEmpty() && folder.isEmpty()
               && QStorageInfo(m_folder).device() != m_drive);
}

void MapFolder::look()
{
    watch();
    // What the program itself has written is loaded already.
    if (!isAway() && stamps() != m_loaded)
        Q_EMIT changed();
}

QList<MapFolder::FileStamp> MapFolder::stamps() const
{
    QList<FileStamp> stamps;
    if (isAway())
        return stamps;
    QDirIterator files(m_folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        stamps.append({path, files.fileInfo().size(), files.fileInfo().lastModified()});
    }
    return stamps;
}

// Folders that appeared and files that were replaced are not watched yet.
void MapFolder::watch()
{
    if (isAway()) {
        // What stands under these paths by then is something else.
        const QStringList watched = m_watcher.files() + m_watcher.directories();
        if (!watched.isEmpty())
            m_watcher.removePaths(watched);
        m_rest.start(Return);
        return;
    }
    QStringList paths {m_folder};
    QDirIterator entries(m_folder, QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        paths.append(entries.next());
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    for (const QString &path : watched)
        paths.removeOne(path);
    if (!paths.isEmpty())
        m_watcher.addPaths(paths);
}

} // namespace zuno
