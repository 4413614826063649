// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <session/idealtime.h>
#include <session/session.h>

namespace zuno {

class MapLibrary;
class Settings;

/// Gathers the ideal time over sessions, one session a step, so that a window stays alive.
///
/// A session that has its laps is taken as it is. Of any other a copy is read from its file,
/// smoothed, cut, and thrown away again: the session stays as new and undisplayed as it was, and
/// nothing is written.
class IdealTimeSearch final
{
    Q_DECLARE_TR_FUNCTIONS(IdealTimeSearch)

public:
    /// Where the maps are found; must outlive the search. Maps may come and go between steps.
    struct Parts
    {
        const MapLibrary &maps;
        const Settings &settings;
    };
    IdealTimeSearch(const Parts &parts, const QList<Session *> &sessions);

    [[nodiscard]] qsizetype size() const { return m_sessions.size(); }
    /// How many sessions have been handled.
    [[nodiscard]] qsizetype handled() const { return m_handled; }
    [[nodiscard]] bool isDone() const { return m_handled == m_sessions.size(); }
    /// Handles the next session.
    void step();

    /// The map that the sessions displayed before were ridden on, or else most of the sessions;
    /// its display name, empty when there is none.
    [[nodiscard]] QString mapName() const;
    /// How many sessions of that map the result is made of.
    [[nodiscard]] qsizetype sessionCount() const;
    /// The ideal time on that map.
    [[nodiscard]] IdealTime result() const;
    /// The sessions left out, each with the reason in words.
    [[nodiscard]] QStringList leftOut() const;

private:
    // Sessions of the same map.
    struct Group
    {
        QString mapName;
        QString displayName;
        QStringList sessions;
        IdealTime idealTime;
        bool isDisplayed = false;
    };

    void leaveOut(const QString &session, const QString &reason);
    [[nodiscard]] std::unique_ptr<Session> cutCopy(const Session &session);
    void chooseMap(Session &session) const;
    void add(const Session &session, bool isDisplayed);
    [[nodiscard]] const Group *chosen() const;

    Parts m_parts;
    QList<QPointer<Session>> m_sessions;
    QStringList m_names;
    QList<Group> m_groups;
    QStringList m_leftOut;
    qsizetype m_handled = 0;
};

} // namespace zuno
