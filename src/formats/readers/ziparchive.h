// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QByteArray>
#include <QList>

struct zip;

namespace zuno {

/// A zip in memory, read by libzip.
class ZipArchive
{
public:
    explicit ZipArchive(QByteArray bytes);
    ZipArchive(const ZipArchive &) = delete;
    ZipArchive &operator=(const ZipArchive &) = delete;
    ~ZipArchive();

    [[nodiscard]] bool isOpen() const { return m_zip != nullptr; }
    /// The entries' names, the first thousand of them.
    [[nodiscard]] QList<QByteArray> names() const;
    /// What an entry holds, at most @p limit bytes of it; what stands before damage, when there is
    /// any.
    [[nodiscard]] QByteArray read(const QByteArray &name, qint64 limit) const;

private:
    QByteArray m_bytes;
    struct zip *m_zip = nullptr;
};

} // namespace zuno
