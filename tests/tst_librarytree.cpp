// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>
#include <fstream>
#include <functional>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileSystemModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <base/settings.h>
#include <library/acquisitionlibrary.h>
#include <library/deletion.h>
#include <library/libraryfolder.h>
#include <library/librarytree.h>

#include "builders.h"
#include "widgets.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

/// Answers the next modal dialogs with @p act while this stands.
class Answer
{
public:
    explicit Answer(const std::function<void(QDialog &)> &act, int times = 1)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, act, times] {
            if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
                if (++count == times)
                    m_timer.stop();
                act(*dialog);
            }
        });
        m_timer.start(10);
    }
    int count = 0;

private:
    QTimer m_timer;
};

/// Types a name, key by key.
std::function<void(QDialog &)> typing(const QString &name, int key = Qt::Key_Return)
{
    return [=](QDialog &dialog) {
        auto *edit = dialog.findChild<QLineEdit *>();
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, name);
        QTest::keyClick(edit, static_cast<Qt::Key>(key));
    };
}

std::function<void(QDialog &)> pressing(const QString &text)
{
    return [=](QDialog &dialog) {
        for (auto *button : dialog.findChildren<QPushButton *>()) {
            if (button->text() == text)
                button->click();
        }
    };
}

/// The paths of what is no folder, hidden ones too.
QStringList namesIn(const QString &folder)
{
    QStringList names;
    QDirIterator files(folder, QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QFileInfo file(files.next());
        if (file.isSymLink() || !file.isDir())
            names.append(QDir(folder).relativeFilePath(file.filePath()));
    }
    names.sort();
    return names;
}

/// The tree of a folder of sessions.
struct Tree
{
    explicit Tree(const QStringList &names)
    {
        for (const QString &name : names)
            putFile(path(name), fullSession().bytes());
        library.load(folder());
        QObject::connect(&library, &AcquisitionLibrary::sessionsChanged, &tree,
                         &LibraryTree::updateViewedStates);
        QObject::connect(&tree, &LibraryTree::rowsInserted, &tree, &LibraryTree::onAddNewFiles);
        view.setSelectionMode(QAbstractItemView::ExtendedSelection);
        view.resize(400, 400);
        view.show();
        view.activateWindow();
        tree.setFolder(folder() + u'/');
    }
    [[nodiscard]] bool show()
    {
        return QTest::qWaitForWindowActive(&view)
               && QTest::qWaitFor([this] { return model().rowCount(view.rootIndex()) > 0; });
    }
    [[nodiscard]] QString folder() const { return root.filePath(u"Sessions"_s); }
    [[nodiscard]] QString path(const QString &name) const { return folder() + u'/' + name; }
    [[nodiscard]] QFileSystemModel &model() const
    {
        return *qobject_cast<QFileSystemModel *>(view.model());
    }
    [[nodiscard]] QModelIndex index(const QString &name) const { return model().index(path(name)); }
    [[nodiscard]] QString current() const { return tree.currentPath().mid(folder().size() + 1); }
    [[nodiscard]] QString sessions() const
    {
        QStringList list;
        for (const Session *session : library.sessions())
            list.append(QDir(folder()).relativeFilePath(session->filePath()));
        list.sort();
        return list.join(u'|');
    }
    void select(const QStringList &names)
    {
        constexpr auto Row = QItemSelectionModel::Select | QItemSelectionModel::Rows;
        tree.select(path(names.first()));
        for (const QString &name : names)
            view.selectionModel()->select(index(name), Row);
    }
    /// Gives the current file or folder another name.
    void rename(const QString &from, const QString &to)
    {
        select({from});
        const Answer answer(typing(to));
        tree.renameCurrent();
    }
    [[nodiscard]] QString menu()
    {
        QMenu menu;
        tree.fillMenu(menu);
        return menuText(menu);
    }
    bool press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        return tree.handleKey(QKeyEvent(QEvent::KeyPress, key, modifiers));
    }

    QTemporaryDir root;
    Settings settings {root.filePath(u"settings"_s)};
    AcquisitionLibrary library;
    QTreeView view;
    LibraryTree tree {view, library, settings};
};

/// What the tree shows of an item of that text.
QStyleOptionViewItem styled(const QTreeView &view, const QString &text)
{
    struct Access : QStyledItemDelegate
    {
        using QStyledItemDelegate::initStyleOption;
    };
    QStandardItemModel model;
    model.appendRow(new QStandardItem(text));
    QStyleOptionViewItem option;
    const auto *delegate = static_cast<const QStyledItemDelegate *>(view.itemDelegate());
    (delegate->*&Access::initStyleOption)(&option, model.index(0, 0));
    return option;
}

} // namespace

