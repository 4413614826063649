// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/curvelines.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace zuno {

namespace {

constexpr std::size_t BlockSize = 8;

// Up to so many samples of a column are drawn as they are.
constexpr std::size_t FewSamples = 4;

// The time that Qt takes to fill a polygon grows with the square of its corners.
constexpr qsizetype BandPart = 8;

// Samples that fall into one column of pixels: from first to the one before end.
struct Column
{
    std::size_t first = 0;
    std::size_t end = 0;
};

// The first sample after @p first at the pixel @p right or beyond; looked for near by first.
std::size_t firstAt(std::span<const double> places, std::size_t first, const PixelScale &scale,
                    double right)
{
    const auto isLeft = [&](double place) { return scale.pixelOf(place) < right; };
    std::size_t step = 1;
    while (first + step < places.size() && isLeft(places[first + step]))
        step *= 2;
    const auto begin = places.begin() + static_cast<std::ptrdiff_t>(first + (step / 2));
    const auto end
        = places.begin() + static_cast<std::ptrdiff_t>(std::min(first + step, places.size()));
    return static_cast<std::size_t>(std::partition_point(begin, end, isLeft) - places.begin());
}

void forColumns(std::span<const double> places, const PixelScale &scale,
                const std::function<void(const Column &)> &visit)
{
    const auto indexOf
        = [&](auto found) { return static_cast<std::size_t>(found - places.begin()); };
    const std::size_t inside
        = indexOf(std::lower_bound(places.begin(), places.end(), scale.range.from));
    const std::size_t beyond
        = indexOf(std::upper_bound(places.begin(), places.end(), scale.range.to));
    const std::size_t end = std::min(beyond + 1, places.size());
    for (std::size_t i = inside > 0 ? inside - 1 : 0; i < end;) {
        const double right = std::floor(scale.pixelOf(places[i])) + 1;
        const std::size_t next = firstAt(places, i, scale, right);
        const Column column {i, std::clamp(next, i + 1, end)};
        visit(column);
        i = column.end;
    }
}

// Collects points into pieces; each value that is none ends one.
class Pieces
{
public:
    void add(const QPointF &point)
    {
        if (std::isfinite(point.y()))
            m_piece.append(point);
        else
            finish();
    }
    void finish()
    {
        if (m_piece.size() > 1)
            m_all.push_back(std::exchange(m_piece, {}));
        m_piece.clear();
    }
    [[nodiscard]] std::vector<QPolygonF> take()
    {
        finish();
        return std::move(m_all);
    }

private:
    QPolygonF m_piece;
    std::vector<QPolygonF> m_all;
};

// A part of what lies between two lines.
QPolygonF between(const QPolygonF &top, const QPolygonF &bottom, qsizetype first, qsizetype last)
{
    QPolygonF part = top.mid(first, last - first + 1);
    for (qsizetype i = last; i >= first; --i)
        part.append(bottom[i]);
    return part;
}

} // namespace

Extremes::Extremes(std::span<const double> values) : m_values(values)
{
    std::vector<Pair> level;
    for (std::size_t i = 0; i < values.size(); i += BlockSize)
        level.push_back(of(i, std::min(i + BlockSize, values.size())));
    while (level.size() > 1) {
        m_levels.push_back(level);
        std::vector<Pair> above((level.size() + BlockSize - 1) / BlockSize);
        for (std::size_t i = 0; i < level.size(); ++i)
            above[i / BlockSize] = joined(above[i / BlockSize], level[i]);
        level = std::move(above);
    }
}

Extremes::Pair Extremes::joined(Pair a, Pair b) const
{
    if (a.low == None || (b.low != None && m_values[b.low] < m_values[a.low]))
        a.low = b.low;
    if (a.high == None || (b.high != None && m_values[b.high] > m_values[a.high]))
        a.high = b.high;
    return a;
}

Extremes::Pair Extremes::of(std::size_t first, std::size_t end) const
{
    Pair found;
    for (std::size_t i = first; i < end;) {
        std::size_t size = 1;
        std::size_t level = 0;
        // The largest block that begins here and does not end too late.
        while (level < m_levels.size() && i % (size * BlockSize) == 0
               && i + (size * BlockSize) <= end) {
            size *= BlockSize;
            ++level;
        }
        if (level > 0)
            found = joined(found, m_levels[level - 1][i / size]);
        else if (std::isfinite(m_values[i]))
            found = joined(found, {static_cast<std::uint32_t>(i), static_cast<std::uint32_t>(i)});
        i += size;
    }
    return found;
}

