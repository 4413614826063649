// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/update/updaterequest.h>

#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

namespace zuno {

namespace {

constexpr int MaximumRedirects = 5;

} // namespace

// What is downloaded is run, so nobody on the way may exchange it.
bool isSafe(const QUrl &url)
{
    if (!url.isValid() || url.host().isEmpty())
        return false;
    const bool isLocal = url.host() == u"localhost" || QHostAddress(url.host()).isLoopback();
    return url.scheme() == u"https" || (url.scheme() == u"http" && isLocal);
}

QNetworkReply *get(QNetworkAccessManager &network, const QUrl &url, qint64 buffer,
                   std::chrono::milliseconds timeout)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setMaximumRedirectsAllowed(MaximumRedirects);
    request.setTransferTimeout(static_cast<int>(timeout.count()));
    // The bytes are counted against the announced ones, which are those of the compressed form.
    request.setRawHeader("Accept-Encoding", "identity");
    // With HTTP/1.1 the size of the buffer holds: the rest waits on the way.
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    QNetworkReply *reply = network.get(request);
    reply->setReadBufferSize(buffer);
    QObject::connect(reply, &QNetworkReply::redirected, reply, [reply](const QUrl &target) {
        if (isSafe(target))
            Q_EMIT reply->redirectAllowed();
        else
            reply->abort();
    });
    return reply;
}

QNetworkReply *getWhole(QNetworkAccessManager &network, const QUrl &url, qint64 limit,
                        std::chrono::milliseconds timeout)
{
    // More fits into the buffer than is wanted: only so is it seen that there is more.
    QNetworkReply *reply = get(network, url, 2 * limit, timeout);
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply, limit] {
        if (reply->bytesAvailable() > limit)
            reply->abort();
    });
    return reply;
}

bool isGiven(const QNetworkReply &reply)
{
    constexpr int Ok = 200;
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    return reply.error() == QNetworkReply::NoError && status == Ok;
}

std::optional<QByteArray> wholeAnswer(QNetworkReply &reply)
{
    if (!isGiven(reply))
        return std::nullopt;
    QByteArray bytes = reply.readAll();
    const QVariant announced = reply.header(QNetworkRequest::ContentLengthHeader);
    if (announced.isValid() && announced.toLongLong() != bytes.size())
        return std::nullopt;
    return bytes;
}

} // namespace zuno
