// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/librarytree.h>

#include <algorithm>

#include <QAction>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMetaMethod>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QTreeView>

#include <base/settings.h>
#include <base/trash.h>
#include <formats/rideexport.h>
#include <library/acquisitionlibrary.h>
#include <library/customfilesystemmodeldelegate.h>
#include <library/deletion.h>
#include <library/sessionname.h>
#include <theme/themedicon.h>
#include <track/map.h>
#include <widgets/plaintexts.h>

namespace zuno {

namespace {

// Blanks after a label make its dialog wide enough for a session's name.
constexpr int LabelPadding = 60;

// Longer than from one step to the next while a key is held down; ms.
constexpr int StepTime = 120;

QString padded(const QString &label)
{
    return label + QString(LabelPadding, u' ');
}

QString askForName(QWidget *parent, const QString &title, const QString &label,
                   const QString &before, bool &accepted)
{
    QInputDialog dialog(parent, Qt::Window);
    dialog.setInputMode(QInputDialog::TextInput);
    dialog.setWindowTitle(title);
    dialog.setLabelText(padded(label));
    dialog.setTextValue(before);
    dialog.setCancelButtonText(LibraryTree::tr("Cancel"));
    if (auto *edit = dialog.findChild<QLineEdit *>()) {
        static const QRegularExpression allowed(QStringLiteral("[^\\\\/`~@#$%^&*:?\"<>|]*"));
        edit->setValidator(new QRegularExpressionValidator(allowed, edit));
        edit->setToolTip(LibraryTree::tr("Do not use [^\\/`~@#$%^&*:?\"<>|] characters"));
    }
    showPlainTexts(dialog);
    accepted = dialog.exec() == QDialog::Accepted;
    return dialog.textValue();
}

bool haveSameMap(const QList<Session *> &sessions)
{
    const Map *reference = nullptr;
    for (const Session *session : sessions) {
        const Map *map = session->map();
        if (map == nullptr)
            continue;
        if (reference != nullptr && reference->name() != map->name())
            return false;
        if (reference == nullptr)
            reference = map;
    }
    return true;
}

} // namespace

LibraryTree::LibraryTree(QTreeView &view, AcquisitionLibrary &library, const Settings &settings)
    : QObject(&view)
    , m_view(view)
    , m_library(library)
    , m_settings(settings)
    , m_sync(library)
    , m_delegate(new CustomFileSystemModelDelegate(settings.path(SettingsFile::Monitor), this))
    , m_rename(makeAction(tr("Rename"), QStringLiteral("rename.png"), Qt::Key_F2))
    , m_delete(makeAction(tr("Delete"), QStringLiteral("cross.png"), QKeySequence::Delete))
    , m_newFolder(makeAction(tr("New folder"), QStringLiteral("newfolder.png"),
                             QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N)))
    , m_exportSession(makeAction(tr("Export Session"), QStringLiteral("export.png"), {}))
    , m_exportData(makeAction(tr("Export Session Data (CSV)"), QStringLiteral("export.png"), {}))
    , m_idealTime(
          makeAction(tr("Compute multisession ideal time"), QStringLiteral("compute.png"), {}))
    , m_formats(new QMenu(tr("Export for other programs"), &view))
{
    m_view.setItemDelegate(m_delegate);
    m_view.installEventFilter(this);
    m_view.setToolTip(tr("Enter displays a session, F2 renames, Del deletes"));
    connect(&m_sync, &FolderSync::fileChanged, this, &LibraryTree::fileChanged);
    connect(&m_sync, &FolderSync::rootLost, this, &LibraryTree::hideFolder, Qt::QueuedConnection);
    connect(&m_sync, &FolderSync::rootReturned, this, &LibraryTree::showFolder,
            Qt::QueuedConnection);
    m_settling.setSingleShot(true);
    connect(&m_settling, &QTimer::timeout, this, &LibraryTree::tellCurrent);
    connect(m_rename, &QAction::triggered, this, &LibraryTree::renameCurrent);
    connect(m_delete, &QAction::triggered, this, &LibraryTree::deleteSelected);
    connect(m_newFolder, &QAction::triggered, this, &LibraryTree::createFolder);
    connect(m_exportSession, &QAction::triggered, this, [this] {
        const auto sessions = selectedSessions();
        if (!sessions.isEmpty())
            Q_EMIT exportSessionRequested(sessions.first());
    });
    connect(m_exportData, &QAction::triggered, this, [this] {
        const auto sessions = selectedSessions();
        if (!sessions.isEmpty())
            Q_EMIT exportDataRequested(sessions.first());
    });
    connect(m_idealTime, &QAction::triggered, this,
            [this] { Q_EMIT idealTimeRequested(selectedSessions()); });
    connect(&m_view, &QTreeView::customContextMenuRequested, this, &LibraryTree::openMenu);
    createFormats();
}

