// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QJsonObject>
#include <QString>

class QWebEnginePage;

namespace zuno {

class PagePolicy;

/// The key of the map service: ZUNO_MAP_KEY in the environment goes before the one that was set
/// when building. Empty while it is the placeholder that the program is built with.
[[nodiscard]] QString mapServiceKey();

/// The address of the map service's library with the key in it; empty without a
/// key. ZUNO_MAP_SERVICE in the environment goes before the address that was set when building.
[[nodiscard]] QString mapServiceAddress();

/// The colours of the theme of the moment by their names, for the page's style sheet.
[[nodiscard]] QJsonObject themeColours();

/// Gives @p page, before its scripts run, its policy, the map service's address, the texts that it
/// shows and its colours.
void injectPageSettings(QWebEnginePage &page, const PagePolicy &policy);

} // namespace zuno
