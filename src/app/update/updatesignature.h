// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QList>

namespace zuno {

/// The public keys of the build, 32 bytes each, one of which must have signed what the update
/// server says: the one in use and a spare, for the day when the first is lost or stolen.
[[nodiscard]] QList<QByteArray> configuredUpdateKeys();

/// Whether @p signature, as it stands in its file (base64, white space around it), is an Ed25519
/// signature (RFC 8032) over every byte of @p document by one of @p keys. False for a signature or
/// a key of a wrong length, too.
[[nodiscard]] bool isSigned(const QByteArray &document, const QByteArray &signature,
                            const QList<QByteArray> &keys);

} // namespace zuno
