// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <vector>

#include <QByteArray>
#include <QGeoCoordinate>
#include <QString>

namespace zuno {

/// A line across the track, or a place on it, that another logger's file names.
struct RideGate
{
    QString name;
    /// The gate's two ends, or two points along the course; equal when there is but one.
    QGeoCoordinate first;
    QGeoCoordinate second;
    bool isStart = false;
    /// The two points lie along the course.
    bool isAlongCourse = false;

    [[nodiscard]] QGeoCoordinate middle() const;
    friend bool operator==(const RideGate &, const RideGate &) = default;
};

/// Where a session that was imported comes from. It stands in the file's words, which loggers use
/// for settings of their own and every other program skips; docs/formats.md has the layout.
struct SessionOrigin
{
    /// How many bytes of the original's SHA-256 are kept.
    static constexpr qsizetype FingerprintSize = 16;

    /// The first bytes of the SHA-256 of the file that the session was made of.
    QByteArray fingerprint;
    /// Which of the sessions that it gave this is, from 1.
    quint32 part = 1;
    /// Lines and places that the original names; 100 at most are kept.
    std::vector<RideGate> gates;

    friend bool operator==(const SessionOrigin &, const SessionOrigin &) = default;
};

/// The words of a session file that say this.
[[nodiscard]] std::vector<quint32> wordsOf(const SessionOrigin &origin);
/// What a @p list of a session file's words says; nothing when it is a logger's or damaged.
[[nodiscard]] std::optional<SessionOrigin> originOf(const std::vector<quint32> &list);
/// What the session file at @p path says of its origin; nothing for one that was not imported.
[[nodiscard]] std::optional<SessionOrigin> readSessionOrigin(const QString &path);

} // namespace zuno
