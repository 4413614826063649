// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QWidget>

namespace zuno {

class MapEdit;

namespace Ui {
class MapPointsPane;
}

/// The points of the map that is edited, with their ways from the line.
class MapPointsPane final : public QWidget
{
    Q_OBJECT

public:
    explicit MapPointsPane(QWidget *parent = nullptr);
    ~MapPointsPane() override;

    /// Shows the points, numbered as in MapEdit, and one of them selected. In a low window it shows
    /// fewer of them at once: the laps need the room more.
    void showPoints(const MapEdit &edit, int selected, bool isLow);
    /// Where keys mean the selected point.
    [[nodiscard]] QWidget &list();

Q_SIGNALS:
    void pointSelected(int point);
    void addRequested();
    void removeRequested();

private:
    std::unique_ptr<Ui::MapPointsPane> m_ui;
};

} // namespace zuno