class TestLibraryTree final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Nobody has asked to see the neighbour of a file that vanished.
    void followsTheFolder()
    {
        Tree tree({u"a.ra1"_s, u"b.ra1"_s, u"d/e.ra1"_s, u"d/f/g.ra1"_s});
        QVERIFY(tree.show());
        tree.select({u"a.ra1"_s});
        const QSignalSpy changed(&tree.tree, &LibraryTree::currentChanged);
        putFile(tree.path(u"text.ra1"_s), "hello");
        for (const char *name : {"x.ra1", "new/c.ra1"})
            putFile(tree.path(QString::fromLatin1(name)), fullSession().bytes());
        QTRY_COMPARE(tree.sessions(), u"a.ra1|b.ra1|d/e.ra1|d/f/g.ra1|new/c.ra1|x.ra1"_s);
        QVERIFY(styled(tree.view, u"x.ra1"_s).font.bold());
        QTRY_COMPARE(tree.model().rowCount(tree.view.rootIndex()), 6);
        tree.view.expand(tree.index(u"new"_s));
        QVERIFY(QFile::remove(tree.path(u"a.ra1"_s)));
        QTRY_COMPARE(tree.sessions(), u"b.ra1|d/e.ra1|d/f/g.ra1|new/c.ra1|x.ra1"_s);
        QVERIFY(QDir(tree.path(u"d"_s)).removeRecursively());
        QTRY_COMPARE(tree.sessions(), u"b.ra1|new/c.ra1|x.ra1"_s);
        QTest::qWait(50);
        QCOMPARE(changed.count(), 0);
    }

    // Nobody tells that a file grows. One signal for all, or a window with statistics stands still.
    void followsWritingAndMoving()
    {
        Tree tree({u"a.ra1"_s, u"d/b.ra1"_s, u"d/c.ra1"_s});
        QVERIFY(tree.show());
        QFile slow(tree.path(u"slow.ra1"_s));
        QVERIFY(slow.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        slow.write("\x03RA1");
        QTRY_COMPARE(tree.model().rowCount(tree.view.rootIndex()), 3);
        QTest::qWait(300);
        slow.write(fullSession().bytes().mid(4));
        QTRY_COMPARE(tree.sessions(), u"a.ra1|d/b.ra1|d/c.ra1|slow.ra1"_s);
        const QSignalSpy changed(&tree.library, &AcquisitionLibrary::sessionsChanged);
        QVERIFY(QDir().rename(tree.path(u"d"_s), tree.path(u"e"_s)));
        QTRY_COMPARE(tree.sessions(), u"a.ra1|e/b.ra1|e/c.ra1|slow.ra1"_s);
        QVERIFY(changed.count() <= 2);
    }

    // The library's folder is current until something in it is selected; that must not offer the
    // rider to delete the whole library. The logger's own names stay, too.
    void protectedNames()
    {
        Tree tree({u"a.ra1"_s, u"ZUNO (1)/c.ra1"_s});
        QVERIFY(tree.show());
        const Answer answer([](QDialog &dialog) { dialog.reject(); });
        for (const QString &name : {u""_s, u"ZUNO (1)"_s}) {
            if (!name.isEmpty())
                tree.select({name});
            tree.press(Qt::Key_Delete);
            tree.press(Qt::Key_F2);
            QCOMPARE(answer.count, 0);
            QCOMPARE(tree.menu(), u"New folder"_s);
        }
    }

    // What is typed, the reason when it is refused, and the name that "a" has then.
    void renames()
    {
        for (const auto &[typed, key, reason, name] :
             {std::tuple(u"(it's 1)"_s, Qt::Key_Return, u""_s, u"(it's 1).ra1"_s),
              std::tuple(u"z"_s, Qt::Key_Escape, u""_s, u"a.ra1"_s),
              std::tuple(u"b"_s, Qt::Key_Return, u"already"_s, u"a.ra1"_s),
              std::tuple(u"A"_s, Qt::Key_Return, u""_s, u"A.ra1"_s),
              std::tuple(u".a"_s, Qt::Key_Return, u"hidden"_s, u"a.ra1"_s),
              std::tuple(u"Aux"_s, Qt::Key_Return, u"for a device"_s, u"a.ra1"_s),
              std::tuple(u"Zuno 7"_s, Qt::Key_Return, u"loggers"_s, u"a.ra1"_s),
              std::tuple(u" a"_s, Qt::Key_Return, u"blank"_s, u"a.ra1"_s),
              std::tuple(u"A\\/`~@#$%^&*:?\"<>|y"_s, Qt::Key_Return, u""_s, u"Ay.ra1"_s)}) {
            Tree tree({u"a.ra1"_s, u"b.ra1"_s});
            QVERIFY(tree.show());
            tree.select({u"a.ra1"_s});
            const QSignalSpy failed(&tree.tree, &LibraryTree::failed);
            const Answer answer(typing(typed, key));
            tree.tree.renameCurrent();
            QCOMPARE(failed.count(), reason.isEmpty() ? 0 : 1);
            QVERIFY2(failed.isEmpty() || failed[0][0].toString().contains(reason),
                     qPrintable(failed.value(0).value(0).toString()));
            QCOMPARE(tree.sessions(), QString(name + u"|b.ra1"));
            QTest::qWait(100);
            // The folder's own news of it change nothing any more.
            QCOMPARE(tree.sessions(), QString(name + u"|b.ra1"));
            QCOMPARE(QDir(tree.folder()).entryList(QDir::Files).size(), 2);
            QCOMPARE(tree.current(), name);
        }
    }

    void renameKeepsWhatBelongsToIt()
    {
        Tree tree({u"a.ra1"_s, u"b.ra1"_s});
        QVERIFY(tree.show());
        tree.settings.setValue(Setting::LastFileSelected, tree.path(u"a.ra1"_s));
        tree.settings.setMapChoice(u"a.ra1"_s, u"/Hill.map"_s);
        tree.settings.setMapChoice(u"b.ra1"_s, u"/Heath.map"_s);
        const Session *session = tree.library.find(tree.path(u"a.ra1"_s));
        tree.rename(u"a.ra1"_s, u"z"_s);
        tree.rename(u"b.ra1"_s, u"z"_s); // Fails.
        QCOMPARE(tree.library.find(tree.path(u"z.ra1"_s)), session);
        QCOMPARE(tree.settings.value(Setting::LastFileSelected).toString(), tree.path(u"z.ra1"_s));
        QCOMPARE(tree.settings.mapChoice(u"z.ra1"_s), u"/Hill.map"_s);
        QCOMPARE(tree.settings.mapChoice(u"b.ra1"_s), u"/Heath.map"_s);
        QVERIFY(tree.settings.mapChoice(u"a.ra1"_s).isNull());
    }

    // The renamed folder is looked after as before.
    void renamedFolderLives()
    {
        Tree tree({u"Days/a.ra1"_s, u"Days/b.ra1"_s, u"Days/deep/c.ra1"_s, u"Days 2/d.ra1"_s});
        QVERIFY(tree.show());
        tree.view.expand(tree.index(u"Days"_s));
        QTRY_COMPARE(tree.model().rowCount(tree.index(u"Days"_s)), 3);
        tree.settings.setValue(Setting::LastFileSelected, tree.path(u"Days/deep/c.ra1"_s));
        tree.rename(u"Days"_s, u"v1.0"_s);
        QCOMPARE(tree.sessions(), u"Days 2/d.ra1|v1.0/a.ra1|v1.0/b.ra1|v1.0/deep/c.ra1"_s);
        QCOMPARE(tree.settings.value(Setting::LastFileSelected).toString(),
                 tree.path(u"v1.0/deep/c.ra1"_s));
        tree.view.expand(tree.index(u"v1.0"_s));
        QTRY_COMPARE(tree.model().rowCount(tree.index(u"v1.0"_s)), 3);
        QVERIFY(QFile::remove(tree.path(u"v1.0/b.ra1"_s)));
        QTRY_COMPARE(tree.sessions(), u"Days 2/d.ra1|v1.0/a.ra1|v1.0/deep/c.ra1"_s);
    }

    // The answers to the questions, what stands afterwards and what is in the trash (if there is
    // one), and words of the first question or, without one, of the message.
    void deletes_data()
    {
        QTest::addColumn<QStringList>("chosen");
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<bool>("hasTrash");
        QTest::addColumn<QString>("gone");
        QTest::addColumn<QString>("words");
        const QStringList yes {u"Yes"_s};
        const QStringList two {u"a.ra1"_s, u"d"_s, u"d/e.ra1"_s};
        QTest::newRow("two") << two << yes << true << u"a.ra1|d/.h|d/e.ra1|d/n.txt|d/s/f.ra1"_s
                             << u"a.ra1, d\n\nRecordings: 3, other files: 1, hidden files: 1"_s;
        QTest::newRow("no") << two << QStringList {u"Cancel"_s} << true << u""_s << u"a.ra1"_s;
        QTest::newRow("for good") << two << yes + yes << false
                                  << u"a.ra1|d/.h|d/e.ra1|d/n.txt|d/s/f.ra1"_s << u"trash?"_s;
        QTest::newRow("not for good")
            << two << yes + QStringList {u"Cancel"_s} << false << u""_s << u"Recordings: 3"_s;
        QTest::newRow("logger's in it") << QStringList {u"l"_s} << yes << true << u"l/g.ra1"_s
                                        << u"logger named it: ZUNO (1), zuno.txt"_s;
        QTest::newRow("logger's in it, for good")
            << QStringList {u"l"_s} << yes + yes << false << u"l/g.ra1"_s << u"Recordings: 1"_s;
        QTest::newRow("logger's") << QStringList {u"a.ra1"_s, u"l/ZUNO (1)"_s} << yes << true
                                  << u"a.ra1"_s << u"logger named it: ZUNO (1)"_s;
        QTest::newRow("nothing but logger's") << QStringList {u"l/ZUNO (1)"_s} << QStringList()
                                              << true << u""_s << u"named it: ZUNO (1)"_s;
        QTest::newRow("in the logger's") << QStringList {u"l/ZUNO (1)/h.ra1"_s} << yes << true
                                         << u"l/ZUNO (1)/h.ra1"_s << u"h.ra1"_s;
        QTest::newRow("link") << QStringList {u"out"_s} << yes << true << u"out"_s << u"out"_s;
        QTest::newRow("link, for good")
            << QStringList {u"out"_s} << yes + yes << false << u"out"_s << u"out"_s;
        QTest::newRow("through a link") << QStringList {u"out/x.ra1"_s} << QStringList() << true
                                        << u""_s << u"not in your library: x.ra1"_s;
    }
    void deletes()
    {
        QFETCH(const QStringList, chosen);
        QFETCH(const QStringList, answers);
        QFETCH(const bool, hasTrash);
        QFETCH(const QString, gone);
        QFETCH(const QString, words);
        Tree tree({u"a.ra1"_s, u"d/.h"_s, u"d/e.ra1"_s, u"d/n.txt"_s, u"d/s/f.ra1"_s, u"l/g.ra1"_s,
                   u"l/ZUNO (1)/h.ra1"_s, u"l/zuno.txt"_s, u"../else/x.ra1"_s});
        QVERIFY(QFile::link(tree.path(u"../else"_s), tree.path(u"out"_s)));
        qputenv("XDG_DATA_HOME", tree.root.path().toUtf8());
        if (!hasTrash)
            putFile(tree.root.filePath(u"Trash"_s), "in the way");
        const QStringList all = namesIn(tree.folder());
        tree.settings.setValue(Setting::LastFileSelected, tree.path(u"a.ra1"_s));
        QVERIFY(tree.show());
        tree.select(chosen);
        QCOMPARE(tree.view.selectionModel()->selectedRows().size(), chosen.size());
        QString told;
        const QSignalSpy failed(&tree.tree, &LibraryTree::failed);
        const Answer answer(
            [&, next = 0](QDialog &dialog) mutable {
                told += qobject_cast<QMessageBox *>(&dialog)->text();
                pressing(answers.value(next++))(dialog);
            },
            static_cast<int>(answers.size()));
        tree.press(Qt::Key_Delete);
        QCOMPARE(answer.count, answers.size());
        if (answers.isEmpty())
            told = failed.value(0).value(0).toString();
        QVERIFY2(told.contains(words), qPrintable(told));
        QStringList left = all;
        left.removeIf([&](const QString &name) { return gone.split(u'|').contains(name); });
        QTRY_COMPARE(namesIn(tree.folder()), left);
        QCOMPARE(QFile::exists(tree.root.filePath(u"else/x.ra1"_s)), true);
        const QStringList trash = namesIn(tree.root.filePath(u"Trash/files"_s));
        QCOMPARE(trash.size(), hasTrash && !gone.isEmpty() ? gone.split(u'|').size() : 0);
        // What the program itself has emptied is no drive that was taken out.
        QCOMPARE(tree.settings.value(Setting::LastFileSelected).toString().isEmpty(),
                 gone.startsWith(u"a.ra1"));
    }

    // No folder, no tree: the view would show the whole computer.
    void needsAFolder()
    {
        Tree tree({u"a.ra1"_s});
        QVERIFY(tree.show());
        for (const QString &folder : {u""_s, u"."_s, u"Sessions"_s, u"/"_s, u"//"_s, u"/../"_s}) {
            tree.tree.setFolder(folder);
            QVERIFY2(tree.view.model() == nullptr, qPrintable(folder));
            tree.tree.select(u"/"_s);
            for (const int key : {Qt::Key_Delete, Qt::Key_F2})
                QVERIFY(!tree.press(key));
            AcquisitionLibrary library;
            library.load(folder);
            QCOMPARE(library.size(), 0);
        }
    }

    // A logger's folder came into it between the question and the answer.
    void deletesNothingNew()
    {
        Tree tree({u"d/a.ra1"_s});
        const LibraryFolder folder(tree.folder(), tree.settings);
        const Deletion deletion(folder, {tree.path(u"d"_s)});
        QCOMPARE(deletion.goes().size(), 1);
        QVERIFY(QDir(tree.path(u"d"_s)).mkdir(u"ZUNO 1"_s));
        QCOMPARE(deletion.carryOut(folder, Deletion::removeForGood), deletion.goes());
        QVERIFY(QFile::exists(tree.path(u"d/a.ra1"_s)));
    }

    // A drive that is taken out leaves nothing, or, where it is mounted, an empty folder.
    void awayAndBack()
    {
        for (const bool leavesFolder : {false, true}) {
            Tree tree({u"a.ra1"_s, u"d/b.ra1"_s});
            tree.settings.setValue(Setting::LastFileSelected, tree.path(u"a.ra1"_s));
            QVERIFY(tree.show());
            const QSignalSpy changed(&tree.tree, &LibraryTree::folderChanged);
            const QString drive = tree.root.filePath(u"drive"_s);
            QVERIFY(QDir().rename(tree.folder(), drive));
            if (leavesFolder)
                QVERIFY(QDir().mkdir(tree.folder()));
            QTRY_VERIFY(!tree.tree.isShown());
            QTRY_COMPARE(tree.sessions(), u""_s);
            QTRY_VERIFY(!changed.isEmpty());
            const LibraryFolder folder(tree.folder(), tree.settings);
            folder.makeFirst();
            QCOMPARE(QDir(tree.folder()).exists(), leavesFolder);
            QVERIFY(!folder.mayMakeIn(tree.folder()) && !folder.problem().isEmpty());
            QTest::qWait(300);
            QVERIFY(!tree.tree.isShown());
            QVERIFY(!leavesFolder || QDir().rmdir(tree.folder()));
            QVERIFY(QDir().rename(drive, tree.folder()));
            QTRY_COMPARE(tree.sessions(), u"a.ra1|d/b.ra1"_s);
            QTRY_VERIFY(tree.tree.isShown());
            QTRY_COMPARE(tree.model().rowCount(tree.view.rootIndex()), 2);
        }
    }

    // Only a first start makes the folder, and not where a drive may belong.
    void firstFolder()
    {
        const QTemporaryDir root;
        const Settings settings(root.path());
        const QString standard = settings.acquisitionFolder();
        for (const auto &[last, folder, isMade] :
             {std::tuple(QString(standard + u"/a.ra1"), standard, false),
              {u""_s, standard, true},
              {u""_s, root.filePath(u"mount/x"_s), false},
              {u""_s, root.filePath(u"x"_s), true},
              {root.filePath(u"y/a.ra1"_s), root.filePath(u"y"_s), false}}) {
            QDir(root.path()).mkpath(u"mount"_s);
            QDir(root.path()).mkpath(QFileInfo(standard).path());
            settings.setValue(Setting::LastFileSelected, last);
            const LibraryFolder library(folder, settings);
            library.makeFirst();
            QCOMPARE(QDir(folder).exists(), isMade);
            QCOMPARE(library.isReady(), isMade);
        }
    }

    // Made before the library is loaded, or while the tree shows it.
    void links()
    {
        for (const bool isLate : {false, true}) {
            Tree tree({u"a.ra1"_s, u"d/b.ra1"_s, u"../else/x.ra1"_s, u"../else/deep/y.ra1"_s});
            const auto link = [&tree](const QString &to, const QString &at) {
                return QFile::link(to, tree.path(at));
            };
            QVERIFY(!isLate || tree.show());
            QVERIFY(link(u"."_s, u"loop"_s) && link(u".."_s, u"up"_s) && link(u"/"_s, u"all"_s)
                    && link(u"../a.ra1"_s, u"d/same.ra1"_s) && link(u"../d"_s, u"d/d"_s)
                    && link(u"../else"_s, u"out"_s) && link(u"../else"_s, u"out 2"_s)
                    && link(u"."_s, u"out/loop"_s));
            if (!isLate) {
                tree.library.load(tree.folder());
                tree.tree.setFolder(tree.folder());
            }
            // Each is found through one of the two links; which one is the folder's order.
            const auto found = [&tree] {
                QStringList list = tree.sessions().replace(u"out 2"_s, u"out"_s).split(u'|');
                list.sort();
                return list.join(u'|');
            };
            const QString sessions = u"a.ra1|d/b.ra1|out/deep/y.ra1|out/x.ra1"_s;
            QTRY_COMPARE(found(), sessions);
            for (const QString &opened : {u"loop"_s, u"loop/loop"_s, u"up"_s, u"out/loop"_s}) {
                QTRY_VERIFY(tree.index(opened).isValid());
                tree.view.expand(tree.index(opened));
            }
            QTest::qWait(400);
            QCOMPARE(found(), sessions);
        }
    }

    // As they come out of an old archive.
    void unreadableNames()
    {
        for (const bool isLate : {false, true}) {
            Tree tree({u"N\u00FCr.ra1"_s});
            QVERIFY(!isLate || tree.show());
            const QByteArray folder = QFile::encodeName(tree.folder());
            const QByteArray bytes = fullSession().bytes();
            for (const char *name : {"/N\xfcr.ra1", "/T\xe4g\x85/c.ra1"}) {
                const std::filesystem::path path(folder.toStdString() + name);
                std::filesystem::create_directories(path.parent_path());
                std::ofstream(path, std::ios::binary) << bytes.toStdString();
            }
            if (!isLate)
                tree.library.load(tree.folder());
            QTRY_COMPARE(tree.sessions(), u"N\u00FCr (2).ra1|N\u00FCr.ra1|T\u00E4g_/c.ra1"_s);
        }
    }

    // A key that is held down goes by; a single step, and what the program selects, is told.
    void tellsTheLastOfARun()
    {
        QStringList names;
        for (int i = 10; i < 40; ++i)
            names.append(u"%1.ra1"_s.arg(i));
        Tree tree(names);
        QVERIFY(tree.show());
        QTRY_COMPARE(tree.model().rowCount(tree.view.rootIndex()), names.size());
        QTest::qWait(100);
        QStringList told;
        connect(&tree.tree, &LibraryTree::currentChanged, this, [&] {
            told.append(tree.current());
            QTest::qSleep(150);
        });
        tree.select({u"10.ra1"_s});
        QCOMPARE(told, QStringList {u"10.ra1"_s});
        for (int i = 1; i < 25; ++i) {
            QTest::keyClick(&tree.view, Qt::Key_Down);
            QTest::qWait(15);
        }
        QTRY_COMPARE(told.last(), u"34.ra1"_s);
        QVERIFY2(told.size() <= 3, qPrintable(told.join(u' ')));
        QTest::qWait(150);
        told.clear();
        QTest::keyClick(&tree.view, Qt::Key_Down);
        QTest::qWait(20);
        QCOMPARE(told, QStringList {u"35.ra1"_s});
    }

    void delegateTexts()
    {
        Tree tree({u"new.ra1"_s});
        putFile(tree.settings.path(SettingsFile::Monitor),
                "[AA.BB.CC.DD.EE.FF]\nCustomZUNOName=Track bike\n");
        for (const auto &[item, text] :
             {std::pair("new.ra1", "new"), std::pair("seen.ra1", "seen"),
              std::pair("v1.0 damaged.ra1", "v1.0 damaged"),
              std::pair("Bike (AA:BB:CC:DD:EE:FF)", "Bike (AA:BB:CC:DD:EE:FF) - Track bike"),
              std::pair("Bike (00.00.00.00.00.00)", "Bike (00.00.00.00.00.00)")}) {
            const QStyleOptionViewItem option = styled(tree.view, QString::fromLatin1(item));
            QCOMPARE(option.font.bold(), qstrcmp(item, "new.ra1") == 0);
            QCOMPARE(option.text, QString::fromLatin1(text));
        }
    }
};

QTEST_MAIN(TestLibraryTree)
#include "tst_librarytree.moc"
