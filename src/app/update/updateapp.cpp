// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/update/updateapp.h>

#include <utility>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProcess>

#include <app/update/installerfile.h>
#include <app/update/updaterequest.h>
#include <app/update/updatesignature.h>
#include <base/settings.h>
#include <widgets/downloadinprogress.h>
#include <widgets/plaintexts.h>

namespace zuno {

namespace {

constexpr std::chrono::seconds Timeout {30};
// The document has a few hundred bytes and is held in memory, its signature has 88.
constexpr qint64 DocumentLimit = 1024 * 1024;
constexpr qint64 SignatureLimit = 1024;
// So much of an installer is in memory at once.
constexpr qint64 PieceSize = 256 * 1024;

// What comes from outside is put between quotes, and its line ends are made visible.
void logRefusal(const char *reason, const QString &detail)
{
    qCritical() << "No new release is offered:" << reason << detail;
}

} // namespace

UpdateSetup UpdateSetup::configured(const Settings &settings, const QString &programFolder)
{
    return {QUrl(qEnvironmentVariable("ZUNO_UPDATE_SERVER", QStringLiteral(ZUNO_UPDATE_SERVER))),
            configuredUpdateKeys(), settings.isOn(Setting::CheckForUpdates),
            QFile::exists(programFolder + u"/installed-by-package")};
}

UpdateApp::UpdateApp(UpdateSetup setup, QWidget *window)
    : m_setup(std::move(setup))
    , m_window(window)
    , m_timeout(Timeout)
    , m_network(new QNetworkAccessManager(this))
{
}

UpdateApp::~UpdateApp()
{
    delete m_progress;
}

QUrl UpdateApp::documentUrl(const QString &suffix) const
{
    QUrl url = m_setup.server;
    url.setPath(u"/downloads/_Infos.xml" + suffix);
    return url;
}

void UpdateApp::checkForUpdates()
{
    const QUrl url = documentUrl();
    if (!m_setup.isWanted || m_infoReply != nullptr || !isSafe(url))
        return;
    m_infoReply = getWhole(*m_network, url, DocumentLimit, m_timeout);
    connect(m_infoReply, &QNetworkReply::finished, this, &UpdateApp::downloadConfFileFinished);
}

void UpdateApp::downloadConfFileFinished()
{
    if (m_infoReply == nullptr)
        return;
    m_infoReply->deleteLater();
    const std::optional<QByteArray> answer = wholeAnswer(*m_infoReply);
    m_infoReply = nullptr;
    if (!answer)
        return;
    m_document = *answer;
    m_infoReply
        = getWhole(*m_network, documentUrl(QStringLiteral(".sig")), SignatureLimit, m_timeout);
    connect(m_infoReply, &QNetworkReply::finished, this, &UpdateApp::signatureFinished);
}

void UpdateApp::signatureFinished()
{
    m_infoReply->deleteLater();
    const QNetworkReply &reply = *m_infoReply;
    const std::optional<QByteArray> signature = wholeAnswer(*m_infoReply);
    m_infoReply = nullptr;
    if (!signature)
        logRefusal("there is no signature.", reply.errorString());
    else if (!isSigned(m_document, *signature, m_setup.keys))
        logRefusal("the signature is not the maker's.", reply.url().toDisplayString());
    else
        consider();
}

/// Only to be called with a document that is signed.
void UpdateApp::consider()
{
    m_release = UpdateDocument(m_document, platform()).release();
    const QString own = QCoreApplication::applicationVersion();
    if (m_release.version.isEmpty())
        logRefusal("the document has none for this system.", platform());
    else if (isNewer(own, m_release.version))
        logRefusal("it is older than this one.", m_release.version);
    else if (!isNewer(m_release.version, own))
        return;
    else if (!m_release.isComplete())
        logRefusal("the document does not say all of it.", m_release.version);
    else if (m_release.validUntil < QDateTime::currentDateTimeUtc())
        logRefusal("the document has expired.", m_release.validUntil.toString(Qt::ISODate));
    else if (!isSafe(QUrl(m_release.url)))
        logRefusal("its address is not safe.", m_release.url);
    else if (m_setup.isPackaged)
        tellOfRelease();
    else
        ask();
}

/// With the title of updates; the texts are shown as they stand.
QMessageBox *UpdateApp::newBox(const QString &text, const QString &details)
{
    auto *box
        = new MessageBox(QMessageBox::Information, tr("ZUNO Analyzer update"), text, m_window);
    box->setInformativeText(details);
    box->setAttribute(Qt::WA_DeleteOnClose);
    return box;
}

void UpdateApp::ask()
{
    const QString host = QUrl(m_release.url).host(QUrl::FullyEncoded);
    const QString size = QLocale().formattedDataSize(m_release.size, 1, QLocale::DataSizeSIFormat);
    QMessageBox *box
        = newBox(tr("A new version of the application is available. \nDo you want "
                    "to download it now?"),
                 tr("Version: %1\nSize: %2\nFrom: %3").arg(m_release.version, size, host));
    box->setStandardButtons(QMessageBox::Yes | QMessageBox::Cancel);
    box->button(QMessageBox::Yes)->setText(tr("Yes"));
    box->button(QMessageBox::Cancel)->setText(tr("Cancel"));
    // The question may open under the hands of a rider who is typing, and comes again next time.
    box->setDefaultButton(QMessageBox::Cancel);
    connect(box, &QMessageBox::finished, this, [this](int answer) {
        if (answer == QMessageBox::Yes)
            startDownload();
    });
    box->open();
}

void UpdateApp::tellOfRelease()
{
    newBox(tr("A new version of the application is available."),
           tr("Version: %1\nThis one was installed as a package of your system: install the new "
              "package in its place.")
               .arg(m_release.version))
        ->open();
}

void UpdateApp::startDownload()
{
    m_installer = std::make_unique<InstallerFile>(m_release);
    if (!m_installer->open()) {
        Q_EMIT failed(tr("The new version could not be downloaded and started."));
        return;
    }
    m_downloadReply = get(*m_network, QUrl(m_release.url), PieceSize, m_timeout);
    connect(m_downloadReply, &QNetworkReply::readyRead, this, &UpdateApp::savePieces);
    connect(m_downloadReply, &QNetworkReply::downloadProgress, this, &UpdateApp::downloadProgress);
    connect(m_downloadReply, &QNetworkReply::finished, this,
            &UpdateApp::downloadNewVersionFinished);
    m_progress = new DownloadInProgress(m_window);
    connect(m_progress, &DownloadInProgress::cancelUpdate, this, &UpdateApp::downloadCancel);
    m_progress->show();
}

void UpdateApp::savePieces()
{
    // An abort ends the download from within, and takes the file away.
    while (m_installer != nullptr && isGiven(*m_downloadReply)
           && m_downloadReply->bytesAvailable() > 0) {
        if (!m_installer->append(m_downloadReply->read(PieceSize))) {
            m_downloadReply->abort();
            return;
        }
    }
}

// The total is -1 when the server announces none; the document did.
void UpdateApp::downloadProgress(qint64 recieved, qint64 total)
{
    const qint64 whole = total > 0 ? total : m_release.size;
    const double progress
        = whole > 0 ? static_cast<double>(recieved) / static_cast<double>(whole) * 100.0 : 0.0;
    if (m_progress != nullptr)
        m_progress->setProgress(static_cast<int>(progress));
}

void UpdateApp::downloadCancel(bool cancelUpdate)
{
    m_cancelled = cancelUpdate;
    if (m_downloadReply != nullptr)
        m_downloadReply->abort();
}

void UpdateApp::downloadNewVersionFinished()
{
    if (m_progress != nullptr)
        m_progress->hide();
    const bool isWanted = m_downloadReply != nullptr && !m_cancelled;
    m_cancelled = false;
    if (m_downloadReply != nullptr)
        m_downloadReply->deleteLater();
    const bool isStarted = isWanted && install();
    // Nothing is left of a file that is not finished.
    m_installer.reset();
    m_downloadReply = nullptr;
    if (isStarted)
        QCoreApplication::quit();
    else if (isWanted)
        Q_EMIT failed(tr("The new version could not be downloaded and started."));
}

bool UpdateApp::install()
{
    savePieces();
    if (!isGiven(*m_downloadReply)) {
        qCritical() << "The new release did not come:" << m_downloadReply->errorString();
        return false;
    }
    if (!m_installer->finish()) {
        qCritical() << "What came is not the release that was announced, or cannot be stored:"
                    << m_installer->path();
        return false;
    }
    return QProcess::startDetached(m_installer->path(), {});
}

} // namespace zuno
