// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/chartinput.h>

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <views/charts/chartstate.h>

namespace zuno {

namespace {

// A notch of the wheel, in eighths of a degree.
constexpr double Notch = 120.0;
// What remains in sight after a notch or a press of "+".
constexpr double ZoomFactor = 0.8;
// How far the wheel with Shift and the page keys move what is in sight.
constexpr double ScrollPart = 0.1;
constexpr double PagePart = 0.9;

} // namespace

bool ChartInput::handleMouse(QEvent &event, const PixelScale &scale)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        press(static_cast<const QMouseEvent &>(event));
        return true;
    case QEvent::MouseMove:
        move(static_cast<const QMouseEvent &>(event), scale);
        return true;
    case QEvent::MouseButtonRelease:
        release(static_cast<const QMouseEvent &>(event), scale);
        return true;
    case QEvent::MouseButtonDblClick:
        if (static_cast<const QMouseEvent &>(event).button() == Qt::LeftButton)
            m_state.showWhole();
        return true;
    case QEvent::Wheel:
        turnWheel(static_cast<const QWheelEvent &>(event), scale);
        event.accept();
        return true;
    default:
        return false;
    }
}

// Beside the plot the nearest place in sight is meant.
double ChartInput::placeAt(const QPointF &position, const PixelScale &scale) const
{
    return m_state.visible().clamped(scale.valueAt(position.x()));
}

void ChartInput::press(const QMouseEvent &event)
{
    if (event.button() != Qt::LeftButton)
        return;
    m_isPressed = true;
    m_isSelecting = false;
    m_pressedAt = event.position();
}

void ChartInput::move(const QMouseEvent &event, const PixelScale &scale)
{
    const double here = placeAt(event.position(), scale);
    m_state.hover(here);
    if (!m_isPressed)
        return;
    const double way = std::abs(event.position().x() - m_pressedAt.x());
    m_isSelecting = m_isSelecting || way >= QApplication::startDragDistance();
    if (m_isSelecting) {
        const double there = placeAt(m_pressedAt, scale);
        m_state.select(AxisRange {std::min(here, there), std::max(here, there)});
    }
}

void ChartInput::release(const QMouseEvent &event, const PixelScale &scale)
{
    if (event.button() != Qt::LeftButton || !m_isPressed)
        return;
    m_isPressed = false;
    if (!m_isSelecting) {
        const double place = placeAt(event.position(), scale);
        m_state.pin(place);
        m_state.measureAt(place);
        return;
    }
    m_isSelecting = false;
    const auto selected = m_state.selected();
    m_state.select(std::nullopt);
    if (!selected)
        return;
    if (m_state.isMeasuring())
        m_state.measure(*selected);
    else
        m_state.showRange(*selected);
}

void ChartInput::turnWheel(const QWheelEvent &event, const PixelScale &scale)
{
    const QPoint turned = event.angleDelta();
    const bool isSideways = event.modifiers().testFlag(Qt::ShiftModifier) || turned.y() == 0;
    if (isSideways)
        m_state.scroll(-(turned.x() + turned.y()) / Notch * ScrollPart);
    else
        m_state.zoom(std::pow(ZoomFactor, turned.y() / Notch), placeAt(event.position(), scale));
}

void ChartInput::handleKey(QKeyEvent &event)
{
    const int direction = event.key() == Qt::Key_Left ? -1 : 1;
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (event.modifiers().testFlag(Qt::ShiftModifier))
            m_state.stepSeconds(direction);
        else
            m_state.step(direction);
        break;
    case Qt::Key_Home:
        m_state.lead(m_state.whole().from);
        break;
    case Qt::Key_End:
        m_state.lead(m_state.whole().to);
        break;
    case Qt::Key_PageUp:
        m_state.scroll(-PagePart);
        break;
    case Qt::Key_PageDown:
        m_state.scroll(PagePart);
        break;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        m_state.zoom(ZoomFactor, m_state.cursorPlace());
        break;
    case Qt::Key_Minus:
        m_state.zoom(1 / ZoomFactor, m_state.cursorPlace());
        break;
    default:
        handleLetter(event);
    }
}

void ChartInput::handleLetter(QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Escape:
        m_isPressed = false;
        m_state.select(std::nullopt);
        // One thing after the other.
        if (m_state.isMeasuring())
            m_state.setMeasuring(false);
        else
            m_state.showWhole();
        break;
    case Qt::Key_Return:
    case Qt::Key_Space:
        m_state.measureAt(m_state.cursorPlace());
        break;
    case Qt::Key_M:
        m_state.setMeasuring(!m_state.isMeasuring());
        break;
    case Qt::Key_D:
        m_state.setAxis(AxisKind::Distance);
        break;
    case Qt::Key_T:
        m_state.setAxis(AxisKind::Time);
        break;
    case Qt::Key_Comma:
        m_state.showNextZone(-1);
        break;
    case Qt::Key_Period:
        m_state.showNextZone(1);
        break;
    case Qt::Key_1:
    case Qt::Key_2:
    case Qt::Key_3:
        m_state.showRank(event.key() - Qt::Key_0);
        break;
    default:
        // Not the scroll area's keys, which would take the arrows up and down.
        event.ignore();
    }
}

} // namespace zuno
