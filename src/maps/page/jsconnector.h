// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QObject>

namespace zuno {

/// The object by which the map page and the program talk: the page's script finds it on the web
/// channel as "jsConnector", connects to its signals and calls its two slots. Whatever runs in the
/// page can call all that is a slot, a property or invokable here, and nothing else.
class JSConnector final : public QObject
{
    Q_OBJECT

public:
    using Listener = std::function<void(const QString &)>;

    /// What the page says goes to @p listener.
    explicit JSConnector(Listener listener, QObject *parent = nullptr);

    [[nodiscard]] bool isConnected() const { return m_isConnected; }

public Q_SLOTS:
    /// The page has found this object and listens.
    void connected();
    /// A message of the page, see parsePageMessage().
    void textFromJs(const QString &text);

Q_SIGNALS:
    // The page knows them by name. All texts but the first are JSON.
    void sendTextToJS(const QString &text);
    void drawOneLap(const QString &lap);
    void drawTwoLaps(const QString &dataFirstLap, const QString &dataSecondLap);
    void drawCursor(const QString &point);
    void drawSecondCursor(const QString &point);
    void resetFirstCursorRabbit();
    void resetFirstCursorTarget();
    void loadFinished();
    void drawScene(const QString &scene);
    void setOptions(const QString &options);
    void editPath(const QString &path);
    void editDraft(const QString &draft);
    void endEditing();

private:
    Listener m_listener;
    bool m_isConnected = false;
};

} // namespace zuno
