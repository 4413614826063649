// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/acquisitionlibrary.h>

#include <algorithm>

#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <session/sessionfile.h>

namespace zuno {

namespace {

bool isAtOrBelow(const QString &path, const QString &folder)
{
    return path == folder || path.startsWith(folder + u'/');
}

// What the rider has said about a session, and could not be written so far, outlives its reading.
void keepEdits(Session &session, StoredState stored, StoredState edited)
{
    const StoredState now = session.state();
    // What was computed from the samples that the file had is none of that.
    for (StoredState *state : {&stored, &edited}) {
        state->newSession = now.newSession;
        state->information.circuitName = now.information.circuitName;
        state->information.bestLapText = now.information.bestLapText;
        state->information.idealTimeText = now.information.idealTimeText;
    }
    session.setInformation(merged(stored, edited, now).information);
}

} // namespace

AcquisitionLibrary::AcquisitionLibrary(QObject *parent) : QObject(parent) {}

AcquisitionLibrary::~AcquisitionLibrary() = default;

void AcquisitionLibrary::load(const QString &folder)
{
    // Clean paths: they are compared with those of the file tree.
    QDirIterator files(QDir::cleanPath(folder), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (path.endsWith(Suffix) && indexOf(path) < 0)
            append(path, "loadAcquisitionsFolder");
    }
    Q_EMIT sessionsChanged();
}

Session *AcquisitionLibrary::append(const QString &path, const char *caller)
{
    OpenedSession opened = openSession(path);
    if (!opened.session || opened.session->sampleCount() == 0) {
        qDebug().noquote() << QStringLiteral("(ZunoAnalyzer::%1) Error in decoding ZUNO File : %2")
                                  .arg(QLatin1String(caller), path);
        return nullptr;
    }
    m_sessions.push_back(std::move(opened.session));
    noteWritten(*m_sessions.back());
    return m_sessions.back().get();
}

AcquisitionLibrary::FileStamp AcquisitionLibrary::FileStamp::of(const QString &path)
{
    const QFileInfo file(path);
    return {file.size(), file.lastModified()};
}

void AcquisitionLibrary::noteWritten(const Session &session)
{
    m_stamps.insert(&session, FileStamp::of(session.filePath()));
}

bool AcquisitionLibrary::refresh(const QString &path)
{
    Session *session = find(path);
    if (session == nullptr || !QFileInfo::exists(path)
        || m_stamps.value(session) == FileStamp::of(path))
        return false;
    const StoredState before = session->state();
    const StoredState stored = session->storedState();
    const Recording recording = session->recording();
    remove(session);
    Session *again = append(path, "onSessionDisplayedChange");
    if (again != nullptr && isStillRecording(recording, again->recording()))
        keepEdits(*again, stored, before);
    Q_EMIT sessionsChanged();
    return true;
}

Session *AcquisitionLibrary::add(const QString &path, const char *caller)
{
    const QString clean = QDir::cleanPath(path);
    if (Session *known = find(clean))
        return known;
    Session *session = append(clean, caller);
    if (session != nullptr)
        Q_EMIT sessionsChanged();
    return session;
}

void AcquisitionLibrary::remove(Session *session)
{
    const qsizetype index = indexOf(session);
    if (index < 0)
        return;
    Q_EMIT sessionAboutToBeRemoved(session);
    m_stamps.remove(session);
    m_sessions.erase(m_sessions.begin() + index);
    Q_EMIT sessionsChanged();
}

void AcquisitionLibrary::removeAt(const QString &path)
{
    const QList<Session *> all = sessions();
    for (Session *session : all) {
        if (isAtOrBelow(session->filePath(), path))
            remove(session);
    }
}

void AcquisitionLibrary::movePath(const QString &from, const QString &to)
{
    for (const auto &session : m_sessions) {
        const QString path = session->filePath();
        if (isAtOrBelow(path, from))
            session->setFilePath(to + path.mid(from.size()));
    }
    Q_EMIT sessionsChanged();
}

void AcquisitionLibrary::reload(const QString &folder)
{
    for (const auto &session : m_sessions)
        Q_EMIT sessionAboutToBeRemoved(session.get());
    m_sessions.clear();
    m_stamps.clear();
    load(folder);
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
