// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/mapfolder.h>

#include <chrono>

#include <QDir>
#include <QDirIterator>

namespace zuno {

namespace {

// Copying a set of maps makes a burst of changes; one reload follows the last of them.
constexpr std::chrono::milliseconds Rest {300};

} // namespace

MapFolder::MapFolder(QObject *parent) : QObject(parent)
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(Rest);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, [this] { m_rest.start(); });
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this] { m_rest.start(); });
    connect(&m_rest, &QTimer::timeout, this, [this] {
        watch();
        // What the program itself has written is loaded already.
        if (stamps() != m_loaded)
            Q_EMIT changed();
    });
}

bool MapFolder::open(const QString &folder)
{
    m_folder = QDir::cleanPath(folder);
    load();
    return QDir(m_folder).exists();
}

void MapFolder::load()
{
    // Before the maps: what changes meanwhile is loaded once more.
    m_loaded = stamps();
    m_library.loadMaps(m_folder);
    watch();
}

QList<MapFolder::FileStamp> MapFolder::stamps() const
{
    QList<FileStamp> stamps;
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
    QStringList paths;
    if (QDir(m_folder).exists())
        paths.append(m_folder);
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
