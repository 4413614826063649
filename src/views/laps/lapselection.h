// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QPointer>

#include <session/session.h>
#include <session/sessionlap.h>

namespace zuno {

/// What the rider looks at: the displayed lap and the laps chosen for comparison. Table, map and
/// charts listen to it and know nothing of each other.
///
/// Laps are named by session and index, so that a session that is cut anew or goes away leaves
/// nothing dangling: a lap that is no more is nullptr.
class LapSelection : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Displays laps of @p session (nullptr for none), its best lap first. A first lap for
    /// comparison stays chosen, so that laps of two sessions can be compared.
    void setSession(Session *session);
    [[nodiscard]] Session *session() const { return m_current.session.data(); }

    void setCurrentLap(int index);
    /// -1 without a lap.
    [[nodiscard]] int currentIndex() const { return m_current.index; }
    [[nodiscard]] SessionLap current() const { return m_current.lap(); }
    [[nodiscard]] const Lap *currentLap() const { return current().lap; }

    void setFirstLap(Session *session, int index);
    void clearFirstLap();
    [[nodiscard]] SessionLap first() const { return m_first.lap(); }
    [[nodiscard]] const Lap *firstLap() const { return first().lap; }
    [[nodiscard]] Session *firstSession() const { return m_first.session.data(); }

    /// Lets go of a session that is about to be removed.
    void forget(const Session *session);

Q_SIGNALS:
    void currentLapChanged();
    void firstLapChanged();
    /// Two laps were chosen to be compared.
    void comparisonRequested(const zuno::SessionLap &first, const zuno::SessionLap &second);

private:
    struct Choice
    {
        QPointer<Session> session;
        int index = -1;
        /// On another map the session's laps are others.
        const Map *map = nullptr;

        [[nodiscard]] SessionLap lap() const;
    };

    Choice m_current;
    Choice m_first;
};

} // namespace zuno
