// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QWidget>

namespace zuno {

class LineSwitch;
class MapViewController;
class Session;

namespace Ui {
class MapPane;
}

/// The map view of the main window, below what is said about the displayed session's map. The view
/// itself is made once the window stands on the screen: its engine takes as long to start as all
/// the rest, and until then its place is kept free.
class MapPane final : public QWidget
{
    Q_OBJECT

public:
    explicit MapPane(QWidget *parent = nullptr);
    ~MapPane() override;

    [[nodiscard]] MapViewController &view() { return *m_view; }
    /// What the colours of the line tell.
    [[nodiscard]] LineSwitch &line() { return *m_line; }

    /// Shows name and length of a session's map; nullptr for no session.
    void showSession(const Session *session);

Q_SIGNALS:
    /// The rider wants a map to be made from the session.
    void newMapRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void makeKeys();
    void arrangeHead();

    std::unique_ptr<Ui::MapPane> m_ui;
    MapViewController *m_view;
    LineSwitch *m_line;
    bool m_isPainted = false;
};

} // namespace zuno
