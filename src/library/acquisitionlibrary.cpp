// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/acquisitionlibrary.h>

#include <algorithm>
#include <utility>

#include <QDebug>
#include <QDir>

#include <library/libraryfolder.h>
#include <session/sessionfile.h>

namespace zuno {

AcquisitionLibrary::Said::Said(const Session &session)
    : path(session.filePath())
    , recording(session.recording())
    , stored(session.storedState())
    , edited(session.state())
    , isUnsaved(session.isUnsaved())
{
}

// What the rider has said about a session, and could not be written so far, outlives its reading.
void AcquisitionLibrary::Said::putInto(Session &session) const
{
    if (!isStillRecording(recording, session.recording()))
        return;
    const StoredState now = session.state();
    StoredState before = stored;
    StoredState after = edited;
    // What was computed from the samples that the file had is none of that.
    for (StoredState *state : {&before, &after}) {
        state->newSession = now.newSession;
        state->information.circuitName = now.information.circuitName;
        state->information.bestLapText = now.information.bestLapText;
        state->information.idealTimeText = now.information.idealTimeText;
    }
    session.setInformation(merged(before, after, now).information);
    session.setUnsaved(isUnsaved);
}

AcquisitionLibrary::AcquisitionLibrary(QObject *parent) : QObject(parent) {}

AcquisitionLibrary::~AcquisitionLibrary() = default;

void AcquisitionLibrary::load(const QString &folder)
{
    const LibraryFolder root(folder);
    if (root.isReady()) {
        while (makeNamesReadable(root)) {}
        loadBelow(root);
    }
    tell();
}

void AcquisitionLibrary::loadBelow(const LibraryFolder &root)
{
    const QStringList folders = root.foldersFrom(root.path());
    for (const QString &folder : folders) {
        const QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
        for (const QString &name : names) {
            const QString path = folder + u'/' + name;
            if (name.endsWith(Suffix) && indexOf(path) < 0)
                append(path, "loadAcquisitionsFolder");
        }
    }
}

// True when there may be more: nobody has looked into the folders that were renamed.
bool AcquisitionLibrary::makeNamesReadable(const LibraryFolder &root)
{
    bool isRenamed = false;
    const QStringList folders = root.foldersFrom(root.path());
    for (const QString &folder : folders)
        isRenamed = makeNamesReadable(root, folder) || isRenamed;
    return isRenamed;
}

bool AcquisitionLibrary::makeNamesReadable(const LibraryFolder &root, const QString &folder)
{
    const QStringList renamed
        = root.mayMakeIn(folder) ? zuno::makeNamesReadable(folder) : QStringList();
    for (const QString &path : renamed) {
        Q_EMIT noticed(tr("A name in your library could not be read; it is \"%1\" now.")
                           .arg(QFileInfo(path).fileName()));
    }
    return !renamed.isEmpty();
}

Session *AcquisitionLibrary::append(const QString &path, const char *caller)
{
    // Links lead to a file by several paths.
    const QString file = QFileInfo(path).canonicalFilePath();
    if (Session *known = m_files.value(file))
        return known;
    // Before it is read: what somebody writes meanwhile is not taken for known.
    const FileStamp stamp = FileStamp::of(QFileInfo(path));
    OpenedSession opened = openSession(path);
    if (!opened.session || opened.session->sampleCount() == 0) {
        qDebug().noquote() << QStringLiteral("(ZunoAnalyzer::%1) Error in decoding ZUNO File : %2")
                                  .arg(QLatin1String(caller), path);
        return nullptr;
    }
    m_sessions.push_back(std::move(opened.session));
    m_stamps.insert(m_sessions.back().get(), stamp);
    m_files.insert(file, m_sessions.back().get());
    const auto kept = std::find_if(m_kept.begin(), m_kept.end(),
                                   [&path](const Said &said) { return said.path == path; });
    if (kept != m_kept.end()) {
        kept->putInto(*m_sessions.back());
        m_kept.erase(kept);
    }
    return m_sessions.back().get();
}

void AcquisitionLibrary::noteWritten(const Session &session)
{
    m_stamps.insert(&session, FileStamp::of(QFileInfo(session.filePath())));
}

bool AcquisitionLibrary::refresh(const QString &path)
{
    Session *session = find(path);
    if (session == nullptr || !QFileInfo::exists(path) || !hasChanged(session, QFileInfo(path)))
        return false;
    const Said said(*session);
    bundle([&] {
        remove(session);
        if (Session *again = append(path, "onSessionDisplayedChange")) {
            said.putInto(*again);
            tell();
        }
    });
    return true;
}

bool AcquisitionLibrary::hasChanged(const Session *session, const QFileInfo &file) const
{
    return m_stamps.value(session) != FileStamp::of(file);
}

void AcquisitionLibrary::bundle(const std::function<void()> &work)
{
    ++m_bundles;
    work();
    --m_bundles;
    if (m_bundles == 0 && std::exchange(m_isUntold, false))
        Q_EMIT sessionsChanged();
}

void AcquisitionLibrary::tell()
{
    bundle([this] { m_isUntold = true; });
}

Session *AcquisitionLibrary::add(const QString &path, const char *caller)
{
    const QString clean = QDir::cleanPath(path);
    if (Session *known = find(clean))
        return known;
    const qsizetype before = size();
    Session *session = append(clean, caller);
    if (size() != before)
        tell();
    return session;
}

void AcquisitionLibrary::remove(Session *session)
{
    const qsizetype index = indexOf(session);
    if (index < 0)
        return;
    Q_EMIT sessionAboutToBeRemoved(session);
    keep(*session);
    m_stamps.remove(session);
    m_files.removeIf([session](const auto &file) { return file.value() == session; });
    m_sessions.erase(m_sessions.begin() + index);
    tell();
}

void AcquisitionLibrary::keep(const Session &session)
{
    if (!session.isUnsaved() || !session.recording().isRewritable())
        return;
    std::erase_if(m_kept, [&session](const Said &said) { return said.path == session.filePath(); });
    m_kept.emplace_back(session);
}

QList<AcquisitionLibrary::Unsaved> AcquisitionLibrary::unsaved() const
{
    QList<Unsaved> list;
    for (const auto &session : m_sessions) {
        if (session->isUnsaved() && session->recording().isRewritable())
            list.append({session->filePath(), session.get(), session->information()});
    }
    for (const Said &said : m_kept)
        list.append({said.path, nullptr, said.edited.information});
    return list;
}

void AcquisitionLibrary::forgetUnsaved(const QString &path)
{
    if (Session *session = find(path))
        session->setUnsaved(false);
    std::erase_if(m_kept, [&path](const Said &said) { return said.path == path; });
}

void AcquisitionLibrary::removeAt(const QString &path)
{
    bundle([this, &path] {
        const QList<Session *> all = sessions();
        for (Session *session : all) {
            if (isAtOrBelow(session->filePath(), path))
                remove(session);
        }
    });
}

void AcquisitionLibrary::movePath(const QString &from, const QString &to)
{
    for (const auto &session : m_sessions) {
        const QString path = session->filePath();
        if (!isAtOrBelow(path, from))
            continue;
        session->setFilePath(to + path.mid(from.size()));
        m_files.removeIf([&session](const auto &file) { return file.value() == session.get(); });
        m_files.insert(QFileInfo(session->filePath()).canonicalFilePath(), session.get());
    }
    tell();
}

void AcquisitionLibrary::reload(const QString &folder)
{
    std::vector<Said> said;
    for (const auto &session : m_sessions) {
        said.emplace_back(*session);
        Q_EMIT sessionAboutToBeRemoved(session.get());
        keep(*session);
    }
    m_sessions.clear();
    m_stamps.clear();
    m_files.clear();
    load(folder);
    for (const Said &one : said) {
        if (Session *again = find(one.path))
            one.putInto(*again);
    }
}

QList<Session *> AcquisitionLibrary::sessions() const
{
    QList<Session *> list;
    for (const auto &session : m_sessions)
        list.append(session.get());
    return list;
}

Session *AcquisitionLibrary::at(qsizetype index) const
{
    return index >= 0 && index < size() ? m_sessions[static_cast<std::size_t>(index)].get()
                                        : nullptr;
}

qsizetype AcquisitionLibrary::indexOf(const QString &path) const
{
    const auto found = std::find_if(m_sessions.begin(), m_sessions.end(),
                                    [&path](const auto &s) { return s->filePath() == path; });
    return found == m_sessions.end() ? -1 : found - m_sessions.begin();
}

qsizetype AcquisitionLibrary::indexOf(const Session *session) const
{
    const auto found = std::find_if(m_sessions.begin(), m_sessions.end(),
                                    [session](const auto &s) { return s.get() == session; });
    return found == m_sessions.end() ? -1 : found - m_sessions.begin();
}

QMap<QString, bool> AcquisitionLibrary::viewedStateMap() const
{
    QMap<QString, bool> states;
    for (const auto &session : m_sessions)
        states.insert(session->fileName(), session->newSession() != 0);
    return states;
}

} // namespace zuno
