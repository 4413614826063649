// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/update/updateapp.h>

#include <optional>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDir>
#include <QHostAddress>
#include <QMessageBox>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QProcess>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStandardPaths>

#include <app/update/updatedocument.h>
#include <widgets/downloadinprogress.h>

namespace zuno {

namespace {

constexpr std::chrono::seconds Timeout {30};
constexpr int MaximumRedirects = 5;
// The document has a few hundred bytes and installers less than 200 MB; both are held in memory.
constexpr qint64 DocumentLimit = 1024 * 1024;
constexpr qint64 InstallerLimit = 512 * DocumentLimit;

// What is downloaded is run, so nobody on the way may exchange it.
bool isSafe(const QUrl &url)
{
    if (!url.isValid() || url.host().isEmpty())
        return false;
    const bool isLocal = url.host() == u"localhost" || QHostAddress(url.host()).isLoopback();
    return url.scheme() == u"https" || (url.scheme() == u"http" && isLocal);
}

/// Everything that the server has announced; nothing when less has come or the server refused.
std::optional<QByteArray> wholeAnswer(QNetworkReply &reply)
{
    constexpr int Ok = 200;
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (reply.error() != QNetworkReply::NoError || status != Ok)
        return std::nullopt;
    QByteArray bytes = reply.readAll();
    const QVariant announced = reply.header(QNetworkRequest::ContentLengthHeader);
    if (announced.isValid() && announced.toLongLong() != bytes.size())
        return std::nullopt;
    return bytes;
}

/// The last component of a path of any system, so that a server cannot choose the folder.
QString lastComponent(const QString &path)
{
    static const QRegularExpression separator(QStringLiteral("[/\\\\:]"));
    return path.section(separator, -1);
}

} // namespace

UpdateApp::UpdateApp(QUrl server, QWidget *window)
    : m_server(std::move(server))
    , m_window(window)
    , m_timeout(Timeout)
    , m_network(new QNetworkAccessManager(this))
{
}

UpdateApp::~UpdateApp()
{
    delete m_progress;
}

QUrl UpdateApp::configuredServer()
{
    return QUrl(qEnvironmentVariable("ZUNO_UPDATE_SERVER", QStringLiteral(ZUNO_UPDATE_SERVER)));
}

void UpdateApp::checkForUpdates()
{
    QUrl url = m_server;
    url.setPath(QStringLiteral("/downloads/_Infos.xml"));
    if (m_infoReply != nullptr || !isSafe(url))
        return;
    m_infoReply = get(url, DocumentLimit);
    connect(m_infoReply, &QNetworkReply::finished, this, &UpdateApp::downloadConfFileFinished);
}

QNetworkReply *UpdateApp::get(const QUrl &url, qint64 limit)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setMaximumRedirectsAllowed(MaximumRedirects);
    request.setTransferTimeout(static_cast<int>(m_timeout.count()));
    // The bytes are counted against the announced ones, which are those of the compressed form.
    request.setRawHeader("Accept-Encoding", "identity");
    QNetworkReply *reply = m_network->get(request);
    connect(reply, &QNetworkReply::redirected, reply, [reply](const QUrl &target) {
        if (isSafe(target))
            Q_EMIT reply->redirectAllowed();
        else
            reply->abort();
    });
    connect(reply, &QNetworkReply::readyRead, reply, [reply, limit] {
        if (reply->bytesAvailable() > limit)
            reply->abort();
    });
    return reply;
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
    const UpdateDocument document(*answer);
    m_version = document.version();
    m_url = document.url();
    m_name = document.name();
    if (isOffered(m_version, QCoreApplication::applicationVersion()) && isSafe(QUrl(m_url)))
        ask();
}

void UpdateApp::ask()
{
    auto *box = new QMessageBox(QMessageBox::Information, tr("ZUNO Analyzer update"),
                                tr("A new version of the application is available. \nDo you want "
                                   "to download it now?"),
                                QMessageBox::Yes | QMessageBox::Cancel, m_window);
    box->button(QMessageBox::Yes)->setText(tr("Yes"));
    box->button(QMessageBox::Cancel)->setText(tr("Cancel"));
    // The question may open under the hands of a rider who is typing, and comes again next time.
    box->setDefaultButton(QMessageBox::Cancel);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &QMessageBox::finished, this, [this](int answer) {
        if (answer == QMessageBox::Yes)
            startDownload();
    });
    box->open();
}

void UpdateApp::startDownload()
{
    m_downloadReply = get(QUrl(m_url), InstallerLimit);
    connect(m_downloadReply, &QNetworkReply::downloadProgress, this, &UpdateApp::downloadProgress);
    connect(m_downloadReply, &QNetworkReply::finished, this,
            &UpdateApp::downloadNewVersionFinished);
    m_progress = new DownloadInProgress(m_window);
    connect(m_progress, &DownloadInProgress::cancelUpdate, this, &UpdateApp::downloadCancel);
    m_progress->show();
}

// The total is -1 when the server announces none.
void UpdateApp::downloadProgress(qint64 recieved, qint64 total)
{
    const double progress
        = total > 0 ? static_cast<double>(recieved) / static_cast<double>(total) * 100.0 : 0.0;
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
    if (!isWanted)
        return;
    if (install(*m_downloadReply))
        QCoreApplication::quit();
    else
        Q_EMIT failed(tr("The new version could not be downloaded and started."));
    m_downloadReply = nullptr;
}

bool UpdateApp::install(QNetworkReply &reply) const
{
    const std::optional<QByteArray> installer = wholeAnswer(reply);
    const QString path = installer ? save(*installer) : QString();
    return !path.isEmpty() && QProcess::startDetached(path, {});
}

/// The file's path; empty when it could not be written.
QString UpdateApp::save(const QByteArray &installer) const
{
    const QString location = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    const QDir root(location.left(location.lastIndexOf(u'/')));
    if (!root.exists())
        return {};
    root.mkpath(QStringLiteral("Temp"));
    // Without a name this is the folder, which cannot be opened.
    QSaveFile file(root.filePath(u"Temp/" + lastComponent(m_name)));
    const bool isSaved
        = file.open(QIODevice::WriteOnly) && file.write(installer) == installer.size()
          && file.flush()
          && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner)
          && file.commit();
    return isSaved ? file.fileName() : QString();
}

} // namespace zuno
