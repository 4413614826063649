// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/foldersync.h>

#include <chrono>
#include <utility>

#include <QDirIterator>

#include <library/acquisitionlibrary.h>

namespace zuno {

namespace {

constexpr std::chrono::milliseconds Soon {100};
constexpr std::chrono::milliseconds Again {1000};

bool hasBelow(const QMap<QString, const Session *> &known, const QString &folder)
{
    const QString prefix = folder + u'/';
    const auto first = known.lowerBound(prefix);
    return first != known.cend() && first.key().startsWith(prefix);
}

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

void FolderSync::setRoot(const LibraryFolder &root)
{
    if (m_root.path() != root.path()) {
        m_waiting.clear();
        m_restless.clear();
    }
    m_root = root;
    m_contents.clear();
    m_wasRootMissing = !root.isReady();
    if (m_wasRootMissing && root.state() != LibraryFolder::State::NoPath)
        look(root.path());
}

void FolderSync::loseRoot()
{
    m_contents.clear();
    m_wasRootMissing = true;
    Q_EMIT rootLost();
    look(m_root.path());
}

void FolderSync::look(const QString &folder)
{
    m_waiting.insert(isAtOrBelow(folder, m_root.path()) ? folder : m_root.path());
    // Not started anew: a folder that never rests is looked at, too.
    if (!m_soon.isActive())
        m_soon.start(Soon);
}

// The tree looks into a folder only when it is opened.
void FolderSync::lookBelow(const QString &folder)
{
    const QStringList folders = m_root.foldersFrom(folder);
    for (const QString &below : folders)
        look(below);
}

void FolderSync::lookAtAll()
{
    // What it has not read yet is not new.
    if (m_library.isLoading()) {
        m_soon.start(Soon);
        return;
    }
    m_library.bundle([this] {
        Sessions known;
        const QList<Session *> sessions = m_library.sessions();
        for (const Session *session : sessions)
            known.insert(session->filePath(), session);
        const QSet<QString> folders = std::exchange(m_waiting, {});
        if (isRootMissing())
            return;
        for (const QString &folder : folders)
            lookAt(folder, known);
    });
    if (!m_restless.isEmpty() && !m_again.isActive())
        m_again.start(Again);
}

// Nobody tells when it comes back, so it is asked for.
bool FolderSync::isRootMissing()
{
    const bool wasMissing = std::exchange(m_wasRootMissing, !m_root.isReady());
    if (m_wasRootMissing) {
        m_contents.clear();
        m_library.removeAt(m_root.path());
        m_restless.insert(m_root.path());
        if (!wasMissing)
            Q_EMIT rootLost();
    } else if (wasMissing) {
        Q_EMIT rootReturned();
    }
    return m_wasRootMissing;
}

void FolderSync::lookAt(const QString &folder, const Sessions &known)
{
    if (!QFileInfo::exists(folder)) {
        m_contents.remove(folder);
        m_library.removeAt(folder);
        return;
    }
    // The rider may have opened a link that leads back into the library.
    if (!m_root.isEntered(QFileInfo(folder)))
        return;
    m_library.makeNamesReadable(m_root, folder);
    const bool isKnown = m_contents.contains(folder);
    const Contents before = m_contents.value(folder);
    Contents now;
    QDirIterator entries(folder, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        const QString path = entries.next();
        const QFileInfo entry = entries.fileInfo();
        if (entry.isDir()) {
            if (entry.isSymLink() && !m_root.isEntered(entry))
                continue;
            now.insert(path, {});
            if (isKnown ? !before.contains(path) : !hasBelow(known, path))
                lookBelow(path);
        } else if (path.endsWith(AcquisitionLibrary::Suffix)) {
            const Stamp stamp {entry.size(), entry.lastModified()};
            now.insert(path, stamp);
            const Session *session = known.value(path);
            if (session != nullptr || before.value(path) != stamp)
                follow(entry, session);
        }
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
    for (auto it = known.lowerBound(prefix); it != known.cend(); ++it) {
        const QString &path = it.key();
        if (!path.startsWith(prefix))
            break;
        const qsizetype end = path.indexOf(u'/', prefix.size());
        const QString entry = path.left(end);
        if (!isThere.contains(entry))
            isThere.insert(entry, end < 0 ? now.contains(path) : QFileInfo::exists(entry));
        if (!isThere.value(entry))
            m_library.removeAt(entry);
    }
}

} // namespace zuno
