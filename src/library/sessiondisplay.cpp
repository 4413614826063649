// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/sessiondisplay.h>

#include <chrono>

#include <QDebug>
#include <QDir>
#include <QFileInfo>

#include <base/settings.h>
#include <library/acquisitionlibrary.h>
#include <library/informationwriter.h>
#include <maps/detection/mapdetection.h>
#include <session/session.h>
#include <track/mapfile.h>

namespace zuno {

namespace {

// The settings are written to the disk for good, which takes as long as showing a session; so the
// last one is noted once the rider stays with it.
constexpr std::chrono::milliseconds RememberAfter {1000};

} // namespace

SessionDisplay::SessionDisplay(const Parts &parts, QObject *parent)
    : QObject(parent)
    , m_library(parts.library)
    , m_maps(parts.maps)
    , m_settings(parts.settings)
    , m_writer(parts.writer)
{
    m_remember.setSingleShot(true);
    connect(&m_remember, &QTimer::timeout, this, &SessionDisplay::remember);
    connect(&m_library, &AcquisitionLibrary::sessionAboutToBeRemoved, this,
            &SessionDisplay::onAboutToBeRemoved);
    connect(&m_writer, &InformationWriter::written, &m_library, &AcquisitionLibrary::noteWritten);
    // Laps may have been thrown out.
    connect(&m_writer, &InformationWriter::joined, this, [this](Session *session) {
        if (session == m_session)
            Q_EMIT mapApplied(session);
    });
}

SessionDisplay::~SessionDisplay()
{
    if (m_remember.isActive())
        remember();
}

// By the path that it has by now: the rider may have renamed it.
void SessionDisplay::remember()
{
    m_remember.stop();
    if (m_session != nullptr)
        m_settings.setValue(Setting::LastFileSelected, m_session->filePath());
}

qsizetype SessionDisplay::index() const
{
    return m_library.indexOf(m_session);
}

Session *SessionDisplay::findSessionByPath(const QString &path)
{
    Session *found = m_library.find(path);
    if (found != nullptr)
        m_session = found;
    return found;
}

bool SessionDisplay::display(const QString &path)
{
    const QString clean = QDir::cleanPath(path);
    m_library.refresh(clean);
    const QPointer<Session> before = m_session;
    if (findSessionByPath(clean) == nullptr) {
        Session *added = m_library.add(clean, "onSessionDisplayedChange");
        if (added == nullptr) {
            clear();
            Q_EMIT notASession(clean);
            return false;
        }
        m_session = added;
    }
    const bool isFirstDisplay = m_session->map() == nullptr;
    assignMap();
    release(before);
    m_remember.start(RememberAfter);
    Q_EMIT sessionDisplayed(m_session);
    if (m_session->newSession() != 0 && !m_session->lacksMemory()) {
        m_session->setNewSession(0);
        Q_EMIT viewedStateChanged();
        if (isFirstDisplay)
            m_writer.writeWhenRested(*m_session);
    }
    // Its file was away, or another one stands there now.
    if (m_session->isUnsaved() && m_session->recording().isRewritable())
        m_writer.writeSoon(*m_session);
    return true;
}

void SessionDisplay::assignMap()
{
    if (m_session->map() != nullptr) {
        m_session->restore();
        onMapChanged({m_session->map()}, static_cast<int>(MapMode::Kept));
        return;
    }
    m_session->smooth();
    const MapCandidates candidates
        = candidatesOf(*m_session, m_maps, m_settings.mapChoice(m_session->fileName()));
    onMapChanged(candidates.maps,
                 static_cast<int>(candidates.isStored ? MapMode::Kept : MapMode::Detected));
}

void SessionDisplay::detectMap()
{
    if (m_session != nullptr) {
        onMapChanged(findCandidates(*m_session, m_maps.maps()),
                     static_cast<int>(MapMode::Detected));
    }
}

void SessionDisplay::onMapChanged(const QList<const Map *> &candidates, int mode)
{
    if (m_session == nullptr)
        return;
    if (candidates.isEmpty()) {
        qDebug() << "(ZunoAnalyzer::onMapChanged) No map near detected or no map selected or no "
                    "valid aquisition point.";
    }
    chooseMapByLength(*m_session, candidates);
    storeChoice(static_cast<MapMode>(mode));
    Q_EMIT mapApplied(m_session);
}

void SessionDisplay::storeChoice(MapMode mode)
{
    const QString file = m_session->fileName();
    if (m_session->map() == nullptr) {
        // The maps may be on a drive that is not plugged in; that is no reason to forget.
        if (QDir(m_settings.mapsFolder()).exists())
            m_settings.removeMapChoice(file);
    } else if (mode == MapMode::Chosen) {
        m_settings.setMapChoice(file, m_session->map()->name());
    } else if (mode == MapMode::Detected) {
        m_settings.removeMapChoice(file);
    }
}

void SessionDisplay::clear()
{
    m_session = nullptr;
    Q_EMIT cleared();
}

void SessionDisplay::setCompared(Session *session)
{
    const QPointer<Session> before = m_compared;
    m_compared = session;
    release(before);
}

// A rider's career of recordings does not fit into the memory, and one is decoded in no time.
void SessionDisplay::release(Session *session)
{
    if (session != nullptr && session != m_session && session != m_compared)
        session->release();
}

void SessionDisplay::onAboutToBeRemoved(Session *session)
{
    if (session != m_session)
        return;
    clear();
    if (!QFileInfo::exists(session->filePath()))
        Q_EMIT vanished(session->filePath());
}

} // namespace zuno
