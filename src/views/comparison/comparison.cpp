// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/comparison/comparison.h>

#include <QFileInfo>

#include <base/laptimes.h>
#include <base/settings.h>
#include <insight/cornerfile.h>
#include <track/map.h>
#include <views/laps/lapselection.h>

namespace zuno {

namespace {

constexpr qsizetype MostRecent = 5;

// Where a lap of that number stands among those of a session; -1 where it does not.
int indexOf(const Session &session, qint32 number)
{
    const LapList &laps = session.laps();
    for (std::size_t i = 0; i < laps.size(); ++i) {
        if (laps[i]->lapNumber() == number)
            return static_cast<int>(i);
    }
    return -1;
}

SessionInsight tellOf(const Session *session, const Settings &settings)
{
    SessionInsight insight;
    insight.lack = InsightLack::NoCorners;
    if (session == nullptr || session->map() == nullptr || session->laps().empty())
        return insight;
    const CornerFile corners
        = readCornerFile(cornerFilePath(settings.mapsFolder() + session->map()->name()));
    return insightOf(*session->map(), corners.edits, session->wholeSamples(), session->laps());
}

} // namespace

Comparison::Comparison(LapSelection &selection, const Settings &settings, Sources sources,
                       QObject *parent)
    : QObject(parent)
    , m_selection(selection)
    , m_settings(settings)
    , m_sources(std::move(sources))
{
    m_step.setInterval(0);
    connect(&m_step, &QTimer::timeout, this, &Comparison::searchOn);
    connect(&m_selection, &LapSelection::sessionChanged, this, &Comparison::showSession);
    connect(&m_selection, &LapSelection::shownChanged, this, &Comparison::update);
    showSession();
    update();
}

Comparison::~Comparison() = default;

void Comparison::showSession()
{
    m_step.stop();
    m_search.reset();
    const Session *session = m_selection.session();
    m_insight = tellOf(session, m_settings);
    const bool hasCircuit = session != nullptr && session->map() != nullptr;
    m_choice = hasCircuit ? referenceChoice(m_settings, *session->map()) : ReferenceChoice {};
    findReference();
}

void Comparison::refresh()
{
    showSession();
    update();
}

void Comparison::release()
{
    m_step.stop();
    m_search.reset();
    m_selection.clearReference();
    m_found = {};
    m_foundOn = nullptr;
    m_memory.clear();
}

void Comparison::findReference()
{
    const Session *session = m_selection.session();
    if (m_insight.lack != InsightLack::None || isOff()) {
        take({});
        return;
    }
    const bool isKnown = m_found.lap && m_found.lap->session && m_foundFor == m_choice
                         && m_foundOn == session->map() && m_choice.kind == ReferenceKind::ChosenLap
                         && m_found.lap->filePath != session->filePath();
    const QString vehicle = session->vehicle().simplified();
    if (isKnown)
        showReference();
    else if (m_choice.kind == ReferenceKind::BestEver)
        search({});
    else if (m_choice.kind == ReferenceKind::BestOnVehicle && !vehicle.isEmpty())
        search(vehicle);
    else
        take(zuno::findReference(m_choice, m_sources(), {*session, m_insight}, &m_memory));
}

// File by file, so that the window stays alive.
void Comparison::search(const QString &vehicle)
{
    m_search = std::make_unique<BestEverSearch>(
        m_sources(), SessionOnCircuit {*m_selection.session(), m_insight}, vehicle, &m_memory);
    m_found = {};
    m_selection.clearReference();
    m_step.start();
}

void Comparison::searchOn()
{
    if (m_search && !m_search->isDone()) {
        m_search->step();
        return;
    }
    m_step.stop();
    if (!m_search)
        return;
    const std::optional<ReferenceLap> best = m_search->result();
    m_search.reset();
    take({best ? ReferenceState::Found : ReferenceState::NoLap, best});
    noteRecord();
    update();
}

void Comparison::take(Reference reference)
{
    const Reference before = std::exchange(m_found, std::move(reference));
    m_foundFor = m_choice;
    m_foundOn = m_selection.session() != nullptr ? m_selection.session()->map() : nullptr;
    showReference();
}

// Without corners there still are laps: the best one of the session is the reference then.
void Comparison::showReference()
{
    const Session *session = m_selection.session();
    if (m_found.lap) {
        const Session *owner = m_found.lap->session ? m_found.lap->session.get() : session;
        m_selection.setReference(owner, indexOf(*owner, m_found.lap->lap.number));
    } else if (session != nullptr && !session->laps().empty() && !isOff()
               && (m_insight.lack != InsightLack::None
                   || m_choice.kind == ReferenceKind::BestOfSession)) {
        m_selection.setReference(session, session->results().bestLap);
    } else {
        m_selection.clearReference();
    }
}

// Only while the program runs: a record that is found at the first look is none that is new.
void Comparison::noteRecord()
{
    if (!m_found.lap || m_choice.kind != ReferenceKind::BestEver)
        return;
    const QString map = m_selection.session()->map()->name();
    const auto known = m_records.constFind(map);
    const ReferenceLap &lap = *m_found.lap;
    if (known != m_records.cend() && lap.time < *known) {
        Q_EMIT noticed(tr("New best lap here: %1, lap %2 of %3")
                           .arg(timeText(lap.time), QString::number(lap.lap.number),
                                QFileInfo(lap.filePath).completeBaseName()));
    }
    m_records.insert(map, lap.time);
}

void Comparison::choose(const ReferenceChoice &choice)
{
    const Session *session = m_selection.session();
    if (session == nullptr || session->map() == nullptr)
        return;
    keepReferenceChoice(m_settings, *session->map(), choice);
    if (choice.kind == ReferenceKind::ChosenLap) {
        QList<ReferenceChoice> &recent = m_recent[session->map()->name()];
        recent.removeAll(choice);
        recent.prepend(choice);
        recent.resize(std::min(recent.size(), MostRecent));
    }
    m_step.stop();
    m_search.reset();
    m_choice = choice;
    findReference();
    update();
}

void Comparison::chooseLap(const SessionLap &lap)
{
    if (lap)
        choose(chosenLap(*lap.session, lap->lapNumber()));
}

QList<ReferenceChoice> Comparison::recent() const
{
    const Session *session = m_selection.session();
    const bool hasCircuit = session != nullptr && session->map() != nullptr;
    return hasCircuit ? m_recent.value(session->map()->name()) : QList<ReferenceChoice> {};
}

void Comparison::swap()
{
    const SessionLap selected = m_selection.current();
    const SessionLap reference = m_selection.compared();
    if (!reference)
        return;
    const qint32 number = reference->lapNumber();
    const QString path = reference.session->filePath();
    const bool isHere = reference.session == m_selection.session();
    const ReferenceChoice choice = chosenLap(*selected.session, selected->lapNumber());
    if (isHere) {
        const int index = indexOf(*m_selection.session(), number);
        choose(choice);
        m_selection.setCurrentLap(index);
    } else {
        keepReferenceChoice(m_settings, *selected.map(), choice);
        Q_EMIT lapWanted(path, number);
    }
}

QString Comparison::problem() const
{
    if (m_insight.lack != InsightLack::None || isOff() || m_search)
        return {};
    return describe(m_found.lap ? ReferenceState::Found : m_found.state, m_choice);
}

const InsightLap *Comparison::selected() const
{
    const Lap *lap = m_selection.currentLap();
    return lap != nullptr ? m_insight.lap(lap->lapNumber()) : nullptr;
}

const InsightLap *Comparison::reference() const
{
    return m_selection.compared() && m_found.lap ? &m_found.lap->lap : nullptr;
}

bool Comparison::isSelectedReference() const
{
    return m_selection.currentLap() != nullptr && m_selection.current() == m_selection.reference();
}

Comparison::Lack Comparison::findLack() const
{
    if (m_selection.currentLap() == nullptr)
        return Lack::NoLaps;
    if (m_insight.lack != InsightLack::None)
        return Lack::Insight;
    if (selected() == nullptr)
        return Lack::Incomplete;
    if (isOff())
        return Lack::Off;
    if (m_search)
        return Lack::Searching;
    const bool canTell = reference() != nullptr || isSelectedReference();
    return canTell ? Lack::None : Lack::NoOther;
}

void Comparison::update()
{
    m_lack = findLack();
    m_places = {};
    if (m_lack == Lack::None) {
        m_places = reference() != nullptr ? placesAgainst(selected()->ridden(),
                                                          reference()->ridden(), m_insight.circuit)
                                          : placesAgainstBest(*selected(), m_insight);
        if (m_places.isEmpty())
            m_lack = Lack::NoOther;
    }
    Q_EMIT changed();
}

TrackZones Comparison::zones() const
{
    const InsightLap *lap = selected();
    if (lap == nullptr || m_insight.lack != InsightLack::None)
        return {};
    const InsightLap *other = reference();
    if (other != nullptr) {
        const RiddenLap ridden = other->ridden();
        return trackZones(m_insight.circuit, lap->ridden(), &ridden);
    }
    TrackZones zones = trackZones(m_insight.circuit, lap->ridden(), nullptr);
    for (const TimePlace &place : m_places.places)
        zones[place.unit].loss = place.loss;
    for (std::size_t i = 0; i < m_places.largest.size(); ++i)
        zones[m_places.places[m_places.largest[i]].unit].rank = static_cast<int>(i) + 1;
    return zones;
}

QString describe(const Comparison &comparison)
{
    switch (comparison.lack()) {
    case Comparison::Lack::None:
    case Comparison::Lack::NoLaps:
        return {};
    case Comparison::Lack::Incomplete:
        return Comparison::tr("This lap does not go from line to line, so its corners cannot be "
                              "compared.");
    case Comparison::Lack::Off:
    case Comparison::Lack::NoOther:
        return Comparison::tr("Choose a reference to see where the time is.");
    case Comparison::Lack::Searching:
        return Comparison::tr("Looking for the best lap...");
    case Comparison::Lack::Insight:
        break;
    }
    switch (comparison.insight().lack) {
    case InsightLack::None:
    case InsightLack::NoCorners:
        return Comparison::tr("No corners are known here, so there is nothing to compare them by.");
    case InsightLack::NoCompleteLap:
        return Comparison::tr("There is no lap from line to line.");
    case InsightLack::OutlineOff:
        return Comparison::tr("The map's outline is too rough for its corners.");
    case InsightLack::RateTooLow:
        return Comparison::tr("The receiver measured about once a second; that is too seldom for "
                              "corners.");
    }
    return {};
}

} // namespace zuno
