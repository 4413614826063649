// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <memory>

#include <QWidget>

#include <views/charts/channel.h>
#include <views/charts/chartstate.h>

class QCheckBox;

namespace zuno {

class CursorLabels;
class LapChart;
class LapSelection;
class Settings;

namespace Ui {
class LapCharts;
}

/// The charts pane: makes a chart for each channel and connects state, charts, value labels and
/// boxes with each other and with the laps that are chosen. Hidden while there is no lap.
class LapCharts final : public QWidget
{
    Q_OBJECT

public:
    /// What is given must outlive the charts.
    LapCharts(LapSelection &selection, const Settings &settings, QWidget *parent = nullptr);
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
    void showSelection();
    void showContent();
    void showAvailability();
    void showCharts();
    void showCursor();
    void sendCursor();
    [[nodiscard]] bool isShown(std::size_t channel) const;

    std::unique_ptr<Ui::LapCharts> m_ui;
    ChartState m_state;
    LapSelection &m_selection;
    const Settings &m_settings;
    /// In the order of channels().
    std::array<QCheckBox *, ChannelCount> m_boxes {};
    std::array<LapChart *, ChannelCount> m_charts {};
    LapChart *m_gapChart = nullptr;
    CursorLabels *m_labels = nullptr;
};

} // namespace zuno
