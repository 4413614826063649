// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/mapscene.h>

#include <maps/page/lineswitch.h>
#include <maps/page/mappane.h>
#include <maps/page/mapviewcontroller.h>
#include <theme/shownunits.h>
#include <theme/themes.h>
#include <views/charts/chartstate.h>
#include <views/charts/lapscene.h>

namespace zuno {

MapScene::MapScene(ChartState &state, MapPane &map, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_map(map)
{
    for (const auto signal :
         {&ChartState::contentChanged, &ChartState::zonesChanged, &ChartState::shownZoneChanged})
        connect(&m_state, signal, this, &MapScene::sendSoon);
    connect(&map.line(), &LineSwitch::modeChosen, this, &MapScene::sendSoon);
    connect(&Themes::instance(), &Themes::changed, this, &MapScene::sendSoon);
    connect(&ShownUnits::instance(), &ShownUnits::changed, this, &MapScene::sendSoon);
    connect(&map.view(), &MapViewController::zonePicked, this,
            [this](int zone) { m_state.showZone(static_cast<std::size_t>(zone)); });
    sendSoon();
}

// Laps and what is known of their corners come one after the other: they are drawn once.
void MapScene::sendSoon()
{
    if (m_isSending)
        return;
    m_isSending = true;
    QMetaObject::invokeMethod(this, &MapScene::send, Qt::QueuedConnection);
}

void MapScene::send()
{
    m_isSending = false;
    for (int mode = 0; mode < LineModeCount; ++mode) {
        const auto wanted = static_cast<LineMode>(mode);
        m_map.line().setAvailable(mode, shownMode(wanted, m_state) == wanted);
    }
    m_map.line().setVisible(m_state.first() != nullptr);
    const auto mode = static_cast<LineMode>(m_map.line().mode());
    m_map.line().showMode(static_cast<int>(shownMode(mode, m_state)));
    m_map.view().drawScene(QString::fromUtf8(scenePayload(m_state, mode)));
}

} // namespace zuno
