// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/upgradepass.h>

#include <chrono>
#include <utility>

#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QThread>

#include <base/filestamp.h>
#include <base/settings.h>
#include <library/acquisitionlibrary.h>
#include <track/mapfile.h>

namespace zuno {

namespace {

// What somebody is copying into the library must not be replaced.
constexpr std::chrono::milliseconds Rest {2000};

// For each thread, so that none waits for the next file.
constexpr int Ahead = 2;

std::shared_ptr<const MapLibrary> mapsOf(const Settings &settings)
{
    auto maps = std::make_shared<MapLibrary>();
    maps->loadMaps(settings.mapsFolder());
    return maps;
}

} // namespace

UpgradePass::UpgradePass(const Parts &parts, QObject *parent) : QObject(parent), m_parts(parts)
{
    m_pool.setMaxThreadCount(QThread::idealThreadCount());
    m_rest.setSingleShot(true);
    connect(&m_rest, &QTimer::timeout, this, [this] {
        m_waiting += std::exchange(m_young, {});
        next();
    });
}

UpgradePass::~UpgradePass()
{
    m_waiting.clear();
    m_pool.waitForDone();
}

QString UpgradePass::title()
{
    return tr("Adding additionnal infos to sessions - for version 1.4.0.0 ");
}

QString UpgradePass::description(qsizetype sessions)
{
    return QString::number(sessions)
           + tr(" sessions to parse \nIn order to have access to all your statistics "
                "with this new version of Analyzer, let this analysis finish ");
}

bool UpgradePass::start(const LibraryFolder &folder)
{
    if (m_isRunning || m_parts.settings.isOn(Setting::V1400))
        return false;
    qDebug() << "(ZunoAnalyzer::loadAcquisitionsFolder) Parsing all .ra files to fill in "
                "additionnal informations";
    m_parts.library.finishLoading();
    m_isRunning = true;
    m_folder = folder;
    // Its own: the window's maps may be loaded anew meanwhile.
    m_maps = mapsOf(m_parts.settings);
    QStringList paths;
    QDirIterator files(folder.path(), {QStringLiteral("*.ra1")}, QDir::Files,
                       QDirIterator::Subdirectories);
    // Listed first: each file that is rewritten takes another place in its folder.
    while (files.hasNext())
        paths.append(files.next());
    sort(paths);
    next();
    return true;
}

void UpgradePass::sort(const QStringList &paths)
{
    const QDateTime now = QDateTime::currentDateTime();
    for (const QString &path : paths) {
        // Files that are no sessions are no part of the number that the rider sees.
        if (m_parts.library.find(path) == nullptr)
            continue;
        const qint64 age = QFileInfo(path).lastModified().msecsTo(now);
        (age < Rest.count() ? m_young : m_waiting).append(path);
    }
    m_all = m_waiting.size() + m_young.size();
    m_done = 0;
    if (!m_young.isEmpty())
        m_rest.start(Rest);
}

void UpgradePass::next()
{
    while (!m_waiting.isEmpty() && m_begun < m_pool.maxThreadCount() * Ahead)
        begin(m_waiting.takeFirst());
    if (m_begun == 0 && m_waiting.isEmpty() && m_young.isEmpty())
        finish();
}

void UpgradePass::begin(const QString &path)
{
    const Session *known = m_parts.library.find(path);
    const bool mayWrite = known != nullptr && m_folder.holds(path)
                          && !m_parts.library.hasChanged(known, QFileInfo(path));
    if (!mayWrite) {
        Q_EMIT advanced(++m_done, m_all);
        return;
    }
    ++m_begun;
    const QString choice = m_parts.settings.mapChoice(QFileInfo(path).fileName());
    m_pool.start([this, path, choice, maps = m_maps] {
        const Upgraded upgraded = upgradeOne(path, *maps, choice);
        QMetaObject::invokeMethod(
            this, [this, path, upgraded] { take(path, upgraded); }, Qt::QueuedConnection);
    });
}

void UpgradePass::take(const QString &path, const Upgraded &upgraded)
{
    --m_begun;
    Session *session = m_parts.library.find(path);
    if (session != nullptr && upgraded.state) {
        session->takeOver(*upgraded.state);
        m_parts.library.noteWritten(*session);
    }
    const QString file = QFileInfo(path).fileName();
    const bool hasMaps = QDir(m_parts.settings.mapsFolder()).exists();
    if (upgraded.isDetected && hasMaps && !m_parts.settings.mapChoice(file).isEmpty())
        m_parts.settings.removeMapChoice(file);
    Q_EMIT advanced(++m_done, m_all);
    next();
}

void UpgradePass::cancel()
{
    m_waiting.clear();
    m_young.clear();
    m_rest.stop();
    if (m_isRunning)
        next();
}

void UpgradePass::finish()
{
    if (!std::exchange(m_isRunning, false))
        return;
    m_maps.reset();
    m_parts.settings.setValue(Setting::V1400, true);
    Q_EMIT finished();
}

} // namespace zuno
