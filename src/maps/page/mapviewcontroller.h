// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <span>

#include <QElapsedTimer>
#include <QGeoCoordinate>
#include <QList>
#include <QObject>

#include <maps/payload/draftpayload.h>
#include <session/recording/pointacquisition.h>
#include <track/mapdraft.h>

class QLayout;
class QWebEngineView;
class QWidget;

namespace zuno {

class Map;
class MapWebPage;
class PageFailure;
class Session;
struct SessionLap;

/// The text that the map page reads as a centre, "46.10000°, 6.20000°": the map's start point, or
/// (0, 0) without a map or without a valid start point.
[[nodiscard]] QString centreText(const Map *map);

/// The map view: owns the web view and its page, and tells the page what to draw. What is sent
/// before the page listens is lost; whoever sent it does so again on mapReady(). Only what is
/// edited is kept here: a page that starts, or starts again, gets it without anybody's help.
class MapViewController final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Of the view, in pixels.
    static constexpr int MinimumWidth = 500;

    /// Creates the view in @p layout of @p window, be it the main window or a dialog, and loads the
    /// page; the first call only.
    void init(QWidget *window, QLayout *layout);
    /// Creates the page's map, centred on the map of the session at @p index; an index outside of
    /// the list means no session.
    void initOnlineMap(const QList<Session *> &sessions, int index);
    /// Whether the page has been given a centre.
    [[nodiscard]] bool isReady() const { return m_isReady; }
    /// Moves the page's map to a session's map; nothing before the page is ready.
    void centerMap(const Map *map);

    /// Draws a lap; nothing without one, or before there is a view.
    void drawLap(const SessionLap &lap);
    /// Draws two laps to be compared; nothing unless there are both.
    void drawTwoLaps(const SessionLap &first, const SessionLap &second);
    /// Takes the laps off the map.
    void clearLaps();
    /// Move the cursor of the first lap and of the second to a point payload.
    void drawCursor(const QString &text);
    void drawSecondCursor(const QString &text);
    /// How the laps are drawn, as scenePayload() gives it. It is kept for a page that is loaded
    /// again.
    void drawScene(const QString &scene);
    /// Zooms to a stretch of a lap; nothing without a point that has a position.
    void showStretch(const Points &points);
    /// Tells the page the options that the settings file at @p settingsPath holds, or their
    /// defaults.
    void setOptions(const QString &settingsPath);

    /// Takes everything else off the map, draws the way of a session as a thin line and shows it
    /// whole: a draft can be edited on it. May be called at any time after init(); neither
    /// mapReady() nor initOnlineMap() has to come first.
    void editPath(std::span<const PointAcquisition> samples);
    /// Draws a draft: its outline, its points with their gates, one point @p selected and others
    /// @p warned of. Points are numbered as in pointMoved(), NoPointNumber means none. Only what
    /// has changed is sent, so that every move of a drag can be answered. Nothing before
    /// editPath().
    void editDraft(const MapDraft &draft, int selected = NoPointNumber,
                   const QList<int> &warned = {});
    /// Takes the draft and the session's way off the map; laps are drawn again.
    void endEditing();

    /// The view and its page; nullptr before init().
    [[nodiscard]] QWebEngineView *view() const { return m_view; }
    [[nodiscard]] MapWebPage *page() const { return m_page; }

Q_SIGNALS:
    /// The page listens, for the first time or after it had to be loaded again.
    void mapReady();
    /// What was sent to be drawn stands on the screen.
    void lapDrawn();
    /// The rider clicked the first lap's line next to this sample.
    void samplePicked(int index);
    /// The rider clicked the sign of a corner; the number is that of its zone in the scene.
    void zonePicked(int zone);

    /// The rider drags a point of the draft, StartPointNumber or a timing point's index, and lets
    /// it go with @p done. The place is where the mouse is: whoever listens moves the point to the
    /// outline and answers with editDraft(); until it is done the point must keep its number.
    void pointMoved(int point, const QGeoCoordinate &place, bool done);
    /// The rider drags the circle of a gate; @p metres is the gate size that it would be.
    void gateResized(double metres, bool done);
    /// The rider clicked a point of the draft or begins to drag it.
    void pointSelected(int point);
    /// The rider clicked the map beside the draft's points, where a pixel is so many metres wide.
    void trackClicked(const QGeoCoordinate &place, double metresPerPixel);

private:
    // What the page shows while a draft is edited.
    struct Editing
    {
        QString path;
        QGeoCoordinate centre;
        std::optional<MapDraft> draft;
        int selected = NoPointNumber;
        QList<int> warned;
    };

    void connectEditing();
    void onPageDied();
    void restart();
    void onPageConnected();
    void showTheme();
    void sendPath();
    void sendDraft(OutlineForm outline);
    [[nodiscard]] bool isKnownPoint(int point) const;

    QWebEngineView *m_view = nullptr;
    MapWebPage *m_page = nullptr;
    PageFailure *m_failure = nullptr;
    std::optional<Editing> m_editing;
    QString m_scene;
    bool m_isReady = false;
    // Of the page that lives now.
    QElapsedTimer m_life;
    int m_restarts = 0;
};

} // namespace zuno
