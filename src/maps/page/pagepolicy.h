// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>
#include <QUrl>

namespace zuno {

/// What the map page may load: the program's own resources and, when there is a key, what the map
/// service consists of, over https. A service on this computer itself, as tests have one, may speak
/// http.
class PagePolicy final
{
public:
    /// For the address of the map service's library; without one, or with one that is neither https
    /// nor on this computer, the page has its own resources only.
    explicit PagePolicy(const QUrl &service);

    /// Whether the page may load from there, for whatever it is.
    [[nodiscard]] bool allows(const QUrl &url) const;
    /// Whether the map service consists of what lies there.
    [[nodiscard]] bool isOfService(const QUrl &url) const;
    /// The same for the page itself, as a content security policy.
    [[nodiscard]] QString text() const;

private:
    /// Scheme, host and port of the library; empty without a service.
    QString m_service;
};

} // namespace zuno
