// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QElapsedTimer>
#include <QGeoCoordinate>
#include <QObject>

#include <maps/editor/mapedit.h>

namespace zuno {

/// What a rider does to the points of a map with mouse and keys: selects, drags, nudges, adds and
/// removes them. What belongs together is one step to undo.
class MapGestures final : public QObject
{
    Q_OBJECT

public:
    /// @p edit must outlive the gestures.
    explicit MapGestures(MapEdit &edit, QObject *parent = nullptr);

    /// The selected point, numbered as in MapEdit.
    [[nodiscard]] int selected() const { return m_selected; }
    /// Selects a point, or the last one when it has no such number.
    void select(int point);
    /// Selects the point so many further on the way around.
    void selectNext(int points);

    /// Moves a point to where the mouse drags it, and gives it its number when it is @p done.
    void drag(int point, const QGeoCoordinate &place, bool done);
    void dragGate(double metres, bool done);
    /// The gate size is typed.
    void setGateSize(double metres);
    /// Moves the selected point that many metres on.
    void nudge(double metres);

    void addPoint();
    /// Adds a point where the track was clicked, if it was; a pixel is so many metres wide.
    void addPointAt(const QGeoCoordinate &place, double metresPerPixel);
    /// Removes the selected point.
    void removePoint();

Q_SIGNALS:
    /// Another point is selected, or it stands where the mouse has left it: it is to be shown anew
    /// even when the edit has not changed.
    void pointsTouched();
    /// There is no room for another point.
    void refused();

private:
    // Kinds of changes by keys, besides the numbers of the points that are moved.
    static constexpr int GateChange = -3;
    static constexpr int NothingToJoin = -4;

    void beginDrag(bool done);
    void joinChanges(int kind);
    void selectAdded(int point);

    MapEdit &m_edit;
    QElapsedTimer m_sinceChange;
    int m_lastKind = NothingToJoin;
    int m_selected = MapEdit::Start;
    bool m_isDragging = false;
};

} // namespace zuno
