// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/lapcharts.h>

#include "ui_lapcharts.h"

#include <algorithm>
#include <cmath>

#include <QSignalBlocker>

#include <base/settings.h>
#include <maps/payload/lappayload.h>
#include <session/session.h>
#include <views/charts/cursorlabels.h>
#include <views/charts/lapchart.h>
#include <views/laps/lapselection.h>

namespace zuno {

namespace {

constexpr std::array<Setting, ChannelCount> ChannelSettings {
    Setting::ChartSpeed, Setting::ChartAngle, Setting::ChartAccel, Setting::ChartFrontSusp,
    Setting::ChartRearSusp};

QString payloadOf(const PointAcquisition &point)
{
    return QString::fromUtf8(pointPayload(point));
}

} // namespace

LapCharts::LapCharts(LapSelection &selection, const Settings &settings, QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::LapCharts>())
    , m_selection(selection)
    , m_settings(settings)
{
    m_ui->setupUi(this);
    m_boxes = {m_ui->cb_speed, m_ui->cb_angleLandR, m_ui->cb_accel, m_ui->cb_frontSuspension,
               m_ui->cb_rearSuspension};
    m_labels = new CursorLabels(m_state, this);
    // Between the boxes and what keeps them at the top.
    m_ui->compareLayout->insertWidget(m_ui->compareLayout->indexOf(m_ui->cb_compareTime) + 1,
                                      m_labels);
    createCharts();
    readChoices();
    connectParts();
    showSelection();
    showContent();
}

// The charts do not stay behind without what they show.
LapCharts::~LapCharts()
{
    delete m_gapChart;
    qDeleteAll(m_charts);
}

void LapCharts::createCharts()
{
    const auto add = [this] {
        auto *chart = new LapChart(m_state, this);
        m_ui->layout_chartLaps->addWidget(chart, 1);
        return chart;
    };
    // Above the others, so that it is in sight however low the pane is.
    m_gapChart = add();
    for (LapChart *&chart : m_charts)
        chart = add();
    m_ui->layout_chartLaps->setSpacing(0);
}

void LapCharts::connectParts()
{
    for (QCheckBox *box : m_boxes)
        connect(box, &QCheckBox::toggled, this, &LapCharts::updateVisibility);
    // A click on the box that is checked would leave none checked.
    connect(m_ui->cb_comparePositions2, &QCheckBox::toggled, this,
            [this](bool checked) { setAxis(checked ? AxisKind::Distance : AxisKind::Time); });
    connect(m_ui->cb_compareTime, &QCheckBox::toggled, this,
            [this](bool checked) { setAxis(checked ? AxisKind::Time : AxisKind::Distance); });
    connect(&m_selection, &LapSelection::shownChanged, this, &LapCharts::showSelection);
    connect(&m_state, &ChartState::contentChanged, this, &LapCharts::showContent);
    connect(&m_state, &ChartState::cursorChanged, this, [this] {
        showCursor();
        sendCursor();
    });
    for (LapChart *chart : m_charts)
        connect(&m_state, &ChartState::visibleChanged, chart, &LapChart::showVisible);
    connect(&m_state, &ChartState::visibleChanged, m_gapChart, &LapChart::showVisible);
    connect(&m_state, &ChartState::selectedChanged, this, [this] {
        for (LapChart *chart : m_charts)
            chart->viewport()->update();
        m_gapChart->viewport()->update();
    });
}

void LapCharts::readChoices()
{
    for (std::size_t i = 0; i < ChannelCount; ++i)
        m_boxes[i]->setChecked(m_settings.isOn(ChannelSettings[i]));
    m_ui->cb_comparePositions2->setChecked(true);
    m_ui->cb_compareTime->setChecked(false);
}

void LapCharts::storeChoices() const
{
    QList<std::pair<Setting, QVariant>> values;
    for (std::size_t i = 0; i < ChannelCount; ++i)
        values.append({ChannelSettings[i], m_boxes[i]->isChecked()});
    m_settings.setValues(values);
}

void LapCharts::setAxis(AxisKind axis)
{
    const QSignalBlocker position(m_ui->cb_comparePositions2);
    const QSignalBlocker time(m_ui->cb_compareTime);
    m_ui->cb_comparePositions2->setChecked(axis == AxisKind::Distance);
    m_ui->cb_compareTime->setChecked(axis == AxisKind::Time);
    m_state.setAxis(axis);
}

void LapCharts::showSelection()
{
    if (const SessionLap reference = m_selection.compared())
        m_state.showLaps(m_selection.current(), reference);
    else
        m_state.showLap(m_selection.current());
}

bool LapCharts::isShown(std::size_t channel) const
{
    const QCheckBox *box = m_boxes[channel];
    return box->isEnabled() && box->isChecked();
}

void LapCharts::showContent()
{
    setVisible(m_state.first() != nullptr);
    showAvailability();
    showCharts();
    m_labels->showLaps();
    showCursor();
    // The map follows the cursor, so a lap that nobody has looked into yet is shown whole.
    if (m_state.cursor() != 0)
        sendCursor();
}

// By what is shown, so that a lap without the channel's values makes no empty chart either.
void LapCharts::showAvailability()
{
    for (std::size_t i = 0; i < ChannelCount; ++i) {
        const Channel &channel = channels()[i];
        const bool isThere
            = (m_state.first() != nullptr && channel.isIn(m_state.first()->points()))
              || (m_state.second() != nullptr && channel.isIn(m_state.second()->points()));
        m_boxes[i]->setEnabled(isThere);
        m_boxes[i]->setToolTip(isThere ? QString() : channel.missingText());
    }
}

void LapCharts::updateVisibility()
{
    storeChoices();
    showCharts();
    m_labels->showLaps();
}

void LapCharts::showCharts()
{
    QList<LapChart *> shown;
    m_gapChart->setVisible(m_state.comparison() != nullptr);
    if (m_state.comparison() != nullptr) {
        m_gapChart->setContent(gapContent(m_state));
        shown.append(m_gapChart);
    }
    for (std::size_t i = 0; i < ChannelCount; ++i) {
        const bool isVisible = isShown(i);
        m_charts[i]->setVisible(isVisible);
        m_labels->setShown(i, isVisible);
        if (!isVisible)
            continue;
        m_charts[i]->setContent(contentOf(channels()[i], m_state));
        shown.append(m_charts[i]);
    }
    for (LapChart *chart : shown) {
        chart->setSectorsNamed(chart == shown.first());
        chart->setAxisLabelled(chart == shown.last());
        // One stop for the tabulator is enough: the keys do the same in all of them.
        chart->setFocusPolicy(chart == shown.first() ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void LapCharts::layOut()
{
    for (LapChart *chart : m_charts)
        chart->layOut();
    m_gapChart->layOut();
}

void LapCharts::showCursor()
{
    if (m_state.first() == nullptr)
        return;
    for (LapChart *chart : m_charts)
        chart->showCursor();
    m_gapChart->showCursor();
    m_labels->showCursor();
}

void LapCharts::sendCursor()
{
    const LapTrack *first = m_state.first();
    if (first == nullptr)
        return;
    if (first->hasFix(m_state.cursor()))
        Q_EMIT cursorMoved(payloadOf(first->points()[m_state.cursor()]));
    const double second = m_state.secondPosition();
    if (std::isfinite(second))
        Q_EMIT secondCursorMoved(payloadOf(m_state.second()->sampleAt(second)));
}

} // namespace zuno
