// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/lapchart.h>

#include <algorithm>
#include <cmath>

#include <QLocale>
#include <QPaintEvent>
#include <QPainter>

#include <views/charts/chartstate.h>

namespace zuno {

namespace {

// Pixels.
constexpr double LineWidth = 1.5;
constexpr double DotRadius = 3.5;
constexpr int StripMargin = 6;
constexpr int RightMargin = 14;
constexpr int Gap = 4;
constexpr int LeastHeight = 64;
constexpr QSize UsualSize(600, 120);

// Above the highest and below the lowest value, so that no line runs along the edge.
constexpr double ValueMargin = 0.06;

// Between two numbers of an axis, in heights of a line of text.
constexpr double VerticalSpacing = 1.3;
constexpr double HorizontalSpacing = 5.0;

constexpr QColor GridColour(0x33, 0x41, 0x4c);
constexpr QColor ZeroColour(0x64, 0x76, 0x85);
constexpr QColor SectorColour(0xa0, 0xb0, 0xc0);
constexpr QColor CursorColour(0xff, 0xff, 0xff);
constexpr QColor FocusColour(0xff, 0xb4, 0x54);
constexpr QColor SelectionColour(0x14, 0x64, 0xa1, 0x70);
constexpr int BandAlpha = 0x38;

// Piece by piece: the outline of the whole line takes ten times as long, and more the longer it is.
void drawLine(QPainter &painter, const QPolygonF &line)
{
    QList<QLineF> pieces;
    pieces.reserve(line.size());
    for (qsizetype i = 1; i < line.size(); ++i)
        pieces.append({line[i - 1], line[i]});
    painter.drawLines(pieces);
}

} // namespace

LapChart::LapChart(ChartState &state, QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_state(state)
    , m_input(state)
{
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.9);
    setFont(small);
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
    showVisible();
}

void LapChart::setAxisLabelled(bool labelled)
{
    m_isAxisLabelled = labelled;
    layOut();
}

void LapChart::setSectorsNamed(bool named)
{
    m_areSectorsNamed = named;
    layOut();
}

void LapChart::showVisible()
{
    setTicks();
    m_picture = {};
    viewport()->update();
}

void LapChart::setTicks()
{
    const double line = fontMetrics().height();
    const auto intervals = [line](double pixels, double spacing) {
        return std::max(1, static_cast<int>(pixels / (line * spacing)));
    };
    m_values = m_content.range.widened(ValueMargin);
    m_valueStep = roundStep(m_values.span(), intervals(m_plot.height(), VerticalSpacing));
    const AxisRange visible = m_state.visible();
    if (visible.span() > 0)
        m_step = roundStep(visible.span(), intervals(m_plot.width(), HorizontalSpacing));
}

void LapChart::layOut()
{
    const int line = fontMetrics().height();
    const int left = fontMetrics().horizontalAdvance(QStringLiteral("-0.000")) + (2 * Gap);
    const int top = line + Gap;
    const int bottom = m_isAxisLabelled ? line + (2 * Gap) : Gap;
    const QRectF plot = QRectF(viewport()->rect()).adjusted(left, top, -RightMargin, -bottom);
    m_plot = plot.isValid() ? plot : QRectF(left, top, 1, 1);
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

void LapChart::drawPicture()
{
    m_picture = QPixmap(viewport()->size() * devicePixelRatioF());
    m_picture.setDevicePixelRatio(devicePixelRatioF());
    m_picture.fill(palette().color(QPalette::Base));
    QPainter painter(&m_picture);
    painter.setFont(font());
    drawGrid(painter);
    drawCurves(painter);
    drawNumbers(painter);
    drawSectors(painter);
    drawTitle(painter);
}

void LapChart::drawGrid(QPainter &painter) const
{
    const QRectF &plot = m_plot;
    const PixelScale vertical = verticalScale();
    for (const double value : ticksIn(vertical.range, m_valueStep)) {
        const double y = std::round(vertical.pixelOf(value));
        painter.setPen(value == 0 ? ZeroColour : GridColour);
        painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
    }
    const PixelScale horizontal = horizontalScale();
    painter.setPen(GridColour);
    for (const double place : ticksIn(horizontal.range, m_step)) {
        const double x = std::round(horizontal.pixelOf(place));
        painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
    }
}

void LapChart::drawCurves(QPainter &painter) const
{
    const PixelScale horizontal = horizontalScale();
    const PixelScale vertical = verticalScale();
    if (!(horizontal.range.span() > 0))
        return;
    painter.save();
    painter.setClipRect(m_plot);
    painter.setPen(Qt::NoPen);
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        QColor colour = m_content.curves[i].colour;
        colour.setAlpha(BandAlpha);
        painter.setBrush(colour);
        for (const QPolygonF &band : m_lines[i].bands(horizontal, vertical))
            painter.drawPolygon(band);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        painter.setPen(QPen(m_content.curves[i].colour, LineWidth));
        for (const QPolygonF &line : m_lines[i].lines(horizontal, vertical))
            drawLine(painter, line);
    }
    painter.restore();
}

void LapChart::drawNumbers(QPainter &painter) const
{
    const QRectF &plot = m_plot;
    const double line = fontMetrics().height();
    const QLocale locale;
    painter.setPen(palette().color(QPalette::Text));
    const PixelScale vertical = verticalScale();
    for (const double value : ticksIn(vertical.range, m_valueStep)) {
        const QRectF box(0, vertical.pixelOf(value) - (line / 2), plot.left() - Gap, line);
        painter.drawText(box, Qt::AlignRight | Qt::AlignVCenter,
                         locale.toString(value, 'f', decimalsOfStep(m_valueStep)));
    }
    if (!m_isAxisLabelled)
        return;
    const PixelScale horizontal = horizontalScale();
    for (const double place : ticksIn(horizontal.range, m_step)) {
        const QString number = locale.toString(place, 'f', decimalsOfStep(m_step));
        const QString text = m_state.axis() == AxisKind::Distance
                                 ? tr("%1 m", "metres").arg(number)
                                 : tr("%1 s", "seconds").arg(number);
        const double width = fontMetrics().horizontalAdvance(text);
        const double left
            = std::min(horizontal.pixelOf(place) - (width / 2), viewport()->width() - width);
        painter.drawText(QRectF(left, plot.bottom() + Gap, width, line), Qt::AlignCenter, text);
    }
}

QRectF LapChart::titleBox() const
{
    const QRectF &plot = m_plot;
    return {plot.left(), 0.0,
            static_cast<double>(fontMetrics().horizontalAdvance(m_content.title)) + Gap,
            plot.top()};
}

void LapChart::drawTitle(QPainter &painter) const
{
    painter.setPen(m_content.colour);
    painter.drawText(titleBox(), Qt::AlignLeft | Qt::AlignVCenter, m_content.title);
}

void LapChart::drawSectors(QPainter &painter) const
{
    const LapTrack *lap = m_state.first();
    if (lap == nullptr)
        return;
    const QRectF &plot = m_plot;
    const PixelScale scale = horizontalScale();
    const auto pixelOf = [&](double seconds) {
        return std::round(scale.pixelOf(lap->converted(seconds, AxisKind::Time, m_state.axis())));
    };
    for (const SectorStretch &stretch : lap->sectors()) {
        const double from = pixelOf(stretch.time.from);
        const double to = pixelOf(stretch.time.to);
        painter.setPen(QPen(SectorColour, 1, Qt::DashLine));
        for (const double x : {from, to}) {
            if (x >= plot.left() && x <= plot.right())
                painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
        }
        if (m_areSectorsNamed) {
            const double left = std::max(from, titleBox().right());
            drawSectorName(painter, stretch.sector,
                           QRectF(left, 0, std::min(to, plot.right()) - left, plot.top()));
        }
    }
}

void LapChart::drawSectorName(QPainter &painter, int sector, const QRectF &room) const
{
    const QString name = tr("Section %1").arg(sector + 1);
    const QString shortName = tr("S%1", "section, short").arg(sector + 1);
    const bool fits = fontMetrics().horizontalAdvance(name) + Gap < room.width();
    if (!fits && fontMetrics().horizontalAdvance(shortName) > room.width())
        return;
    painter.setPen(SectorColour);
    painter.drawText(room, Qt::AlignCenter, fits ? name : shortName);
}

void LapChart::drawOverlay(QPainter &painter) const
{
    const QRectF &plot = m_plot;
    const PixelScale horizontal = horizontalScale();
    if (const auto &selected = m_state.selected()) {
        const double from = horizontal.pixelOf(selected->from);
        const double to = horizontal.pixelOf(selected->to);
        painter.fillRect(QRectF(from, plot.top(), to - from, plot.height()), SelectionColour);
    }
    if (hasFocus()) {
        painter.setPen(FocusColour);
        painter.drawRect(QRectF(viewport()->rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }
    const double place = m_state.cursorPlace();
    if (m_state.first() == nullptr || !m_state.visible().contains(place))
        return;
    const double x = std::round(horizontal.pixelOf(place));
    painter.setPen(CursorColour);
    painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
    painter.setRenderHint(QPainter::Antialiasing);
    const PixelScale vertical = verticalScale();
    for (const Curve &curve : m_content.curves) {
        const double value = curve.valueAt(place);
        if (!std::isfinite(value))
            continue;
        painter.setBrush(curve.colour);
        painter.drawEllipse(QPointF(x, vertical.pixelOf(value)), DotRadius, DotRadius);
    }
}

QRect LapChart::strip(double place) const
{
    const auto x = static_cast<int>(std::lround(horizontalScale().pixelOf(place)));
    return {x - StripMargin, 0, 2 * StripMargin + 1, viewport()->height()};
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
