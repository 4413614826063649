// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

#include <session/session.h>
#include <session/sessionlap.h>

namespace zuno {

/// What the rider looks at: the selected lap, the reference that it is always compared with, and
/// some more laps. Tables, map and charts listen to it and know nothing of each other.
///
/// Laps are named by session and index, so that a session that is cut anew or goes away leaves
/// nothing dangling: a lap that is no more is nullptr.
class LapSelection : public QObject
{
    Q_OBJECT

public:
    /// How many laps are drawn besides the selected one and the reference.
    static constexpr qsizetype MostOthers = 4;

    using QObject::QObject;

    /// Selects a lap of @p session (nullptr for none), its best one first. The reference stays, so
    /// that laps of two sessions can be compared.
    void setSession(Session *session);
    [[nodiscard]] Session *session() const { return m_session.data(); }

    void setCurrentLap(int index);
    /// -1 without a lap.
    [[nodiscard]] int currentIndex() const { return m_current.index; }
    [[nodiscard]] SessionLap current() const { return m_current.lap(); }
    [[nodiscard]] const Lap *currentLap() const { return current().lap; }

    void setReference(const Session *session, int index);
    void clearReference() { setReference(nullptr, -1); }
    /// On whatever circuit it was ridden.
    [[nodiscard]] SessionLap reference() const { return m_reference.lap(); }
    /// The reference, where the selected lap can be compared with it: another lap of the same
    /// circuit.
    [[nodiscard]] SessionLap compared() const;

    /// The other laps that are drawn: of the selected lap's circuit, and neither it nor the
    /// reference.
    [[nodiscard]] QList<SessionLap> others() const;
    [[nodiscard]] bool isOther(const Session *session, int index) const;
    /// Draws a lap besides, or no longer. False when there are MostOthers already.
    bool toggleOther(const Session *session, int index);
    void removeOther(const SessionLap &lap);
    void clearOthers();

    /// Lets go of a session that is about to be removed.
    void forget(const Session *session);

Q_SIGNALS:
    /// Sent before currentLapChanged() when it is a lap of another session, or of the same one cut
    /// anew.
    void sessionChanged();
    void currentLapChanged();
    void referenceChanged();
    void othersChanged();
    /// Sent once after all of the above: other laps are to be drawn.
    void shownChanged();

private:
    struct Choice
    {
        QPointer<const Session> session;
        int index = -1;
        /// On another map the session's laps are others.
        const Map *map = nullptr;

        [[nodiscard]] SessionLap lap() const;
    };

    void change(const QList<void (LapSelection::*)()> &tell);

    QPointer<Session> m_session;
    Choice m_current;
    Choice m_reference;
    QList<Choice> m_others;
    // Changes that are being told.
    int m_changes = 0;
};

} // namespace zuno
