// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>

#include <QObject>

#include <views/charts/channel.h>

class QLabel;

namespace zuno {

class ChartState;

/// The values at the cursor, beside the charts: those of the first lap, and in a comparison those
/// of the second and the differences.
class CursorLabels : public QObject
{
    Q_OBJECT

public:
    /// A channel's labels.
    struct Row
    {
        QLabel *name = nullptr;
        QLabel *first = nullptr;
        QLabel *second = nullptr;
        QLabel *difference = nullptr;
    };
    struct Widgets
    {
        /// The heads of the columns: no name, the laps, the difference.
        Row heads;
        /// In the order of channels().
        std::array<Row, ChannelCount> rows;
        QLabel *time = nullptr;
        QLabel *gap = nullptr;
    };

    CursorLabels(const ChartState &state, const Widgets &widgets, QObject *parent = nullptr);

    /// Whether a channel is shown at all.
    void setShown(std::size_t channel, bool shown);
    /// Shows the columns for one lap or for two, and the values.
    void showLaps();
    /// Shows the values at the cursor.
    void showCursor();

private:
    void showRow(std::size_t channel);
    void fixSizes();
    [[nodiscard]] QString gapText() const;

    const ChartState &m_state;
    Widgets m_widgets;
};

} // namespace zuno
