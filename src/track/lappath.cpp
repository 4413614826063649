// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <track/lappath.h>

#include <algorithm>
#include <cmath>

#include <session/recording/trace.h>

namespace zuno {

namespace {

// Metres. Positions are stored in steps of about half a metre: places nearer than this have no
// direction from one to the other.
constexpr double MinimumStep = 1.0;

// Metres likewise for a rider who took longer (milliseconds) for them: while he stands, the
// receiver's positions wander slowly about.
constexpr double MinimumSlowStep = 5.0;
constexpr double SlowTime = 2000.0;

// Metres before and behind a place over which its heading is taken, for the same reason.
constexpr double HeadingReach = 4.0;

// Metres driven after which a rider who is still no farther away is turning about.
constexpr double MostHeadingWay = 40.0;

// Metres between places from which on, and so far apart, others are put between them.
constexpr double LongStep = 7.0;
constexpr double RefinedStep = 4.0;

// Milliseconds without a position that count as a gap; recordings at one a second have none.
constexpr double GapTime = 1600.0;

bool gotOn(const PathNode &from, const PathNode &to)
{
    const double duration = to.time - from.time;
    const double step = (to.place - from.place).length();
    return duration > 0.0 && step >= (duration > SlowTime ? MinimumSlowStep : MinimumStep);
}

// Metres per millisecond from the node before @p i to it; 0 at the first.
double speedInto(const LapPath &path, std::size_t i)
{
    if (i == 0 || path[i].afterGap || path[i].time <= path[i - 1].time)
        return 0.0;
    return (path[i].place - path[i - 1].place).length() / (path[i].time - path[i - 1].time);
}

void measure(LapPath &path)
{
    for (std::size_t i = 1; i < path.size(); ++i) {
        PathNode &node = path[i];
        const PathNode &before = path[i - 1];
        double step = (node.place - before.place).length();
        const double duration = node.time - before.time;
        // He who slowly starts from a stand has lost no position.
        node.afterGap = duration > GapTime && step > LongStep;
        if (node.afterGap) {
            // The road need not have been straight.
            const double after = i + 1 < path.size() ? speedInto(path, i + 1) : 0.0;
            step = std::max(step, (speedInto(path, i - 1) + after) / 2.0 * duration);
        }
        node.driven = before.driven + step;
    }
}

// The farthest node from @p i in direction @p step that is no farther away than need be.
std::size_t headingEnd(const LapPath &path, std::size_t i, bool ahead)
{
    std::size_t j = i;
    while (ahead ? j + 1 < path.size() : j > 0) {
        const std::size_t next = ahead ? j + 1 : j - 1;
        if (path[ahead ? next : j].afterGap)
            break;
        j = next;
        if ((path[j].place - path[i].place).length() >= HeadingReach
            || std::fabs(path[j].driven - path[i].driven) >= MostHeadingWay)
            break;
    }
    return j;
}

PlaneVector direction(PlaneVector vector)
{
    const double length = vector.length();
    return length > 0.0 ? vector * (1.0 / length) : PlaneVector {};
}

void head(LapPath &path)
{
    for (std::size_t i = 0; i < path.size(); ++i) {
        const PathNode &behind = path[headingEnd(path, i, false)];
        const PathNode &ahead = path[headingEnd(path, i, true)];
        const PlaneVector in = path[i].place - behind.place;
        const PlaneVector out = ahead.place - path[i].place;
        // On a circle each chord is off by half its angle, so the shorter one counts more.
        const double inWeight = out.length() > 0.0 ? out.length() : 1.0;
        const double outWeight = in.length() > 0.0 ? in.length() : 1.0;
        path[i].heading = direction((direction(in) * inWeight) + (direction(out) * outWeight));
    }
}

// Metres per millisecond at a node: that of the shorter neighbouring stretch counts more.
PlaneVector velocity(const LapPath &path, std::size_t i)
{
    const bool hasBefore = i > 0 && !path[i].afterGap;
    const bool hasAfter = i + 1 < path.size() && !path[i + 1].afterGap;
    const double before = hasBefore ? path[i].time - path[i - 1].time : 0.0;
    const double after = hasAfter ? path[i + 1].time - path[i].time : 0.0;
    const PlaneVector in
        = before > 0.0 ? (path[i].place - path[i - 1].place) * (1.0 / before) : PlaneVector {};
    const PlaneVector out
        = after > 0.0 ? (path[i + 1].place - path[i].place) * (1.0 / after) : PlaneVector {};
    if (!(before > 0.0))
        return out;
    if (!(after > 0.0))
        return in;
    return ((in * after) + (out * before)) * (1.0 / (before + after));
}

// The cubic curve from @p a to @p b with these velocities, at the part @p u of the time between.
PlaneVector onCurve(const PathNode &a, PlaneVector velocityA, const PathNode &b,
                    PlaneVector velocityB, double u)
{
    const double duration = b.time - a.time;
    const double u2 = u * u;
    const double u3 = u2 * u;
    return (a.place * (2.0 * u3 - 3.0 * u2 + 1.0)) + (b.place * (3.0 * u2 - 2.0 * u3))
           + (velocityA * ((u3 - 2.0 * u2 + u) * duration)) + (velocityB * ((u3 - u2) * duration));
}

} // namespace

double elapsedTime(std::span<const PointAcquisition> points, std::size_t i)
{
    return static_cast<qint32>(points[i].dataTimeStamp - points.front().dataTimeStamp);
}

LapPath lapPath(std::span<const PointAcquisition> points, const QGeoCoordinate &origin, Walk walk)
{
    const Plane plane(origin);
    const double lastTime = points.empty() ? 0.0 : elapsedTime(points, points.size() - 1);
    LapPath path;
    for (std::size_t k = 0; k < points.size(); ++k) {
        const std::size_t i = walk == Walk::Forwards ? k : points.size() - 1 - k;
        const QGeoCoordinate position = positionOf(points[i]);
        if (!position.isValid())
            continue;
        const double elapsed = elapsedTime(points, i);
        PathNode node;
        node.place = plane.place(position);
        node.time = walk == Walk::Forwards ? elapsed : lastTime - elapsed;
        if (!path.empty() && !gotOn(path.back(), node)) {
            // The end of the path is a place of its own.
            if (k + 1 < points.size() || path.size() < 2 || node.time <= path.back().time)
                continue;
            path.pop_back();
        }
        path.push_back(node);
    }
    measure(path);
    head(path);
    return path;
}

LapPath refined(const LapPath &path)
{
    LapPath fine;
    fine.reserve(path.size());
    for (std::size_t i = 0; i < path.size(); ++i) {
        const double step = i == 0 ? 0.0 : (path[i].place - path[i - 1].place).length();
        if (step > LongStep && !path[i].afterGap) {
            const PathNode &from = path[i - 1];
            const PathNode &to = path[i];
            const int pieces = static_cast<int>(std::ceil(std::min(step / RefinedStep, 100.0)));
            for (int piece = 1; piece < pieces; ++piece) {
                const double u = static_cast<double>(piece) / pieces;
                PathNode node;
                node.place = onCurve(from, velocity(path, i - 1), to, velocity(path, i), u);
                node.time = from.time + (u * (to.time - from.time));
                fine.push_back(node);
            }
        }
        fine.push_back(path[i]);
    }
    measure(fine);
    head(fine);
    return fine;
}

} // namespace zuno
