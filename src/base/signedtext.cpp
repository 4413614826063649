// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/signedtext.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include <QLocale>

namespace zuno {

QString signedText(double value, int decimals)
{
    constexpr QChar Minus(0x2212);
    QString digits = QLocale().toString(std::fabs(value), 'f', decimals);
    const bool isZero
        = std::ranges::all_of(std::as_const(digits), [](QChar c) { return c.digitValue() <= 0; });
    if (isZero)
        return digits;
    return (value < 0.0 ? Minus : QChar(u'+')) + digits;
}

} // namespace zuno
