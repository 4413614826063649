// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <chrono>
#include <memory>

#include <openssl/evp.h>

#include <QCryptographicHash>
#include <QDateTime>
#include <QHash>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>

#include <app/update/updatedocument.h>

namespace zuno::test {

inline const QByteArray Here = "http://127.0.0.1:12345";
// Leads to this computer, too, but is no loopback address.
inline const QByteArray Away = "http://0.0.0.0:12345";
inline const QByteArray InfosPath = "/downloads/_Infos.xml";
inline const QByteArray SignaturePath = InfosPath + ".sig";
inline const QByteArray Installer = "#!/bin/sh\ntouch \"$0.ran\"\nexit\n";
inline constexpr qint64 MiB = 1024 * 1024;

/// The rest that "~" stands for in an answer.
inline constexpr std::chrono::milliseconds Rest {150};

/// A web server on this computer that sends what it was given, byte for byte.
class Server final : public QTcpServer
{
public:
    Server()
    {
        if (!listen(QHostAddress::LocalHost))
            qFatal("cannot listen");
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { answer(socket); });
        });
    }
    [[nodiscard]] QUrl url() const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1").arg(serverPort()));
    }
    /// With the port for "12345", which is as long as those that a system gives out.
    [[nodiscard]] QByteArray here(QByteArray bytes) const
    {
        return bytes.replace("12345", QByteArray::number(serverPort()));
    }

    /// The answers by path; without one the connection stays open and silent. "~" is a rest.
    QHash<QByteArray, QByteArray> answers;
    /// So many zeros follow the answer to "/setup".
    qint64 flood = 0;
    int requests = 0;

private:
    void answer(QTcpSocket *socket)
    {
        const QByteArray path = socket->readAll().split(' ').value(1);
        ++requests;
        if (!answers.contains(path))
            return;
        std::chrono::milliseconds rest {0};
        for (const QByteArray &part : answers[path].split('~')) {
            QTimer::singleShot(rest, socket, [this, socket, bytes = QByteArray(part)] {
                socket->write(here(bytes));
            });
            rest += Rest;
        }
        if (path == "/setup" && flood > 0)
            connect(socket, &QTcpSocket::bytesWritten, this, [this, socket] { pour(socket); });
        else
            QTimer::singleShot(rest - Rest + std::chrono::milliseconds(1), socket,
                               [socket] { socket->disconnectFromHost(); });
    }

    void pour(QTcpSocket *socket)
    {
        if (socket->bytesToWrite() > 0)
            return;
        const qint64 piece = std::min<qint64>(flood, 65536);
        flood -= piece;
        if (piece > 0)
            socket->write(QByteArray(piece, '\0'));
        else
            socket->disconnectFromHost();
    }
};

/// An answer that announces @p more bytes than stand in @p body.
inline QByteArray ok(const QByteArray &body, qint64 more = 0)
{
    return "HTTP/1.1 200 OK\r\nContent-Length: "
           + QByteArray::number(body.size() - body.count('~') + more) + "\r\n\r\n" + body;
}

inline QByteArray unannounced(const QByteArray &body)
{
    return "HTTP/1.1 200 OK\r\n\r\n" + body;
}

inline QByteArray movedTo(const QByteArray &url)
{
    return "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: " + url + "\r\n\r\n";
}

inline QByteArray documentOf(const QByteArray &children)
{
    return R"(<a><item name="Other"><version>9.9</version></item><list><item name="ZUNO Analyzer">)"
           + children + "</item></list></a>";
}

inline QByteArray inAnHour(int hours = 1)
{
    const QDateTime time = QDateTime::currentDateTimeUtc().addSecs(3600 * hours);
    return time.toString(Qt::ISODate).toLatin1();
}

inline QByteArray sha256(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

struct Said
{
    QByteArray version = "1.6";
    QByteArray url = Here + "/setup";
    QByteArray name = "Setup.sh";
    QByteArray platform = zuno::platform().toLatin1();
    QByteArray size = QByteArray::number(Installer.size());
    QByteArray sha = sha256(Installer);
    QByteArray until = inAnHour();
};

inline QByteArray release(const Said &said = {})
{
    return documentOf("<name>" + said.name + "</name><version>" + said.version
                      + "</version><platform>" + said.platform + "</platform><size>" + said.size
                      + "</size><sha256>" + said.sha + "</sha256><x><version>0.1</version></x>"
                      + "<validUntil>" + said.until + "</validUntil><url>" + said.url
                      + "</url><version>0.1</version>");
}

/// A pair of keys of this run.
class Signer final
{
public:
    [[nodiscard]] QByteArray publicKey() const
    {
        QByteArray key(32, '\0');
        size_t size = 32;
        EVP_PKEY_get_raw_public_key(m_key.get(), bytes(key), &size);
        return key;
    }
    [[nodiscard]] QByteArray operator()(QByteArray document) const
    {
        QByteArray signature(64, '\0');
        size_t size = 64;
        EVP_MD_CTX *context = EVP_MD_CTX_new();
        EVP_DigestSignInit(context, nullptr, nullptr, nullptr, m_key.get());
        EVP_DigestSign(context, bytes(signature), &size, bytes(document),
                       static_cast<size_t>(document.size()));
        EVP_MD_CTX_free(context);
        return signature.toBase64();
    }

private:
    static unsigned char *bytes(QByteArray &array)
    {
        return reinterpret_cast<unsigned char *>(array.data());
    }
    std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> m_key {
        EVP_PKEY_Q_keygen(nullptr, nullptr, "ED25519"), &EVP_PKEY_free};
};

} // namespace zuno::test
