// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/cursorlabels.h>

#include "ui_cursorlabels.h"

#include <algorithm>
#include <cmath>

#include <QFontMetrics>
#include <QLocale>

#include <base/laptimes.h>
#include <views/charts/chartcontent.h>
#include <views/charts/chartstate.h>
#include <widgets/plaintexts.h>

namespace zuno {

namespace {

// No value is longer.
constexpr QLatin1String LongestValue("+000.0 km/h");
// The room of the text about the gap, as wide as so many values.
constexpr int GapColumns = 4;
constexpr int GapLines = 3;

// The application's style sheet would win over a palette.
void setColour(QLabel &label, const QColor &colour)
{
    label.setStyleSheet(QStringLiteral("color: %1").arg(colour.name()));
}

void name(QLabel &head, const LapTrack &lap)
{
    head.setText(CursorLabels::tr("Lap %1").arg(lap.lapNumber()));
    // Of two sessions it may be the same number.
    head.setToolTip(
        plainToolTip(QStringLiteral("%1 - %2").arg(lap.sessionName(), lap.lapTimeText())));
}

} // namespace

CursorLabels::CursorLabels(const ChartState &state, QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::CursorLabels>())
    , m_state(state)
{
    m_ui->setupUi(this);
    m_rows = {{
        {m_ui->lb_speed, m_ui->vitesse, m_ui->vitesse2, m_ui->diffSpeed},
        {m_ui->lb_angle, m_ui->angle, m_ui->angle2, m_ui->diffAngle},
        {m_ui->lb_accel, m_ui->accel, m_ui->accel2, m_ui->diffAccel},
        {m_ui->lb_frontSusp, m_ui->frontSusp, m_ui->frontSusp2, m_ui->diffFrontSusp},
        {m_ui->lb_rearSusp, m_ui->rearSusp, m_ui->rearSusp2, m_ui->diffRearSusp},
    }};
    setColour(*m_ui->lb_compareFirst, firstLapColour());
    setColour(*m_ui->lb_compareSecond, secondLapColour());
    m_ui->lb_compareDifference->setText(tr("Difference"));
    for (std::size_t i = 0; i < ChannelCount; ++i)
        setColour(*m_rows[i].name, channels()[i].colour);
    // What a rider compares laps for.
    m_ui->diffTime->setStyleSheet(QStringLiteral("font-weight: bold"));
    fixSizes();
}

CursorLabels::~CursorLabels() = default;

// A label of fixed size shows another text without a new layout of the whole pane.
void CursorLabels::fixSizes()
{
    const QFontMetrics metrics = m_ui->timeFromStart->fontMetrics();
    const QSize value(metrics.horizontalAdvance(LongestValue), metrics.height());
    for (const Row &row : m_rows) {
        for (QLabel *label : {row.first, row.second, row.difference}) {
            label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            label->setFixedSize(value);
        }
    }
    for (QLabel *label :
         {m_ui->lb_compareFirst, m_ui->lb_compareSecond, m_ui->lb_compareDifference})
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_ui->timeFromStart->setFixedSize(2 * value.width(), value.height());
    m_ui->diffTime->setFixedSize(GapColumns * value.width(), GapLines * value.height());
    m_ui->diffTime->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void CursorLabels::setShown(std::size_t channel, bool shown)
{
    const Row &row = m_rows[channel];
    const bool hasSecond = m_state.second() != nullptr;
    row.name->setVisible(shown);
    row.first->setVisible(shown);
    row.second->setVisible(shown && hasSecond);
    row.difference->setVisible(shown && hasSecond);
}

void CursorLabels::showLaps()
{
    const LapTrack *second = m_state.second();
    m_ui->lb_compareSecond->setVisible(second != nullptr);
    m_ui->lb_compareDifference->setVisible(second != nullptr);
    m_ui->diffTime->setVisible(second != nullptr);
    if (const LapTrack *first = m_state.first())
        name(*m_ui->lb_compareFirst, *first);
    if (second != nullptr)
        name(*m_ui->lb_compareSecond, *second);
    showCursor();
}

void CursorLabels::showCursor()
{
    const LapTrack *lap = m_state.first();
    if (lap == nullptr)
        return;
    const std::size_t cursor = m_state.cursor();
    const double seconds = lap->places(AxisKind::Time)[cursor];
    const double metres = lap->places(AxisKind::Distance)[cursor];
    m_ui->timeFromStart->setText(
        tr("%1   %2 m", "time and distance since the start of the lap")
            .arg(timeText(std::llround(seconds * 1000)), QLocale().toString(metres, 'f', 0)));
    for (std::size_t i = 0; i < ChannelCount; ++i)
        showRow(i);
    if (m_state.comparison() != nullptr)
        m_ui->diffTime->setText(gapText());
}

void CursorLabels::showRow(std::size_t channel)
{
    const Row &row = m_rows[channel];
    if (row.first->isHidden())
        return;
    const Channel &shown = channels()[channel];
    const CursorValues values = valuesAtCursor(shown, m_state);
    row.first->setText(shown.valueText(values.first));
    if (m_state.second() == nullptr)
        return;
    row.second->setText(shown.valueText(values.second));
    row.difference->setText(shown.valueText(values.first - values.second, true));
}

QString CursorLabels::gapText() const
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

} // namespace zuno
