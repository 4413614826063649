// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <optional>

#include <QByteArray>

class QNetworkAccessManager;
class QNetworkReply;
class QUrl;

namespace zuno {

/// Whether @p url is fetched from: over HTTPS, or from this computer itself.
[[nodiscard]] bool isSafe(const QUrl &url);

/// Asks for @p url; redirections are followed to safe addresses only. The reply, of @p network,
/// is aborted when nothing comes for so long as @p timeout, and holds at most @p buffer bytes that
/// nobody has read: the server has to wait.
[[nodiscard]] QNetworkReply *get(QNetworkAccessManager &network, const QUrl &url, qint64 buffer,
                                 std::chrono::milliseconds timeout);

/// As get(), for what is read at once when it has come whole: aborted with more than @p limit
/// bytes.
[[nodiscard]] QNetworkReply *getWhole(QNetworkAccessManager &network, const QUrl &url, qint64 limit,
                                      std::chrono::milliseconds timeout);

/// Whether the server, so far, has given what it was asked for.
[[nodiscard]] bool isGiven(const QNetworkReply &reply);

/// Everything that the server has announced; nothing when less has come or the server refused.
[[nodiscard]] std::optional<QByteArray> wholeAnswer(QNetworkReply &reply);

} // namespace zuno
