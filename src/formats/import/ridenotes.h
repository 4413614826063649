// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

#include <formats/convert/convertedride.h>

namespace zuno {

/// The notes of an imported session: which file, logger and rate it comes from, and what was
/// computed instead of recorded. English, as files are exchanged.
[[nodiscard]] QString importNotes(const QString &fileName, const char *kind, const RideFacts &facts,
                                  const ConversionReport &report);

/// Positions a second that were measured, as far as the file or its rows tell.
[[nodiscard]] double measuredRate(const RideFacts &facts, const ConversionReport &report);

/// What is odd about a recording, a sentence each, for the rider.
[[nodiscard]] QStringList ridesOddities(const RideFacts &facts, const ConversionReport &report);

} // namespace zuno
