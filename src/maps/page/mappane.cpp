// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/page/mappane.h>

#include "ui_mappane.h"

#include <QLocale>

#include <base/numbers.h>
#include <maps/page/mapviewcontroller.h>
#include <session/session.h>
#include <track/map.h>

namespace zuno {

MapPane::MapPane(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::MapPane>())
    , m_view(new MapViewController(this))
{
    m_ui->setupUi(this);
    m_view->init(this, m_ui->webview_layout);
    m_ui->lb_errorMap->setText(
        tr("No map found, please try to select one from the Map configuraton panel"));
    connect(m_ui->pb_newMapHere, &QPushButton::clicked, this, &MapPane::newMapRequested);
}

MapPane::~MapPane() = default;

void MapPane::showSession(const Session *session)
{
    const Map *map = session != nullptr ? session->map() : nullptr;
    const bool lacksMap = session != nullptr && map == nullptr;
    m_ui->lb_mapSelected->setVisible(map != nullptr);
    m_ui->lb_mapLength->setVisible(map != nullptr);
    m_ui->lb_errorMap->setVisible(lacksMap);
    m_ui->pb_newMapHere->setVisible(lacksMap && session->sampleCount() > 0);
    if (map == nullptr)
        return;
    m_ui->lb_mapSelected->setText(tr("Map : %1").arg(map->displayName()));
    m_ui->lb_mapLength->setText(
        tr("Map length : %1 m").arg(QLocale().toString(truncatedToInt(map->length()))));
}

} // namespace zuno
