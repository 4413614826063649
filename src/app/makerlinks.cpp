// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/makerlinks.h>

namespace zuno {

namespace {

QString link(const QString &target, const QString &text)
{
    return QStringLiteral("<a href=\"%1\">%2</a>")
        .arg(target.toHtmlEscaped(), text.toHtmlEscaped());
}

} // namespace

QString webSiteLink(const QString &language)
{
    const QString homePage = QStringLiteral(ZUNO_WEB_SITE);
    const QString englishPage = QStringLiteral(ZUNO_WEB_SITE_EN);
    if (language == u"en")
        return link(englishPage, englishPage);
    if (language == u"fr")
        return link(homePage, homePage);
    return homePage.toHtmlEscaped();
}

QString mailLink()
{
    const QString address = QStringLiteral(ZUNO_MAIL);
    return link(u"mailto:" + address, address);
}

} // namespace zuno
