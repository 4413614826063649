// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <demo/democircuit.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zuno::demo {

namespace {

constexpr double Pi = std::numbers::pi;
constexpr quint64 GoldenStep = 0x9E3779B97F4A7C15;

[[nodiscard]] quint64 scramble(quint64 z)
{
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EB;
    return z ^ (z >> 31);
}

/// 0 .. 1 from the upper 53 bits, which a double holds without rounding.
[[nodiscard]] double unit(quint64 bits)
{
    return static_cast<double>(bits >> 11) * 0x1p-53;
}

[[nodiscard]] Point between(const Point &from, const Point &to, double part)
{
    return {from.east + (to.east - from.east) * part, from.north + (to.north - from.north) * part};
}

[[nodiscard]] double distance(const Point &from, const Point &to)
{
    return std::hypot(to.east - from.east, to.north - from.north);
}

[[nodiscard]] Point place(const Corner &corner)
{
    return {corner.east, corner.north};
}

/// The arc that joins the straight from \a before with the one to \a after, a point each metre.
void appendArc(QList<Point> &outline, const Point &before, const Corner &corner, const Point &after)
{
    const double in = std::atan2(corner.north - before.north, corner.east - before.east);
    const double out = std::atan2(after.north - corner.north, after.east - corner.east);
    const double turn = std::remainder(out - in, 2 * Pi);
    const double tangent = corner.radius * std::tan(std::abs(turn) / 2);
    const double side = turn > 0 ? 1 : -1;
    const Point begin {corner.east - tangent * std::cos(in), corner.north - tangent * std::sin(in)};
    const Point centre {begin.east - side * corner.radius * std::sin(in),
                        begin.north + side * corner.radius * std::cos(in)};
    const int steps = std::max(1, static_cast<int>(std::lround(corner.radius * std::abs(turn))));
    for (int i = 0; i <= steps; ++i) {
        const double heading = in + turn * i / steps;
        outline.append({centre.east + side * corner.radius * std::sin(heading),
                        centre.north - side * corner.radius * std::cos(heading)});
    }
}

} // namespace

double Random::uniform(double low, double high)
{
    m_state += GoldenStep;
    return low + (high - low) * unit(scramble(m_state));
}

double Random::bell()
{
    double sum = 0;
    for (int i = 0; i < 4; ++i)
        sum += uniform(-1, 1);
    return sum * 0.8660254;
}

double Wander::at(double metres) const
{
    const double place = metres / m_knot;
    const double knot = std::floor(place);
    const auto value = [this](double k) {
        const auto steps = static_cast<quint64>(static_cast<qint64>(k));
        return 2 * unit(scramble(m_seed + GoldenStep * steps)) - 1;
    };
    return std::lerp(value(knot), value(knot + 1), ramp(place - knot));
}

double ramp(double x)
{
    const double t = std::clamp(x, 0.0, 1.0);
    return t * t * t * (t * (t * 6 - 15) + 10);
}

Position toPosition(const Position &origin, const Point &point)
{
    constexpr double metresPerDegree = 6371007.2 * Pi / 180;
    const auto rounded = [](double degrees) { return std::round(degrees * 1e7) / 1e7; };
    const double shrink = std::cos(origin.latitude * Pi / 180);
    return {rounded(origin.latitude + point.north / metresPerDegree),
            rounded(origin.longitude + point.east / (metresPerDegree * shrink))};
}

Path Path::closed(const QList<Corner> &corners, double lineFraction)
{
    const Point line = between(place(corners.last()), place(corners.first()), lineFraction);
    QList<Point> outline {line};
    for (qsizetype i = 0; i < corners.size(); ++i) {
        const Point before = i == 0 ? line : place(corners[i - 1]);
        const Point after = i + 1 == corners.size() ? line : place(corners[i + 1]);
        appendArc(outline, before, corners[i], after);
    }
    outline.append(line);
    return {outline, true};
}

