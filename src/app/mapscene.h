// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

namespace zuno {

class ChartState;
class MapPane;

/// Tells the map how to draw what the charts show: the line's colours, corners with their values,
/// who brakes where.
class MapScene final : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive it.
    MapScene(ChartState &state, MapPane &map, QObject *parent = nullptr);

private:
    void sendSoon();
    void send();

    ChartState &m_state;
    MapPane &m_map;
    bool m_isSending = false;
};

} // namespace zuno
