// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <views/charts/lapcharts.h>

namespace zuno {

class LapsView;
class MapViewController;

namespace Ui {
class ZunoAnalyzer;
}

/// The widgets of the main form that the charts work with.
[[nodiscard]] LapCharts::Widgets chartWidgets(const Ui::ZunoAnalyzer &form);

/// Lets laps table, charts and map follow each other: a sector that is clicked in the table, the
/// cursor of the charts, a place that is clicked on the map.
void connectCharts(LapCharts &charts, const LapsView &table, MapViewController &map);

} // namespace zuno
