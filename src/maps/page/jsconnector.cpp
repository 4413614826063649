// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/page/jsconnector.h>

#include <QDesktopServices>
#include <QLoggingCategory>
#include <QWebChannel>
#include <QWebEngineSettings>

#include <maps/payload/pagemessage.h>

namespace zuno {

namespace {

Q_LOGGING_CATEGORY(category, "zuno.mapview")

// Only addresses that a browser or a mail program opens; no page starts other programs.
void openOutside(const QUrl &url)
{
    const QString scheme = url.scheme();
    if (scheme == u"https" || scheme == u"http" || scheme == u"mailto")
        QDesktopServices::openUrl(url);
}

// A page that a link would open in a new window: it hands the address over and goes.
class OutsidePage final : public QWebEnginePage
{
public:
    using QWebEnginePage::QWebEnginePage;

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType /*type*/,
                                 bool /*isMainFrame*/) override
    {
        openOutside(url);
        deleteLater();
        return false;
    }
};

} // namespace

JSConnector::JSConnector(QObject *parent) : QWebEnginePage(parent), m_channel(new QWebChannel(this))
{
    settings()->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, true);
    settings()->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, true);
    m_channel->registerObject(QStringLiteral("jsConnector"), this);
    setWebChannel(m_channel);
}

void JSConnector::connected()
{
    m_isConnected = true;
    Q_EMIT loadFinished();
}

void JSConnector::receiveData(const QString &text)
{
    Q_EMIT sendTextToJS(text);
    qCDebug(category).noquote() << text;
}

void JSConnector::textFromJs(const QString &text)
{
    const PageMessage message = parsePageMessage(text);
    switch (message.event) {
    case PageMessage::Event::None:
        break;
    case PageMessage::Event::Drawn:
        Q_EMIT drawn();
        break;
    case PageMessage::Event::Picked:
        Q_EMIT samplePicked(message.index);
        break;
    case PageMessage::Event::PointMoved:
        Q_EMIT pointMoved(message.point, message.place, message.done);
        break;
    case PageMessage::Event::PointSelected:
        Q_EMIT pointSelected(message.point);
        break;
    case PageMessage::Event::GateResized:
        Q_EMIT gateResized(message.metres, message.done);
        break;
    case PageMessage::Event::TrackClicked:
        Q_EMIT trackClicked(message.place, message.metres);
        break;
    }
}

bool JSConnector::acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame)
{
    if (type == NavigationTypeLinkClicked) {
        openOutside(url);
        return false;
    }
    if (!isMainFrame)
        return url.scheme() == u"about";
    // Its own page, also when it is loaded again; nothing but the program can name that address.
    return url.scheme() == u"qrc";
}

QWebEnginePage *JSConnector::createWindow(WebWindowType /*type*/)
{
    return new OutsidePage(this);
}

void JSConnector::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel /*level*/,
                                           const QString &message, int lineNumber,
                                           const QString &sourceId)
{
    qCDebug(category).noquote() << QStringLiteral("Javascript Console: Line: %1, Source: %2, %3")
                                       .arg(QString::number(lineNumber), sourceId, message);
}

} // namespace zuno
