// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/laps/lapselection.h>

namespace zuno {

SessionLap LapSelection::Choice::lap() const
{
    if (session.isNull() || session->map() != map || index < 0
        || static_cast<std::size_t>(index) >= session->laps().size())
        return {};
    return {session.data(), session->laps()[static_cast<std::size_t>(index)].get()};
}

void LapSelection::setSession(Session *session)
{
    m_current.session = session;
    m_current.map = session != nullptr ? session->map() : nullptr;
    m_current.index
        = session != nullptr && !session->laps().empty() ? session->results().bestLap : -1;
    Q_EMIT currentLapChanged();
}

void LapSelection::setCurrentLap(int index)
{
    if (m_current.index == index)
        return;
    m_current.index = index;
    Q_EMIT currentLapChanged();
}

void LapSelection::setFirstLap(Session *session, int index)
{
    m_first = {session, index, session != nullptr ? session->map() : nullptr};
    Q_EMIT firstLapChanged();
}

void LapSelection::clearFirstLap()
{
    m_first = {};
    Q_EMIT firstLapChanged();
}

void LapSelection::forget(const Session *session)
{
    if (m_current.session == session)
        setSession(nullptr);
    if (m_first.session == session)
        clearFirstLap();
}

} // namespace zuno
