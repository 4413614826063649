// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/cornerstrip.h>

#include <algorithm>
#include <cmath>

#include <QHelpEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <base/signedtext.h>
#include <theme/themes.h>
#include <views/charts/chartcolours.h>
#include <views/charts/chartstate.h>
#include <widgets/plaintexts.h>

namespace zuno {

namespace {

constexpr int TallHeight = 34;
constexpr int LowHeight = 22;
constexpr double Inside = 4.0;

// A loss of so many seconds has the full colour.
constexpr double FullLoss = 0.4;
constexpr double LeastTint = 0.12;
constexpr double MostTint = 0.6;

QColor groundOf(const TrackZone &zone)
{
    const Theme &now = theme();
    const double loss = zone.loss.value_or(0.0);
    const QColor ground = now.colour(Colour::Raised);
    if (std::abs(loss) < NoiseLoss)
        return blended(now.colour(Colour::Pane), ground, 0.5);
    const double part = std::clamp(std::abs(loss) / FullLoss, LeastTint / MostTint, 1.0) * MostTint;
    return blended(now.colour(Colour::Pane), now.colour(loss > 0 ? Colour::Loss : Colour::Gain),
                   part);
}

} // namespace

QString lossText(double loss)
{
    return signedText(loss, 2);
}

CellTexts cellTexts(const TrackZone &zone, double width, bool hasTwoLines,
                    const QFontMetrics &metrics)
{
    const double room = width - Inside;
    const auto fits = [&](const QString &text) { return metrics.horizontalAdvance(text) <= room; };
    const QString loss = zone.loss ? lossText(*zone.loss) : QString();
    const bool isNumber = !zone.label.isEmpty() && zone.label.front().isDigit();
    const QString longName = isNumber ? u'T' + zone.label : zone.label;
    const QString elided = metrics.elidedText(zone.label, Qt::ElideRight, static_cast<int>(room));
    if (!zone.hasCorner)
        return {QString(), fits(loss) ? loss : QString()};
    if (hasTwoLines && fits(longName) && fits(loss))
        return {longName, loss};
    if (!hasTwoLines && !loss.isEmpty()) {
        if (fits(longName + u' ' + loss))
            return {longName, loss};
        if (fits(zone.label + u' ' + loss))
            return {zone.label, loss};
    }
    return {loss.isEmpty() && fits(longName) ? longName : elided, QString()};
}

CornerStrip::CornerStrip(ChartState &state, QWidget *parent) : QWidget(parent), m_state(state)
{
    setFont(smallPrint(font()));
    setObjectName(QStringLiteral("cornerStrip"));
    setAccessibleName(tr("Corners of the lap"));
    setCursor(Qt::PointingHandCursor);
    connect(&state, &ChartState::zonesChanged, this, qOverload<>(&QWidget::update));
    connect(&state, &ChartState::visibleChanged, this, qOverload<>(&QWidget::update));
    connect(&state, &ChartState::contentChanged, this, qOverload<>(&QWidget::update));
    connect(&state, &ChartState::shownZoneChanged, this, qOverload<>(&QWidget::update));
}

void CornerStrip::setTall(bool tall)
{
    m_isTall = tall;
    updateGeometry();
    update();
}

QSize CornerStrip::sizeHint() const
{
    const int lines = m_isTall ? 2 : 1;
    return {200, std::max(m_isTall ? TallHeight : LowHeight, (lines * fontMetrics().height()) + 6)};
}

QSize CornerStrip::minimumSizeHint() const
{
    return {100, sizeHint().height()};
}

QRectF CornerStrip::cell(std::size_t zone) const
{
    const PixelScale scale = ChartLayout(fontMetrics()).scale(m_state, width());
    const TrackZone &shown = m_state.zones()[zone];
    const double from = scale.range.clamped(m_state.placeOf(shown.from));
    const double to = scale.range.clamped(m_state.placeOf(shown.to));
    return {scale.pixelOf(from), 1.0, scale.pixelOf(to) - scale.pixelOf(from), height() - 3.0};
}

void CornerStrip::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), theme().colour(Colour::Window));
    if (m_state.first() == nullptr)
        return;
    // What has an edge of its own comes last, over its neighbours.
    for (const bool marked : {false, true}) {
        for (std::size_t i = 0; i < m_state.zones().size(); ++i) {
            const bool isMarked = m_state.zones()[i].rank > 0 || m_state.shownZone() == i;
            if (isMarked == marked)
                drawCell(painter, i);
        }
    }
}

void CornerStrip::drawCell(QPainter &painter, std::size_t zone) const
{
    const QRectF box = cell(zone);
    if (box.width() < 1)
        return;
    const Theme &now = theme();
    const TrackZone &shown = m_state.zones()[zone];
    const bool isMarked = shown.rank > 0 || m_state.shownZone() == zone;
    painter.setBrush(groundOf(shown));
    painter.setPen(QPen(now.colour(isMarked ? Colour::Text : Colour::Edge), isMarked ? 2 : 1));
    painter.drawRect(box.adjusted(0.5, 0.5, -0.5, -0.5));
    const CellTexts texts = cellTexts(shown, box.width(), m_isTall, fontMetrics());
    painter.setPen(now.colour(Colour::Text));
    QFont bold = font();
    bold.setBold(true);
    if (texts.name.isEmpty() || texts.loss.isEmpty()) {
        painter.setFont(texts.loss.isEmpty() ? bold : font());
        painter.drawText(box, Qt::AlignCenter, texts.name + texts.loss);
    } else if (m_isTall) {
        const QRectF half(box.left(), box.top() + 1, box.width(), (box.height() / 2) - 1);
        painter.setFont(bold);
        painter.drawText(half, Qt::AlignCenter, texts.name);
        painter.setFont(font());
        painter.drawText(half.translated(0, half.height()), Qt::AlignCenter, texts.loss);
    } else {
        painter.setFont(font());
        painter.drawText(box, Qt::AlignCenter, texts.name + u' ' + texts.loss);
    }
}

int CornerStrip::zoneAt(const QPointF &position) const
{
    for (std::size_t i = 0; m_state.first() != nullptr && i < m_state.zones().size(); ++i) {
        const QRectF box = cell(i);
        if (position.x() >= box.left() && position.x() < box.right())
            return static_cast<int>(i);
    }
    return -1;
}

void CornerStrip::mouseReleaseEvent(QMouseEvent *event)
{
    const int zone = zoneAt(event->position());
    if (event->button() == Qt::LeftButton && zone >= 0)
        m_state.showZone(static_cast<std::size_t>(zone));
}

QString CornerStrip::tipOf(const TrackZone &zone) const
{
    const QString name = zone.hasCorner ? tr("Corner %1").arg(zone.label) : tr("Straight");
    const QString seconds = QLocale().toString(zone.to - zone.from, 'f', 2);
    if (!zone.loss)
        return tr("%1: %2 s", "a corner and its time").arg(name, seconds);
    return tr("%1: %2 s, %3 s", "a corner, its time, the difference to the other lap")
        .arg(name, seconds, lossText(*zone.loss));
}

bool CornerStrip::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const int zone = zoneAt(help->pos());
        QToolTip::showText(
            help->globalPos(),
            zone >= 0 ? plainToolTip(tipOf(m_state.zones()[static_cast<std::size_t>(zone)]))
                      : QString(),
            this);
        return true;
    }
    return QWidget::event(event);
}

} // namespace zuno
