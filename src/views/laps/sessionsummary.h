// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QString>

namespace zuno {

struct SessionLap;
class Session;

/// What is said about a session around the laps table.
class SessionSummary
{
    Q_DECLARE_TR_FUNCTIONS(SessionSummary)

public:
    [[nodiscard]] static QString idealTimeText(const Session &session);
    /// The distance, and how many samples do not say where the motorcycle was.
    [[nodiscard]] static QString distanceText(const Session &session);
    /// What is said about the first lap of a comparison.
    [[nodiscard]] static QString firstLapText(const SessionLap &lap);
    /// Why a session has no laps, and what can be done; @p mapsFolder is where maps lie.
    [[nodiscard]] static QString laplessText(const Session &session, const QString &mapsFolder);

private:
    [[nodiscard]] static QString gpsText(const Session &session);
    [[nodiscard]] static QString reasonForNoLaps(const Session &session, const QString &mapsFolder);
};

} // namespace zuno
