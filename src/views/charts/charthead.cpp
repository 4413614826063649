// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/charthead.h>

#include <algorithm>
#include <cmath>

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

#include <theme/shownunits.h>
#include <theme/themes.h>
#include <views/charts/chartcontent.h>
#include <views/charts/chartlayout.h>
#include <views/charts/chartstate.h>

namespace zuno {

namespace {

constexpr int Height = 18;
constexpr int Gap = 4;
constexpr double ColumnGap = 10.0;

// No value is longer.
constexpr QLatin1String LongestValue("+000.0 km/h");
constexpr QLatin1String LongestShortValue("-000.0");

// The names under which each channel's values are found.
struct Names
{
    const char *first;
    const char *second;
    const char *difference;
};
constexpr std::array<Names, ChannelCount> LabelNames {{
    {"vitesse", "vitesse2", "diffSpeed"},
    {"angle", "angle2", "diffAngle"},
    {"accel", "accel2", "diffAccel"},
    {"frontSusp", "frontSusp2", "diffFrontSusp"},
    {"rearSusp", "rearSusp2", "diffRearSusp"},
}};

// The application's style sheet would win over a palette.
void setColour(QLabel *label, const QColor &colour)
{
    label->setStyleSheet(
        QStringLiteral("font-weight: bold; background: transparent; color: %1").arg(colour.name()));
}

QFont bold(const QFont &font)
{
    QFont strong = font;
    strong.setBold(true);
    return strong;
}

} // namespace

ValueColumns valueColumns(double width, const ColumnWidths &widths, bool hasSecond,
                          std::size_t others)
{
    ValueColumns columns;
    const double room = width - widths.title - ColumnGap;
    const auto needed = [&](std::size_t shown) {
        const double name = columns.hasNames ? widths.name : 0.0;
        double sum = widths.value + name;
        if (hasSecond)
            sum += (2 * widths.value) + name + (columns.hasWord ? widths.word : 0.0)
                   + (2 * ColumnGap);
        return sum + (static_cast<double>(shown) * (widths.shortValue + name + ColumnGap));
    };
    columns.hasWord = hasSecond;
    if (needed(others) > room)
        columns.hasWord = false;
    if (needed(others) > room)
        columns.hasNames = false;
    while (others > 0 && needed(others) > room)
        --others;
    const double name = columns.hasNames ? widths.name : 0.0;
    double right = width;
    columns.difference = right;
    if (hasSecond) {
        right -= widths.value + (columns.hasWord ? widths.word : 0.0) + ColumnGap;
        columns.second = right;
        right -= widths.value + name + ColumnGap;
    }
    columns.first = right;
    right -= widths.value + name + ColumnGap;
    for (std::size_t i = 0; i < others; ++i) {
        columns.others.push_back(right);
        right -= widths.shortValue + name + ColumnGap;
    }
    return columns;
}

ChartHead::ChartHead(std::size_t channel, const ChartState &state, QWidget *parent)
    : QWidget(parent)
    , m_number(channel)
    , m_state(state)
{
    makeLabels();
    // The labels have it too.
    setFont(smallPrint(font()));
    colourLabels();
    connect(&Themes::instance(), &Themes::changed, this, [this] {
        colourLabels();
        update();
    });
    connect(&ShownUnits::instance(), &ShownUnits::changed, this, [this] {
        showCursor();
        update();
    });
}

void ChartHead::makeLabels()
{
    const auto make = [this](const char *name) {
        auto *label = new QLabel(this);
        label->setObjectName(QString::fromLatin1(name));
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        return label;
    };
    if (isGap()) {
        m_difference = make("diffTime");
        return;
    }
    m_first = make(LabelNames[m_number].first);
    m_second = make(LabelNames[m_number].second);
    m_difference = make(LabelNames[m_number].difference);
}

void ChartHead::colourLabels()
{
    const Theme &now = theme();
    setColour(m_difference, now.colour(Colour::Text));
    if (isGap())
        return;
    setColour(m_first, now.lap(0));
    setColour(m_second, now.lap(1));
}

const Channel &ChartHead::channel() const
{
    return isGap() ? gapChannel() : channels()[m_number];
}

QSize ChartHead::sizeHint() const
{
    return {200, std::max(Height, QFontMetrics(bold(font())).height() + 2)};
}

QSize ChartHead::minimumSizeHint() const
{
    return {100, sizeHint().height()};
}

QString ChartHead::titleText() const
{
    const QString arrow = m_isFolded ? QStringLiteral("\u25b8 ") : QStringLiteral("\u25be ");
    return (m_isFoldable ? arrow : QString()) + channel().titleText();
}

ValueColumns ChartHead::columns() const
{
    const QFontMetrics metrics = fontMetrics();
    const QFontMetrics strong(bold(font()));
    const ChartLayout layout(metrics);
    ColumnWidths widths;
    widths.value = strong.horizontalAdvance(LongestValue);
    widths.shortValue = strong.horizontalAdvance(LongestShortValue);
    widths.name = metrics.horizontalAdvance(tr("Lap %1").arg(99)) + Gap;
    widths.word = metrics.horizontalAdvance(tr("Difference")) + Gap;
    // The longest title, so that the columns are the same everywhere.
    for (std::size_t i = 0; i < 3; ++i)
        widths.title
            = std::max<double>(widths.title, metrics.horizontalAdvance(channels()[i].titleText()));
    widths.title += layout.left;
    return valueColumns(width() - layout.right, widths, m_state.second() != nullptr,
                        m_state.others().size());
}

void ChartHead::place(QLabel *label, double right) const
{
    const int space
        = isGap() ? width() * 2 / 3 : QFontMetrics(bold(font())).horizontalAdvance(LongestValue);
    label->setGeometry(static_cast<int>(right) - space, 0, space, height());
}

void ChartHead::showLaps()
{
    const bool hasSecond = m_state.second() != nullptr;
    const ValueColumns at = columns();
    m_difference->setVisible(hasSecond);
    place(m_difference, at.difference);
    if (!isGap()) {
        m_second->setVisible(hasSecond);
        place(m_first, at.first);
        place(m_second, at.second);
    }
    showCursor();
}

void ChartHead::showCursor()
{
    if (m_state.first() == nullptr)
        return;
    if (isGap() && m_state.comparison() != nullptr)
        m_difference->setText(gapText());
    else if (!isGap())
        showValues();
    if (!m_state.others().empty())
        update();
}

void ChartHead::showValues()
{
    const CursorValues values = valuesAtCursor(channel(), m_state);
    m_first->setText(channel().valueText(values.first));
    if (m_state.second() == nullptr)
        return;
    m_second->setText(channel().valueText(values.second));
    m_difference->setText(channel().valueText(values.first - values.second, true));
}

QString ChartHead::gapText() const
{
    const LapTrack &other = *m_state.second();
    const double gap = m_state.comparison()->gaps()[m_state.cursor()];
    if (!std::isfinite(gap))
        return tr("Lap %1 was not here").arg(other.lapNumber());
    const QString seconds = gapChannel().valueText(std::abs(gap));
    if (gap > 0)
        return tr("Delay on the lap %1").arg(other.lapNumber()) + u" : " + seconds;
    return tr("Ahead on the lap %1 (%2 - %3)")
               .arg(QString::number(other.lapNumber()), other.sessionName(), other.lapTimeText())
           + u" : " + seconds;
}

void ChartHead::setFolded(bool folded, bool foldable)
{
    m_isFolded = folded;
    m_isFoldable = foldable;
    setCursor(foldable ? Qt::PointingHandCursor : Qt::ArrowCursor);
    update();
}

void ChartHead::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const Theme &now = theme();
    painter.fillRect(rect(), now.colour(m_isFolded ? Colour::Card : Colour::Window));
    painter.setPen(now.colour(Colour::SecondText));
    const int arrow = m_isFoldable ? fontMetrics().horizontalAdvance(QStringLiteral("\u25b8 ")) : 0;
    const QRect title = rect().adjusted(ChartLayout(fontMetrics()).left - arrow, 0, 0, 0);
    painter.drawText(title, Qt::AlignLeft | Qt::AlignVCenter, titleText());
    if (m_state.first() == nullptr || isGap())
        return;
    drawNames(painter);
    drawOthers(painter);
}

