// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>

#include <QObject>
#include <QPointer>

#include <views/charts/chartstate.h>
#include <views/charts/cursorlabels.h>

class QBoxLayout;
class QCheckBox;

namespace zuno {

class LapChart;
class LapSelection;
class Settings;

/// The charts pane: makes a chart for each channel and connects state, charts, value labels and
/// boxes with each other and with the laps that are chosen.
class LapCharts : public QObject
{
    Q_OBJECT

public:
    struct Widgets
    {
        /// Hidden while there is no lap.
        QWidget *pane = nullptr;
        QBoxLayout *charts = nullptr;
        /// In the order of channels().
        std::array<QCheckBox *, ChannelCount> channels {};
        QCheckBox *byPosition = nullptr;
        QCheckBox *byTime = nullptr;
        CursorLabels::Widgets labels;
    };

    /// What is given must outlive the charts.
    LapCharts(const Widgets &widgets, LapSelection &selection, const Settings &settings,
              QObject *parent = nullptr);
    ~LapCharts() override;

    /// What the rider looks at; table and map may lead it as well.
    [[nodiscard]] ChartState &state() { return m_state; }

public Q_SLOTS:
    /// Shows the charts whose boxes are checked, and stores the choice.
    void updateVisibility();
    /// Lays the charts out again, as after a move of a splitter.
    void layOut();

Q_SIGNALS:
    /// Where the first lap's rider is, as the map reads it.
    void cursorMoved(const QString &pointPayload);
    /// Where the second lap's rider is then.
    void secondCursorMoved(const QString &pointPayload);

private:
    void createCharts();
    void connectParts();
    void readChoices();
    void storeChoices() const;
    void setAxis(AxisKind axis);
    void showCurrentLap();
    void showContent();
    void showAvailability();
    void showCharts();
    void showCursor();
    void sendCursor();
    [[nodiscard]] bool isShown(std::size_t channel) const;

    ChartState m_state;
    Widgets m_widgets;
    LapSelection &m_selection;
    const Settings &m_settings;
    CursorLabels m_labels;
    // Of the pane, which may go first.
    std::array<QPointer<LapChart>, ChannelCount> m_charts {};
    QPointer<LapChart> m_gapChart;
};

} // namespace zuno
