// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/page/jsconnector.h>

#include <utility>

namespace zuno {

JSConnector::JSConnector(Listener listener, QObject *parent)
    : QObject(parent)
    , m_listener(std::move(listener))
{
}

void JSConnector::connected()
{
    m_isConnected = true;
    Q_EMIT loadFinished();
}

void JSConnector::textFromJs(const QString &text)
{
    m_listener(text);
}

} // namespace zuno
