// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

class QWidget;

namespace zuno {

/// What begins markup in names that are made up to find out where names are taken for markup.
inline constexpr QLatin1StringView MarkupInNames("<b>");

/// The labels below @p window, visible or not, that would guess whether their text is markup, and
/// the tool tips that take MarkupInNames for markup: of widgets, tables, trees and lists, and their
/// headers.
[[nodiscard]] QStringList guessedTexts(const QWidget &window);

} // namespace zuno
