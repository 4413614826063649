// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/laps/lapselection.h>

#include <algorithm>

namespace zuno {

SessionLap LapSelection::Choice::lap() const
{
    if (session.isNull() || session->map() != map || index < 0
        || static_cast<std::size_t>(index) >= session->laps().size())
        return {};
    return {session.data(), session->laps()[static_cast<std::size_t>(index)].get()};
}

// Whoever is told may change something else: what is to be drawn is told once, at the end.
void LapSelection::change(const QList<void (LapSelection::*)()> &tell)
{
    ++m_changes;
    for (const auto signal : tell)
        Q_EMIT(this->*signal)();
    if (--m_changes == 0)
        Q_EMIT shownChanged();
}

void LapSelection::setSession(Session *session)
{
    m_session = session;
    m_current.session = session;
    m_current.map = session != nullptr ? session->map() : nullptr;
    m_current.index
        = session != nullptr && !session->laps().empty() ? session->results().bestLap : -1;
    change({&LapSelection::sessionChanged, &LapSelection::currentLapChanged});
}

void LapSelection::setCurrentLap(int index)
{
    if (m_current.index == index)
        return;
    m_current.index = index;
    change({&LapSelection::currentLapChanged});
}

void LapSelection::setReference(const Session *session, int index)
{
    const SessionLap before = reference();
    m_reference = {session, index, session != nullptr ? session->map() : nullptr};
    if (reference() != before || (before && session != before.session))
        change({&LapSelection::referenceChanged});
}

SessionLap LapSelection::compared() const
{
    const SessionLap lap = current();
    const SessionLap other = reference();
    const bool canCompare = lap && other && lap != other && lap.mapName() == other.mapName();
    return canCompare ? other : SessionLap {};
}

QList<SessionLap> LapSelection::others() const
{
    QList<SessionLap> laps;
    const SessionLap selected = current();
    for (const Choice &choice : m_others) {
        const SessionLap lap = choice.lap();
        if (lap && lap != selected && lap != compared() && lap.mapName() == selected.mapName())
            laps.append(lap);
    }
    return laps;
}

bool LapSelection::isOther(const Session *session, int index) const
{
    return std::ranges::any_of(m_others, [&](const Choice &choice) {
        return choice.session == session && choice.index == index && choice.lap();
    });
}

bool LapSelection::toggleOther(const Session *session, int index)
{
    const Choice wanted {session, index, session != nullptr ? session->map() : nullptr};
    const SessionLap lap = wanted.lap();
    if (!lap)
        return true;
    if (isOther(session, index)) {
        removeOther(lap);
        return true;
    }
    m_others.removeIf([](const Choice &choice) { return !choice.lap(); });
    if (m_others.size() >= MostOthers)
        return false;
    m_others.append(wanted);
    change({&LapSelection::othersChanged});
    return true;
}

void LapSelection::removeOther(const SessionLap &lap)
{
    if (m_others.removeIf([&](const Choice &choice) { return choice.lap() == lap; }) > 0)
        change({&LapSelection::othersChanged});
}

void LapSelection::clearOthers()
{
    if (m_others.isEmpty())
        return;
    m_others.clear();
    change({&LapSelection::othersChanged});
}

void LapSelection::forget(const Session *session)
{
    if (m_current.session == session)
        setSession(nullptr);
    if (m_reference.session == session)
        clearReference();
    if (m_others.removeIf([=](const Choice &other) { return other.session == session; }) > 0)
        change({&LapSelection::othersChanged});
}

} // namespace zuno
