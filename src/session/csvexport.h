// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

class QLocale;

namespace zuno {

class Session;
struct SessionLap;

/// The samples of @p session as semicolon-separated text in UTF-8, without an end of line after
/// the last row. A sample with suspension readings gives a row for each of them, 10 ms apart.
///
/// Numbers are written as @p locale does, but with a decimal comma whatever the locale: the files
/// are opened in spreadsheets that were set up for it. A group separator in ASCII stays, others
/// (the narrow space of French) are left out.
[[nodiscard]] QByteArray sessionCsv(const Session &session, const QLocale &locale);

/// The samples of one lap in the same form, below two lines that name session and lap.
[[nodiscard]] QByteArray lapCsv(const SessionLap &lap, const QLocale &locale);

} // namespace zuno
