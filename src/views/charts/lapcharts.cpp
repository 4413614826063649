// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/lapcharts.h>

#include "ui_lapcharts.h"

#include <algorithm>
#include <cmath>

#include <QMenu>
#include <QResizeEvent>
#include <QScrollBar>
#include <QSignalBlocker>

#include <base/settings.h>
#include <maps/payload/lappayload.h>
#include <session/session.h>
#include <theme/shownunits.h>
#include <theme/themes.h>
#include <views/charts/axisstrip.h>
#include <views/charts/charthead.h>
#include <views/charts/chartroom.h>
#include <views/charts/cornerstrip.h>
#include <views/charts/lapchart.h>
#include <views/charts/measureline.h>
#include <views/laps/lapselection.h>

namespace zuno {

namespace {

constexpr std::array<Setting, ChannelCount> ChannelSettings {
    Setting::ChartSpeed, Setting::ChartAngle, Setting::ChartAccel, Setting::ChartFrontSusp,
    Setting::ChartRearSusp};

// From this height on the strip of corners has two lines.
constexpr int TallPane = 420;

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
    createCharts();
    createChannelMenu();
    readChoices();
    connectParts();
    connectButtons();
    showSelection();
    showContent();
}

// The charts do not stay behind without what they show.
LapCharts::~LapCharts()
{
    for (const Row &row : m_rows) {
        delete row.head;
        delete row.chart;
    }
    delete m_strip;
    delete m_axis;
    delete m_measure;
}

void LapCharts::createCharts()
{
    m_strip = new CornerStrip(m_state, this);
    m_measure = new MeasureLine(m_state, this);
    m_axis = new AxisStrip(m_state, this);
    m_ui->chartsLayout->insertWidget(0, m_strip);
    m_ui->chartsLayout->insertWidget(1, m_measure);
    m_ui->chartsLayout->addWidget(m_axis);
    const std::array boxes {m_ui->cb_speed, m_ui->cb_angleLandR, m_ui->cb_accel,
                            m_ui->cb_frontSuspension, m_ui->cb_rearSuspension};
    // Above the others, so that it is in sight however low the pane is.
    createRow(GapRow);
    for (std::size_t i = 0; i < ChannelCount; ++i) {
        m_rows[i].box = boxes[i];
        createRow(i);
    }
    m_ui->layout_chartLaps->setSpacing(0);
    // Folded charts leave the room to the axis.
    m_ui->layout_chartLaps->addStretch(0);
}

void LapCharts::createRow(std::size_t number)
{
    Row &row = m_rows[number];
    row.head = new ChartHead(number, m_state, this);
    row.chart = new LapChart(m_state, this);
    m_ui->layout_chartLaps->addWidget(row.head);
    m_ui->layout_chartLaps->addWidget(row.chart, chartWeight(number));
    connect(row.head, &ChartHead::foldAsked, this, [this, number] {
        m_rows[number].folding = !m_rows[number].chart->isHidden();
        showCharts();
    });
    connect(&m_state, &ChartState::visibleChanged, row.chart, &LapChart::showVisible);
    connect(&m_state, &ChartState::zonesChanged, row.chart, &LapChart::showVisible);
    connect(&m_state, &ChartState::shownZoneChanged, row.chart, &LapChart::showVisible);
    for (const auto signal : {&ChartState::selectedChanged, &ChartState::measureChanged}) {
        connect(&m_state, signal, row.chart, [chart = row.chart] { chart->viewport()->update(); });
    }
}

// Where the boxes have no room their entries do the same.
void LapCharts::createChannelMenu()
{
    auto *menu = new QMenu(this);
    for (std::size_t i = 0; i < ChannelCount; ++i) {
        QCheckBox *box = m_rows[i].box;
        QAction *entry = menu->addAction(box->text());
        entry->setCheckable(true);
        connect(entry, &QAction::triggered, box, &QCheckBox::setChecked);
        connect(menu, &QMenu::aboutToShow, entry, [entry, box] {
            entry->setChecked(box->isChecked());
            entry->setEnabled(box->isEnabled());
        });
    }
    m_ui->tb_channels->setMenu(menu);
}

void LapCharts::connectParts()
{
    for (std::size_t i = 0; i < ChannelCount; ++i)
        connect(m_rows[i].box, &QCheckBox::toggled, this, &LapCharts::updateVisibility);
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
    connect(&m_state, &ChartState::visibleChanged, m_axis, [this] {
        m_axis->update();
        m_axis->showCursor();
        showButtons();
    });
    for (const auto signal : {&ChartState::shownZoneChanged, &ChartState::zonesChanged})
        connect(&m_state, signal, this, &LapCharts::showButtons);
    connect(&m_state, &ChartState::measureChanged, this, [this] {
        showButtons();
        foldCharts();
    });
    connect(&Themes::instance(), &Themes::changed, this, &LapCharts::layOut);
    connect(&ShownUnits::instance(), &ShownUnits::changed, this, &LapCharts::showContent);
}

void LapCharts::connectButtons()
{
    connect(m_ui->tb_measure, &QToolButton::clicked, this,
            [this](bool checked) { m_state.setMeasuring(checked); });
    connect(m_ui->tb_wholeLap, &QToolButton::clicked, &m_state, &ChartState::showWhole);
    connect(m_ui->tb_previousCorner, &QToolButton::clicked, this,
            [this] { m_state.showNextZone(-1); });
    connect(m_ui->tb_nextCorner, &QToolButton::clicked, this, [this] { m_state.showNextZone(1); });
}

void LapCharts::readChoices()
{
    for (std::size_t i = 0; i < ChannelCount; ++i)
        m_rows[i].box->setChecked(m_settings.isOn(ChannelSettings[i]));
    m_ui->cb_comparePositions2->setChecked(true);
    m_ui->cb_compareTime->setChecked(false);
}

void LapCharts::storeChoices() const
{
    QList<std::pair<Setting, QVariant>> values;
    for (std::size_t i = 0; i < ChannelCount; ++i)
        values.append({ChannelSettings[i], m_rows[i].box->isChecked()});
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
    const Session *session = m_selection.session();
    const QList<SessionLap> others = m_selection.others();
    if (const SessionLap lap = m_selection.current())
        m_state.showLaps(lap, m_selection.compared(), {others.begin(), others.end()});
    else if (session != nullptr && session->laps().empty() && session->sampleCount() > 0)
        m_state.showRide(*session);
    else
        m_state.showLap({});
}

bool LapCharts::isShown(std::size_t channel) const
{
    const QCheckBox *box = m_rows[channel].box;
    return box->isEnabled() && box->isChecked();
}

void LapCharts::showContent()
{
    setVisible(m_state.first() != nullptr);
    setAxis(m_state.axis());
    showAvailability();
    arrangeHead();
    showCharts();
    showButtons();
    m_axis->update();
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
        m_rows[i].box->setEnabled(isThere);
        m_rows[i].box->setToolTip(isThere ? QString() : channel.missingText());
    }
}

