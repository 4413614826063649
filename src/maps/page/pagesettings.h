// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class QWebEnginePage;

namespace zuno {

class PagePolicy;

/// The address of the map service's library with the key in it; empty while the key is the
/// placeholder that the program is built with, or empty. The environment variables ZUNO_MAP_KEY
/// and ZUNO_MAP_SERVICE go before the key and the address that were set when building.
[[nodiscard]] QString mapServiceAddress();

/// Gives @p page, before its scripts run, its policy, the map service's address and the texts that
/// it shows.
void injectPageSettings(QWebEnginePage &page, const PagePolicy &policy);

} // namespace zuno
