// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/idealtime/idealtimesearch.h>

#include <algorithm>

#include <QFileInfo>

#include <base/settings.h>
#include <maps/detection/mapdetection.h>
#include <session/sessionfile.h>
#include <track/map.h>
#include <track/mapfile.h>

namespace zuno {

namespace {

QString nameOf(const Session &session)
{
    return QFileInfo(session.filePath()).completeBaseName();
}

} // namespace

IdealTimeSearch::IdealTimeSearch(const Parts &parts, const QList<Session *> &sessions)
    : m_parts(parts)
{
    for (Session *session : sessions) {
        m_sessions.append(session);
        m_names.append(nameOf(*session));
    }
}

void IdealTimeSearch::step()
{
    if (isDone())
        return;
    const QString name = m_names[m_handled];
    const QPointer<Session> session = m_sessions[m_handled];
    ++m_handled;
    if (session.isNull()) {
        leaveOut(name, tr("it has been removed"));
        return;
    }
    const bool isDisplayed = session->map() != nullptr;
    if (isDisplayed && !session->laps().empty())
        add(*session, isDisplayed);
    else if (const std::unique_ptr<Session> copy = cutCopy(*session))
        add(*copy, isDisplayed);
}

void IdealTimeSearch::leaveOut(const QString &session, const QString &reason)
{
    m_leftOut.append(tr("%1: %2", "session: reason").arg(session, reason));
}

std::unique_ptr<Session> IdealTimeSearch::cutCopy(const Session &session)
{
    OpenedSession opened = openSession(session.filePath());
    if (!opened.session) {
        leaveOut(nameOf(session), describe(opened.error));
        return {};
    }
    Session &copy = *opened.session;
    copy.setInformation(session.information());
    copy.smooth();
    if (session.map() != nullptr)
        copy.setMap(session.map());
    else
        chooseMap(copy);
    return std::move(opened.session);
}

void IdealTimeSearch::chooseMap(Session &session) const
{
    const QString choice = m_parts.settings.mapChoice(session.fileName());
    chooseMapByLength(session, candidatesOf(session, m_parts.maps, choice).maps);
}

void IdealTimeSearch::add(const Session &session, bool isDisplayed)
{
    const Map *map = session.map();
    if (map == nullptr) {
        leaveOut(nameOf(session), tr("no map is known for the place where it was recorded"));
        return;
    }
    if (session.laps().empty()) {
        leaveOut(nameOf(session), tr("it has no laps on the map \"%1\"").arg(map->displayName()));
        return;
    }
    auto group = std::find_if(m_groups.begin(), m_groups.end(),
                              [map](const Group &known) { return known.mapName == map->name(); });
    if (group == m_groups.end()) {
        m_groups.append({map->name(), map->displayName(), {}, {}, false});
        group = std::prev(m_groups.end());
    }
    group->sessions.append(nameOf(session));
    group->isDisplayed = group->isDisplayed || isDisplayed;
    group->idealTime.add(session);
}

const IdealTimeSearch::Group *IdealTimeSearch::chosen() const
{
    const auto found
        = std::max_element(m_groups.begin(), m_groups.end(), [](const Group &a, const Group &b) {
              return a.isDisplayed != b.isDisplayed ? b.isDisplayed
                                                    : a.sessions.size() < b.sessions.size();
          });
    return found != m_groups.end() ? &*found : nullptr;
}

QString IdealTimeSearch::mapName() const
{
    const Group *group = chosen();
    return group != nullptr ? group->displayName : QString();
}

qsizetype IdealTimeSearch::sessionCount() const
{
    const Group *group = chosen();
    return group != nullptr ? group->sessions.size() : 0;
}

IdealTime IdealTimeSearch::result() const
{
    const Group *group = chosen();
    return group != nullptr ? group->idealTime : IdealTime();
}

QStringList IdealTimeSearch::leftOut() const
{
    QStringList texts = m_leftOut;
    const Group *taken = chosen();
    for (const Group &group : m_groups) {
        if (&group == taken)
            continue;
        for (const QString &session : group.sessions)
            texts.append(tr("%1: it was ridden on \"%2\"").arg(session, group.displayName));
    }
    return texts;
}

} // namespace zuno
