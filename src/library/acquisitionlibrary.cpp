// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/acquisitionlibrary.h>

#include <algorithm>
#include <utility>

#include <QDebug>
#include <QDir>
#include <QElapsedTimer>

#include <library/libraryfolder.h>
#include <session/sessionfile.h>

namespace zuno {

namespace {

// So many files are read at once, which takes some 20 ms; then the rider may look at them while
// the others are read, in slices of so many milliseconds.
constexpr qsizetype ReadAtOnce = 1000;
constexpr qsizetype ReadBetweenLooks = 20;
constexpr qint64 Slice = 8;

} // namespace

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

AcquisitionLibrary::AcquisitionLibrary(QObject *parent) : QObject(parent)
{
    connect(&m_readOn, &QTimer::timeout, this, &AcquisitionLibrary::readOn);
}

AcquisitionLibrary::~AcquisitionLibrary() = default;

void AcquisitionLibrary::load(const QString &folder)
{
    listBelow(folder);
    finishLoading();
}

void AcquisitionLibrary::loadSoon(const QString &folder, const QString &first)
{
    listBelow(folder);
    if (m_toRead.size() > ReadAtOnce) {
        m_order = m_toRead;
        putFirst(first);
    }
    readSome(ReadAtOnce);
    tell();
    if (isLoading())
        m_readOn.start(0);
}

void AcquisitionLibrary::listBelow(const QString &folder)
{
    m_readOn.stop();
    m_order.clear();
    m_toRead.clear();
    const LibraryFolder root(folder);
    if (root.isReady()) {
        while (makeNamesReadable(root)) {}
        const QStringList folders = root.foldersFrom(root.path());
        for (const QString &below : folders) {
            const QStringList names = QDir(below).entryList(QDir::Files, QDir::Name);
            for (const QString &name : names) {
                if (name.endsWith(Suffix))
                    m_toRead.append(below + u'/' + name);
            }
        }
    }
}

// What the rider saw last is there before the rest is read.
void AcquisitionLibrary::putFirst(const QString &file)
{
    const QString folder = QFileInfo(file).path() + u'/';
    std::stable_partition(m_toRead.begin(), m_toRead.end(), [&folder](const QString &path) {
        return path.startsWith(folder) && path.indexOf(u'/', folder.size()) < 0;
    });
    if (const qsizetype at = m_toRead.indexOf(file); at > 0)
        m_toRead.move(at, 0);
}

void AcquisitionLibrary::readSome(qsizetype count)
{
    count = std::min(count, m_toRead.size());
    for (qsizetype i = 0; i < count; ++i) {
        // It may have been taken in, or be gone, since the folder was listed.
        if (find(m_toRead[i]) == nullptr && QFileInfo::exists(m_toRead[i]))
            append(m_toRead[i], "loadAcquisitionsFolder");
    }
    m_toRead.remove(0, count);
}

void AcquisitionLibrary::readOn()
{
    QElapsedTimer timer;
    timer.start();
    while (isLoading() && timer.elapsed() < Slice)
        readSome(ReadBetweenLooks);
    Q_EMIT loadingAdvanced(m_order.size() - m_toRead.size(), m_order.size());
    if (!isLoading())
        finishLoading();
}

void AcquisitionLibrary::finishLoading()
{
    readSome(m_toRead.size());
    m_readOn.stop();
    if (!m_order.isEmpty())
        restoreOrder();
    m_order.clear();
    tell();
}

// Of a large library another folder came first; what came in meanwhile stays at the end.
void AcquisitionLibrary::restoreOrder()
{
    QHash<QString, qsizetype> places;
    places.reserve(m_order.size());
    for (const QString &path : std::as_const(m_order))
        places.insert(path, places.size());
    std::stable_sort(m_sessions.begin(), m_sessions.end(), [&](const auto &a, const auto &b) {
        return places.value(a->filePath(), places.size())
               < places.value(b->filePath(), places.size());
    });
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
    m_known.insert(m_sessions.back().get(), {stamp, file});
    m_paths.insert(path, m_sessions.back().get());
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
    if (const auto known = m_known.find(&session); known != m_known.end())
        known->stamp = FileStamp::of(QFileInfo(session.filePath()));
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
    return m_known.value(session).stamp != FileStamp::of(file);
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
    forget(session);
    m_sessions.erase(m_sessions.begin() + index);
    tell();
}

void AcquisitionLibrary::forget(const Session *session)
{
    m_paths.remove(session->filePath());
    m_files.remove(m_known.take(session).file);
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
        if (Session *one = find(path)) {
            remove(one);
            return;
        }
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
        const FileStamp stamp = m_known.value(session.get()).stamp;
        forget(session.get());
        session->setFilePath(to + path.mid(from.size()));
        const QString file = QFileInfo(session->filePath()).canonicalFilePath();
        m_known.insert(session.get(), {stamp, file});
        m_paths.insert(session->filePath(), session.get());
        m_files.insert(file, session.get());
    }
    for (QStringList *paths : {&m_order, &m_toRead}) {
        for (QString &path : *paths) {
            if (isAtOrBelow(path, from))
                path = to + path.mid(from.size());
        }
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
    m_known.clear();
    m_paths.clear();
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
    const Session *session = find(path);
    return session != nullptr ? indexOf(session) : -1;
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
