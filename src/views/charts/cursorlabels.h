// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <memory>

#include <QWidget>

#include <views/charts/channel.h>

class QLabel;

namespace zuno {

class ChartState;

namespace Ui {
class CursorLabels;
}

/// The values at the cursor, beside the charts: those of the first lap, and in a comparison those
/// of the second and the differences.
class CursorLabels final : public QWidget
{
    Q_OBJECT

public:
    /// @p state must outlive the labels.
    explicit CursorLabels(const ChartState &state, QWidget *parent = nullptr);
    ~CursorLabels() override;

    /// Whether a channel is shown at all.
    void setShown(std::size_t channel, bool shown);
    /// Shows the columns for one lap or for two, and the values.
    void showLaps();
    /// Shows the values at the cursor.
    void showCursor();

private:
    /// A channel's labels.
    struct Row
    {
        QLabel *name = nullptr;
        QLabel *first = nullptr;
        QLabel *second = nullptr;
        QLabel *difference = nullptr;
    };

    void showRow(std::size_t channel);
    void fixSizes();
    [[nodiscard]] QString gapText() const;

    std::unique_ptr<Ui::CursorLabels> m_ui;
    const ChartState &m_state;
    /// In the order of channels().
    std::array<Row, ChannelCount> m_rows;
};

} // namespace zuno
