// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/editor/mapgestures.h>

#include <algorithm>
#include <cmath>

namespace zuno {

namespace {

// Pixels beside the track at which a click still means the track.
constexpr double ClickReach = 12.0;

// Milliseconds between key strokes that belong together.
constexpr qint64 Pause = 1000;

} // namespace

MapGestures::MapGestures(MapEdit &edit, QObject *parent) : QObject(parent), m_edit(edit)
{
    connect(&m_edit, &MapEdit::changed, this,
            [this] { m_selected = std::min(m_selected, m_edit.pointCount() - 1); });
}

void MapGestures::select(int point)
{
    m_selected = std::clamp(point, MapEdit::NoPoint, m_edit.pointCount() - 1);
    Q_EMIT pointsTouched();
}

void MapGestures::selectNext(int points)
{
    select(std::max(m_selected + points, MapEdit::Start));
}

void MapGestures::beginDrag(bool done)
{
    if (!m_isDragging)
        m_edit.beginGesture();
    m_isDragging = !done;
    m_lastKind = NothingToJoin;
}

void MapGestures::drag(int point, const QGeoCoordinate &place, bool done)
{
    beginDrag(done);
    m_selected = point;
    m_edit.movePoint(point, place);
    if (done)
        m_selected = m_edit.settle(point);
    Q_EMIT pointsTouched();
}

void MapGestures::dragGate(double metres, bool done)
{
    beginDrag(done);
    // To the tenth of a metre that the box shows.
    m_edit.setGateSize(std::round(metres * 10.0) / 10.0);
    Q_EMIT pointsTouched();
}

void MapGestures::setGateSize(double metres)
{
    joinChanges(GateChange);
    m_edit.setGateSize(metres);
}

// Strokes on the same thing, one after the other, are one step to undo.
void MapGestures::joinChanges(int kind)
{
    const bool isNext
        = kind == m_lastKind && m_sinceChange.isValid() && m_sinceChange.elapsed() < Pause;
    if (!isNext)
        m_edit.beginGesture();
    m_lastKind = kind;
    m_sinceChange.start();
}

void MapGestures::nudge(double metres)
{
    if (m_selected == MapEdit::NoPoint)
        return;
    joinChanges(m_selected);
    m_edit.nudgePoint(m_selected, metres);
    const int settled = m_edit.settle(m_selected);
    if (settled != m_selected) {
        m_lastKind = settled;
        select(settled);
    }
}

void MapGestures::addPoint()
{
    selectAdded(m_edit.addPoint());
}

void MapGestures::addPointAt(const QGeoCoordinate &place, double metresPerPixel)
{
    if (m_edit.path().nearest(place).off <= ClickReach * metresPerPixel)
        selectAdded(m_edit.addPoint(place));
}

void MapGestures::selectAdded(int point)
{
    if (point != MapEdit::NoPoint)
        select(point);
    else if (m_edit.isFull())
        Q_EMIT refused();
}

void MapGestures::removePoint()
{
    if (m_selected >= 0)
        m_edit.removePoint(m_selected);
}

} // namespace zuno
