// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <memory>

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>

#include <app/update/updatedocument.h>

class QMessageBox;
class QNetworkAccessManager;
class QNetworkReply;
class QWidget;

namespace zuno {

class DownloadInProgress;
class InstallerFile;
class Settings;

/// Whom to ask for a newer release, whom to believe, and what to do with one.
struct UpdateSetup
{
    /// Only its scheme, host and port count.
    QUrl server;
    /// Ed25519 public keys, 32 bytes each: one of them has to have signed what the server says.
    QList<QByteArray> keys;
    /// Whether the rider wants the program to ask at all.
    bool isWanted = true;
    /// Whether the program came as a package of the system, which replaces it: then the rider is
    /// told of a release, and nothing is downloaded.
    bool isPackaged = false;

    /// The server of the environment variable ZUNO_UPDATE_SERVER, or, where that is not set, of
    /// the build (an empty variable means that there is none); the keys of the build; the rider's
    /// choice. A file "installed-by-package" in @p programFolder says that it came as a package.
    [[nodiscard]] static UpdateSetup configured(const Settings &settings,
                                                const QString &programFolder);
};

/// Asks the maker's server whether there is a newer release; when there is and the rider agrees,
/// downloads its installer, starts it and quits.
///
/// What the server says counts only with the maker's signature, which is looked at before anything
/// is read; the log tells of one that is missing or wrong, and of a release that is too old or
/// expired. Nothing is asked or fetched but over HTTPS, or from this computer itself; that holds
/// for every redirection as well. A check that comes to nothing is not shown, and without an answer
/// it is not logged either.
class UpdateApp final : public QObject
{
    Q_OBJECT

public:
    /// @p window is the parent of the question and of the progress window; it may be null.
    explicit UpdateApp(UpdateSetup setup, QWidget *window = nullptr);
    ~UpdateApp() override;

    /// How long a server may send nothing before it is given up.
    void setTimeout(std::chrono::milliseconds timeout) { m_timeout = timeout; }

    /// Sends the request and returns at once; what comes of it comes with the event loop.
    void checkForUpdates();

Q_SIGNALS:
    /// The installer that the rider asked for did not come, is not the announced one, or could not
    /// be saved or started.
    void failed(const QString &message);

private Q_SLOTS:
    void downloadConfFileFinished();
    void downloadProgress(qint64 recieved, qint64 total);
    void downloadCancel(bool cancelUpdate);
    void downloadNewVersionFinished();

private:
    [[nodiscard]] QUrl documentUrl(const QString &suffix = {}) const;
    void signatureFinished();
    void consider();
    [[nodiscard]] QMessageBox *newBox(const QString &text, const QString &details);
    void ask();
    void tellOfRelease();
    void startDownload();
    void savePieces();
    [[nodiscard]] bool install();

    UpdateSetup m_setup;
    QPointer<QWidget> m_window;
    std::chrono::milliseconds m_timeout;
    QByteArray m_document;
    Release m_release;
    std::unique_ptr<InstallerFile> m_installer;
    QNetworkAccessManager *m_network;
    bool m_cancelled = false;
    QPointer<QNetworkReply> m_infoReply;
    QPointer<DownloadInProgress> m_progress;
    QPointer<QNetworkReply> m_downloadReply;
};

} // namespace zuno
