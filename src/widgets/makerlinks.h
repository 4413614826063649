// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>
#include <QString>

namespace zuno {

/// The maker's web site as rich text: for "en" a link to its English page, for "fr" one to its
/// home page; in every other language the home page's address without a link.
[[nodiscard]] QString webSiteLink(const QString &language);
/// A link, as rich text, that starts a mail to the maker.
[[nodiscard]] QString mailLink();

/// Shows one link, which is reached with one press of Tab, ready for Enter; a text without a link
/// is passed over.
class LinkLabel final : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent *event) override;
};

} // namespace zuno
