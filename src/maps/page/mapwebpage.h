// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QGeoCoordinate>
#include <QWebEnginePage>

#include <maps/page/jsconnector.h>
#include <maps/page/pagepolicy.h>

class QWebEngineNewWindowRequest;

namespace zuno {

/// The map page in the web engine. Scripts of the map service run in it, so it is closed on all
/// sides: it loads what its PagePolicy names, goes nowhere, opens no window and no dialog, gets no
/// permission and no file, and reaches of the program only the JSConnector. A link of the map
/// service that the rider clicks opens in the desktop's browser.
class MapWebPage final : public QWebEnginePage
{
    Q_OBJECT

public:
    /// For the map service of this moment, see mapServiceAddress().
    explicit MapWebPage(QObject *parent = nullptr);
    ~MapWebPage() override;

    /// Loads the page, for the first time or again.
    void start();
    [[nodiscard]] JSConnector &connector() { return m_connector; }

Q_SIGNALS:
    /// What was sent to be drawn stands on the screen.
    void drawn();
    /// The rider clicked the first lap's line next to this sample.
    void samplePicked(int index);
    /// The rider clicked the sign of a corner, by the number of its zone.
    void zonePicked(int zone);
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
    QStringList chooseFiles(FileSelectionMode mode, const QStringList &oldFiles,
                            const QStringList &acceptedMimeTypes) override;
    void javaScriptAlert(const QUrl &origin, const QString &text) override;
    bool javaScriptConfirm(const QUrl &origin, const QString &text) override;
    bool javaScriptPrompt(const QUrl &origin, const QString &text, const QString &value,
                          QString *result) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString &message,
                                  int lineNumber, const QString &sourceId) override;

private:
    class Guard;

    void restrict();
    void refuseWishes();
    void onNewWindow(const QWebEngineNewWindowRequest &request) const;
    void onMessage(const QString &text);

    PagePolicy m_policy;
    Guard *m_guard;
    JSConnector m_connector;
};

} // namespace zuno
