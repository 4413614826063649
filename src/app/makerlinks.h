// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace zuno {

/// The maker's web site as rich text: for "en" a link to its English page, for "fr" one to its
/// home page; in every other language the home page's address without a link.
[[nodiscard]] QString webSiteLink(const QString &language);
/// A link, as rich text, that starts a mail to the maker.
[[nodiscard]] QString mailLink();

} // namespace zuno
