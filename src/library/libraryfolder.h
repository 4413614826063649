// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QFileInfo>
#include <QString>
#include <QStringList>

namespace zuno {

class Settings;

/// The folder of the rider's sessions, and what the program may do in it. Whatever deletes, renames
/// or writes there asks here; paths are compared as they are without links.
class LibraryFolder
{
    Q_DECLARE_TR_FUNCTIONS(LibraryFolder)

public:
    enum class State {
        Ready,
        /// The path is none of a folder of its own: empty, relative, or the whole computer.
        NoPath,
        Missing,
        /// There were sessions, and now there is nothing at all: the place of a drive that is not
        /// plugged in.
        Emptied,
    };

    /// No folder.
    LibraryFolder() = default;
    explicit LibraryFolder(const QString &path);
    /// One that knows from the settings, which must outlive it, whether it held sessions.
    LibraryFolder(const QString &path, const Settings &settings);

    [[nodiscard]] const QString &path() const { return m_path; }
    /// As the disk is now.
    [[nodiscard]] State state() const;
    [[nodiscard]] bool isReady() const { return state() == State::Ready; }
    /// Why it is not ready, for the rider; empty when it is.
    [[nodiscard]] QString problem() const;
    /// Makes the folder when it is missing and never was there. Nothing is made in a folder that is
    /// empty: a drive may belong there.
    void makeFirst() const;

    /// Whether the file or folder at @p path, where links lead, is in the library.
    [[nodiscard]] bool holds(const QString &path) const;
    /// Whether what stands at @p path may be renamed or deleted; a link counts as itself. Not the
    /// library's own folder.
    [[nodiscard]] bool mayChange(const QString &path) const;
    /// Whether files may be made in @p folder.
    [[nodiscard]] bool mayMakeIn(const QString &folder) const;
    /// Files and folders that the logger itself has named stay as they are.
    [[nodiscard]] static bool isLoggers(const QString &path);

    /// Whether the sessions below a folder, or a link to one, belong to the library. A link into
    /// the library, or to what the library is in, would bring sessions in twice; and a link below a
    /// link may lead in circles.
    [[nodiscard]] bool isEntered(const QFileInfo &folder) const;
    /// @p folder and all folders below it that are entered: each before those in it, those of one
    /// folder in alphabetical order.
    [[nodiscard]] QStringList foldersFrom(const QString &folder) const;

private:
    [[nodiscard]] QString canonical() const;
    [[nodiscard]] bool isStandard() const;
    [[nodiscard]] bool wasUsed() const;

    QString m_path;
    const Settings *m_settings = nullptr;
};

/// Whether @p path is that of @p folder or of something below it.
[[nodiscard]] bool isAtOrBelow(const QString &path, const QString &folder);

/// The path of a file in @p folder with that name or, from the number 2 on, "name (2)",
/// "name (3)" ...
[[nodiscard]] QString numberedPath(const QString &folder, const QString &name, int number);

/// The files and folders of @p folder whose names are no text, as they can be shown.
[[nodiscard]] QStringList unreadableNames(const QString &folder);

/// Gives files and folders of @p folder whose names are no text (they come from an old archive or
/// another system, and Qt does not list them) names that are; each as a Western system of then
/// would show it. Returns the new paths.
QStringList makeNamesReadable(const QString &folder);

} // namespace zuno
