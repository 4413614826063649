// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>

#include <QObject>
#include <QSize>

class QAbstractButton;
class QSplitter;

namespace zuno {

class Settings;

/// How the main window is divided as long as the rider has not chosen, pixels.
struct WindowMeasures
{
    /// The width of the session tree, and whether a rail stands in for it.
    int tree = 0;
    bool hasRail = false;
    /// The height of the row with laps and map, and the share of the laps in its width, per mille.
    int topRow = 0;
    int lapsShare = 0;
    /// The width of what tells where the time is.
    int where = 0;

    /// The measures of a window of that size.
    [[nodiscard]] static WindowMeasures of(QSize window);
};

/// Divides the main window: by its size until the rider moves a handle, then as he left it.
class WindowLayout final : public QObject
{
    Q_OBJECT

public:
    /// All of it must outlive the layout.
    struct Parts
    {
        QSplitter &tree;
        QSplitter &rows;
        QSplitter &topRow;
        QSplitter &bottomRow;
        QAbstractButton &rail;
    };

    WindowLayout(const Parts &parts, const Settings &settings, QObject *parent = nullptr);

    /// The window has another size.
    void fit(QSize window);
    /// Shows the session tree, or hides it; then it stays so whatever the window's size.
    void toggleTree();
    /// Stores how the window is divided.
    void save() const;

Q_SIGNALS:
    /// The rider has moved a handle.
    void moved();

private:
    void showTree(bool shown);
    [[nodiscard]] bool isTreeShown() const;

    Parts m_parts;
    const Settings &m_settings;
    std::array<QSplitter *, 4> m_splitters;
    std::array<bool, 4> m_isChosen {};
    bool m_isTreeChosen = false;
};

} // namespace zuno
