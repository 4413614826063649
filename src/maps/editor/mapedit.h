// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QGeoCoordinate>
#include <QList>
#include <QObject>
#include <QUndoStack>

#include <insight/corneredits.h>
#include <track/mapdraft.h>
#include <track/trackring.h>

namespace zuno {

/// A map while it is edited. Every change can be undone; a gesture (a drag, a held key) is one
/// step.
///
/// Start and timing points that are moved lie on the outline. Timing points stand in riding order,
/// so one that was moved past another changes its number. The outline starts and ends at the line:
/// it is turned when the line moves. What was read from a file stays as it was until it is moved.
class MapEdit final : public QObject
{
    Q_OBJECT

public:
    /// The number of the start/finish point among the points; the timing points count from 0.
    static constexpr int Start = -1;
    static constexpr int NoPoint = -2;
    /// Metres.
    static constexpr double SmallestGate = 1.0;
    static constexpr double LargestGate = 200.0;

    explicit MapEdit(MapDraft draft, CornerEdits corners = {}, QObject *parent = nullptr);
    ~MapEdit() override;

    [[nodiscard]] const MapDraft &draft() const { return m_state.draft; }
    /// What the rider changed in the corners of the outline.
    [[nodiscard]] const CornerEdits &corners() const { return m_state.corners; }
    /// The way around that points are moved along; the same object for as long as it is the same
    /// way.
    [[nodiscard]] const TrackRing &path() const { return *m_state.path; }
    /// Metres once around.
    [[nodiscard]] double length() const { return m_state.path->length(); }
    /// Metres from the line to a point in riding order; those on the line have 0 (the line itself)
    /// or once around.
    [[nodiscard]] double distance(int point) const;
    [[nodiscard]] QGeoCoordinate place(int point) const;
    [[nodiscard]] int pointCount() const { return static_cast<int>(draft().timingPoints.size()); }
    [[nodiscard]] bool canAdd() const;
    /// Whether there are as many timing points as a lap has sectors, or more.
    [[nodiscard]] bool isFull() const;
    [[nodiscard]] QUndoStack &history() { return m_history; }

    /// Begins a gesture: the changes of one kind until the next call are one step.
    void beginGesture();
    /// Moves a point to the place of the outline nearest to @p to. The timing point that lies on
    /// the line goes with it. Points keep their numbers until settle().
    void movePoint(int point, const QGeoCoordinate &to);
    /// Moves a point that many metres on, backwards when negative.
    void nudgePoint(int point, double metres);
    /// Numbers the points in riding order when a move has come to its end; returns the number that
    /// @p point has then.
    int settle(int point);
    /// Adds a timing point at the outline's place nearest to @p to and returns its number; NoPoint
    /// when there is no room for another.
    int addPoint(const QGeoCoordinate &to);
    /// Adds a timing point in the middle of the longest sector.
    int addPoint();
    /// Removes a timing point; the line cannot be removed.
    void removePoint(int point);
    /// Metres, kept between SmallestGate and LargestGate.
    void setGateSize(double metres);
    /// Moves the line to the outline's place nearest to @p start, in one step, and takes @p splits
    /// as the ends of the sectors before it; without any, the timing points stay.
    void takeGates(const QGeoCoordinate &start, const QList<QGeoCoordinate> &splits);
    /// Takes another way around as the outline; line and timing points move to where they are
    /// nearest to it.
    void setOutline(const QList<QGeoCoordinate> &outline);
    /// Changes a corner; the edit joins those before.
    void editCorner(const CornerEdit &edit);
    /// Takes back all changes of corners.
    void forgetCornerEdits();

Q_SIGNALS:
    /// The draft is another, by a change, undo or redo.
    void changed();

private:
    class Step;
    struct State
    {
        MapDraft draft;
        CornerEdits corners;
        std::shared_ptr<const TrackRing> path;
        /// Metres along the path.
        double start = 0.0;
        QList<double> points;
    };

    void apply(State state, const QString &text, int kind);
    void setState(const State &state);
    void moveAlong(int point, double along);
    int sortPoints(State &state, int follow) const;
    [[nodiscard]] double wayTo(const State &state, double along) const;
    [[nodiscard]] double along(int point) const;

    State m_state;
    QUndoStack m_history;
    int m_gesture = 0;
    /// The timing point that goes with the line during this gesture.
    int m_attached = NoPoint;
};

} // namespace zuno