QList<QLineF> strokes(const QPolygonF &line, std::span<const double> dashes)
{
    QList<QLineF> pieces;
    pieces.reserve(line.size());
    std::size_t dash = 0;
    double left = dashes.empty() ? 0.0 : dashes[0];
    for (qsizetype i = 1; i < line.size(); ++i) {
        const QLineF whole(line[i - 1], line[i]);
        if (dashes.empty()) {
            pieces.append(whole);
            continue;
        }
        const double length = whole.length();
        for (double done = 0.0; done < length;) {
            const double step = std::min(left, length - done);
            if (dash % 2 == 0)
                pieces.append(
                    {whole.pointAt(done / length), whole.pointAt((done + step) / length)});
            done += step;
            left -= step;
            if (left <= 0) {
                dash = (dash + 1) % dashes.size();
                left = dashes[dash];
            }
        }
    }
    return pieces;
}

CurveLines::CurveLines(const Curve &curve)
    : m_curve(&curve)
    , m_values(curve.values)
    , m_lows(curve.lows)
    , m_highs(curve.highs)
{
}

std::vector<QPolygonF> CurveLines::lines(const PixelScale &horizontal,
                                         const PixelScale &vertical) const
{
    const Curve &curve = *m_curve;
    Pieces pieces;
    if (curve.values.size() != curve.places.size())
        return {};
    const auto add = [&](std::size_t i) {
        pieces.add({horizontal.pixelOf(curve.places[i]), vertical.pixelOf(curve.values[i])});
    };
    forColumns(curve.places, horizontal, [&](const Column &column) {
        if (column.end - column.first <= FewSamples) {
            for (std::size_t i = column.first; i < column.end; ++i)
                add(i);
            return;
        }
        const Extremes::Pair extremes = m_values.of(column.first, column.end);
        add(column.first);
        if (extremes.low != Extremes::None) {
            add(std::min(extremes.low, extremes.high));
            add(std::max(extremes.low, extremes.high));
        }
        add(column.end - 1);
    });
    return pieces.take();
}

std::vector<QPolygonF> CurveLines::bands(const PixelScale &horizontal,
                                         const PixelScale &vertical) const
{
    const Curve &curve = *m_curve;
    Pieces tops;
    Pieces bottoms;
    if (curve.lows.size() != curve.places.size() || curve.highs.size() != curve.places.size())
        return {};
    const auto add = [&](std::size_t place, std::size_t low, std::size_t high) {
        const double x = horizontal.pixelOf(curve.places[place]);
        const QPointF top(x, vertical.pixelOf(curve.highs[high]));
        const QPointF bottom(x, vertical.pixelOf(curve.lows[low]));
        // Both or none, so that the pieces of both begin and end together.
        const bool isThere = std::isfinite(top.y()) && std::isfinite(bottom.y());
        tops.add(isThere ? top : QPointF(x, qQNaN()));
        bottoms.add(isThere ? bottom : QPointF(x, qQNaN()));
    };
    forColumns(curve.places, horizontal, [&](const Column &column) {
        const Extremes::Pair lows = m_lows.of(column.first, column.end);
        const Extremes::Pair highs = m_highs.of(column.first, column.end);
        const bool areFew = column.end - column.first <= FewSamples;
        if (areFew || lows.low == Extremes::None || highs.high == Extremes::None) {
            for (std::size_t i = column.first; i < std::min(column.end, column.first + FewSamples);
                 ++i)
                add(i, i, i);
            return;
        }
        add(column.first, lows.low, highs.high);
        add(column.end - 1, lows.low, highs.high);
    });
    const std::vector<QPolygonF> above = tops.take();
    const std::vector<QPolygonF> below = bottoms.take();
    std::vector<QPolygonF> polygons;
    for (std::size_t i = 0; i < above.size(); ++i) {
        for (qsizetype first = 0; first + 1 < above[i].size(); first += BandPart) {
            const qsizetype last = std::min(first + BandPart, above[i].size() - 1);
            polygons.push_back(between(above[i], below[i], first, last));
        }
    }
    return polygons;
}

std::optional<AxisRange> CurveLines::extremesIn(const AxisRange &stretch) const
{
    const std::vector<double> &places = m_curve->places;
    const auto indexOf
        = [&](auto found) { return static_cast<std::size_t>(found - places.begin()); };
    const std::size_t first = indexOf(std::lower_bound(places.begin(), places.end(), stretch.from));
    const std::size_t end = indexOf(std::upper_bound(places.begin(), places.end(), stretch.to));
    std::optional<AxisRange> found;
    const auto add = [&found](double value) {
        if (std::isfinite(value))
            found = found ? found->united({value, value}) : AxisRange {value, value};
    };
    for (const auto &[extremes, values] :
         {std::pair {&m_values, &m_curve->values}, std::pair {&m_lows, &m_curve->lows},
          std::pair {&m_highs, &m_curve->highs}}) {
        if (values->empty() || first >= end)
            continue;
        const Extremes::Pair pair = extremes->of(first, end);
        if (pair.low == Extremes::None)
            continue;
        add((*values)[pair.low]);
        add((*values)[pair.high]);
    }
    // Where the edges cut the line between two samples.
    add(m_curve->valueAt(stretch.from));
    add(m_curve->valueAt(stretch.to));
    return found;
}

} // namespace zuno
