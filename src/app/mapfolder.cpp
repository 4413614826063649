// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/mapfolder.h>

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
        Q_EMIT changed();
    });
}

bool MapFolder::open(const QString &folder)
{
    m_folder = QDir::cleanPath(folder);
    load();
    watch();
    return QDir(m_folder).exists();
}

void MapFolder::load()
{
    m_library.loadMaps(m_folder);
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
