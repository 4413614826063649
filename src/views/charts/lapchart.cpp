// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/lapchart.h>

#include <algorithm>
#include <cmath>

#include <QLocale>
#include <QPaintEvent>
#include <QPainter>

#include <theme/themes.h>
#include <views/charts/chartcolours.h>
#include <views/charts/chartlayout.h>
#include <views/charts/chartstate.h>

namespace zuno {

namespace {

// Pixels.
constexpr double LineWidth = 1.6;
constexpr double FirstWidth = 2.4;
constexpr double DotRadius = 3.5;
constexpr double ActSize = 5.0;
constexpr int StripMargin = 6;
constexpr int Gap = 4;
constexpr int EdgeGap = 2;
constexpr int LeastHeight = 40;
constexpr QSize UsualSize(600, 90);

// Between two numbers of the vertical axis, in heights of a line of text.
constexpr double VerticalSpacing = 1.15;

constexpr int BandAlpha = 0x38;
constexpr int GroundAlpha = 0x48;

double widthOf(const Curve &curve)
{
    return curve.lap == 0 ? FirstWidth : LineWidth;
}

// A sign at the place where somebody brakes (its tip down) or goes on the gas (up).
QPolygonF actSign(const QPointF &at, bool isBraking)
{
    const double up = isBraking ? -ActSize : ActSize;
    return {{at + QPointF(-ActSize, up), at + QPointF(ActSize, up), at + QPointF(0, -up)}};
}

} // namespace

LapChart::LapChart(ChartState &state, QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_state(state)
    , m_input(state)
{
    setFont(smallPrint(font()));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setMouseTracking(true);
    viewport()->setCursor(Qt::CrossCursor);
}

QSize LapChart::sizeHint() const
{
    return UsualSize;
}

QSize LapChart::minimumSizeHint() const
{
    return {UsualSize.width() / 3, LeastHeight};
}

void LapChart::setContent(ChartContent content)
{
    m_content = std::move(content);
    m_lines.clear();
    for (const Curve &curve : m_content.curves)
        m_lines.emplace_back(curve);
    setAccessibleName(m_content.title);
    showVisible();
}

void LapChart::showVisible()
{
    setTicks();
    m_picture = {};
    viewport()->update();
}

void LapChart::setTicks()
{
    const AxisRange visible = m_state.visible();
    std::optional<AxisRange> seen;
    for (const CurveLines &line : m_lines) {
        if (const auto values = line.extremesIn(visible))
            seen = seen ? seen->united(*values) : *values;
    }
    m_values = fittedRange(m_content, seen);
    const double spacing = fontMetrics().height() * VerticalSpacing;
    m_valueStep = roundStep(m_values.span() * m_content.unit,
                            std::max(1, static_cast<int>(m_plot.height() / spacing)));
}

void LapChart::layOut()
{
    const ChartLayout layout(fontMetrics());
    const QRectF plot
        = QRectF(viewport()->rect()).adjusted(layout.left, EdgeGap, -layout.right, -EdgeGap);
    m_plot = plot.isValid() ? plot : QRectF(layout.left, EdgeGap, 1, 1);
    showVisible();
}

PixelScale LapChart::horizontalScale() const
{
    return {m_state.visible(), m_plot.left(), m_plot.width()};
}

PixelScale LapChart::verticalScale() const
{
    return {m_values, m_plot.bottom(), -m_plot.height()};
}

// In the rider's unit.
std::vector<double> LapChart::valueTicks() const
{
    return ticksIn({m_values.from * m_content.unit, m_values.to * m_content.unit}, m_valueStep);
}

void LapChart::drawPicture()
{
    m_picture = QPixmap(viewport()->size() * devicePixelRatioF());
    m_picture.setDevicePixelRatio(devicePixelRatioF());
    m_picture.fill(theme().colour(Colour::Pane));
    QPainter painter(&m_picture);
    painter.setFont(font());
    drawCorners(painter);
    drawGrid(painter);
    drawCurves(painter);
    drawNumbers(painter);
    drawSectors(painter);
}

void LapChart::drawCorners(QPainter &painter) const
{
    const PixelScale scale = horizontalScale();
    for (const TrackZone &zone : m_state.zones()) {
        const double from = scale.range.clamped(m_state.placeOf(zone.bendFrom));
        const double to = scale.range.clamped(m_state.placeOf(zone.bendTo));
        if (!zone.hasCorner || !(to > from))
            continue;
        const QRectF band(scale.pixelOf(from), m_plot.top(),
                          scale.pixelOf(to) - scale.pixelOf(from), m_plot.height());
        painter.fillRect(band, theme().colour(Colour::CornerBand));
    }
}

void LapChart::drawGrid(QPainter &painter) const
{
    const QRectF &plot = m_plot;
    const PixelScale vertical = verticalScale();
    for (const double value : valueTicks()) {
        const double y = std::round(vertical.pixelOf(value / m_content.unit));
        painter.setPen(theme().colour(value == 0 ? Colour::Zero : Colour::FaintEdge));
        painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
    }
    const PixelScale horizontal = horizontalScale();
    painter.setPen(theme().colour(Colour::FaintEdge));
    if (!(horizontal.range.span() > 0))
        return;
    for (const double place : ChartLayout(fontMetrics()).ticks(m_state, viewport()->width())) {
        const double x = std::round(horizontal.pixelOf(place));
        painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
    }
}

void LapChart::drawCurves(QPainter &painter) const
{
    if (!(m_state.visible().span() > 0))
        return;
    painter.save();
    painter.setClipRect(m_plot);
    if (m_content.isGap)
        drawGap(painter);
    else
        drawLaps(painter);
    if (m_content.hasActs)
        drawActs(painter);
    painter.restore();
}

void LapChart::drawLaps(QPainter &painter) const
{
    const PixelScale horizontal = horizontalScale();
    const PixelScale vertical = verticalScale();
    painter.setPen(Qt::NoPen);
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        QColor colour = theme().lap(m_content.curves[i].lap);
        colour.setAlpha(BandAlpha);
        painter.setBrush(colour);
        for (const QPolygonF &band : m_lines[i].bands(horizontal, vertical))
            painter.drawPolygon(band);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        const Curve &curve = m_content.curves[i];
        painter.setPen({theme().lap(curve.lap), widthOf(curve), Qt::SolidLine, Qt::FlatCap});
        for (const QPolygonF &line : m_lines[i].lines(horizontal, vertical))
            painter.drawLines(strokes(line, lapDash(curve.lap)));
    }
}

// The ground tells who is ahead, the colour of the line who is faster there.
void LapChart::drawGap(QPainter &painter) const
{
    if (m_content.curves.empty())
        return;
    drawMissing(painter);
    drawGapGround(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    const Curve &curve = m_content.curves.front();
    const PixelScale horizontal = horizontalScale();
    const PixelScale vertical = verticalScale();
    const QColor neutral = theme().colour(Colour::Text);
    QPolygonF run;
    QColor colour = neutral;
    const auto draw = [&] {
        painter.setPen(QPen(colour, FirstWidth));
        painter.drawLines(strokes(run, {}));
    };
    const std::size_t first = nearestSample(curve.places, horizontal.range.from);
    const std::size_t last = nearestSample(curve.places, horizontal.range.to);
    for (std::size_t i = first > 0 ? first - 1 : 0; i < std::min(last + 2, curve.places.size());
         ++i) {
        if (!std::isfinite(curve.values[i])) {
            draw();
            run.clear();
            continue;
        }
        run.append({horizontal.pixelOf(curve.places[i]), vertical.pixelOf(curve.values[i])});
        const QColor here = rateColour(m_content.rates[i], neutral);
        if (here == colour)
            continue;
        draw();
        run = {run.last()};
        colour = here;
    }
    draw();
}

void LapChart::drawGapGround(QPainter &painter) const
{
    const PixelScale horizontal = horizontalScale();
    const PixelScale vertical = verticalScale();
    const double zero = vertical.pixelOf(0);
    const auto fill = [&](Colour of, const QRectF &half) {
        QColor colour = theme().colour(of);
        colour.setAlpha(GroundAlpha);
        painter.setBrush(colour);
        painter.setClipRect(half.intersected(m_plot));
        for (const QPolygonF &line : m_lines.front().lines(horizontal, vertical)) {
            for (qsizetype i = 1; i < line.size(); ++i) {
                const QPointF a = line[i - 1];
                const QPointF b = line[i];
                painter.drawConvexPolygon(
                    QPolygonF {{a, b, QPointF(b.x(), zero), QPointF(a.x(), zero)}});
            }
        }
    };
    painter.setPen(Qt::NoPen);
    fill(Colour::Loss, QRectF(QPointF(m_plot.left(), m_plot.top()), QPointF(m_plot.right(), zero)));
    fill(Colour::Gain,
         QRectF(QPointF(m_plot.left(), zero), QPointF(m_plot.right(), m_plot.bottom())));
    painter.setClipRect(m_plot);
    painter.setBrush(Qt::NoBrush);
}

// Where the other lap was not: hatched, so that nobody takes it for a gap of 0.
void LapChart::drawMissing(QPainter &painter) const
{
    const Curve &curve = m_content.curves.front();
    const PixelScale horizontal = horizontalScale();
    const QBrush hatch(theme().colour(Colour::Edge), Qt::BDiagPattern);
    for (std::size_t i = 0; i < curve.places.size();) {
        if (std::isfinite(curve.values[i])) {
            ++i;
            continue;
        }
        const std::size_t begin = i;
        while (i < curve.places.size() && !std::isfinite(curve.values[i]))
            ++i;
        const double from = horizontal.pixelOf(curve.places[begin]);
        const double to = horizontal.pixelOf(curve.places[i - 1]);
        painter.fillRect(QRectF(from, m_plot.top(), to - from, m_plot.height()), hatch);
    }
}

void LapChart::drawNumbers(QPainter &painter) const
{
    const double line = fontMetrics().height();
    const QLocale locale;
    painter.setPen(theme().colour(Colour::SecondText));
    const PixelScale vertical = verticalScale();
    for (const double value : valueTicks()) {
        const double middle = vertical.pixelOf(value / m_content.unit);
        // Numbers at the edges would be cut.
        if (middle < line / 3 || middle > viewport()->height() - (line / 3))
            continue;
        painter.drawText(QRectF(0, middle - (line / 2), m_plot.left() - Gap, line),
                         Qt::AlignRight | Qt::AlignVCenter,
                         locale.toString(value, 'f', decimalsOfStep(m_valueStep)));
    }
}

void LapChart::drawSectors(QPainter &painter) const
{
    const LapTrack *lap = m_state.first();
    if (lap == nullptr)
        return;
    const PixelScale scale = horizontalScale();
    painter.setPen(QPen(theme().colour(Colour::SectorLine), 1, Qt::DashLine));
    for (const SectorStretch &stretch : lap->sectors()) {
        for (const double seconds : {stretch.time.from, stretch.time.to}) {
            const double x = std::round(scale.pixelOf(m_state.placeOf(seconds)));
            if (x >= m_plot.left() && x <= m_plot.right())
                painter.drawLine(QPointF(x, m_plot.top()), QPointF(x, m_plot.bottom()));
        }
    }
}

// Of the zone that is looked at, of both laps.
void LapChart::drawActs(QPainter &painter) const
{
    const auto shown = m_state.shownZone();
    if (!shown || m_content.curves.empty())
        return;
    const auto draw = [&](const Curve &curve, double place, bool isBraking) {
        const double value = curve.valueAt(place);
        if (!std::isfinite(value))
            return;
        painter.setPen(QPen(theme().colour(Colour::Pane), 1));
        painter.setBrush(theme().lap(curve.lap));
        painter.drawPolygon(
            actSign({horizontalScale().pixelOf(place), verticalScale().pixelOf(value)}, isBraking));
    };
    const TrackZone &zone = m_state.zones()[*shown];
    for (const Curve &curve : m_content.curves) {
        if (curve.lap > 1)
            continue;
        const ZoneActs &acts = curve.lap == 0 ? zone.acts : zone.otherActs;
        const auto placeOf = [&](double seconds) {
            return curve.lap == 0 ? m_state.placeOf(seconds) : m_state.placeOfSecond(seconds);
        };
        if (acts.brakes)
            draw(curve, placeOf(*acts.brakes), true);
        if (acts.gas)
            draw(curve, placeOf(*acts.gas), false);
    }
}

void LapChart::drawOverlay(QPainter &painter) const
{
    const PixelScale horizontal = horizontalScale();
    if (const auto &selected = m_state.selected()) {
        const double from = horizontal.pixelOf(selected->from);
        const double to = horizontal.pixelOf(selected->to);
        painter.fillRect(QRectF(from, m_plot.top(), to - from, m_plot.height()),
                         theme().colour(Colour::Selection));
    }
    drawMeasured(painter);
    if (hasFocus()) {
        painter.setPen(QPen(theme().colour(Colour::Focus), 2));
        painter.drawRect(QRectF(viewport()->rect()).adjusted(1, 1, -1, -1));
    }
    drawCursor(painter);
}

void LapChart::drawMeasured(QPainter &painter) const
{
    const auto measured = m_state.measured();
    if (!measured)
        return;
    const PixelScale horizontal = horizontalScale();
    const double from = horizontal.pixelOf(measured->from);
    const double to = horizontal.pixelOf(measured->to);
    painter.save();
    painter.setClipRect(m_plot);
    painter.fillRect(QRectF(from, m_plot.top(), to - from, m_plot.height()),
                     theme().colour(Colour::Selection));
    painter.setPen(QPen(theme().colour(Colour::Text), 1, Qt::DashLine));
    for (const double x : {std::round(from), std::round(to)})
        painter.drawLine(QPointF(x, m_plot.top()), QPointF(x, m_plot.bottom()));
    painter.restore();
}

void LapChart::drawCursor(QPainter &painter) const
{
    const double place = m_state.cursorPlace();
    if (m_state.first() == nullptr || !m_state.visible().contains(place))
        return;
    const double x = std::round(horizontalScale().pixelOf(place));
    painter.setPen(theme().colour(Colour::Cursor));
    painter.drawLine(QPointF(x, m_plot.top()), QPointF(x, m_plot.bottom()));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme().colour(Colour::Pane));
    const PixelScale vertical = verticalScale();
    for (const Curve &curve : m_content.curves) {
        const double value = curve.valueAt(place);
        if (!std::isfinite(value))
            continue;
        painter.setBrush(m_content.isGap ? theme().colour(Colour::Text) : theme().lap(curve.lap));
        painter.drawEllipse(QPointF(x, vertical.pixelOf(value)), DotRadius, DotRadius);
    }
}

QRect LapChart::strip(double place) const
{
    const auto x = static_cast<int>(std::lround(horizontalScale().pixelOf(place)));
    return {x - StripMargin, 0, (2 * StripMargin) + 1, viewport()->height()};
}

void LapChart::showCursor()
{
    viewport()->update(strip(m_drawnCursor));
    m_drawnCursor = m_state.cursorPlace();
    viewport()->update(strip(m_drawnCursor));
}

void LapChart::paintEvent(QPaintEvent *event)
{
    if (m_picture.isNull())
        drawPicture();
    m_drawnCursor = m_state.cursorPlace();
    QPainter painter(viewport());
    const double ratio = m_picture.devicePixelRatio();
    for (const QRect &part : event->region()) {
        painter.drawPixmap(QRectF(part), m_picture,
                           QRectF(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio));
    }
    drawOverlay(painter);
}

void LapChart::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    layOut();
}

void LapChart::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        layOut();
}

bool LapChart::viewportEvent(QEvent *event)
{
    return m_input.handleMouse(*event, horizontalScale())
           || QAbstractScrollArea::viewportEvent(event);
}

void LapChart::keyPressEvent(QKeyEvent *event)
{
    m_input.handleKey(*event);
}

void LapChart::leaveEvent(QEvent *event)
{
    QAbstractScrollArea::leaveEvent(event);
    m_state.endHover();
}

void LapChart::focusInEvent(QFocusEvent * /*event*/)
{
    viewport()->update();
}

void LapChart::focusOutEvent(QFocusEvent * /*event*/)
{
    viewport()->update();
}

} // namespace zuno
