// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>

#include <views/charts/lapcharts.h>

namespace zuno::test {

/// The widgets of the charts pane as the window has them, without the window.
class ChartPane : public QWidget
{
public:
    ChartPane()
    {
        auto *layout = new QHBoxLayout(this);
        widgets.pane = this;
        widgets.charts = new QVBoxLayout;
        layout->addLayout(widgets.charts, 1);
        auto *side = new QVBoxLayout;
        layout->addLayout(side);
        const auto add = [side](auto *widget) {
            side->addWidget(widget);
            return widget;
        };
        for (QCheckBox *&box : widgets.channels)
            box = add(new QCheckBox);
        widgets.byPosition = add(new QCheckBox);
        widgets.byTime = add(new QCheckBox);
        const auto addRow = [&add](CursorLabels::Row &row) {
            for (QLabel **label : {&row.name, &row.first, &row.second, &row.difference})
                *label = add(new QLabel);
        };
        addRow(widgets.labels.heads);
        for (CursorLabels::Row &row : widgets.labels.rows)
            addRow(row);
        widgets.labels.time = add(new QLabel);
        widgets.labels.gap = add(new QLabel);
        widgets.labels.gap->setWordWrap(true);
    }

    LapCharts::Widgets widgets;
};

} // namespace zuno::test
