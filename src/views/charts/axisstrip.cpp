// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/axisstrip.h>

#include <algorithm>
#include <cmath>

#include <QLabel>
#include <QLocale>
#include <QPainter>

#include <base/laptimes.h>
#include <theme/shownunits.h>
#include <theme/themes.h>
#include <views/charts/chartlayout.h>
#include <views/charts/chartstate.h>

namespace zuno {

namespace {

constexpr int Height = 20;
constexpr int TagMargin = 4;

// From so many seconds on the axis has minutes.
constexpr double MinutesFrom = 300.0;

} // namespace

AxisStrip::AxisStrip(const ChartState &state, QWidget *parent)
    : QWidget(parent)
    , m_state(state)
    , m_cursor(new QLabel(this))
{
    setFont(smallPrint(font()));
    m_cursor->setObjectName(QStringLiteral("timeFromStart"));
    m_cursor->setTextFormat(Qt::PlainText);
    m_cursor->setAlignment(Qt::AlignCenter);
    m_cursor->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(&Themes::instance(), &Themes::changed, this, &AxisStrip::colourCursor);
    colourCursor();
}

void AxisStrip::colourCursor()
{
    m_cursor->setStyleSheet(
        QStringLiteral("font-weight: bold; color: %1; background: %2")
            .arg(theme().colour(Colour::Pane).name(), theme().colour(Colour::Cursor).name()));
}

QSize AxisStrip::sizeHint() const
{
    return {200, std::max(Height, fontMetrics().height() + TagMargin)};
}

QSize AxisStrip::minimumSizeHint() const
{
    return {100, sizeHint().height()};
}

void AxisStrip::showCursor()
{
    const LapTrack *lap = m_state.first();
    m_cursor->setVisible(lap != nullptr);
    if (lap == nullptr)
        return;
    const std::size_t cursor = m_state.cursor();
    const double seconds = lap->places(AxisKind::Time)[cursor];
    const double metres = lap->places(AxisKind::Distance)[cursor];
    m_cursor->setText(timeText(std::llround(seconds * 1000)) + u"   "
                      + units().distanceText(metres));
    const int space = fontMetrics().horizontalAdvance(m_cursor->text()) * 6 / 5 + (2 * TagMargin);
    const ChartLayout layout(fontMetrics());
    const auto middle
        = static_cast<int>(layout.scale(m_state, width()).pixelOf(m_state.cursorPlace()));
    const int left = std::clamp(middle - (space / 2), 0, std::max(0, width() - space));
    m_cursor->setGeometry(left, 1, space, height() - 2);
}

void AxisStrip::resizeEvent(QResizeEvent * /*event*/)
{
    showCursor();
}

QString AxisStrip::numberText(double place, double step) const
{
    if (m_state.axis() == AxisKind::Time && m_state.whole().to >= MinutesFrom) {
        const auto seconds = std::llround(place);
        return QStringLiteral("%1:%2")
            .arg(seconds / 60, 2, 10, QLatin1Char('0'))
            .arg(seconds % 60, 2, 10, QLatin1Char('0'));
    }
    if (m_state.axis() == AxisKind::Distance)
        return units().distanceText(place, decimalsOfStep(step));
    return tr("%1 s", "seconds").arg(QLocale().toString(place, 'f', decimalsOfStep(step)));
}

void AxisStrip::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const Theme &now = theme();
    painter.fillRect(rect(), now.colour(Colour::Window));
    if (m_state.first() == nullptr || !(m_state.visible().span() > 0))
        return;
    const ChartLayout layout(fontMetrics());
    const PixelScale scale = layout.scale(m_state, width());
    const double step = layout.step(m_state, width());
    const std::vector<SectionTag> tags = sectionTags();
    painter.setPen(now.colour(Colour::Text));
    for (const double place : layout.ticks(m_state, width())) {
        const QString text = numberText(place, step);
        const int space = fontMetrics().horizontalAdvance(text);
        const double left
            = std::min(scale.pixelOf(place) - (space / 2.0), static_cast<double>(width() - space));
        const QRectF box(left, 0, space, height());
        const QRectF wide = box.adjusted(-TagMargin, 0, TagMargin, 0);
        const bool isTaken = std::ranges::any_of(
            tags, [&wide](const SectionTag &tag) { return tag.box.intersects(wide); });
        if (!isTaken)
            painter.drawText(box, Qt::AlignCenter, text);
    }
    for (const SectionTag &tag : tags) {
        painter.fillRect(tag.box, now.colour(Colour::Raised));
        painter.setPen(now.colour(Colour::SecondText));
        painter.drawText(tag.box, Qt::AlignCenter, tag.text);
    }
}

// The ends of the sections; a number that would touch one is left out.
std::vector<AxisStrip::SectionTag> AxisStrip::sectionTags() const
{
    std::vector<SectionTag> tags;
    const PixelScale scale = ChartLayout(fontMetrics()).scale(m_state, width());
    const auto &sectors = m_state.first()->sectors();
    for (std::size_t i = 0; i + 1 < sectors.size(); ++i) {
        const double place = m_state.placeOf(sectors[i].time.to);
        if (!scale.range.contains(place))
            continue;
        const QString text = QStringLiteral("P%1").arg(sectors[i].sector + 1);
        const int space = fontMetrics().horizontalAdvance(text) + (2 * TagMargin);
        tags.push_back(
            {QRectF(scale.pixelOf(place) - (space / 2.0), 2, space, height() - 4), text});
    }
    return tags;
}

} // namespace zuno
