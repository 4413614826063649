// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>

#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>

class QNetworkAccessManager;
class QNetworkReply;
class QWidget;

namespace zuno {

class DownloadInProgress;

/// Asks the maker's server whether there is a newer release; when there is and the rider agrees,
/// downloads its installer, starts it and quits.
///
/// Nothing is asked or fetched but over HTTPS, or from this computer itself; that holds for every
/// redirection as well. A check that comes to nothing is neither shown nor logged.
class UpdateApp final : public QObject
{
    Q_OBJECT

public:
    /// @p server is asked; only its scheme, host and port count. @p window is the parent of the
    /// question and of the progress window; it may be null.
    explicit UpdateApp(QUrl server = configuredServer(), QWidget *window = nullptr);
    ~UpdateApp() override;

    /// The server of the environment variable ZUNO_UPDATE_SERVER, or, where that is not set, of
    /// the build. An empty variable means that there is none.
    [[nodiscard]] static QUrl configuredServer();
    /// How long a server may send nothing before it is given up.
    void setTimeout(std::chrono::milliseconds timeout) { m_timeout = timeout; }

    /// Sends the request and returns at once; what comes of it comes with the event loop.
    void checkForUpdates();

Q_SIGNALS:
    /// The installer that the rider asked for did not come, or could not be saved or started.
    void failed(const QString &message);

private Q_SLOTS:
    void downloadConfFileFinished();
    void downloadProgress(qint64 recieved, qint64 total);
    void downloadCancel(bool cancelUpdate);
    void downloadNewVersionFinished();

private:
    QNetworkReply *get(const QUrl &url, qint64 limit);
    void ask();
    void startDownload();
    [[nodiscard]] bool install(QNetworkReply &reply) const;
    [[nodiscard]] QString save(const QByteArray &installer) const;

    QUrl m_server;
    QPointer<QWidget> m_window;
    std::chrono::milliseconds m_timeout;
    QString m_version;
    QString m_url;
    QString m_name;
    QNetworkAccessManager *m_network;
    bool m_cancelled = false;
    QPointer<QNetworkReply> m_infoReply;
    QPointer<DownloadInProgress> m_progress;
    QPointer<QNetworkReply> m_downloadReply;
};

} // namespace zuno
