// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/chartwidgets.h>

#include "ui_zunoanalyzer.h"

#include <maps/page/mapviewcontroller.h>
#include <views/laps/lapsview.h>

namespace zuno {

LapCharts::Widgets chartWidgets(const Ui::ZunoAnalyzer &form)
{
    return {
        form.bottomWidget,
        form.layout_chartLaps,
        {form.cb_speed, form.cb_angleLandR, form.cb_accel, form.cb_frontSuspension,
         form.cb_rearSuspension},
        form.cb_comparePositions2,
        form.cb_compareTime,
        {{nullptr, form.lb_compareFirst, form.lb_compareSecond, form.lb_compareDifference},
         {{{form.lb_speed, form.vitesse, form.vitesse2, form.diffSpeed},
           {form.lb_angle, form.angle, form.angle2, form.diffAngle},
           {form.lb_accel, form.accel, form.accel2, form.diffAccel},
           {form.lb_frontSusp, form.frontSusp, form.frontSusp2, form.diffFrontSusp},
           {form.lb_rearSusp, form.rearSusp, form.rearSusp2, form.diffRearSusp}}},
         form.timeFromStart,
         form.diffTime},
    };
}

void connectCharts(LapCharts &charts, const LapsView &table, MapViewController &map)
{
    ChartState &state = charts.state();
    QObject::connect(&table, &LapsView::sectorChosen, &state, &ChartState::showSector);
    QObject::connect(&map, &MapViewController::samplePicked, &state, &ChartState::pinSample);
    QObject::connect(&state, &ChartState::stretchShown, &map, &MapViewController::showStretch);
    QObject::connect(&charts, &LapCharts::cursorMoved, &map, &MapViewController::drawCursor);
    QObject::connect(&charts, &LapCharts::secondCursorMoved, &map,
                     &MapViewController::drawSecondCursor);
}

} // namespace zuno