void LibraryTree::createFormats()
{
    m_formats->setIcon(m_exportSession->icon());
    for (const RideFormat &format : rideFormats()) {
        const QString id = QString::fromLatin1(format.id);
        QAction *action = m_formats->addAction(QString::fromLatin1(format.name));
        connect(action, &QAction::triggered, this,
                [this, id] { Q_EMIT exportRidesRequested(selectedSessions(), id); });
    }
}

LibraryTree::~LibraryTree()
{
    m_view.setModel(nullptr);
}

QAction *LibraryTree::makeAction(const QString &text, const QString &icon,
                                 const QKeySequence &shortcut)
{
    auto *action = new QAction(themedIcon(icon), text, this);
    action->setShortcut(shortcut);
    // The keys are taken by handleKey; here they are only shown.
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setShortcutVisibleInContextMenu(true);
    return action;
}

void LibraryTree::setFolder(const QString &folder)
{
    m_folder = LibraryFolder(folder, m_settings);
    m_sync.setRoot(m_folder);
    if (m_folder.isReady())
        listFolder();
    else
        dropModel();
}

void LibraryTree::showFolder()
{
    // The model goes on watching the folder that was moved away.
    if (m_folder.isReady()) {
        listFolder();
        Q_EMIT folderChanged();
    }
}

void LibraryTree::hideFolder()
{
    dropModel();
    Q_EMIT folderChanged();
}

// A model without its folder shows the whole computer.
void LibraryTree::dropModel()
{
    m_settling.stop();
    m_view.setModel(nullptr);
    if (!m_model)
        return;
    // It may be the model that has told.
    m_model->disconnect(this);
    m_model.release()->deleteLater();
}

void LibraryTree::listFolder()
{
    dropModel();
    m_isRestored = false;
    m_model = std::make_unique<QFileSystemModel>();
    m_model->setIconProvider(&m_icons);
    m_model->setReadOnly(false);
    m_model->setNameFilters({QStringLiteral("*.ra1")});
    m_model->setNameFilterDisables(false);
    m_model->setRootPath(folder());
    m_model->sort(0);
    updateViewedStates();
    const QModelIndex root = m_model->index(folder());
    m_view.setModel(m_model.get());
    m_view.setRootIndex(root);
    m_view.setCurrentIndex(root);
    m_view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view.setHeaderHidden(true);
    for (int column = 1; column < m_model->columnCount(); ++column)
        m_view.hideColumn(column);
    connectModel();
}

void LibraryTree::connectModel()
{
    connect(m_view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &LibraryTree::onSelectionChanged);
    connect(m_model.get(), &QFileSystemModel::directoryLoaded, this, [this](const QString &folder) {
        restoreSelection();
        // It is also listed again because something in it has changed.
        m_sync.look(folder);
        // Only now it is known where in its folder a file stands.
        if (!m_wanted.isEmpty() && m_wanted == currentPath()
            && folder == QFileInfo(m_wanted).absolutePath())
            m_view.scrollTo(m_view.currentIndex());
    });
    connect(
        m_model.get(), &QFileSystemModel::dataChanged, this,
        [this](const QModelIndex &topLeft) { m_sync.look(m_model->filePath(topLeft.parent())); });
    connect(m_model.get(), &QFileSystemModel::rowsInserted, this, &LibraryTree::rowsInserted);
    connect(m_model.get(), &QFileSystemModel::rowsRemoved, this, &LibraryTree::onRowsChanged);
}

// Which rows it were does not matter: their folder is looked at as a whole.
void LibraryTree::onAddNewFiles(const QModelIndex &parent, int /*first*/, int /*last*/)
{
    onRowsChanged(parent);
}

void LibraryTree::onRowsChanged(const QModelIndex &parent)
{
    m_sync.look(m_model->filePath(parent));
    if (!m_view.rootIndex().isValid()) {
        dropModel();
        m_sync.loseRoot();
    }
}

// A session takes a while to be worked on, and a key that is held down selects thirty a second:
// of such a run only the one at which the rider stops is told.
void LibraryTree::onSelectionChanged()
{
    // From here on the rider decides what is selected. When the selected file vanishes, its
    // neighbour becomes current, but nobody has asked to see it.
    m_isRestored = true;
    const auto isRecent
        = [](const QElapsedTimer &since) { return since.isValid() && !since.hasExpired(StepTime); };
    if (isRecent(m_sinceKey) && isRecent(m_sinceChange))
        m_settling.start(StepTime);
    else
        tellCurrent();
    m_sinceChange.start();
}

void LibraryTree::tellCurrent()
{
    m_settling.stop();
    if (m_view.selectionModel() != nullptr && m_view.selectionModel()->hasSelection())
        Q_EMIT currentChanged();
    // The work on it is no pause between two keys.
    m_sinceChange.start();
}

