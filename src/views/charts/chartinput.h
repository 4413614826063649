// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointF>

#include <views/charts/chartaxis.h>

class QEvent;
class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace zuno {

class ChartState;

/// How a chart answers to mouse and keys: leads the state's cursor and visible stretch.
class ChartInput
{
public:
    /// @p state must outlive the input.
    explicit ChartInput(ChartState &state) : m_state(state) {}

    /// Acts on an event of the mouse over the chart, whose axis has that @p scale; false for one
    /// that means nothing here.
    [[nodiscard]] bool handleMouse(QEvent &event, const PixelScale &scale);
    /// Acts on a key; ignores one that means nothing here.
    void handleKey(QKeyEvent &event);

private:
    void handleLetter(QKeyEvent &event);
    void press(const QMouseEvent &event);
    void move(const QMouseEvent &event, const PixelScale &scale);
    void release(const QMouseEvent &event, const PixelScale &scale);
    void turnWheel(const QWheelEvent &event, const PixelScale &scale);
    [[nodiscard]] double placeAt(const QPointF &position, const PixelScale &scale) const;

    ChartState &m_state;
    QPointF m_pressedAt;
    bool m_isPressed = false;
    bool m_isSelecting = false;
};

} // namespace zuno
