// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/page/pagepolicy.h>

#include <algorithm>
#include <array>

#include <QHostAddress>

namespace zuno {

namespace {

// Where the map service has scripts, pictures, letters and data, as it tells those who allow hosts
// one by one.
constexpr std::array ServiceDomains {
    QLatin1StringView(".googleapis.com"),
    QLatin1StringView(".gstatic.com"),
    QLatin1StringView(".google.com"),
    QLatin1StringView(".ggpht.com"),
    QLatin1StringView(".googleusercontent.com"),
};

bool isOnThisComputer(const QString &host)
{
    return host == u"localhost" || QHostAddress(host).isLoopback();
}

// Scheme, host and port; an address may also hold a name and a password, which say nothing.
QString originOf(const QUrl &url)
{
    return url.toString(QUrl::RemoveUserInfo | QUrl::RemovePath | QUrl::RemoveQuery
                        | QUrl::RemoveFragment | QUrl::FullyEncoded);
}

} // namespace

PagePolicy::PagePolicy(const QUrl &service)
{
    const QString host = service.host();
    const bool isSafe
        = service.scheme() == u"https" || (service.scheme() == u"http" && isOnThisComputer(host));
    if (isSafe && !host.isEmpty())
        m_service = originOf(service);
}

bool PagePolicy::isOfService(const QUrl &url) const
{
    if (m_service.isEmpty())
        return false;
    const QString host = url.host();
    return originOf(url) == m_service
           || (url.scheme() == u"https" && url.port(443) == 443
               && std::ranges::any_of(ServiceDomains, [&host](QLatin1StringView domain) {
                      return host.endsWith(domain);
                  }));
}

bool PagePolicy::allows(const QUrl &url) const
{
    const QString scheme = url.scheme();
    // What lies in the page's own memory never asks anybody.
    return scheme == u"qrc" || scheme == u"data" || scheme == u"blob" || isOfService(url);
}

QString PagePolicy::text() const
{
    const QString closed = QStringLiteral("default-src 'none'; base-uri 'none'; "
                                          "form-action 'none'; ");
    if (m_service.isEmpty())
        return closed + QStringLiteral("script-src qrc:; style-src qrc:; img-src qrc:");
    QString hosts = m_service;
    for (const QLatin1StringView domain : ServiceDomains)
        hosts += QStringLiteral(" https://*") + domain;
    // The library makes scripts and style sheets out of texts, and workers of its own.
    return closed
           + QStringLiteral("script-src qrc: blob: 'unsafe-eval' %1; style-src qrc: "
                            "'unsafe-inline' %1; img-src qrc: data: blob: %1; font-src data: %1; "
                            "connect-src data: blob: %1; worker-src blob:")
                 .arg(hosts);
}

} // namespace zuno