void LapCharts::updateVisibility()
{
    storeChoices();
    showCharts();
}

void LapCharts::showCharts()
{
    foldCharts();
    LapChart *first = nullptr;
    // The gap stands above the others.
    for (std::size_t k = 0; k <= ChannelCount; ++k) {
        const std::size_t i = k == 0 ? GapRow : k - 1;
        const Row &row = m_rows[i];
        if (row.chart->isHidden())
            continue;
        row.chart->setContent(i == GapRow ? gapContent(m_state)
                                          : contentOf(channels()[i], m_state));
        // One stop for the tabulator is enough: the keys do the same in all of them.
        row.chart->setFocusPolicy(first == nullptr ? Qt::StrongFocus : Qt::ClickFocus);
        first = first == nullptr ? row.chart : first;
    }
    for (const Row &row : m_rows)
        row.head->showLaps();
}

void LapCharts::foldCharts()
{
    ChartRoom room;
    room.height = m_ui->chartsArea->viewport()->height();
    room.headHeight = m_rows[GapRow].head->sizeHint().height();
    room.hasGap = m_state.comparison() != nullptr;
    for (std::size_t i = 0; i < ChannelCount; ++i) {
        room.isShown[i] = isShown(i);
        room.choices[i] = m_rows[i].folding;
    }
    const auto folded = foldedCharts(room);
    m_rows[GapRow].head->setVisible(room.hasGap);
    m_rows[GapRow].chart->setVisible(room.hasGap);
    bool areAllFolded = !room.hasGap;
    for (std::size_t i = 0; i < ChannelCount; ++i) {
        const Row &row = m_rows[i];
        const bool wasHidden = row.chart->isHidden();
        row.head->setVisible(room.isShown[i]);
        row.head->setFolded(folded[i], folded[i] || row.folding.has_value());
        row.chart->setVisible(room.isShown[i] && !folded[i]);
        areAllFolded = areAllFolded && row.chart->isHidden();
        if (wasHidden && !row.chart->isHidden())
            row.chart->setContent(contentOf(channels()[i], m_state));
    }
    QVBoxLayout *column = m_ui->layout_chartLaps;
    column->setStretch(column->count() - 1, areAllFolded ? 1 : 0);
}

