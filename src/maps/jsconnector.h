// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

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
    /// A message of the page: a JSON object whose "event" is "drawn" (laps stand on the screen) or
    /// "picked" (the sample "index" of the first lap was clicked). Anything else is ignored.
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
