// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

class QXmlStreamReader;

namespace zuno {

/// A release of this program, as the update server's document tells of it. What the document does
/// not say, or says in a form that cannot be read, is empty or 0.
struct Release
{
    /// "1.6.0.0".
    QString version;
    /// The system and processor that it is for, as platform() names them.
    QString platform;
    /// The installer's address, as it stands in the document.
    QString url;
    /// The installer's file name, as it stands in the document: it may hold anything.
    QString name;
    /// The installer's size in bytes, and the 32 bytes of its SHA-256.
    qint64 size = 0;
    QByteArray sha256;
    /// Until when it may be offered; invalid when the document names no zone.
    QDateTime validUntil;

    /// Whether all of it is there that a download needs.
    [[nodiscard]] bool isComplete() const;
};

/// What the update server's document says of the current release of this program.
///
/// The document lists the maker's programs as elements "item", at any depth; those whose attribute
/// "name" is "ZUNO Analyzer" and whose platform is the wanted one are read, of several the last.
class UpdateDocument final
{
public:
    explicit UpdateDocument(const QByteArray &xml, const QString &platform);

    /// All of it is empty when there is none, and when the document is malformed anywhere: half a
    /// document is not acted upon.
    [[nodiscard]] const Release &release() const { return m_release; }

private:
    Release m_release;
};

/// The system and processor of this build, "linux-x86_64".
[[nodiscard]] QString platform();

/// Whether the version @p remote is newer than an installed @p local: its first number is greater,
/// or these are equal and its second number is. Further numbers do not count; a part that is no
/// number counts as 0. False when either has fewer than two parts.
[[nodiscard]] bool isNewer(const QString &remote, const QString &local);

} // namespace zuno