void LibraryTree::updateViewedStates()
{
    m_delegate->setViewedStates(m_library.viewedStateMap());
    m_view.viewport()->update();
}

QString LibraryTree::currentPath() const
{
    const QModelIndex index = m_view.currentIndex();
    return m_model && index.isValid() ? m_model->filePath(index) : QString();
}

bool LibraryTree::isCurrentFile() const
{
    const QModelIndex index = m_view.currentIndex();
    return m_model && index.isValid() && !m_model->isDir(index);
}

void LibraryTree::select(const QString &path)
{
    if (!m_model)
        return;
    m_wanted = path;
    selectOnly(path);
    if (m_model)
        m_view.scrollTo(m_model->index(path));
}

void LibraryTree::selectOnly(const QString &path)
{
    if (!m_model)
        return;
    const QModelIndex index = m_model->index(path);
    // Current before it is selected: what listens to the selection asks for the current item.
    m_view.selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    m_view.selectionModel()->select(index, QItemSelectionModel::ClearAndSelect
                                               | QItemSelectionModel::Rows);
    if (m_settling.isActive())
        tellCurrent();
}

bool LibraryTree::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress)
        m_sinceKey.start();
    return QObject::eventFilter(watched, event);
}

void LibraryTree::restoreSelection()
{
    if (m_isRestored)
        return;
    const QString last = m_settings.value(Setting::LastFileSelected).toString();
    if (!last.isEmpty() && m_library.find(last) != nullptr) {
        m_isRestored = true;
        select(last);
    }
}

QModelIndexList LibraryTree::selectedRows() const
{
    return m_view.selectionModel() != nullptr ? m_view.selectionModel()->selectedRows(0)
                                              : QModelIndexList();
}

QList<Session *> LibraryTree::selectedSessions() const
{
    QList<Session *> sessions;
    const QModelIndexList rows = selectedRows();
    for (const QModelIndex &row : rows) {
        if (Session *session = m_library.find(m_model->filePath(row)))
            sessions.append(session);
    }
    return sessions;
}

QStringList LibraryTree::selectedPaths() const
{
    QStringList paths;
    const QModelIndexList rows = selectedRows();
    for (const QModelIndex &row : rows)
        paths.append(m_model->filePath(row));
    return paths;
}

// The library's own folder is current until something in it is.
bool LibraryTree::isCurrentProtected() const
{
    const QString path = currentPath();
    return LibraryFolder::isLoggers(path) || !m_folder.mayChange(path);
}

void LibraryTree::fillMenu(QMenu &menu)
{
    const QList<Session *> sessions = selectedSessions();
    const auto isUsed
        = [this](auto signal) { return isSignalConnected(QMetaMethod::fromSignal(signal)); };
    if (sessions.size() >= 2 && haveSameMap(sessions)) {
        m_idealTime->setEnabled(isUsed(&LibraryTree::idealTimeRequested));
        menu.addAction(m_idealTime);
        menu.addMenu(m_formats);
        return;
    }
    if (!isCurrentProtected()) {
        menu.addAction(m_rename);
        menu.addAction(m_delete);
    }
    if (isCurrentFile() && sessions.size() == 1) {
        m_exportSession->setEnabled(isUsed(&LibraryTree::exportSessionRequested));
        m_exportData->setEnabled(isUsed(&LibraryTree::exportDataRequested));
        menu.addAction(m_exportSession);
        menu.addAction(m_exportData);
    }
    if (!sessions.isEmpty()) {
        m_formats->setEnabled(isUsed(&LibraryTree::exportRidesRequested));
        menu.addMenu(m_formats);
    }
    if (!isCurrentFile())
        menu.addAction(m_newFolder);
}

void LibraryTree::openMenu(const QPoint &position)
{
    if (!m_view.currentIndex().isValid())
        return;
    QMenu menu;
    fillMenu(menu);
    menu.exec(m_view.viewport()->mapToGlobal(position));
}

bool LibraryTree::handleKey(const QKeyEvent &event)
{
    if (!m_view.currentIndex().isValid())
        return false;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (isCurrentFile())
            Q_EMIT currentChanged();
        else
            m_view.setExpanded(m_view.currentIndex(), !m_view.isExpanded(m_view.currentIndex()));
        return true;
    case Qt::Key_F2:
        if (!isCurrentProtected())
            renameCurrent();
        return true;
    case Qt::Key_Delete:
        deleteSelected();
        return true;
    case Qt::Key_N:
        if (event.modifiers() != (Qt::ControlModifier | Qt::ShiftModifier))
            return false;
        createFolder();
        return true;
    default:
        return false;
    }
}

