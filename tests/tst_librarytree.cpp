// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <functional>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileSystemModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
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
#include <library/librarytree.h>

#include "builders.h"
#include "widgets.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

/// Answers the next modal dialog with @p act while this stands.
class Answer
{
public:
    explicit Answer(const std::function<void(QDialog &)> &act)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, act] {
            if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
                m_timer.stop();
                ++count;
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

    // What is typed, whether that fails, and the name that "a" has then.
    void renames()
    {
        for (const auto &[typed, key, failures, name] :
             {std::tuple(u"(it's 1)"_s, Qt::Key_Return, 0, u"(it's 1).ra1"_s),
              std::tuple(u"z"_s, Qt::Key_Escape, 0, u"a.ra1"_s),
              std::tuple(u"b"_s, Qt::Key_Return, 1, u"a.ra1"_s),
              std::tuple(u"A"_s, Qt::Key_Return, 0, u"A.ra1"_s),
              std::tuple(u"A\\/`~@#$%^&*:?\"<>|y"_s, Qt::Key_Return, 0, u"Ay.ra1"_s)}) {
            Tree tree({u"a.ra1"_s, u"b.ra1"_s});
            QVERIFY(tree.show());
            tree.select({u"a.ra1"_s});
            const QSignalSpy failed(&tree.tree, &LibraryTree::failed);
            const Answer answer(typing(typed, key));
            tree.tree.renameCurrent();
            QCOMPARE(failed.count(), failures);
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

    void deletes()
    {
        Tree tree({u"a.ra1"_s, u"b.ra1"_s, u"d/e.ra1"_s, u"d/f.ra1"_s});
        QVERIFY(tree.show());
        const QSignalSpy failed(&tree.tree, &LibraryTree::failed);
        for (const auto &[button, left] : {std::pair(u"Cancel"_s, u"a.ra1|b.ra1|d/e.ra1|d/f.ra1"_s),
                                           std::pair(u"Yes"_s, u"b.ra1"_s)}) {
            tree.select({u"a.ra1"_s, u"d"_s, u"d/e.ra1"_s});
            const Answer answer(pressing(button));
            tree.press(Qt::Key_Delete);
            QTRY_COMPARE(tree.sessions(), left);
            for (const char *name : {"a.ra1", "d"})
                QCOMPARE(QFile::exists(tree.path(QString::fromLatin1(name))), button == u"Cancel");
        }
        QCOMPARE(failed.count(), 0);
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
