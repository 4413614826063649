// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QObject>

#include <session/pointacquisition.h>

class QLayout;
class QMainWindow;
class QWebEngineView;

namespace zuno {

class JSConnector;
class Lap;
class Map;
class Session;

/// The text that the map page reads as a centre, "46.10000°, 6.20000°": the map's start point, or
/// (0, 0) without a map or without a valid start point.
[[nodiscard]] QString centreText(const Map *map);

/// The map view: owns the web view and its page, and tells the page what to draw. What is sent
/// before the page listens is lost; whoever sent it does so again on mapReady().
class MapViewController final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Creates the view in @p layout and loads the page; the first call only.
    void init(QMainWindow *window, QLayout *layout);
    /// Creates the page's map, centred on the map of the session at @p index; an index outside of
    /// the list means no session.
    void initOnlineMap(const QList<Session *> &sessions, int index);
    /// Whether the page has been given a centre.
    [[nodiscard]] bool isReady() const { return m_isReady; }
    /// Moves the page's map to a session's map; nothing before the page is ready.
    void centerMap(const Map *map);

    /// Draws a lap; nothing without one, or before there is a view.
    void drawLap(const Lap *lap);
    /// Draws two laps to be compared; nothing unless there are both.
    void drawTwoLaps(const Lap *first, const Lap *second);
    /// Takes the laps off the map.
    void clearLaps();
    /// Move the cursor of the first lap and of the second to a point payload.
    void drawCursor(const QString &text);
    void drawSecondCursor(const QString &text);
    /// Zooms to a stretch of a lap; nothing without a point that has a position.
    void showStretch(const Points &points);
    /// Tells the page the options that the settings file at @p settingsPath holds; what it does
    /// not hold is sent as an empty text.
    void setOptions(const QString &settingsPath);

    /// The view and its page; nullptr before init().
    [[nodiscard]] QWebEngineView *view() const { return m_view; }
    [[nodiscard]] JSConnector *page() const { return m_page; }

Q_SIGNALS:
    /// The page listens, for the first time or after it had to be loaded again.
    void mapReady();
    /// What was sent to be drawn stands on the screen.
    void lapDrawn();
    /// The rider clicked the first lap's line next to this sample.
    void samplePicked(int index);

private:
    void restart();

    QMainWindow *m_window = nullptr;
    QWebEngineView *m_view = nullptr;
    JSConnector *m_page = nullptr;
    bool m_isReady = false;
    int m_restarts = 0;
};

} // namespace zuno
