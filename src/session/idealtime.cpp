// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/idealtime.h>

#include <base/numbers.h>
#include <session/session.h>
#include <session/sessionlap.h>
#include <track/cuttingrules.h>
#include <track/map.h>

namespace zuno {

namespace {

RiddenTime riddenTime(qint32 time, const SessionLap &lap)
{
    return {time, lap.session->filePath(), lap.session->driver(), lap->lapNumber()};
}

} // namespace

void IdealTime::add(const Session &session)
{
    const Map *map = session.map();
    if (map == nullptr)
        return;
    m_sectors.resize(static_cast<std::size_t>(map->sectorCount()));
    addSectors(session);
    for (const auto &lap : session.laps()) {
        if (lap->isValid() && lap->isRanked() && lap->isComplete())
            addLap({&session, lap.get()});
    }
    for (std::size_t i = 1; i < session.laps().size(); ++i)
        addContinuousLaps({&session, session.laps()[i - 1].get()}, *session.laps()[i]);
}

void IdealTime::addSectors(const Session &session)
{
    const LapResults &results = session.results();
    for (std::size_t s = 0; s < m_sectors.size(); ++s) {
        const qint32 time = results.bestSectorTimes.at(s);
        const qint32 lap = results.bestSectorLaps.at(s);
        if (lap >= 0 && (!m_sectors[s] || time < m_sectors[s]->time)) {
            const auto &ridden = results.laps.at(static_cast<std::size_t>(lap));
            m_sectors[s] = riddenTime(time, {&session, ridden.get()});
        }
    }
}

void IdealTime::addLap(const SessionLap &lap)
{
    offerContinuousLap(lap->lapTime(), lap, 0);
    if (m_bestLap && m_bestLap->time <= lap->lapTime())
        return;
    m_bestLap = riddenTime(lap->lapTime(), lap);
    m_bestLapSectors.clear();
    for (std::size_t s = 0; s < m_sectors.size(); ++s)
        m_bestLapSectors.push_back(lap->sectorTime(static_cast<int>(s)));
}

void IdealTime::addContinuousLaps(const SessionLap &lap, const Lap &next)
{
    const Map &map = *lap.map();
    if (!lap->isValid() || !next.isValid())
        return;
    for (int sector = 0; sector < map.sectorCount(); ++sector) {
        const std::optional<Lap::Passing> begin = lap->sectorEnd(sector);
        const std::optional<Lap::Passing> end = next.sectorEnd(sector);
        if (!begin || !end)
            continue;
        // A way through the pits, or one cut short, is no lap.
        if (isOnceAround(lap->distance() - begin->distance + end->distance, map.length())) {
            const qint32 time = wrappedDifference(end->timeStamp, begin->timeStamp);
            offerContinuousLap(time, lap, sector + 1);
        }
    }
}

void IdealTime::offerContinuousLap(qint32 time, const SessionLap &lap, int afterSector)
{
    if (!m_bestContinuousLap || time < m_bestContinuousLap->ridden.time)
        m_bestContinuousLap = ContinuousLap {riddenTime(time, lap), afterSector};
}

std::optional<qint32> IdealTime::total() const
{
    if (m_sectors.empty())
        return {};
    qint32 sum = 0;
    for (const std::optional<RiddenTime> &sector : m_sectors) {
        if (!sector)
            return {};
        sum += sector->time;
    }
    return sum;
}

qint32 IdealTime::bestLapSector(int sector) const
{
    const auto s = static_cast<std::size_t>(sector);
    return sector >= 0 && s < m_bestLapSectors.size() ? m_bestLapSectors[s] : -1;
}

} // namespace zuno
