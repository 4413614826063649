// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/measureline.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>

#include <theme/shownunits.h>
#include <theme/themes.h>
#include <views/charts/channel.h>
#include <views/charts/chartcolours.h>
#include <views/charts/chartlayout.h>
#include <views/charts/chartstate.h>
#include <views/charts/measurement.h>

namespace zuno {

namespace {

QString marked(const QString &text, const QColor &colour)
{
    return QStringLiteral("<b style=\"color:%1\">%2</b>").arg(colour.name(), text);
}

QString metres(double value)
{
    return shownNumber(units().distance(value), 0);
}

// Both laps' values and the difference, in the laps' colours.
QString pair(const QString &name, double first, const std::optional<double> &second,
             const Channel &channel)
{
    QString text = name + u' ' + marked(channel.numberText(first), theme().lap(0));
    if (second) {
        text += u' ' + marked(channel.numberText(*second), theme().lap(1)) + u' '
                + marked(channel.valueText(first - *second, true), theme().colour(Colour::Text));
    }
    return text;
}

} // namespace

QString measurementText(const Measurement &measurement)
{
    const Channel &speed = channels().front();
    const auto part = [&measurement](double MeasuredLap::*value) {
        return measurement.second ? std::optional((*measurement.second).*value) : std::nullopt;
    };
    const auto row = [&](const QString &name, double MeasuredLap::*value, const Channel &channel) {
        return pair(name, measurement.first.*value, part(value), channel);
    };
    const QStringList parts {
        marked(MeasureLine::tr("%1 to %2: %3", "places, and the distance between them")
                   .arg(metres(measurement.metres.from),
                        units().distanceText(measurement.metres.to),
                        units().distanceText(measurement.metres.span())),
               theme().colour(Colour::Text)),
        row(MeasureLine::tr("Time"), &MeasuredLap::seconds, gapChannel()),
        row(MeasureLine::tr("Speed min"), &MeasuredLap::lowest, speed),
        row(MeasureLine::tr("mean"), &MeasuredLap::mean, speed),
        row(MeasureLine::tr("max"), &MeasuredLap::highest, speed),
    };
    return parts.join(QStringLiteral(" &nbsp; "));
}

MeasureLine::MeasureLine(ChartState &state, QWidget *parent)
    : QWidget(parent)
    , m_state(state)
    , m_text(new QLabel(this))
{
    setFont(smallPrint(font()));
    m_text->setObjectName(QStringLiteral("lb_measured"));
    m_text->setTextFormat(Qt::RichText);
    m_text->setStyleSheet(QStringLiteral("background: transparent"));
    // It never makes the window wider.
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto *close = new QToolButton(this);
    close->setObjectName(QStringLiteral("tb_endMeasuring"));
    close->setText(QStringLiteral("\u2715"));
    close->setToolTip(tr("End measuring (Esc)"));
    close->setAutoRaise(true);
    connect(close, &QToolButton::clicked, this, [this] { m_state.setMeasuring(false); });
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(ChartLayout(fontMetrics()).left, 0, ChartLayout(fontMetrics()).right,
                            0);
    row->addWidget(m_text, 1);
    row->addWidget(close);
    connect(&state, &ChartState::measureChanged, this, &MeasureLine::showMeasured);
    connect(&state, &ChartState::contentChanged, this, &MeasureLine::showMeasured);
    showMeasured();
}

void MeasureLine::showMeasured()
{
    setVisible(m_state.isMeasuring());
    if (!m_state.isMeasuring())
        return;
    const auto measurement = measurementOf(m_state);
    m_text->setText(measurement
                        ? measurementText(*measurement)
                        : tr("Click two places in a chart, or draw from one to the other."));
}

void MeasureLine::paintEvent(QPaintEvent * /*event*/)
{
    const Theme &now = theme();
    QColor band = now.colour(Colour::Selection);
    band.setAlpha(255);
    QPainter(this).fillRect(rect(), blended(now.colour(Colour::Window), band, 0.35));
}

} // namespace zuno