Path Path::open(const QList<Corner> &corners)
{
    QList<Point> outline {place(corners.first())};
    for (qsizetype i = 1; i + 1 < corners.size(); ++i)
        appendArc(outline, place(corners[i - 1]), corners[i], place(corners[i + 1]));
    outline.append(place(corners.last()));
    return {outline, false};
}

Path::Path(const QList<Point> &outline, bool closed) : m_closed(closed)
{
    resample(outline);
    // Three passes of a running mean make a soft bell: the arc's curvature then comes and goes over
    // some 40 m, as on a built road, and the motorcycle does not have to lean at once.
    for (int pass = 0; pass < 3; ++pass) {
        smooth(m_east, 11);
        smooth(m_north, 11);
    }
    QList<Point> rounded;
    for (std::size_t i = 0; i < m_east.size(); ++i)
        rounded.append({m_east[i], m_north[i]});
    if (m_closed)
        rounded.append(rounded.first());
    resample(rounded);
    measureCurvature();
}

/// Steps of equal length, as near to one metre as the whole length allows. The end of a lap is not
/// stored, as it is its start.
void Path::resample(const QList<Point> &outline)
{
    double total = 0;
    for (qsizetype i = 1; i < outline.size(); ++i)
        total += distance(outline[i - 1], outline[i]);
    const auto steps = std::max<std::size_t>(1, static_cast<std::size_t>(std::lround(total)));
    m_step = total / static_cast<double>(steps);
    m_east.clear();
    m_north.clear();
    qsizetype leg = 0;
    double legStart = 0;
    double legLength = distance(outline[0], outline[1]);
    for (std::size_t i = 0; i < steps + (m_closed ? 0 : 1); ++i) {
        const double station = static_cast<double>(i) * m_step;
        while (legStart + legLength < station && leg + 2 < outline.size()) {
            legStart += legLength;
            ++leg;
            legLength = distance(outline[leg], outline[leg + 1]);
        }
        const double part = legLength > 0 ? (station - legStart) / legLength : 0;
        const Point point = between(outline[leg], outline[leg + 1], std::min(part, 1.0));
        m_east.push_back(point.east);
        m_north.push_back(point.north);
    }
}

/// Running mean over \a reach values on either side; near the ends of a road over fewer.
void Path::smooth(std::vector<double> &values, int reach) const
{
    const std::vector<double> before = values;
    const auto count = static_cast<int>(before.size());
    for (int i = 0; i < count; ++i) {
        const int width = m_closed ? reach : std::min({reach, i, count - 1 - i});
        double sum = 0;
        for (int k = i - width; k <= i + width; ++k)
            sum += before[index(k)];
        values[static_cast<std::size_t>(i)] = sum / (2 * width + 1);
    }
}

void Path::measureCurvature()
{
    const auto heading = [this](qsizetype i) {
        return std::atan2(m_north[index(i + 1)] - m_north[index(i)],
                          m_east[index(i + 1)] - m_east[index(i)]);
    };
    m_curvature.clear();
    for (qsizetype i = 0; i < static_cast<qsizetype>(m_east.size()); ++i)
        m_curvature.push_back(std::remainder(heading(i) - heading(i - 1), 2 * Pi) / m_step);
    if (!m_closed) // the last point has no heading
        m_curvature.front() = m_curvature.back() = 0;
    // Equal steps on the polyline cut its vertices unevenly; the mean takes that ripple out.
    smooth(m_curvature, 4);
    smooth(m_curvature, 4);
}

/// The place of value \a i in the lists: round and round on a lap, held at the ends of a road.
std::size_t Path::index(qsizetype i) const
{
    const auto count = static_cast<qsizetype>(m_east.size());
    return static_cast<std::size_t>(m_closed ? ((i % count) + count) % count
                                             : std::clamp<qsizetype>(i, 0, count - 1));
}

