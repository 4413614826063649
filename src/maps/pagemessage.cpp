// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/pagemessage.h>

#include <QJsonDocument>
#include <QJsonObject>

namespace zuno {

namespace {

// Characters; many times the longest message of the page.
constexpr qsizetype LongestMessage = 4096;

} // namespace

PageMessage parsePageMessage(const QString &text)
{
    if (text.size() > LongestMessage)
        return {};
    const QJsonObject message = QJsonDocument::fromJson(text.toUtf8()).object();
    const QString event = message.value(u"event").toString();
    if (event == u"drawn")
        return {PageMessage::Event::Drawn};
    const int index = message.value(u"index").toInt(-1);
    if (event == u"picked" && index >= 0)
        return {PageMessage::Event::Picked, index};
    return {};
}

} // namespace zuno
