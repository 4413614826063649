// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/lapcharts.h>

#include <algorithm>
#include <cmath>

#include <QBoxLayout>
#include <QCheckBox>
#include <QSignalBlocker>

#include <base/settings.h>
#include <maps/payload/lappayload.h>
#include <session/session.h>
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

LapCharts::LapCharts(const Widgets &widgets, LapSelection &selection, const Settings &settings,
                     QObject *parent)
    : QObject(parent)
    , m_widgets(widgets)
    , m_selection(selection)
    , m_settings(settings)
    , m_labels(m_state, widgets.labels)
{
    createCharts();
    readChoices();
    connectParts();
    showCurrentLap();
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
        auto *chart = new LapChart(m_state, m_widgets.pane);
        m_widgets.charts->addWidget(chart, 1);
        return chart;
    };
    // Above the others, so that it is in sight however low the pane is.
    m_gapChart = add();
    for (QPointer<LapChart> &chart : m_charts)
        chart = add();
    m_widgets.charts->setSpacing(0);
}

void LapCharts::connectParts()
{
    for (QCheckBox *box : m_widgets.channels)
        connect(box, &QCheckBox::toggled, this, &LapCharts::updateVisibility);
    // A click on the box that is checked would leave none checked.
    connect(m_widgets.byPosition, &QCheckBox::toggled, this,
            [this](bool checked) { setAxis(checked ? AxisKind::Distance : AxisKind::Time); });
    connect(m_widgets.byTime, &QCheckBox::toggled, this,
            [this](bool checked) { setAxis(checked ? AxisKind::Time : AxisKind::Distance); });
    connect(&m_selection, &LapSelection::currentLapChanged, this, &LapCharts::showCurrentLap);
    connect(&m_selection, &LapSelection::comparisonRequested, &m_state, &ChartState::showLaps);
    connect(&m_state, &ChartState::contentChanged, this, &LapCharts::showContent);
    connect(&m_state, &ChartState::cursorChanged, this, [this] {
        showCursor();
        sendCursor();
    });
    for (const QPointer<LapChart> &chart : m_charts)
        connect(&m_state, &ChartState::visibleChanged, chart, &LapChart::showVisible);
    connect(&m_state, &ChartState::visibleChanged, m_gapChart, &LapChart::showVisible);
    connect(&m_state, &ChartState::selectedChanged, m_widgets.pane, [this] {
        for (const QPointer<LapChart> &chart : m_charts)
            chart->viewport()->update();
        m_gapChart->viewport()->update();
    });
}

void LapCharts::readChoices()
{
    for (std::size_t i = 0; i < ChannelCount; ++i)
        m_widgets.channels[i]->setChecked(m_settings.isOn(ChannelSettings[i]));
    m_widgets.byPosition->setChecked(true);
    m_widgets.byTime->setChecked(false);
}

void LapCharts::storeChoices() const
{
    QList<std::pair<Setting, QVariant>> values;
    for (std::size_t i = 0; i < ChannelCount; ++i)
        values.append({ChannelSettings[i], m_widgets.channels[i]->isChecked()});
    m_settings.setValues(values);
}

void LapCharts::setAxis(AxisKind axis)
{
    const QSignalBlocker position(m_widgets.byPosition);
    const QSignalBlocker time(m_widgets.byTime);
    m_widgets.byPosition->setChecked(axis == AxisKind::Distance);
    m_widgets.byTime->setChecked(axis == AxisKind::Time);
    m_state.setAxis(axis);
}

void LapCharts::showCurrentLap()
{
    m_state.showLap(m_selection.current());
}

bool LapCharts::isShown(std::size_t channel) const
{
    const QCheckBox *box = m_widgets.channels[channel];
    return box->isEnabled() && box->isChecked();
}

void LapCharts::showContent()
{
    m_widgets.pane->setVisible(m_state.first() != nullptr);
    showAvailability();
    showCharts();
    m_labels.showLaps();
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
        m_widgets.channels[i]->setEnabled(isThere);
        m_widgets.channels[i]->setToolTip(isThere ? QString() : channel.missingText());
    }
}

void LapCharts::updateVisibility()
{
    storeChoices();
    showCharts();
    m_labels.showLaps();
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
        m_labels.setShown(i, isVisible);
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
    for (const QPointer<LapChart> &chart : m_charts)
        chart->layOut();
    m_gapChart->layOut();
}

void LapCharts::showCursor()
{
    if (m_state.first() == nullptr)
        return;
    for (const QPointer<LapChart> &chart : m_charts)
        chart->showCursor();
    m_gapChart->showCursor();
    m_labels.showCursor();
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
