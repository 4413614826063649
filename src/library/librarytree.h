// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QElapsedTimer>
#include <QList>
#include <QModelIndex>
#include <QObject>
#include <QString>
#include <QTimer>

#include <library/foldersync.h>
#include <library/libraryfolder.h>
#include <library/recordingicons.h>

class QAction;
class QFileSystemModel;
class QKeyEvent;
class QMenu;
class QTreeView;

namespace zuno {

class AcquisitionLibrary;
class Deletion;
class CustomFileSystemModelDelegate;
class Session;
class Settings;

/// The file tree of the acquisition folder: keeps the library in step with the files, restores
/// the last selection, and offers what can be done with files and folders.
class LibraryTree : public QObject
{
    Q_OBJECT

public:
    LibraryTree(QTreeView &view, AcquisitionLibrary &library, const Settings &settings);
    ~LibraryTree() override;

    /// Shows @p folder as soon as it is there; until then, nothing.
    void setFolder(const QString &folder);
    [[nodiscard]] const QString &folder() const { return m_folder.path(); }
    /// Whether the folder is there and its files are shown.
    [[nodiscard]] bool isShown() const { return m_model != nullptr; }
    /// Paints the sessions as the library says they were opened.
    void updateViewedStates();

    /// The file or folder that is current; empty without one.
    [[nodiscard]] QString currentPath() const;
    [[nodiscard]] bool isCurrentFile() const;
    /// Makes a file the one selected item, which displays it, and scrolls to it.
    void select(const QString &path);
    /// The same without scrolling, for work on many files.
    void selectOnly(const QString &path);

    /// Takes the session files of @p parent into the library that are not in it; whoever listens to
    /// rowsInserted() calls it.
    void onAddNewFiles(const QModelIndex &parent, int first, int last);

    /// Acts on a key pressed in the tree; false when it means nothing here.
    bool handleKey(const QKeyEvent &event);
    /// Opens the menu of the current item; @p position is in the view's viewport.
    void openMenu(const QPoint &position);
    /// The menu's entries for what is selected.
    void fillMenu(QMenu &menu);

    void renameCurrent();
    void deleteSelected();
    void createFolder();

Q_SIGNALS:
    /// The folder is there again, or is not there any more.
    void folderChanged();
    /// The tree's model has found files or folders.
    void rowsInserted(const QModelIndex &parent, int first, int last);
    /// Another item has become current; of many in a row, the last.
    void currentChanged();
    /// A file's size or time has changed on the disk.
    void fileChanged(const QString &path);
    void exportSessionRequested(zuno::Session *session);
    void exportDataRequested(zuno::Session *session);
    void exportRidesRequested(const QList<zuno::Session *> &sessions, const QString &formatId);
    void idealTimeRequested(const QList<zuno::Session *> &sessions);
    /// Something that the rider asked for could not be done.
    void failed(const QString &message);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showFolder();
    void hideFolder();
    void listFolder();
    void dropModel();
    void connectModel();
    void onRowsChanged(const QModelIndex &parent);
    void onSelectionChanged();
    void tellCurrent();
    void restoreSelection();
    void rename(const QString &from, const QString &newName);
    [[nodiscard]] QModelIndexList selectedRows() const;
    [[nodiscard]] QList<Session *> selectedSessions() const;
    [[nodiscard]] QStringList selectedPaths() const;
    [[nodiscard]] bool isCurrentProtected() const;
    [[nodiscard]] bool ask(const QString &question);
    void createFormats();
    void remove(const Deletion &deletion);
    void forgetDeleted();
    QAction *makeAction(const QString &text, const QString &icon, const QKeySequence &shortcut);

    QTreeView &m_view;
    AcquisitionLibrary &m_library;
    const Settings &m_settings;
    FolderSync m_sync;
    RecordingIcons m_icons;
    std::unique_ptr<QFileSystemModel> m_model;
    CustomFileSystemModelDelegate *m_delegate;
    LibraryFolder m_folder;
    QTimer m_settling;
    QElapsedTimer m_sinceKey;
    QElapsedTimer m_sinceChange;
    /// The file that was to be scrolled to last.
    QString m_wanted;
    QAction *m_rename;
    QAction *m_delete;
    QAction *m_newFolder;
    QAction *m_exportSession;
    QAction *m_exportData;
    QAction *m_idealTime;
    QMenu *m_formats;
    bool m_isRestored = false;
};

} // namespace zuno
