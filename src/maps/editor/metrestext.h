// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QLocale>
#include <QString>

namespace zuno {

/// A length to the metre, with its unit.
[[nodiscard]] inline QString metresText(double value)
{
    return QCoreApplication::translate("zuno::MapEditor", "%1 m")
        .arg(QLocale().toString(qRound(value)));
}

} // namespace zuno
