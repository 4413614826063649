// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/units.h>

#include <algorithm>
#include <cmath>

namespace zuno {

namespace {

// Metres from the line to the first boundary that are no part of their own.
constexpr double NoLinePart = 15.0;

// How much faster than on both sides one must be for a boundary between units.
constexpr double UnitRise = 1.15;

double lowest(const Stations &speed, double from, double to)
{
    double least = std::min(speed.at(from), speed.at(to));
    for (double station = std::ceil(from / speed.step()); station * speed.step() < to; ++station)
        least = std::min(least, speed.at(station * speed.step()));
    return least;
}

// How much faster one is at a boundary than at the slowest place of either side.
double riseBetween(const TrackPart &before, const TrackPart &after, const Stations &speed)
{
    const double slowest
        = std::max(lowest(speed, before.from, before.to), lowest(speed, after.from, after.to));
    return speed.at(after.from) / slowest;
}

} // namespace

TrackParts segmentsOf(const Corners &corners, double length)
{
    TrackParts parts;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const double from = std::max(corners[i].boundary, 0.0);
        if (i > 0)
            parts.back().to = from;
        else if (from > NoLinePart)
            parts.push_back({0.0, from, 0, 0});
        parts.push_back({i > 0 || from > NoLinePart ? from : 0.0, length, i, 1});
    }
    return parts;
}

TrackParts unitsOf(const TrackParts &segments, const Stations &softSpeed)
{
    TrackParts units = segments;
    while (units.size() > 1) {
        std::size_t weakest = 0;
        double least = UnitRise;
        for (std::size_t i = 1; i < units.size(); ++i) {
            // Nothing is joined with the piece before the first corner, nor over the line.
            if (units[i - 1].isLine())
                continue;
            const double rise = riseBetween(units[i - 1], units[i], softSpeed);
            if (rise < least) {
                least = rise;
                weakest = i;
            }
        }
        if (weakest == 0)
            break;
        units[weakest - 1].to = units[weakest].to;
        units[weakest - 1].cornerCount += units[weakest].cornerCount;
        units.erase(units.begin() + static_cast<std::ptrdiff_t>(weakest));
    }
    return units;
}

QString labelOf(const TrackPart &part, const Corners &corners)
{
    if (part.isLine())
        return QStringLiteral("line");
    QString first = corners[part.firstCorner].label();
    if (part.cornerCount == 1)
        return first;
    return first + u'-' + corners[part.firstCorner + part.cornerCount - 1].label();
}

} // namespace zuno
