// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

namespace zuno {

class Session;

/// Which sessions the statistics list.
///
/// A session without any lap time is never listed. Without a condition on any field every other
/// session is; otherwise the session must meet the condition of each of the six fields. Values are
/// compared without regard to case.
class SessionFilter
{
public:
    enum class Field { Date, Track, Vehicle, Driver, Event, Condition };
    static constexpr std::array Fields {Field::Date,   Field::Track, Field::Vehicle,
                                        Field::Driver, Field::Event, Field::Condition};

    enum class Emptiness {
        /// A session without a value passes only if the empty text is among the values.
        Listed,
        /// A session without a value passes; a session without a date does not.
        Any,
    };

    [[nodiscard]] static QString valueOf(const Session &session, Field field);
    /// The different values of @p sessions in alphabetical order. Of values that differ in case
    /// only, the first is taken.
    [[nodiscard]] static QStringList valuesOf(const QList<Session *> &sessions, Field field);

    void setCondition(Field field, const QStringList &values, Emptiness emptiness);
    [[nodiscard]] bool accepts(const Session &session) const;

private:
    struct Condition
    {
        QSet<QString> folded;
        bool acceptsEmpty = false;
    };

    [[nodiscard]] bool isUnset() const;
    [[nodiscard]] bool meets(const Session &session, Field field) const;

    std::array<Condition, Fields.size()> m_conditions;
};

} // namespace zuno
