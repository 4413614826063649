// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QGeoCoordinate>
#include <QWebEnginePage>

class QWebChannel;

namespace zuno {

/// The map page, and the object by which it and the program talk: the page's script finds it on
/// the web channel as "jsConnector", connects to its signals and calls its slots.
///
/// The page stays where it is: what it does not load itself is refused, and links open in the
/// desktop's browser.
class JSConnector final : public QWebEnginePage
{
    Q_OBJECT

public:
    explicit JSConnector(QObject *parent = nullptr);

    [[nodiscard]] bool isConnected() const { return m_isConnected; }

public Q_SLOTS:
    /// The page has found this object and listens.
    void connected();
    /// Sends @p text back to the page.
    void receiveData(const QString &text);
    /// A message of the page: a JSON object whose "event" is "drawn" (laps stand on the screen),
    /// "picked" (the sample "index" of the first lap was clicked), or one of the four of the
    /// editing signals below. Anything else is ignored, and so is an event with a value that
    /// cannot be, such as a place that is not on the globe.
    void textFromJs(const QString &text);

Q_SIGNALS:
    // The first nine are the page's; it knows them by name. All texts but the first are JSON.
    void sendTextToJS(const QString &text);
    void drawOneLap(const QString &lap);
    void drawTwoLaps(const QString &dataFirstLap, const QString &dataSecondLap);
    void drawCursor(const QString &point);
    void drawSecondCursor(const QString &point);
    void resetFirstCursorRabbit();
    void resetFirstCursorTarget();
    void loadFinished();
    void setOptions(const QString &options);

    /// What was sent to be drawn stands on the screen.
    void drawn();
    /// The rider clicked the first lap's line next to this sample.
    void samplePicked(int index);

    // These three are the page's again; the texts are JSON.
    void editPath(const QString &path);
    void editDraft(const QString &draft);
    void endEditing();

    /// The rider drags a draft's point, -1 for the start point; @p done when it is let go.
    void pointMoved(int point, const QGeoCoordinate &place, bool done);
    /// The rider drags a gate's circle; metres as a map's gate size.
    void gateResized(double metres, bool done);
    /// The rider clicked a draft's point or took hold of it.
    void pointSelected(int point);
    /// The rider clicked the map beside the draft's points.
    void trackClicked(const QGeoCoordinate &place, double metresPerPixel);

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
    QWebEnginePage *createWindow(WebWindowType type) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString &message,
                                  int lineNumber, const QString &sourceId) override;

private:
    QWebChannel *m_channel;
    bool m_isConnected = false;
};

} // namespace zuno
