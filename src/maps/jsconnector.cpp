// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/jsconnector.h>

#include <cmath>

#include <QDesktopServices>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QWebChannel>
#include <QWebEngineSettings>

#include <maps/draftpayload.h>

namespace zuno {

namespace {

Q_LOGGING_CATEGORY(category, "zuno.mapview")

// Wider than any gate or any map on a screen; what is more is an error of the page.
constexpr double LargestGate = 1000.0;
constexpr double LargestPixel = 100000.0;

// Invalid unless both numbers are there and in range.
QGeoCoordinate placeOf(const QJsonObject &message)
{
    return QGeoCoordinate(message.value(u"lat").toDouble(qQNaN()),
                          message.value(u"lng").toDouble(qQNaN()));
}

bool isUpTo(double value, double largest)
{
    return std::isfinite(value) && value > 0.0 && value <= largest;
}

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
    const QJsonObject message = QJsonDocument::fromJson(text.toUtf8()).object();
    const QString event = message.value(u"event").toString();
    if (event == u"drawn")
        Q_EMIT drawn();
    else if (event == u"picked")
        Q_EMIT samplePicked(message.value(u"index").toInt(-1));
    else
        handleEditing(event, message);
}

void JSConnector::handleEditing(const QString &event, const QJsonObject &message)
{
    const int point = message.value(u"point").toInt(NoPointNumber);
    const QGeoCoordinate place = placeOf(message);
    const bool done = message.value(u"done").toBool();
    if (event == u"pointMoved") {
        if (point >= StartPointNumber && place.isValid())
            Q_EMIT pointMoved(point, place, done);
    } else if (event == u"pointSelected") {
        if (point >= StartPointNumber)
            Q_EMIT pointSelected(point);
    } else if (event == u"gateResized") {
        const double metres = message.value(u"metres").toDouble();
        if (isUpTo(metres, LargestGate))
            Q_EMIT gateResized(metres, done);
    } else if (event == u"trackClicked") {
        const double metresPerPixel = message.value(u"metresPerPixel").toDouble();
        if (place.isValid() && isUpTo(metresPerPixel, LargestPixel))
            Q_EMIT trackClicked(place, metresPerPixel);
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
