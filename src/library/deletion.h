// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace zuno {

class LibraryFolder;

/// What a deletion takes away and what it leaves.
class Deletion
{
    Q_DECLARE_TR_FUNCTIONS(Deletion)

public:
    /// Removes one file or folder; false when it could not.
    using Remove = std::function<bool(const QString &)>;

    /// Looks through the chosen files and folders, at any depth. Changes nothing.
    Deletion(const LibraryFolder &folder, const QStringList &chosen);

    /// The files and whole folders that go; none of them in another.
    [[nodiscard]] const QStringList &goes() const { return m_goes; }
    /// What goes and what stays in words, with names and numbers; plain text.
    [[nodiscard]] QString description() const;
    /// What stays in words; empty when nothing does.
    [[nodiscard]] QString remainder() const;

    /// Removes all that goes, one after the other; what could not be removed.
    [[nodiscard]] QStringList carryOut(const LibraryFolder &folder, const Remove &remove) const;
    /// Removes a file, a link or a folder with all that is in it, for good.
    [[nodiscard]] static bool removeForGood(const QString &path);

private:
    bool take(const QString &path, bool isHidden);
    bool takeFolder(const QString &path, bool isHidden);
    void count(const QString &path, bool isHidden);

    QStringList m_goes;
    /// The logger's own, chosen or in a folder that was.
    QStringList m_loggers;
    QStringList m_outside;
    int m_recordings = 0;
    int m_others = 0;
    int m_hidden = 0;
};

} // namespace zuno