void LapCharts::showButtons()
{
    const bool hasZones = !m_state.zones().empty();
    m_strip->setVisible(hasZones);
    const bool isRide = m_state.isRide();
    m_ui->lb_ride->setVisible(isRide);
    m_ui->tb_measure->setChecked(m_state.isMeasuring());
    m_ui->tb_wholeLap->setEnabled(m_state.isZoomed());
    m_ui->tb_wholeLap->setText(isRide ? tr("Whole session") : tr("Whole lap"));
    for (QWidget *part : std::initializer_list<QWidget *> {m_ui->tb_previousCorner,
                                                           m_ui->tb_nextCorner, m_ui->lb_corner})
        part->setVisible(hasZones);
    const auto shown = m_state.shownZone();
    const QString label
        = shown && *shown < m_state.zones().size() ? m_state.zones()[*shown].label : QString();
    m_ui->lb_corner->setText(label.isEmpty() ? tr("Corner") : tr("Corner %1").arg(label));
}

void LapCharts::layOut()
{
    for (const Row &row : m_rows) {
        row.chart->layOut();
        row.head->update();
    }
    m_strip->update();
    m_axis->update();
}

// Boxes without data go first, then all become a menu.
void LapCharts::arrangeHead()
{
    const auto widthOf = [](const QWidget *part) { return part->sizeHint().width() + 8; };
    int room = width() - widthOf(m_ui->w_compare) - 16;
    for (const QWidget *part : std::initializer_list<QWidget *> {
             m_ui->tb_measure, m_ui->tb_wholeLap, m_ui->tb_previousCorner, m_ui->lb_corner,
             m_ui->tb_nextCorner})
        room -= widthOf(part);
    int all = 0;
    int withData = 0;
    for (std::size_t i = 0; i < ChannelCount; ++i) {
        all += widthOf(m_rows[i].box);
        withData += m_rows[i].box->isEnabled() ? widthOf(m_rows[i].box) : 0;
    }
    const bool isMenu = withData > room;
    m_ui->tb_channels->setVisible(isMenu);
    for (std::size_t i = 0; i < ChannelCount; ++i)
        m_rows[i].box->setVisible(!isMenu && (all <= room || m_rows[i].box->isEnabled()));
}

// A scroll bar beside the charts would take them from under the strip.
void LapCharts::alignStrips()
{
    const int right = m_ui->chartsArea->width() - m_ui->chartsArea->viewport()->width();
    for (QWidget *strip : std::initializer_list<QWidget *> {m_strip, m_axis})
        strip->setContentsMargins(0, 0, right, 0);
}

void LapCharts::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_strip->setTall(height() >= TallPane);
    arrangeHead();
    // The area has its new height only after the layout.
    QMetaObject::invokeMethod(this, &LapCharts::foldCharts, Qt::QueuedConnection);
}

void LapCharts::showCursor()
{
    if (m_state.first() == nullptr)
        return;
    for (const Row &row : m_rows) {
        if (!row.chart->isHidden())
            row.chart->showCursor();
        if (!row.head->isHidden())
            row.head->showCursor();
    }
    m_axis->showCursor();
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
