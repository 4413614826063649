// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/page/mapwebpage.h>

#include <QDesktopServices>
#include <QLoggingCategory>
#include <QWebChannel>
#include <QWebEngineDownloadRequest>
#include <QWebEngineFileSystemAccessRequest>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineProfile>
#include <QWebEngineQuotaRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInterceptor>

#include <maps/page/pagesettings.h>
#include <maps/payload/pagemessage.h>

namespace zuno {

namespace {

Q_LOGGING_CATEGORY(category, "zuno.mapview")

QUrl pageAddress()
{
    return QUrl(QStringLiteral("qrc:/Resources/map.html"));
}

} // namespace

// The page's own policy stands in the page; this one stands outside, where no script comes.
class MapWebPage::Guard final : public QWebEngineUrlRequestInterceptor
{
public:
    Guard(PagePolicy policy, QObject *parent)
        : QWebEngineUrlRequestInterceptor(parent)
        , m_policy(std::move(policy))
    {
    }

    void interceptRequest(QWebEngineUrlRequestInfo &request) override
    {
        if (!m_policy.allows(request.requestUrl()))
            request.block(true);
    }

private:
    PagePolicy m_policy;
};

MapWebPage::MapWebPage(QObject *parent)
    : QWebEnginePage(parent)
    , m_policy(QUrl(mapServiceAddress()))
    , m_guard(new Guard(m_policy, this))
    , m_connector([this](const QString &text) { onMessage(text); })
{
    restrict();
    refuseWishes();
    setUrlRequestInterceptor(m_guard);
    auto *channel = new QWebChannel(this);
    channel->registerObject(QStringLiteral("jsConnector"), &m_connector);
    setWebChannel(channel);
    injectPageSettings(*this, m_policy);
}

MapWebPage::~MapWebPage()
{
    setWebChannel(nullptr);
    setUrlRequestInterceptor(nullptr);
}

void MapWebPage::start()
{
    load(pageAddress());
}

void MapWebPage::restrict()
{
    using Settings = QWebEngineSettings;
    settings()->setAttribute(Settings::LocalContentCanAccessRemoteUrls, true);
    for (const auto attribute :
         {Settings::JavascriptCanOpenWindows, Settings::JavascriptCanAccessClipboard,
          Settings::JavascriptCanPaste, Settings::AllowWindowActivationFromJavaScript,
          Settings::LocalContentCanAccessFileUrls, Settings::LocalStorageEnabled,
          Settings::PluginsEnabled, Settings::PdfViewerEnabled, Settings::FullScreenSupportEnabled,
          Settings::ScreenCaptureEnabled, Settings::NavigateOnDropEnabled,
          Settings::DnsPrefetchEnabled, Settings::ErrorPageEnabled})
        settings()->setAttribute(attribute, false);
    settings()->setAttribute(Settings::WebRTCPublicInterfacesOnly, true);
    settings()->setUnknownUrlSchemePolicy(Settings::DisallowUnknownUrlSchemes);
}

// Most would be refused without an answer too, but a script that waits for one may wait for ever.
void MapWebPage::refuseWishes()
{
    connect(this, &QWebEnginePage::featurePermissionRequested, this,
            [this](const QUrl &origin, Feature feature) {
                setFeaturePermission(origin, feature, PermissionDeniedByUser);
            });
    connect(this, &QWebEnginePage::newWindowRequested, this, &MapWebPage::onNewWindow);
    connect(this, &QWebEnginePage::quotaRequested, this,
            [](QWebEngineQuotaRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this,
            [](QWebEngineRegisterProtocolHandlerRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::fileSystemAccessRequested, this,
            [](QWebEngineFileSystemAccessRequest request) { request.reject(); });
    connect(profile(), &QWebEngineProfile::downloadRequested, this,
            [](QWebEngineDownloadRequest *request) { request->cancel(); });
}

void MapWebPage::onNewWindow(const QWebEngineNewWindowRequest &request) const
{
    if (request.isUserInitiated() && m_policy.isOfService(request.requestedUrl()))
        QDesktopServices::openUrl(request.requestedUrl());
}

void MapWebPage::onMessage(const QString &text)
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
    case PageMessage::Event::ZonePicked:
        Q_EMIT zonePicked(message.index);
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

bool MapWebPage::acceptNavigationRequest(const QUrl &url, NavigationType /*type*/, bool isMainFrame)
{
    // Its own page, also when it is loaded again. Frames are empty, if there are any.
    return isMainFrame ? url == pageAddress() : url.scheme() == u"about";
}

QStringList MapWebPage::chooseFiles(FileSelectionMode /*mode*/, const QStringList & /*oldFiles*/,
                                    const QStringList & /*acceptedMimeTypes*/)
{
    return {};
}

// A dialog of the page would look like one of the program.
void MapWebPage::javaScriptAlert(const QUrl & /*origin*/, const QString & /*text*/) {}

bool MapWebPage::javaScriptConfirm(const QUrl & /*origin*/, const QString & /*text*/)
{
    return false;
}

bool MapWebPage::javaScriptPrompt(const QUrl & /*origin*/, const QString & /*text*/,
                                  const QString & /*value*/, QString * /*result*/)
{
    return false;
}

void MapWebPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel /*level*/,
                                          const QString &message, int lineNumber,
                                          const QString &sourceId)
{
    qCDebug(category).noquote() << QStringLiteral("Javascript Console: Line: %1, Source: %2, %3")
                                       .arg(QString::number(lineNumber), sourceId, message);
}

} // namespace zuno
