// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <widgets/makerlinks.h>

#include <QFocusEvent>

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

bool LinkLabel::focusNextPrevChild(bool next)
{
    if (next || !hasSelectedText())
        return QLabel::focusNextPrevChild(next);
    // On the way back a QLabel selects its first link again and again and keeps the focus.
    setSelection(0, 0);
    // Past QLabel on purpose. NOLINTNEXTLINE(bugprone-parent-virtual-call)
    return QWidget::focusNextPrevChild(next);
}

void LinkLabel::focusInEvent(QFocusEvent *event)
{
    QLabel::focusInEvent(event);
    // A QLabel takes the focus first, and its link only with the next press.
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
        focusNextPrevChild(reason == Qt::TabFocusReason);
}

} // namespace zuno
