// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <QMap>
#include <QString>

namespace zuno {

class Session;
class Settings;

/// Why a rider throws a lap out.
enum class LapReasonKind { HeldUp, MissedLine, WarmUp, Other };

struct LapReason
{
    LapReasonKind kind = LapReasonKind::Other;
    /// In the rider's words; only of Other, one line.
    QString text;

    friend bool operator==(const LapReason &, const LapReason &) = default;
};

/// "held up", or the rider's own words, in the language of the program.
[[nodiscard]] QString reasonText(const LapReason &reason);
/// The same of a kind; "other" of Other.
[[nodiscard]] QString reasonText(LapReasonKind kind);

/// The reasons of one recording's laps. A session file only says which laps are thrown out, so they
/// are kept in the settings, by what was recorded: renaming the file, moving or importing it again
/// loses none of them.
class LapReasons
{
public:
    /// Decodes the samples of @p session when they are not; @p settings must outlive this.
    LapReasons(const Settings &settings, const Session &session);

    /// By the laps' numbers. Whether a lap is thrown out still is the session's to say.
    [[nodiscard]] QMap<qint32, LapReason> all() const;
    [[nodiscard]] std::optional<LapReason> of(qint32 lap) const;
    /// Keeps a lap's reason, or forgets it.
    void set(qint32 lap, const std::optional<LapReason> &reason) const;

private:
    const Settings &m_settings;
    QString m_key;
};

} // namespace zuno
