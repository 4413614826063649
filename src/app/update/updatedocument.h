// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class QByteArray;
class QXmlStreamReader;

namespace zuno {

/// What the update server's document says of the current release of this program.
///
/// The document lists the maker's programs as elements "item", at any depth; the one whose
/// attribute "name" is "ZUNO Analyzer" is read, of several the last. All texts are empty when there
/// is none, and when the document is malformed anywhere: half a document is not acted upon.
class UpdateDocument final
{
public:
    explicit UpdateDocument(const QByteArray &xml);

    /// The release's version, "1.6.0.0".
    [[nodiscard]] const QString &version() const { return m_version; }
    /// The installer's address, as it stands in the document.
    [[nodiscard]] const QString &url() const { return m_url; }
    /// The installer's file name, as it stands in the document: it may hold anything.
    [[nodiscard]] const QString &name() const { return m_name; }

private:
    void clear();
    void readItem(QXmlStreamReader &reader);

    QString m_version;
    QString m_url;
    QString m_name;
};

/// Whether the version @p remote is to be offered to an installed @p local: its first number is
/// greater, or its second is, the first numbers not looked at. Thus 1.6 is offered to a 2.0, from
/// which a rider can go back. Further numbers do not count; a part that is no number counts as 0.
/// False when either has fewer than two parts.
[[nodiscard]] bool isOffered(const QString &remote, const QString &local);

} // namespace zuno
