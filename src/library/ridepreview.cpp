// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/ridepreview.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QPainter>
#include <QPainterPath>

#include <theme/shownunits.h>

namespace zuno {

namespace {

constexpr double Margin = 8; // pixels
constexpr int LeastHeight = 9; // lines

struct Range
{
    double least = 1e300;
    double most = -1e300;

    void add(double value)
    {
        least = std::min(least, value);
        most = std::max(most, value);
    }
    [[nodiscard]] double size() const { return most - least; }
};

bool isKnown(const RidePreview::Point &point)
{
    return point.latitude == point.latitude;
}

} // namespace

RidePreview::RidePreview(QWidget *parent) : QWidget(parent)
{
    setMinimumHeight(LeastHeight * fontMetrics().lineSpacing());
}

void RidePreview::setPoints(std::vector<Point> points)
{
    m_points = std::move(points);
    update();
}

void RidePreview::paintEvent([[maybe_unused]] QPaintEvent *event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF all = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const double half = all.width() / 2 - Margin / 2;
    const QRectF left(all.topLeft(), QSizeF(half, all.height()));
    const QRectF right = left.translated(half + Margin, 0);
    for (const QRectF &frame : {left, right}) {
        painter.fillRect(frame, palette().base());
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(frame);
    }
    if (m_points.empty()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(left, Qt::AlignCenter, tr("Path"));
        painter.drawText(right, Qt::AlignCenter, tr("Speed"));
        return;
    }
    drawPath(painter, left.adjusted(Margin, Margin, -Margin, -Margin));
    drawSpeed(painter, right.adjusted(Margin, Margin, -Margin, -Margin));
}

// North is up, and a metre as long to the east as to the north.
void RidePreview::drawPath(QPainter &painter, const QRectF &area) const
{
    Range north;
    Range east;
    for (const Point &point : m_points) {
        if (!isKnown(point))
            continue;
        north.add(point.latitude);
        east.add(point.longitude);
    }
    const double shrink = std::cos((north.least + north.most) / 2 * std::numbers::pi / 180);
    const double degrees = std::max({north.size(), east.size() * shrink, 1e-6});
    const double scale = std::min(area.width(), area.height()) / degrees;
    QPainterPath path;
    bool isOn = false;
    for (const Point &point : m_points) {
        const QPointF place
            = area.center()
              + QPointF((point.longitude - (east.least + east.most) / 2) * shrink * scale,
                        ((north.least + north.most) / 2 - point.latitude) * scale);
        if (isKnown(point))
            isOn ? path.lineTo(place) : path.moveTo(place);
        isOn = isKnown(point);
    }
    painter.setPen(QPen(palette().color(QPalette::Text), 1.5));
    painter.drawPath(path);
}

void RidePreview::drawSpeed(QPainter &painter, const QRectF &area) const
{
    Range speed;
    speed.add(0);
    for (const Point &point : m_points)
        speed.add(point.speed);
    const double first = m_points.front().time;
    const double seconds = std::max(m_points.back().time - first, 1e-3);
    const double text = painter.fontMetrics().lineSpacing();
    const QRectF plot = area.adjusted(0, text, 0, 0);
    QPainterPath path;
    for (const Point &point : m_points) {
        const QPointF place(plot.left() + (point.time - first) / seconds * plot.width(),
                            plot.bottom()
                                - point.speed / std::max(speed.most, 1e-3) * plot.height());
        path.elementCount() == 0 ? path.moveTo(place) : path.lineTo(place);
    }
    painter.setPen(QPen(palette().color(QPalette::Text), 1));
    painter.drawPath(path);
    painter.drawText(area, Qt::AlignTop | Qt::AlignLeft,
                     tr("up to %1").arg(units().speedText(speed.most)));
}

} // namespace zuno
