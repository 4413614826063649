// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>
#include <vector>

#include <QList>

#include <maps/check/mapwarning.h>
#include <session/recording/pointacquisition.h>
#include <track/mapdraft.h>

namespace zuno {

/// A lap as a map cuts it.
struct CheckedLap
{
    /// 1-based number in the session.
    int number = 0;
    /// Milliseconds, metres.
    qint32 time = 0;
    double distance = 0.0;
    bool isComplete = false;
    /// Milliseconds; -1 for a sector that the lap has no time for.
    QList<qint32> sectorTimes;
};

/// What a draft makes of a session.
struct MapCheck
{
    std::vector<CheckedLap> laps;
    QList<MapWarning> warnings;
    /// Metres along the outline.
    double length = 0.0;
    /// Milliseconds as LapResults has it; -1 without any.
    qint32 idealTime = -1;
    /// An index into laps; -1 when no lap is complete.
    int bestLap = -1;
};

/// Cuts smoothed samples with @p draft just as a session is cut, and looks for what is wrong.
[[nodiscard]] MapCheck checkMap(std::span<const PointAcquisition> samples, const MapDraft &draft);

} // namespace zuno
