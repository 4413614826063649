// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <memory>
#include <optional>

#include <QWidget>

#include <views/charts/channel.h>
#include <views/charts/chartstate.h>

class QCheckBox;

namespace zuno {

class AxisStrip;
class ChartHead;
class CornerStrip;
class LapChart;
class LapSelection;
class MeasureLine;
class Settings;

namespace Ui {
class LapCharts;
}

/// The charts pane: makes a chart with its head for each channel and connects state, charts, strip,
/// axis, buttons and boxes with each other and with the laps that are chosen. A session without
/// laps is shown as a whole. Hidden while there is nothing to show.
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

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    /// A channel's parts; the last one is the gap's, which has no box.
    struct Row
    {
        QCheckBox *box = nullptr;
        ChartHead *head = nullptr;
        LapChart *chart = nullptr;
        /// What the rider said about folding it.
        std::optional<bool> folding = {};
    };
    static constexpr std::size_t GapRow = ChannelCount;

    void createCharts();
    void createRow(std::size_t number);
    void createChannelMenu();
    void connectParts();
    void connectButtons();
    void readChoices();
    void storeChoices() const;
    void setAxis(AxisKind axis);
    void showSelection();
    void showContent();
    void showAvailability();
    void showCharts();
    void foldCharts();
    void showButtons();
    void showCursor();
    void arrangeHead();
    void alignStrips();
    void sendCursor();
    [[nodiscard]] bool isShown(std::size_t channel) const;

    std::unique_ptr<Ui::LapCharts> m_ui;
    ChartState m_state;
    LapSelection &m_selection;
    const Settings &m_settings;
    CornerStrip *m_strip = nullptr;
    MeasureLine *m_measure = nullptr;
    AxisStrip *m_axis = nullptr;
    /// In the order of channels(), then the gap.
    std::array<Row, ChannelCount + 1> m_rows {};
};

} // namespace zuno
