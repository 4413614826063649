// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace zuno {

inline constexpr qint64 MostLogBytes = 5 * 1024 * 1024;

/// Deletes the log of the run before, makes the log's folder and sends Qt's messages to the log
/// from now on: a line each with time, level and category. Warnings are not logged. A log that
/// would grow above MostLogBytes loses its older half.
///
/// A fatal message is also told on the standard error, and ends the program with status 1 instead
/// of by a signal, which would tell nobody why.
///
/// To be called before the application object exists, so that nothing is missed.
void startLog();

/// Keeps a secret out of the log, also in the form that it has in addresses.
void hideInLog(const QString &secret);

} // namespace zuno
