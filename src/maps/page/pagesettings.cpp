// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/page/pagesettings.h>

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>
#include <QUrlQuery>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>

#include <maps/page/pagepolicy.h>
#include <theme/themes.h>

namespace zuno {

namespace {

/// The texts that the map page shows.
struct MapPage
{
    Q_DECLARE_TR_FUNCTIONS(MapPage)

public:
    static QJsonObject texts();
};

QJsonObject MapPage::texts()
{
    return {
        {QStringLiteral("braking"), tr("braking")},
        {QStringLiteral("accelerating"), tr("accelerating")},
        {QStringLiteral("firstLap"), tr("first lap")},
        {QStringLiteral("secondLap"), tr("second lap")},
        //: On the sign of the start/finish line.
        {QStringLiteral("start"), tr("Start")},
        {QStringLiteral("loading"), tr("Loading the map...")},
        {QStringLiteral("noKey"), tr("Offline map: there is no key for the satellite map")},
        {QStringLiteral("notLoaded"), tr("Offline map: the satellite map cannot be reached")},
        {QStringLiteral("noAnswer"), tr("Offline map: the satellite map does not answer")},
        {QStringLiteral("refused"), tr("Offline map: the satellite map refuses the key")},
    };
}

} // namespace

QString mapServiceKey()
{
    const QString key
        = qEnvironmentVariable("ZUNO_MAP_KEY", QString::fromUtf8(ZUNO_MAP_KEY)).trimmed();
    return key == QLatin1String(ZUNO_MAP_KEY_PLACEHOLDER) ? QString() : key;
}

QString mapServiceAddress()
{
    const QString key = mapServiceKey();
    if (key.isEmpty())
        return {};
    QUrl address(qEnvironmentVariable("ZUNO_MAP_SERVICE", QString::fromUtf8(ZUNO_MAP_SERVICE)));
    QUrlQuery query(address);
    query.addQueryItem(QStringLiteral("key"), QString::fromLatin1(QUrl::toPercentEncoding(key)));
    address.setQuery(query);
    return address.toString(QUrl::FullyEncoded);
}

QJsonObject themeColours()
{
    QJsonObject colours;
    for (std::size_t i = 0; i < ColourCount; ++i) {
        const auto colour = static_cast<Colour>(i);
        colours.insert(Theme::name(colour), theme().colour(colour).name());
    }
    return colours;
}

void injectPageSettings(QWebEnginePage &page, const PagePolicy &policy)
{
    const QJsonObject settings {
        {QStringLiteral("policy"), policy.text()},
        {QStringLiteral("service"), mapServiceAddress()},
        {QStringLiteral("texts"), MapPage::texts()},
        {QStringLiteral("colours"), themeColours()},
    };
    QWebEngineScript script;
    script.setName(QStringLiteral("zunoPage"));
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setSourceCode(
        QStringLiteral("window.zunoPage = %1;")
            .arg(QString::fromUtf8(QJsonDocument(settings).toJson(QJsonDocument::Compact))));
    page.scripts().insert(script);
}

} // namespace zuno