double Path::length() const
{
    return m_step * static_cast<double>(m_closed ? m_east.size() : m_east.size() - 1);
}

Point Path::at(double station, double left) const
{
    const double place = m_closed ? station / m_step : std::clamp(station, 0.0, length()) / m_step;
    const auto i = static_cast<qsizetype>(std::floor(place));
    const auto point = [this](qsizetype k) { return Point {m_east[index(k)], m_north[index(k)]}; };
    const Point here = between(point(i), point(i + 1), place - std::floor(place));
    // The normal of a longer piece turns smoothly, so a line beside this one has no steps.
    const Point tail = between(point(i - 3), point(i - 2), place - std::floor(place));
    const Point head = between(point(i + 3), point(i + 4), place - std::floor(place));
    const double chord = distance(tail, head);
    return {here.east - left * (head.north - tail.north) / chord,
            here.north + left * (head.east - tail.east) / chord};
}

double Path::curvature(double station) const
{
    const double place = station / m_step;
    const auto i = static_cast<qsizetype>(std::floor(place));
    return std::lerp(m_curvature[index(i)], m_curvature[index(i + 1)], place - std::floor(place));
}

const QList<Circuit> &circuits()
{
    static const QList<Circuit> all {
        {QStringLiteral("Valmora"),
         QStringLiteral("Spain"),
         {39.62, -2.87},
         {{460, 98, 45},
          {382, -113, 110},
          {697, -200, 150},
          {677, -490, 130},
          {361, -496, 210},
          {208, -692, 55},
          {50, -429, 105},
          {-203, -391, 140},
          {-257, -668, 32},
          {-484, -512, 400},
          {-708, -324, 90},
          {-636, -135, 120}},
         0.45,
         {0.22, 0.43, 0.62, 0.82},
         1},
        {QStringLiteral("Haidemoor"),
         QStringLiteral("Germany"),
         {52.87, 10.12},
         {{383, 268, 130},
          {361, 583, 190},
          {85, 631, 95},
          {199, 908, 45},
          {-97, 987, 190},
          {-289, 742, 170},
          {-178, 490, 75},
          {-391, 386, 220},
          {-599, 526, 95},
          {-833, 405, 160},
          {-829, 101, 85},
          {-502, 121, 60},
          {-481, -128, 190},
          {-678, -288, 34},
          {-509, -356, 75}},
         0.5,
         {0.19, 0.34, 0.5, 0.67, 0.81},
         -1},
        {QStringLiteral("Karoosberg"),
         QStringLiteral("South Africa"),
         {-31.24, 22.91},
         {{376, -137, 30},
          {210, -300, 95},
          {357, -481, 27},
          {123, -598, 130},
          {-28, -341, 75},
          {-245, -411, 190},
          {-481, -240, 55},
          {-309, -90, 60},
          {-492, 51, 32},
          {-413, 150, 48}},
         0.47,
         {0.3, 0.53, 0.78},
         1},
    };
    return all;
}

Path hillRoad(double metres)
{
    Random random(1847);
    QList<Corner> corners(1);
    double leg = 200;
    double bearing = 0.6;
    for (double ridden = 0; ridden < metres; ridden += leg) {
        const Corner last = corners.last();
        corners.append({last.east + leg * std::cos(bearing), last.north + leg * std::sin(bearing)});
        // Headings within a right angle of the main direction: the road never meets itself.
        const double nextBearing = 0.6 + random.uniform(-1.2, 1.2);
        const double nextLeg = random.uniform(110, 420);
        const double turn = std::abs(nextBearing - bearing);
        const double room = 0.45 * std::min(leg, nextLeg);
        corners.last().radius = std::min(300.0, room / std::tan(std::max(turn, 0.05) / 2));
        bearing = nextBearing;
        leg = nextLeg;
    }
    return Path::open(corners);
}

Position hillRoadOrigin()
{
    return {40.21, -1.93};
}

} // namespace zuno::demo
