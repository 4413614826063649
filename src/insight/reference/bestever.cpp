// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/reference/bestever.h>

#include <algorithm>

#include <QTime>

#include <base/numbers.h>
#include <base/settings.h>
#include <maps/detection/mapdetection.h>
#include <session/sessionfile.h>
#include <track/map.h>
#include <track/mapfile.h>

namespace zuno {

namespace {

// What timeText() says, in milliseconds; none of a text that says no time.
std::optional<qint32> timeOf(const QString &text)
{
    QTime time = QTime::fromString(text, u"mm:ss.zzz");
    if (!time.isValid())
        time = QTime::fromString(text, u"hh::mm:ss.zzz");
    return time.isValid() && time.msecsSinceStartOfDay() > 0
               ? std::optional(time.msecsSinceStartOfDay())
               : std::nullopt;
}

bool isSameVehicle(const QString &a, const QString &b)
{
    return a.simplified().compare(b.simplified(), Qt::CaseInsensitive) == 0;
}

qint32 timeOf(const InsightLap &lap)
{
    return roundedToInt(1000.0 * lap.path.duration());
}

// The quickest lap that nothing speaks against; nullptr without one.
const InsightLap *recordOf(const SessionInsight &insight)
{
    return insight.used.empty() ? nullptr : &insight.laps[*insight.best];
}

QString keyOf(const QString &map, const QString &path)
{
    return map + u'\n' + path;
}

} // namespace

const Lap *ReferenceLap::cut() const
{
    if (!session)
        return nullptr;
    const LapList &laps = session->laps();
    const auto found = std::find_if(laps.begin(), laps.end(), [this](const auto &cutLap) {
        return cutLap->lapNumber() == lap.number;
    });
    return found != laps.end() ? found->get() : nullptr;
}

const BestLapMemory::Entry *BestLapMemory::find(const QString &map, const QString &path,
                                                const Key &key) const
{
    const auto found = m_entries.constFind(keyOf(map, path));
    return found != m_entries.cend() && found->key == key ? &*found : nullptr;
}

void BestLapMemory::keep(const QString &map, const QString &path, Entry entry)
{
    m_entries.insert(keyOf(map, path), std::move(entry));
}

BestEverSearch::BestEverSearch(const ReferenceSources &sources, const SessionOnCircuit &asked,
                               const QString &vehicle, BestLapMemory *memory)
    : m_sources(sources)
    , m_asked(asked)
    , m_vehicle(vehicle.simplified())
    , m_memory(memory)
{
    if (m_asked.session.map() == nullptr || m_asked.insight.lack != InsightLack::None)
        return;
    for (const Session *session : sources.sessions)
        consider(*session);
    // The quickest last, and before all those the ones of which nothing is known.
    std::stable_sort(m_candidates.begin(), m_candidates.end(),
                     [](const Candidate &a, const Candidate &b) {
                         if (a.claim.has_value() != b.claim.has_value())
                             return !a.claim.has_value();
                         return a.claim != b.claim ? *a.claim > *b.claim : a.path > b.path;
                     });
    const InsightLap *own = recordOf(m_asked.insight);
    if (own != nullptr
        && (m_vehicle.isEmpty() || isSameVehicle(m_vehicle, m_asked.session.vehicle()))) {
        offer({timeOf(*own), *own, m_asked.session.filePath(), m_asked.session.driver(),
               m_asked.session.vehicle(), nullptr});
    }
}

// Whether the session may have been ridden on the map, by what is known without its samples.
bool BestEverSearch::mayBeHere(const Session &session, const QString &choice) const
{
    const Map &map = *m_asked.session.map();
    if (session.map() != nullptr)
        return session.map() == &map;
    if (m_sources.maps.find(choice) != nullptr)
        return choice == map.name();
    const QString circuit = session.circuitName();
    const QList<const Map *> maps = m_sources.maps.maps();
    return circuit == map.displayName()
           || std::none_of(maps.begin(), maps.end(),
                           [&](const Map *other) { return other->displayName() == circuit; });
}

void BestEverSearch::consider(const Session &session)
{
    const QString choice = session.map() != nullptr
                               ? session.map()->name()
                               : m_sources.settings.mapChoice(session.fileName());
    if (session.filePath() == m_asked.session.filePath() || !mayBeHere(session, choice))
        return;
    if (!m_vehicle.isEmpty() && !isSameVehicle(m_vehicle, session.vehicle()))
        return;
    const QString &map = m_asked.session.map()->name();
    Candidate candidate {session.filePath(),
                         session.information(),
                         {FileStamp::of(session.filePath()), session.invalidLaps(), choice},
                         {}};
    candidate.information.invalidLaps = candidate.key.invalidLaps;
    const BestLapMemory::Entry *known
        = m_memory != nullptr ? m_memory->find(map, candidate.path, candidate.key) : nullptr;
    if (known != nullptr && !known->time)
        return;
    if (known != nullptr)
        candidate.claim = known->time;
    else if (session.circuitName() == m_asked.session.map()->displayName())
        candidate.claim = timeOf(session.bestLapText());
    m_candidates.push_back(std::move(candidate));
}

void BestEverSearch::step()
{
    if (isDone())
        return;
    const Candidate candidate = std::move(m_candidates.back());
    m_candidates.pop_back();
    if (m_best && candidate.claim && *candidate.claim > m_best->time)
        return;
    ++m_decoded;
    std::optional<ReferenceLap> best = bestOf(candidate);
    if (m_memory != nullptr) {
        m_memory->keep(m_asked.session.map()->name(), candidate.path,
                       {candidate.key, best ? std::optional(best->time) : std::nullopt});
    }
    if (best)
        offer(std::move(*best));
}

// Of equal times that of the first path stands, in whichever order they are found.
void BestEverSearch::offer(ReferenceLap lap)
{
    const bool isBetter = !m_best || lap.time < m_best->time
                          || (lap.time == m_best->time && lap.filePath < m_best->filePath);
    if (isBetter)
        m_best = std::move(lap);
}

std::optional<ReferenceLap> BestEverSearch::bestOf(const Candidate &candidate) const
{
    const std::shared_ptr<const Session> copy
        = cutCopy(candidate.path, candidate.information, candidate.key.choice, m_sources,
                  m_asked.session.map());
    if (!copy)
        return {};
    const SessionInsight insight = insightOnCircuit(*copy, m_asked);
    const InsightLap *record = recordOf(insight);
    if (record == nullptr)
        return {};
    return ReferenceLap {timeOf(*record), *record,         candidate.path,
                         copy->driver(),  copy->vehicle(), copy};
}

std::optional<ReferenceLap> findBestEver(const ReferenceSources &sources,
                                         const SessionOnCircuit &asked, const QString &vehicle,
                                         BestLapMemory *memory)
{
    BestEverSearch search(sources, asked, vehicle, memory);
    while (!search.isDone())
        search.step();
    return search.result();
}

std::shared_ptr<const Session> cutCopy(const QString &path, const SessionInformation &information,
                                       const QString &choice, const ReferenceSources &sources,
                                       const Map *map)
{
    OpenedSession opened = openSession(path);
    if (!opened.session)
        return {};
    opened.session->setInformation(information);
    opened.session->smooth();
    chooseMapByLength(*opened.session, candidatesOf(*opened.session, sources.maps, choice).maps);
    const bool isThere = opened.session->map() == map && !opened.session->lacksMemory();
    return isThere ? std::shared_ptr<const Session>(std::move(opened.session)) : nullptr;
}

SessionInsight insightOnCircuit(const Session &copy, const SessionOnCircuit &asked)
{
    const CircuitCorners &circuit = asked.insight.circuit;
    SessionInsight insight = sessionInsight(circuit, copy.wholeSamples(), copy.laps());
    if (insight.lack != InsightLack::None)
        return insight;
    const qint32 best = insight.laps[*insight.best].number;
    const Lap &lap = *copy.laps()[static_cast<std::size_t>(best) - 1];
    if (wayAround(*copy.map(), lap) == circuit.ring.way())
        return insight;
    SessionInsight none;
    none.lack = InsightLack::NoCompleteLap;
    return none;
}

} // namespace zuno
