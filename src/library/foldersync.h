// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDateTime>
#include <QFileInfo>
#include <QHash>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>

#include <library/libraryfolder.h>

namespace zuno {

class AcquisitionLibrary;
class Session;

/// Keeps the library in step with folders in which something has changed.
///
/// Thousands of changes a second cost no more than a look at their folder now and then. A folder is
/// looked at again until nothing in it changes any more: while a file is being written nobody tells
/// of its growing, and a folder that was moved meanwhile tells nothing at all.
class FolderSync : public QObject
{
    Q_OBJECT

public:
    explicit FolderSync(AcquisitionLibrary &library, QObject *parent = nullptr);

    /// The folder of all sessions; nothing outside is looked at. While it is not there, it is
    /// waited for.
    void setRoot(const LibraryFolder &root);
    /// Takes the root for lost, whatever may stand there by now.
    void loseRoot();
    /// Looks at @p folder soon: at its files, whether the folders in it are still there, and at all
    /// that is in new ones.
    void look(const QString &folder);

Q_SIGNALS:
    /// The file of a session is another one now.
    void fileChanged(const QString &path);
    /// The root is not there any more.
    void rootLost();
    /// The root was away, and is there again.
    void rootReturned();

private:
    struct Stamp
    {
        qint64 size = -1;
        QDateTime modified;

        friend bool operator==(const Stamp &, const Stamp &) = default;
    };
    using Contents = QHash<QString, Stamp>;
    // In the order of the paths, so that those below a folder stand together.
    using Sessions = QMap<QString, const Session *>;

    void lookBelow(const QString &folder);
    void lookAtAll();
    void lookAt(const QString &folder, const Sessions &known);
    void follow(const QFileInfo &file, const Session *session);
    void dropMissing(const QString &folder, const Sessions &known, const Contents &now);

    [[nodiscard]] bool isRootMissing();

    AcquisitionLibrary &m_library;
    LibraryFolder m_root;
    bool m_wasRootMissing = false;
    QTimer m_soon;
    QTimer m_again;
    QSet<QString> m_waiting;
    QSet<QString> m_restless;
    /// What the folders held when they were looked at last.
    QHash<QString, Contents> m_contents;
};

} // namespace zuno