void LibraryTree::renameCurrent()
{
    const QString path = currentPath();
    if (path.isEmpty() || isCurrentProtected())
        return;
    QString name = QFileInfo(path).fileName();
    name.remove(AcquisitionLibrary::Suffix);
    const bool isFile = isCurrentFile();
    bool accepted = false;
    QString newName
        = askForName(m_view.window(), tr("Rename File"), tr("New name :"), name, accepted);
    if (!accepted || newName.isEmpty())
        return;
    if (isFile)
        newName += AcquisitionLibrary::Suffix;
    if (const QString reason = faultOfSessionName(newName); !reason.isEmpty())
        Q_EMIT failed(reason);
    else if (m_model)
        rename(path, newName);
}

void LibraryTree::rename(const QString &from, const QString &newName)
{
    const QModelIndex index = m_model->index(from);
    const QString to = QFileInfo(from).absolutePath() + u'/' + newName;
    if (to == from)
        return;
    if (const QString fault = faultOfSessionName(newName); !fault.isEmpty()) {
        Q_EMIT failed(fault);
        return;
    }
    const bool taken = QFileInfo::exists(to);
    if (taken || !m_folder.mayChange(from) || !m_model->setData(index, newName, Qt::EditRole)) {
        Q_EMIT failed(taken ? tr("There is a \"%1\" already; nothing was renamed.").arg(newName)
                            : tr("\"%1\" could not be renamed.").arg(QFileInfo(from).fileName()));
        return;
    }
    m_library.movePath(from, to);
    if (QFileInfo(to).isDir()) {
        // The model goes on watching a renamed folder under its old name.
        setFolder(QString(folder()));
        select(to);
    }
    const QString last = m_settings.value(Setting::LastFileSelected).toString();
    if (last == from || last.startsWith(from + u'/'))
        m_settings.setValue(Setting::LastFileSelected, QString(to + last.mid(from.size())));
    const QString oldName = QFileInfo(from).fileName();
    const QString choice = m_settings.mapChoice(oldName);
    if (!choice.isNull()) {
        m_settings.removeMapChoice(oldName);
        m_settings.setMapChoice(newName, choice);
    }
}

void LibraryTree::deleteSelected()
{
    const QStringList chosen = selectedPaths();
    const Deletion deletion(m_folder, chosen);
    if (deletion.goes().isEmpty()) {
        if (!chosen.isEmpty())
            Q_EMIT failed(deletion.remainder());
    } else if (ask(tr("Do you want to move this to the trash?") + u"\n\n"
                   + deletion.description())) {
        remove(deletion);
    }
}

void LibraryTree::remove(const Deletion &deletion)
{
    QStringList left = deletion.carryOut(m_folder, moveToTrash);
    if (!left.isEmpty()) {
        const Deletion rest(m_folder, left);
        const QString question = tr("Are you sure you want to delete the selected files "
                                    "PERMANENTLY (not moved into the trash bin)?");
        if (ask(tr("There is no trash that takes this:") + u' ' + rest.description() + u"\n\n"
                + question))
            left = rest.carryOut(m_folder, Deletion::removeForGood);
        else
            left.clear();
    }
    forgetDeleted();
    m_sync.look(folder());
    for (const QString &path : std::as_const(left))
        Q_EMIT failed(tr("\"%1\" could not be deleted.").arg(QFileInfo(path).fileName()));
    if (left.isEmpty() && !deletion.remainder().isEmpty())
        Q_EMIT failed(deletion.remainder());
}

bool LibraryTree::ask(const QString &question)
{
    MessageBox box(QMessageBox::Warning, tr("Delete"), question, m_view.window());
    const QPushButton *yes = box.addButton(tr("Yes"), QMessageBox::YesRole);
    box.setDefaultButton(box.addButton(tr("Cancel"), QMessageBox::RejectRole));
    box.exec();
    return box.clickedButton() == yes;
}

// A library that the rider has emptied is no drive that was taken out.
void LibraryTree::forgetDeleted()
{
    const QString last = m_settings.value(Setting::LastFileSelected).toString();
    if (isAtOrBelow(last, folder()) && QFileInfo(folder()).isDir() && !QFileInfo::exists(last))
        m_settings.setValue(Setting::LastFileSelected, QString());
}

void LibraryTree::createFolder()
{
    const QString path = currentPath();
    if (isCurrentFile() || !m_folder.mayMakeIn(path))
        return;
    bool accepted = false;
    const QString name
        = askForName(m_view.window(), tr("Create new folder"), tr("Folder name :"), {}, accepted);
    if (!accepted || name.isEmpty())
        return;
    if (const QString reason = faultOfSessionName(name); !reason.isEmpty())
        Q_EMIT failed(reason);
    else if (!m_model || !m_folder.mayMakeIn(path)
             || !m_model->mkdir(m_model->index(path), name).isValid())
        Q_EMIT failed(tr("The folder \"%1\" could not be created.").arg(name));
}

} // namespace zuno
