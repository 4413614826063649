// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QString>

namespace zuno {

/// The manual, which stands beside the program as one PDF file for each language.
class Help final
{
    Q_DECLARE_TR_FUNCTIONS(Help)

public:
    /// The file in @p folder (with a trailing slash) for @p language, a locale's name; without one
    /// that of the language without its country, then the English one. Empty without any.
    [[nodiscard]] static QString file(const QString &folder, const QString &language);
    /// Opens that file. Empty, or what to tell the rider when that cannot be done.
    [[nodiscard]] static QString open(const QString &folder, const QString &language);
};

} // namespace zuno