void ChartHead::drawNames(QPainter &painter) const
{
    const ValueColumns at = columns();
    const QFontMetrics strong(bold(font()));
    const auto draw = [&](const QString &text, double right, double taken) {
        painter.drawText(QRectF(0, 0, right - taken - Gap, height()),
                         Qt::AlignRight | Qt::AlignVCenter, text);
    };
    painter.setPen(theme().colour(Colour::SecondText));
    const double value = strong.horizontalAdvance(LongestValue);
    const double shortValue = strong.horizontalAdvance(LongestShortValue);
    if (at.hasWord)
        draw(tr("Difference"), at.difference, value);
    if (!at.hasNames || m_state.isRide())
        return;
    const auto name = [](const LapTrack &lap) { return tr("Lap %1").arg(lap.lapNumber()); };
    draw(name(*m_state.first()), at.first, value);
    if (m_state.second() != nullptr)
        draw(name(*m_state.second()), at.second, value);
    for (std::size_t i = 0; i < at.others.size(); ++i)
        draw(name(m_state.others()[i].track), at.others[i], shortValue);
}

void ChartHead::drawOthers(QPainter &painter) const
{
    const ValueColumns at = columns();
    painter.setFont(bold(font()));
    for (std::size_t i = 0; i < at.others.size(); ++i) {
        const double value = otherValueAtCursor(channel(), m_state, i);
        painter.setPen(theme().lap(i + 2));
        painter.drawText(QRectF(0, 0, at.others[i], height()), Qt::AlignRight | Qt::AlignVCenter,
                         channel().numberText(value));
    }
}

void ChartHead::resizeEvent(QResizeEvent * /*event*/)
{
    showLaps();
}

void ChartHead::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        showLaps();
}

void ChartHead::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_isFoldable)
        Q_EMIT foldAsked();
}

} // namespace zuno
