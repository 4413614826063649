// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/check/checkedlaps.h>

#include <maps/check/draftlaps.h>
#include <maps/check/mapcheck.h>

namespace zuno {

void describeLaps(const DraftLaps &cut, MapCheck &check)
{
    const LapResults &results = cut.results();
    for (const auto &lap : results.laps) {
        CheckedLap checked {
            lap->lapNumber(), lap->lapTime(), lap->distance(), lap->isComplete(), {}};
        for (int sector = 0; sector < cut.map().sectorCount(); ++sector)
            checked.sectorTimes.append(lap->sectorTime(sector));
        check.laps.push_back(checked);
    }
    check.length = cut.map().length();
    check.idealTime = results.idealTime;
    const auto best = static_cast<std::size_t>(results.bestLap);
    if (best < results.laps.size() && results.laps[best]->isComplete())
        check.bestLap = results.bestLap;
}

} // namespace zuno
