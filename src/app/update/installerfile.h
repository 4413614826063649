// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <QSaveFile>
#include <QString>

namespace zuno {

struct Release;

/// The installer of a release on its way to the disk. It goes there piece by piece, and has its
/// name and can be started only when it is the one that was announced. Nothing is left of one that
/// was not finished.
class InstallerFile final
{
public:
    explicit InstallerFile(const Release &release);

    /// Opens the file in the folder "Temp" beside the program's own data, which is made. False when
    /// there is no place for it, or the release has no name for a file.
    [[nodiscard]] bool open();
    /// False when it could not be written, or is more than was announced: then nothing of @p piece
    /// is written, and the file can no longer be finished.
    [[nodiscard]] bool append(const QByteArray &piece);
    /// Makes the file executable and gives it its name, if size and hash are the announced ones.
    [[nodiscard]] bool finish();

    [[nodiscard]] QString path() const { return m_file.fileName(); }

private:
    QString m_name;
    qint64 m_size;
    QByteArray m_sha256;
    qint64 m_written = 0;
    QCryptographicHash m_hash {QCryptographicHash::Sha256};
    QSaveFile m_file;
};

} // namespace zuno
