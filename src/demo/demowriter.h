// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <demo/democircuit.h>
#include <demo/demorider.h>

namespace zuno::demo {

/// The information block of a session file. Texts are ASCII of at most 255 characters.
struct Information
{
    QString circuit;
    QString event;
    QString driver;
    QString bestLap;
    QString idealTime;
    QString vehicle;
    QString condition;
    int temperature = 20; ///< degrees, 0 .. 255; 99 is unknown
    QString tyres;
    QString notes;
    QList<int> invalidLaps; ///< numbers of 1 .. 255
};

/// The bytes of a session file: the ride, begun at \a begin. Suspension readings are stored when
/// the ride has any.
[[nodiscard]] QByteArray encodeSession(const Ride &ride, const QDateTime &begin, bool neverOpened,
                                       const std::optional<Information> &information);

/// The bytes of the map file of \a circuit.
[[nodiscard]] QByteArray encodeMap(const Circuit &circuit, int number);

/// Writes a new file and the folders it needs; a file that already holds these bytes is left alone.
/// Any other existing file is not touched. Returns what went wrong, or an empty text.
[[nodiscard]] QString saveNewFile(const QString &path, const QByteArray &bytes);

} // namespace zuno::demo
