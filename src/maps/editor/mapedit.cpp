// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/editor/mapedit.h>

#include <algorithm>
#include <numeric>

#include <session/laps/lap.h>

namespace zuno {

namespace {

// Metres from the line at which a timing point is the one on the line. Two gates there are one to
// every lap, and in maps from elsewhere the two are some metres apart.
double lineReach(const MapDraft &draft)
{
    return std::max(draft.gateSize, MapEdit::SmallestGate);
}

// What steps of a gesture change; steps of one kind join.
enum Kind { MoveKind = 1, GateKind, SingleStep = -1 };

} // namespace

class MapEdit::Step final : public QUndoCommand
{
public:
    Step(MapEdit &edit, State before, State after, int kind)
        : m_edit(edit)
        , m_before(std::move(before))
        , m_after(std::move(after))
        , m_kind(kind)
        , m_gesture(edit.m_gesture)
    {
    }

    void undo() override { m_edit.setState(m_before); }
    void redo() override { m_edit.setState(m_after); }
    [[nodiscard]] int id() const override { return m_kind; }
    bool mergeWith(const QUndoCommand *other) override
    {
        const auto *next = static_cast<const Step *>(other);
        if (next->m_gesture != m_gesture)
            return false;
        m_after = next->m_after;
        setObsolete(m_after.draft == m_before.draft && m_after.corners == m_before.corners);
        return true;
    }

private:
    MapEdit &m_edit;
    State m_before;
    State m_after;
    int m_kind;
    int m_gesture;
};

MapEdit::MapEdit(MapDraft draft, CornerEdits corners, QObject *parent) : QObject(parent)
{
    m_state.path = std::make_shared<TrackRing>(draft.outline);
    m_state.start = m_state.path->nearest(draft.start).along;
    for (const QGeoCoordinate &place : draft.timingPoints)
        m_state.points.append(m_state.path->nearest(place).along);
    m_state.draft = std::move(draft);
    m_state.corners = std::move(corners);
}

// The history's steps point at this.
MapEdit::~MapEdit()
{
    m_history.clear();
}

double MapEdit::along(int point) const
{
    return point == Start ? m_state.start : m_state.points.value(point);
}

// A point on the line or just after it ends the lap rather than beginning it.
double MapEdit::wayTo(const State &state, double along) const
{
    const double way = state.path->wrapped(along - state.start);
    return way < lineReach(state.draft) ? way + state.path->length() : way;
}

double MapEdit::distance(int point) const
{
    return point == Start ? 0.0 : std::min(wayTo(m_state, along(point)), length());
}

QGeoCoordinate MapEdit::place(int point) const
{
    return point == Start ? draft().start : draft().timingPoints.value(point);
}

bool MapEdit::canAdd() const
{
    return !isFull() && !m_state.path->isEmpty() && draft().start.isValid();
}

bool MapEdit::isFull() const
{
    return pointCount() >= MaximumSectors;
}

void MapEdit::beginGesture()
{
    ++m_gesture;
    m_attached = NoPoint;
    double nearest = lineReach(draft());
    for (int point = 0; point < pointCount(); ++point) {
        const double way = place(point).distanceTo(draft().start);
        if (way < nearest) {
            nearest = way;
            m_attached = point;
        }
    }
}

void MapEdit::apply(State state, const QString &text, int kind)
{
    if (state.draft == m_state.draft && state.corners == m_state.corners)
        return;
    auto step = std::make_unique<Step>(*this, m_state, std::move(state), kind);
    step->setText(text);
    m_history.push(step.release());
}

void MapEdit::setState(const State &state)
{
    m_state = state;
    Q_EMIT changed();
}

int MapEdit::sortPoints(State &state, int follow) const
{
    QList<int> order(state.points.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [this, &state](int a, int b) {
        return wayTo(state, state.points[a]) < wayTo(state, state.points[b]);
    });
    const State before = state;
    for (qsizetype i = 0; i < order.size(); ++i) {
        state.points[i] = before.points[order[i]];
        state.draft.timingPoints[i] = before.draft.timingPoints[order[i]];
    }
    return follow < 0 ? follow : static_cast<int>(order.indexOf(follow));
}

void MapEdit::moveAlong(int point, double along)
{
    if (m_state.path->isEmpty() || point < Start || point >= pointCount())
        return;
    State state = m_state;
    const double target = state.path->wrapped(along);
    const QGeoCoordinate place = state.path->at(target);
    if (point == Start) {
        state.start = target;
        state.draft.start = place;
        state.draft.outline = state.path->from(target);
    }
    const int timingPoint = point == Start ? m_attached : point;
    if (timingPoint >= 0 && timingPoint < state.points.size()) {
        state.points[timingPoint] = target;
        state.draft.timingPoints[timingPoint] = place;
    }
    apply(std::move(state), tr("Move point"), MoveKind);
}

void MapEdit::movePoint(int point, const QGeoCoordinate &to)
{
    if (to.isValid())
        moveAlong(point, m_state.path->nearest(to, along(point)).along);
}

void MapEdit::nudgePoint(int point, double metres)
{
    moveAlong(point, along(point) + metres);
}

int MapEdit::settle(int point)
{
    State state = m_state;
    const int settled = sortPoints(state, point);
    apply(std::move(state), tr("Move point"), MoveKind);
    return settled;
}

int MapEdit::addPoint(const QGeoCoordinate &to)
{
    if (!canAdd() || !to.isValid())
        return NoPoint;
    const RingPlace found = m_state.path->nearest(to);
    State state = m_state;
    state.points.append(found.along);
    state.draft.timingPoints.append(found.place);
    const int added = sortPoints(state, pointCount());
    beginGesture();
    apply(std::move(state), tr("Add timing point"), SingleStep);
    return added;
}

int MapEdit::addPoint()
{
    double begin = 0.0;
    double longest = 0.0;
    double middle = 0.0;
    for (int point = 0; point <= pointCount(); ++point) {
        const double end = point < pointCount() ? distance(point) : length();
        if (end - begin > longest) {
            longest = end - begin;
            middle = (begin + end) / 2.0;
        }
        begin = end;
    }
    return addPoint(m_state.path->at(m_state.start + middle));
}

void MapEdit::removePoint(int point)
{
    if (point < 0 || point >= pointCount())
        return;
    State state = m_state;
    state.points.removeAt(point);
    state.draft.timingPoints.removeAt(point);
    beginGesture();
    apply(std::move(state), tr("Remove timing point"), SingleStep);
}

void MapEdit::setGateSize(double metres)
{
    State state = m_state;
    state.draft.gateSize = std::clamp(metres, SmallestGate, LargestGate);
    apply(std::move(state), tr("Change gate size"), GateKind);
}

void MapEdit::takeGates(const QGeoCoordinate &start, const QList<QGeoCoordinate> &splits)
{
    if (m_state.path->isEmpty() || !start.isValid())
        return;
    beginGesture();
    State state = m_state;
    const RingPlace line = state.path->nearest(start);
    state.start = line.along;
    state.draft.start = line.place;
    state.draft.outline = state.path->from(line.along);
    if (!splits.isEmpty()) {
        state.points.clear();
        state.draft.timingPoints.clear();
        QList<QGeoCoordinate> ends
            = splits.first(std::min<qsizetype>(splits.size(), MaximumSectors - 1));
        ends.append(line.place);
        for (const QGeoCoordinate &end : std::as_const(ends)) {
            const RingPlace found = state.path->nearest(end);
            state.points.append(found.along);
            state.draft.timingPoints.append(found.place);
        }
    } else if (m_attached >= 0) {
        state.points[m_attached] = line.along;
        state.draft.timingPoints[m_attached] = line.place;
    }
    sortPoints(state, NoPoint);
    apply(std::move(state), tr("Take the gates of the file"), SingleStep);
}

void MapEdit::setOutline(const QList<QGeoCoordinate> &outline)
{
    auto path = std::make_shared<TrackRing>(outline);
    if (path->isEmpty())
        return;
    beginGesture();
    State state = m_state;
    state.path = std::move(path);
    RingPlace start = state.path->nearest(draft().start);
    // A map without a line gets one where the lap begins.
    if (!start.place.isValid())
        start.place = state.path->at(0.0);
    state.start = start.along;
    state.draft.start = start.place;
    state.draft.outline = state.path->from(start.along);
    for (qsizetype i = 0; i < state.points.size(); ++i) {
        const RingPlace found
            = i == m_attached ? start : state.path->nearest(state.draft.timingPoints[i]);
        state.points[i] = found.along;
        state.draft.timingPoints[i] = found.place;
    }
    sortPoints(state, NoPoint);
    apply(std::move(state), tr("Change outline"), SingleStep);
}

void MapEdit::editCorner(const CornerEdit &edit)
{
    State state = m_state;
    state.corners.append(edit);
    apply(std::move(state), tr("Change corner"), SingleStep);
}

void MapEdit::forgetCornerEdits()
{
    State state = m_state;
    state.corners.clear();
    apply(std::move(state), tr("Corners as found"), SingleStep);
}

} // namespace zuno
