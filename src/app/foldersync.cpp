// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/foldersync.h>

#include <chrono>
#include <utility>

#include <QDir>
#include <QDirIterator>

#include <app/acquisitionlibrary.h>

namespace zuno {

namespace {

constexpr std::chrono::milliseconds Soon {100};
constexpr std::chrono::milliseconds Again {1000};

} // namespace

FolderSync::FolderSync(AcquisitionLibrary &library, QObject *parent)
    : QObject(parent)
    , m_library(library)
{
    for (QTimer *timer : {&m_soon, &m_again})
        timer->setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &FolderSync::lookAtAll);
    connect(&m_again, &QTimer::timeout, this, [this] {
        m_waiting += std::exchange(m_restless, {});
        lookAtAll();
    });
}

void FolderSync::look(const QString &folder)
{
    m_waiting.insert(folder);
    // Not started anew: a folder that never rests is looked at, too.
    if (!m_soon.isActive())
        m_soon.start(Soon);
}

void FolderSync::lookBelow(const QString &folder)
{
    look(folder);
    QDirIterator folders(folder, QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks,
                         QDirIterator::Subdirectories);
    while (folders.hasNext())
        look(folders.next());
}

void FolderSync::lookAtAll()
{
    m_library.bundle([this] {
        Sessions known;
        const QList<Session *> sessions = m_library.sessions();
        for (const Session *session : sessions)
            known.insert(session->filePath(), session);
        const QSet<QString> folders = std::exchange(m_waiting, {});
        for (const QString &folder : folders)
            lookAt(folder, known);
    });
    if (!m_restless.isEmpty() && !m_again.isActive())
        m_again.start(Again);
}

void FolderSync::lookAt(const QString &folder, const Sessions &known)
{
    if (!QFileInfo::exists(folder)) {
        m_contents.remove(folder);
        m_library.removeAt(folder);
        return;
    }
    const Contents before = m_contents.value(folder);
    Contents now;
    QDirIterator files(folder, QDir::Files);
    while (files.hasNext()) {
        const QString path = files.next();
        if (!path.endsWith(AcquisitionLibrary::Suffix))
            continue;
        const QFileInfo file = files.fileInfo();
        const Stamp stamp {file.size(), file.lastModified()};
        now.insert(path, stamp);
        const Session *session = known.value(path);
        if (session != nullptr || before.value(path) != stamp)
            follow(file, session);
    }
    dropMissing(folder, known, now);
    if (now != before)
        m_restless.insert(folder);
    m_contents.insert(folder, now);
}

void FolderSync::follow(const QFileInfo &file, const Session *session)
{
    if (session == nullptr)
        m_library.add(file.filePath(), "onAddNewFiles");
    else if (m_library.hasChanged(session, file))
        Q_EMIT fileChanged(file.filePath());
}

// Of what is further below only the folder is asked for: the others have their own look.
void FolderSync::dropMissing(const QString &folder, const Sessions &known, const Contents &now)
{
    const QString prefix = folder + u'/';
    QHash<QString, bool> isThere;
    for (auto it = known.cbegin(); it != known.cend(); ++it) {
        const QString &path = it.key();
        if (!path.startsWith(prefix))
            continue;
        const qsizetype end = path.indexOf(u'/', prefix.size());
        const QString entry = path.left(end);
        if (!isThere.contains(entry))
            isThere.insert(entry, end < 0 ? now.contains(path) : QFileInfo::exists(entry));
        if (!isThere.value(entry))
            m_library.removeAt(entry);
    }
}

} // namespace zuno
