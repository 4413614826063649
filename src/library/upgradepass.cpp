// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/upgradepass.h>

#include <chrono>

#include <QCoreApplication>
#include <QDebug>
#include <QDirIterator>
#include <QEventLoop>
#include <QFileInfo>
#include <QTimer>

#include <base/settings.h>
#include <library/acquisitionlibrary.h>
#include <library/informationwriter.h>
#include <library/librarytree.h>
#include <library/sessiondisplay.h>
#include <widgets/downloadinprogress.h>

namespace zuno {

namespace {

constexpr std::chrono::milliseconds Rest {2000};

} // namespace

UpgradePass::UpgradePass(const Parts &parts, QObject *parent) : QObject(parent), m_parts(parts) {}

bool UpgradePass::runOnce()
{
    if (m_parts.settings.isOn(Setting::V1400))
        return false;
    qDebug() << "(ZunoAnalyzer::loadAcquisitionsFolder) Parsing all .ra files to fill in "
                "additionnal informations";
    m_counter = 0;
    DownloadInProgress window;
    m_window = &window;
    connect(&window, &DownloadInProgress::cancelUpdate, this,
            [this] { m_counter = m_parts.library.size(); });
    window.setWindowTitle(tr("Adding additionnal infos to sessions - for version 1.4.0.0 "));
    window.setLabelText(QString::number(m_parts.library.size())
                        + tr(" sessions to parse \nIn order to have access to all your statistics "
                             "with this new version of Analyzer, let this analysis finish "));
    window.show();
    run();
    m_parts.settings.setValue(Setting::V1400, true);
    return true;
}

void UpgradePass::run()
{
    QDirIterator files(m_parts.tree.folder(), {QStringLiteral("*.ra1")},
                       QDir::Files | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    // Listed first: each file that is rewritten takes another place in its folder.
    QStringList paths;
    while (files.hasNext())
        paths.append(files.next());
    if (!paths.isEmpty())
        rest();
    for (const QString &path : std::as_const(paths)) {
        // A cancel sets the counter to the number of sessions: one more file is handled then.
        if (m_counter > m_parts.library.size())
            return;
        handle(path);
        // Files that are no sessions are no part of the number that the window shows.
        if (m_parts.library.find(path) != nullptr)
            showProgress();
    }
}

// What somebody is copying into the library must not be replaced.
void UpgradePass::rest()
{
    QEventLoop loop;
    QTimer::singleShot(Rest, &loop, &QEventLoop::quit);
    loop.exec();
}

void UpgradePass::handle(const QString &path)
{
    const Session *known = m_parts.library.find(path);
    const bool hasRested = known != nullptr && !m_parts.library.hasChanged(known, QFileInfo(path));
    m_parts.tree.selectOnly(path);
    Session *session = m_parts.display.session();
    if (session != nullptr && session->filePath() == path && hasRested)
        m_parts.writer.write(*session);
}

void UpgradePass::showProgress()
{
    const qsizetype count = m_parts.library.size();
    double progress = 0.0;
    if (count != 0) {
        progress = static_cast<double>(m_counter) / static_cast<double>(count) * 100.0;
        ++m_counter;
    }
    QCoreApplication::processEvents();
    if (m_window != nullptr)
        m_window->setProgress(static_cast<int>(progress));
}

} // namespace zuno
