// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>
#include <span>

#include <session/session.h>
#include <track/map.h>
#include <track/mapdraft.h>

namespace zuno {

/// What a session of these samples, smoothed already, is cut into by the map that @p draft gives.
/// Nothing is changed anywhere else. @p samples must outlive it.
class DraftLaps
{
public:
    DraftLaps(std::span<const PointAcquisition> samples, const MapDraft &draft);

    [[nodiscard]] const Map &map() const { return *m_map; }
    [[nodiscard]] const LapResults &results() const { return m_session.results(); }
    [[nodiscard]] const LapList &laps() const { return m_session.laps(); }

private:
    std::unique_ptr<Map> m_map;
    Session m_session;
};

} // namespace zuno
