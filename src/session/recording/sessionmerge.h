// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QString>

#include <session/recording/storedtext.h>

namespace zuno {

/// What a rider can say about a session; the information block at the end of its file.
struct SessionInformation
{
    /// What the loggers store when they know no temperature.
    static constexpr qint32 UnknownTemperature = 99;
    static constexpr qint32 MaximumTemperature = 255;

    StoredText circuitName;
    StoredText event;
    StoredText driver;
    StoredText bestLapText;
    StoredText idealTimeText;
    StoredText vehicle;
    StoredText condition {QStringLiteral("Dry")};
    /// Degrees; the file keeps the low byte.
    qint32 temperature = 20;
    StoredText tyres;
    StoredText notes;
    QList<quint8> invalidLaps;

    /// Whether the rider, or the logger, has said anything about the ride. Before, the track's
    /// condition and temperature are nothing but what they are taken for.
    [[nodiscard]] bool isTouched() const;

    friend bool operator==(const SessionInformation &, const SessionInformation &) = default;
};

/// The parts of a session that its file takes from the program.
struct StoredState
{
    quint8 newSession = 1;
    SessionInformation information;

    friend bool operator==(const StoredState &, const StoredState &) = default;
};

/// A field that riders type something into.
enum class TypedField { Event, Driver, Vehicle, Tyres, Temperature, Condition, Notes };

/// What somebody else has typed into fields where what was typed here took its place.
struct ReplacedTyping
{
    QList<TypedField> fields;
    SessionInformation theirs;

    /// Puts what somebody else has typed back into @p information.
    void putBack(SessionInformation &information) const;
};

/// What stands in @p field, as text.
[[nodiscard]] QString textOf(TypedField field, const SessionInformation &information);

/// Joins two changes of @p base, so that neither undoes the other: a field that @p mine has left
/// alone is that of @p theirs. A field that both have changed is that of @p mine, but for the laps
/// thrown out, of which each is a field of its own.
[[nodiscard]] StoredState merged(const StoredState &base, const StoredState &mine,
                                 const StoredState &theirs);

/// The fields of @p theirs that are not in merged(), because @p mine has changed them, too.
[[nodiscard]] ReplacedTyping replacedBy(const StoredState &base, const StoredState &mine,
                                        const StoredState &theirs);

} // namespace zuno
