// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QFileInfo>
#include <QHash>
#include <QList>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <base/filestamp.h>
#include <session/session.h>

namespace zuno {

class LibraryFolder;

/// The sessions of the acquisition folder, in the order in which they were loaded. Owns them.
///
/// Files that give no session, or one without samples, are left out and named in the log.
class AcquisitionLibrary : public QObject
{
    Q_OBJECT

public:
    /// A session file's ending; case matters.
    static constexpr QLatin1String Suffix {".ra1"};

    explicit AcquisitionLibrary(QObject *parent = nullptr);
    ~AcquisitionLibrary() override;

    /// Loads every session file below @p folder that is not loaded yet. Nothing is loaded from a
    /// folder that no library can be in.
    void load(const QString &folder);
    /// The same, but of a large library only the folder of the file @p first, and then some, at
    /// once: the rest is read in the background, a few milliseconds at a time. The order of the
    /// sessions is the same in the end.
    void loadSoon(const QString &folder, const QString &first);
    /// Whether there are files that nobody has looked into yet.
    [[nodiscard]] bool isLoading() const { return !m_toRead.isEmpty(); }
    /// Reads what is left of them.
    void finishLoading();
    /// Loads one file and appends its session; nullptr, and a message in the log that begins with
    /// @p caller, when it gives none. A file that is loaded already, be it by another path, gives
    /// its session.
    Session *add(const QString &path, const char *caller);
    /// Loads a session's file again when somebody else has changed it since it was loaded or
    /// noteWritten; the session is then another one. True when it was changed.
    bool refresh(const QString &path);
    /// Whether @p file, which stands at a session's path, is another one than the session knows.
    [[nodiscard]] bool hasChanged(const Session *session, const QFileInfo &file) const;
    /// Does @p work, and tells once when sessions came or went meanwhile.
    void bundle(const std::function<void()> &work);
    /// Takes the file of @p session as it stands for the one that the session knows.
    void noteWritten(const Session &session);
    /// Drops a session.
    void remove(Session *session);
    /// Drops every session at @p path or below it.
    void removeAt(const QString &path);
    /// Tells the sessions at @p from, or below it, that their files stand at @p to now.
    void movePath(const QString &from, const QString &to);
    /// Gives files and folders of @p folder in the library @p root names that can be shown, where
    /// theirs cannot, and tells. True when there were any.
    bool makeNamesReadable(const LibraryFolder &root, const QString &folder);
    /// Lets go of every session and loads them again; what the rider has said about them, and could
    /// not be written so far, stays.
    void reload(const QString &folder);

    [[nodiscard]] QList<Session *> sessions() const;
    [[nodiscard]] qsizetype size() const { return static_cast<qsizetype>(m_sessions.size()); }
    [[nodiscard]] Session *at(qsizetype index) const;
    /// The position of the first session with that file path; -1 without one.
    [[nodiscard]] qsizetype indexOf(const QString &path) const;
    [[nodiscard]] qsizetype indexOf(const Session *session) const;
    /// The session with that file path, in constant time; nullptr without one.
    [[nodiscard]] Session *find(const QString &path) const { return m_paths.value(path); }

    /// What the rider has said about a session and its file has not got; @p session is nullptr when
    /// the file is gone.
    struct Unsaved
    {
        QString path;
        Session *session = nullptr;
        SessionInformation information;
    };
    [[nodiscard]] QList<Unsaved> unsaved() const;
    /// Takes what was said about the session at @p path for saved.
    void forgetUnsaved(const QString &path);

    /// For each file name whether its session has never been opened; the last of several sessions
    /// of a name counts.
    [[nodiscard]] QMap<QString, bool> viewedStateMap() const;

Q_SIGNALS:
    /// Sent while the session still stands, so that views can let go of it.
    void sessionAboutToBeRemoved(zuno::Session *session);
    /// Sessions came or went.
    void sessionsChanged();
    /// So many files of a large library are read; both are equal at the end.
    void loadingAdvanced(qsizetype read, qsizetype all);
    /// A message for the rider.
    void noticed(const QString &message);

private:
    /// What was said about a session before its file is read again.
    struct Said
    {
        explicit Said(const Session &session);
        void putInto(Session &session) const;

        QString path;
        Recording recording;
        StoredState stored;
        StoredState edited;
        bool isUnsaved = false;
    };

    // What is known of a session's file.
    struct Known
    {
        FileStamp stamp;
        /// Where it stands without links.
        QString file;
    };

    void listBelow(const QString &folder);
    void putFirst(const QString &file);
    void readSome(qsizetype most);
    void readOn();
    void restoreOrder();
    void forget(const Session *session);
    bool makeNamesReadable(const LibraryFolder &root);
    Session *append(const QString &path, const char *caller);
    void keep(const Session &session);
    void tell();

    std::vector<std::unique_ptr<Session>> m_sessions;
    QHash<const Session *, Known> m_known;
    /// The sessions by their paths, and by where their files stand without links.
    QHash<QString, Session *> m_paths;
    QHash<QString, Session *> m_files;
    // The files that are being read, in their order in the library, and those still to be read.
    QStringList m_order;
    QStringList m_toRead;
    QTimer m_readOn;
    // Of sessions whose files are gone: unsaved, until they come back.
    std::vector<Said> m_kept;
    int m_bundles = 0;
    bool m_isUntold = false;
};

} // namespace zuno
