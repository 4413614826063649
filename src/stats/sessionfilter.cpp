// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <stats/sessionfilter.h>

#include <algorithm>

#include <session/session.h>

namespace zuno {

QString SessionFilter::valueOf(const Session &session, Field field)
{
    switch (field) {
    case Field::Date:
        return session.recording().date;
    case Field::Track:
        return session.circuitName();
    case Field::Vehicle:
        return session.vehicle();
    case Field::Driver:
        return session.driver();
    case Field::Event:
        return session.eventName();
    case Field::Condition:
        // "Dry" is what a session starts with, which says nothing about the track.
        return session.information().isTouched() ? session.condition() : QString();
    }
    return {};
}

QStringList SessionFilter::valuesOf(const QList<Session *> &sessions, Field field)
{
    QStringList values;
    // A set, because every session of a season may have a date of its own.
    QSet<QString> known;
    for (const Session *session : sessions) {
        const QString value = valueOf(*session, field);
        const QString folded = value.toCaseFolded();
        if (known.contains(folded))
            continue;
        known.insert(folded);
        values.append(value);
    }
    values.sort(Qt::CaseInsensitive);
    return values;
}

void SessionFilter::setCondition(Field field, const QStringList &values, Emptiness emptiness)
{
    Condition &condition = m_conditions[static_cast<std::size_t>(field)];
    condition.folded.clear();
    for (const QString &value : values)
        condition.folded.insert(value.toCaseFolded());
    condition.acceptsEmpty = emptiness == Emptiness::Any;
}

bool SessionFilter::accepts(const Session &session) const
{
    if (session.bestLapText().isEmpty() && session.idealTimeText().isEmpty())
        return false;
    return isUnset() || std::all_of(Fields.begin(), Fields.end(), [&](Field field) {
               return meets(session, field);
           });
}

bool SessionFilter::isUnset() const
{
    return std::all_of(m_conditions.begin(), m_conditions.end(), [](const Condition &condition) {
        return condition.folded.isEmpty() && !condition.acceptsEmpty;
    });
}

bool SessionFilter::meets(const Session &session, Field field) const
{
    const Condition &condition = m_conditions[static_cast<std::size_t>(field)];
    const QString value = valueOf(session, field);
    if (value.isEmpty() && condition.acceptsEmpty && field != Field::Date)
        return true;
    return condition.folded.contains(value.toCaseFolded());
}

} // namespace zuno
