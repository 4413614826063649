// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/update/installerfile.h>

#include <QDir>
#include <QRegularExpression>
#include <QStandardPaths>

#include <app/update/updatedocument.h>

namespace zuno {

namespace {

/// The last component of a path of any system, so that a document cannot choose the folder.
QString lastComponent(const QString &path)
{
    static const QRegularExpression separator(QStringLiteral("[/\\\\:]"));
    return path.section(separator, -1);
}

} // namespace

InstallerFile::InstallerFile(const Release &release)
    : m_name(lastComponent(release.name))
    , m_size(release.size)
    , m_sha256(release.sha256)
{
}

bool InstallerFile::open()
{
    const QString location = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    const QDir root(location.left(location.lastIndexOf(u'/')));
    if (!root.exists())
        return false;
    root.mkpath(QStringLiteral("Temp"));
    // Without a name this is the folder, which cannot be opened.
    m_file.setFileName(root.filePath(u"Temp/" + m_name));
    return m_file.open(QIODevice::WriteOnly);
}

bool InstallerFile::append(const QByteArray &piece)
{
    if (piece.size() > m_size - m_written || m_file.write(piece) != piece.size()) {
        m_file.cancelWriting();
        return false;
    }
    m_written += piece.size();
    m_hash.addData(piece);
    return true;
}

bool InstallerFile::finish()
{
    return m_written == m_size && m_hash.result() == m_sha256 && m_file.flush()
           && m_file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner)
           && m_file.commit();
}

} // namespace zuno
