// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/page/mapviewcontroller.h>

#include <QGeoCoordinate>
#include <QGeoRectangle>
#include <QJsonDocument>
#include <QLayout>
#include <QLoggingCategory>
#include <QSettings>
#include <QVariant>
#include <QWebEngineView>

#include <base/settings.h>
#include <maps/page/mapwebpage.h>
#include <maps/page/pagefailure.h>
#include <maps/page/pagesettings.h>
#include <maps/payload/lappayload.h>
#include <session/laps/lap.h>
#include <session/recording/trace.h>
#include <session/session.h>
#include <session/sessionlap.h>
#include <theme/themes.h>
#include <track/map.h>

namespace zuno {

namespace {

Q_LOGGING_CATEGORY(category, "zuno.mapview")

// A page that dies again and again is left alone.
constexpr int MostRestarts = 3;
// A page that has lived so long has not died of being loaded again; milliseconds.
constexpr qint64 LongLife = 60000;

void run(QWebEnginePage &page, const QString &function, const QString &text)
{
    page.runJavaScript(QStringLiteral("%1(\"%2\");").arg(function, text),
                       [](const QVariant &result) { qCDebug(category) << result; });
}

// (0, 0) stands for a place that is not known.
QString textOf(const QGeoCoordinate &centre)
{
    const QGeoCoordinate place = centre.isValid() ? centre : QGeoCoordinate(0.0, 0.0);
    return place.toString(QGeoCoordinate::Degrees);
}

QString payloadOf(const SessionLap &lap)
{
    return QString::fromUtf8(lapPayload(*lap, lap.map()));
}

} // namespace

QString centreText(const Map *map)
{
    return textOf(map != nullptr ? map->startPoint() : QGeoCoordinate());
}

void MapViewController::init(QWidget *window, QLayout *layout)
{
    if (m_view != nullptr)
        return;
    m_view = new QWebEngineView(window);
    m_view->setMinimumWidth(MinimumWidth);
    // Going back, saving and looking at the source are of no use on a map.
    m_view->setContextMenuPolicy(Qt::NoContextMenu);
    // Files that are dropped are for the window.
    m_view->setAcceptDrops(false);
    layout->addWidget(m_view);
    m_failure = new PageFailure(window);
    m_failure->hide();
    layout->addWidget(m_failure);
    connect(m_failure, &PageFailure::anotherTryWanted, this, [this] {
        m_restarts = 0;
        restart();
    });
    m_page = new MapWebPage(m_view);
    connect(&m_page->connector(), &JSConnector::loadFinished, this,
            &MapViewController::onPageConnected);
    connect(m_page, &MapWebPage::drawn, this, &MapViewController::lapDrawn);
    connect(m_page, &MapWebPage::samplePicked, this, &MapViewController::samplePicked);
    connect(m_page, &MapWebPage::zonePicked, this, &MapViewController::zonePicked);
    connect(m_page, &QWebEnginePage::renderProcessTerminated, this, &MapViewController::onPageDied);
    connectEditing();
    m_view->setPage(m_page);
    connect(&Themes::instance(), &Themes::changed, this, &MapViewController::showTheme);
    m_page->setBackgroundColor(theme().colour(Colour::Map));
    m_page->start();
    m_view->show();
}

void MapViewController::showTheme()
{
    m_page->setBackgroundColor(theme().colour(Colour::Map));
    const QByteArray colours = QJsonDocument(themeColours()).toJson(QJsonDocument::Compact);
    m_page->runJavaScript(QStringLiteral("showTheme(%1);").arg(QString::fromUtf8(colours)));
}

// The web engine runs in a process of its own, which can die without taking the program along.
void MapViewController::onPageDied()
{
    m_isReady = false;
    if (m_life.isValid() && m_life.hasExpired(LongLife))
        m_restarts = 0;
    if (m_restarts++ < MostRestarts) {
        QMetaObject::invokeMethod(this, &MapViewController::restart, Qt::QueuedConnection);
        return;
    }
    m_view->hide();
    m_failure->show();
}

void MapViewController::restart()
{
    m_failure->hide();
    m_view->show();
    m_view->reload();
}

// A page that has just been loaded has no map yet, even when the one before it had.
void MapViewController::onPageConnected()
{
    m_isReady = false;
    m_life.start();
    // It may have changed since the page was made.
    showTheme();
    if (!m_scene.isEmpty())
        Q_EMIT m_page->connector().drawScene(m_scene);
    Q_EMIT mapReady();
    sendPath();
    sendDraft(OutlineForm::Sent);
}

void MapViewController::initOnlineMap(const QList<Session *> &sessions, int index)
{
    if (m_view == nullptr)
        return;
    m_isReady = true;
    const bool hasSession = index >= 0 && index < sessions.size();
    const Map *map = hasSession ? sessions[index]->map() : nullptr;
    run(*m_page, QStringLiteral("initMap"), centreText(map));
}

void MapViewController::centerMap(const Map *map)
{
    if (m_isReady)
        run(*m_page, QStringLiteral("centerMap"), centreText(map));
}

void MapViewController::drawLap(const SessionLap &lap)
{
    if (m_view != nullptr && lap)
        Q_EMIT m_page->connector().drawOneLap(payloadOf(lap));
}

void MapViewController::drawTwoLaps(const SessionLap &first, const SessionLap &second)
{
    if (m_view != nullptr && first && second)
        Q_EMIT m_page->connector().drawTwoLaps(payloadOf(first), payloadOf(second));
}

void MapViewController::clearLaps()
{
    if (m_view != nullptr)
        Q_EMIT m_page->connector().drawOneLap(QString::fromUtf8(emptyLapPayload()));
}

void MapViewController::drawCursor(const QString &text)
{
    if (m_view != nullptr)
        Q_EMIT m_page->connector().drawCursor(text);
}

void MapViewController::drawSecondCursor(const QString &text)
{
    if (m_view != nullptr)
        Q_EMIT m_page->connector().drawSecondCursor(text);
}

void MapViewController::drawScene(const QString &scene)
{
    m_scene = scene;
    if (m_view != nullptr && m_page->connector().isConnected())
        Q_EMIT m_page->connector().drawScene(m_scene);
}

void MapViewController::showStretch(const Points &points)
{
    QList<QGeoCoordinate> places;
    for (const PointAcquisition &point : points) {
        const QGeoCoordinate place = positionOf(point);
        if (place.isValid())
            places.append(place);
    }
    const QGeoRectangle bounds(places);
    if (!m_isReady || !bounds.isValid())
        return;
    const QGeoCoordinate southWest = bounds.bottomLeft();
    const QGeoCoordinate northEast = bounds.topRight();
    run(*m_page, QStringLiteral("showStretch"),
        QStringLiteral("[%1,%2,%3,%4]")
            .arg(southWest.latitude(), 0, 'f', 7)
            .arg(southWest.longitude(), 0, 'f', 7)
            .arg(northEast.latitude(), 0, 'f', 7)
            .arg(northEast.longitude(), 0, 'f', 7));
}

void MapViewController::setOptions(const QString &settingsPath)
{
    if (m_view == nullptr)
        return;
    const QSettings settings(settingsPath, QSettings::IniFormat);
    const auto text = [&settings](Setting setting) {
        return settings.value(Settings::key(setting), Settings::standard(setting)).toString();
    };
    const PageOptions options {text(Setting::ShowLocalMinMax), text(Setting::ShowPartielsPoints),
                               text(Setting::UseGradientCompare)};
    Q_EMIT m_page->connector().setOptions(QString::fromUtf8(optionsPayload(options)));
}

void MapViewController::editPath(std::span<const PointAcquisition> samples)
{
    m_editing = Editing();
    m_editing->path = QString::fromUtf8(pathPayload(samples));
    for (const PointAcquisition &sample : samples) {
        m_editing->centre = positionOf(sample);
        if (m_editing->centre.isValid())
            break;
    }
    sendPath();
}

void MapViewController::editDraft(const MapDraft &draft, int selected, const QList<int> &warned)
{
    if (!m_editing)
        return;
    const bool sameOutline = m_editing->draft && m_editing->draft->outline == draft.outline;
    m_editing->draft = draft;
    m_editing->selected = selected;
    m_editing->warned = warned;
    sendDraft(sameOutline ? OutlineForm::AsBefore : OutlineForm::Sent);
}

void MapViewController::endEditing()
{
    m_editing.reset();
    if (m_view != nullptr)
        Q_EMIT m_page->connector().endEditing();
}

void MapViewController::sendPath()
{
    if (!m_editing || m_view == nullptr || !m_page->connector().isConnected())
        return;
    if (!m_isReady) {
        m_isReady = true;
        run(*m_page, QStringLiteral("initMap"), textOf(m_editing->centre));
    }
    Q_EMIT m_page->connector().editPath(m_editing->path);
}

void MapViewController::sendDraft(OutlineForm outline)
{
    if (!m_editing || !m_editing->draft || m_view == nullptr || !m_page->connector().isConnected())
        return;
    Q_EMIT m_page->connector().editDraft(QString::fromUtf8(
        draftPayload(*m_editing->draft, m_editing->selected, m_editing->warned, outline)));
}

// The page may be late, and it is not trusted with numbers.
bool MapViewController::isKnownPoint(int point) const
{
    if (!m_editing || !m_editing->draft)
        return false;
    return point == StartPointNumber ? m_editing->draft->start.isValid()
                                     : point >= 0 && point < m_editing->draft->timingPoints.size();
}

void MapViewController::connectEditing()
{
    connect(m_page, &MapWebPage::pointMoved, this,
            [this](int point, const QGeoCoordinate &place, bool done) {
                if (isKnownPoint(point))
                    Q_EMIT pointMoved(point, place, done);
            });
    connect(m_page, &MapWebPage::pointSelected, this, [this](int point) {
        if (isKnownPoint(point))
            Q_EMIT pointSelected(point);
    });
    connect(m_page, &MapWebPage::gateResized, this, [this](double metres, bool done) {
        if (m_editing)
            Q_EMIT gateResized(metres, done);
    });
    connect(m_page, &MapWebPage::trackClicked, this,
            [this](const QGeoCoordinate &place, double metresPerPixel) {
                if (m_editing)
                    Q_EMIT trackClicked(place, metresPerPixel);
            });
}

} // namespace zuno
