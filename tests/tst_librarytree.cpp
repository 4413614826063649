// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <functional>

#include <QAction>
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

#include <app/acquisitionlibrary.h>
#include <app/customfilesystemmodeldelegate.h>
#include <app/librarytree.h>
#include <app/settings.h>
#include <maps/map.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

void save(const QString &path, const QByteArray &bytes = SessionBytes().bytes())
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

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
    explicit Tree(const QStringList &names, const QString &lastSelected = {})
    {
        for (const QString &name : names)
            save(path(name));
        if (!lastSelected.isEmpty())
            settings.setValue(Setting::LastFileSelected, path(lastSelected));
        library.load(folder());
        QObject::connect(&library, &AcquisitionLibrary::sessionsChanged, &tree,
                         &LibraryTree::updateViewedStates);
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
        QStringList texts;
        for (const QAction *action : menu.actions())
            texts.append(action->isEnabled() ? action->text() : u'(' + action->text() + u')');
        return texts.join(u'|');
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

/// What the delegate makes of an item's text.
QStyleOptionViewItem styled(const QAbstractItemDelegate &delegate, const QString &text)
{
    struct Access : QStyledItemDelegate
    {
        using QStyledItemDelegate::initStyleOption;
    };
    QStandardItemModel model;
    model.appendRow(new QStandardItem(text));
    QStyleOptionViewItem option;
    const auto &styledDelegate = static_cast<const QStyledItemDelegate &>(delegate);
    (styledDelegate.*&Access::initStyleOption)(&option, model.index(0, 0));
    return option;
}

} // namespace

class TestLibraryTree final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void restores_data();
    void restores();
    void newFiles();
    void vanishing();
    void menus_data();
    void menus();
    void menuEntriesWork();
    void rootIsSafe();
    void renames_data();
    void renames();
    void renameKeepsWhatBelongsToIt();
    void renamedFolderLives();
    void deletes_data();
    void deletes();
    void keys();
    void delegateTexts();
    void devices();
};

void TestLibraryTree::restores_data()
{
    QTest::addColumn<QString>("last");
    QTest::addColumn<QString>("restored");
    QTest::newRow("in a folder of a folder") << u"ZUNO/deep/c.ra1"_s << u"ZUNO/deep/c.ra1"_s;
    QTest::newRow("gone") << u"gone.ra1"_s << u""_s;
    QTest::newRow("a folder") << u"ZUNO"_s << u""_s;
    QTest::newRow("the rider was first") << u"a.ra1"_s << u"ZUNO/b.ra1"_s;
}

void TestLibraryTree::restores()
{
    QFETCH(const QString, last);
    QFETCH(const QString, restored);
    Tree tree({u"a.ra1"_s, u"ZUNO/b.ra1"_s, u"ZUNO/deep/c.ra1"_s}, last);
    const QSignalSpy changed(&tree.tree, &LibraryTree::currentChanged);
    if (last == u"a.ra1")
        tree.select({restored});
    QVERIFY(tree.show());
    tree.view.expandAll();
    QTRY_COMPARE(tree.tree.isCurrentFile() ? tree.current() : u""_s, restored);
    QTest::qWait(50);
    QCOMPARE(changed.count(), restored.isEmpty() ? 0 : 1);
    QCOMPARE(tree.tree.isCurrentFile(), !restored.isEmpty());
}

void TestLibraryTree::newFiles()
{
    Tree tree({u"m.ra1"_s, u"ZUNO/a.ra1"_s});
    QVERIFY(tree.show());
    tree.view.expand(tree.index(u"ZUNO"_s));
    QTRY_COMPARE(tree.model().rowCount(tree.index(u"ZUNO"_s)), 1);
    save(tree.path(u"text.ra1"_s), "hello");
    for (const char *name : {"x.ra1", "a.ra1", "ZUNO/b.ra1", "new/c.ra1"})
        save(tree.path(QString::fromLatin1(name)));
    QTRY_COMPARE(tree.sessions(), u"ZUNO/a.ra1|ZUNO/b.ra1|a.ra1|m.ra1|x.ra1"_s);
    QVERIFY(styled(*tree.view.itemDelegate(), u"x.ra1"_s).font.bold());
    QVERIFY(!tree.tree.isCurrentFile());
    QTRY_COMPARE(tree.model().rowCount(tree.view.rootIndex()), 6);
    // A folder is looked into when it is opened.
    tree.view.expand(tree.index(u"new"_s));
    QTRY_VERIFY(tree.sessions().contains(u"|new/c.ra1|"));
}

// Nobody has asked to see the neighbour of a file that vanished.
void TestLibraryTree::vanishing()
{
    Tree tree({u"a.ra1"_s, u"b.ra1"_s, u"c.ra1"_s, u"d/e.ra1"_s, u"d/f/g.ra1"_s});
    QVERIFY(tree.show());
    tree.select({u"a.ra1"_s});
    const QSignalSpy changed(&tree.tree, &LibraryTree::currentChanged);
    const QSignalSpy leaving(&tree.library, &AcquisitionLibrary::sessionAboutToBeRemoved);
    QVERIFY(QFile::remove(tree.path(u"a.ra1"_s)) && QFile::remove(tree.path(u"b.ra1"_s)));
    QTRY_COMPARE(tree.sessions(), u"c.ra1|d/e.ra1|d/f/g.ra1"_s);
    QVERIFY(QDir(tree.path(u"d"_s)).removeRecursively());
    QTRY_COMPARE(tree.sessions(), u"c.ra1"_s);
    QCOMPARE(leaving.count(), 4);
    QTest::qWait(50);
    QCOMPARE(changed.count(), 0);
}

void TestLibraryTree::menus_data()
{
    QTest::addColumn<QString>("selected"); // the first is current
    QTest::addColumn<QString>("entries");
    const QString file = u"Rename|Delete|(Export Session)|(Export Session Data (CSV))"_s;
    const QString ideal = u"(Compute multisession ideal time)"_s;
    QTest::newRow("folder") << u"Days"_s << u"Rename|Delete|New folder"_s;
    QTest::newRow("session") << u"none.ra1"_s << file;
    QTest::newRow("no session") << u"text.ra1"_s << u"Rename|Delete"_s;
    QTest::newRow("a logger's folder") << u"my zuno"_s << u"New folder"_s;
    QTest::newRow("a logger's file") << u"Zuno.ra1"_s << file.mid(14);
    QTest::newRow("on one map") << u"a1.ra1|a2.ra1"_s << ideal;
    QTest::newRow("one without a map") << u"a1.ra1|none.ra1"_s << ideal;
    QTest::newRow("on two maps") << u"a1.ra1|b.ra1"_s << u"Rename|Delete"_s;
    QTest::newRow("session and folder") << u"a1.ra1|Days"_s << file;
}

void TestLibraryTree::menus()
{
    QFETCH(const QString, selected);
    Tree tree({u"a1.ra1"_s, u"a2.ra1"_s, u"b.ra1"_s, u"none.ra1"_s, u"Zuno.ra1"_s, u"Days/x.ra1"_s,
               u"my zuno/x.ra1"_s});
    save(tree.path(u"text.ra1"_s), "hello");
    QVERIFY(tree.show());
    const auto hill = lineMap(10, 680);
    const auto heath = lineMap(10, 680);
    heath->setName(u"/Heath.map"_s);
    tree.library.find(tree.path(u"a1.ra1"_s))->setMap(hill.get());
    tree.library.find(tree.path(u"a2.ra1"_s))->setMap(hill.get());
    tree.library.find(tree.path(u"b.ra1"_s))->setMap(heath.get());
    tree.select(selected.split(u'|'));
    QTEST(tree.menu(), "entries");
}

void TestLibraryTree::menuEntriesWork()
{
    Tree tree({u"a.ra1"_s, u"b.ra1"_s});
    QVERIFY(tree.show());
    const QSignalSpy whole(&tree.tree, &LibraryTree::exportSessionRequested);
    const QSignalSpy data(&tree.tree, &LibraryTree::exportDataRequested);
    const QSignalSpy ideal(&tree.tree, &LibraryTree::idealTimeRequested);
    tree.select({u"b.ra1"_s});
    QCOMPARE(tree.menu(), u"Rename|Delete|Export Session|Export Session Data (CSV)"_s);
    QMenu one;
    tree.tree.fillMenu(one);
    one.actions()[2]->trigger();
    one.actions()[3]->trigger();
    tree.select({u"b.ra1"_s, u"a.ra1"_s});
    QMenu two;
    tree.tree.fillMenu(two);
    two.actions()[0]->trigger();
    Session *b = tree.library.find(tree.path(u"b.ra1"_s));
    QCOMPARE(whole.value(0).value(0).value<Session *>(), b);
    QCOMPARE(data.value(0).value(0).value<Session *>(), b);
    QCOMPARE(ideal.value(0).value(0).value<QList<Session *>>().size(), 2);
}

// The library's folder is current until something in it is selected; that must not offer the
// rider to delete the whole library.
void TestLibraryTree::rootIsSafe()
{
    Tree tree({u"a.ra1"_s});
    QVERIFY(tree.show());
    const Answer answer([](QDialog &dialog) { dialog.reject(); });
    tree.press(Qt::Key_Delete);
    tree.press(Qt::Key_F2);
    QCOMPARE(answer.count, 0);
    QVERIFY2(!tree.menu().contains(u"Delete") && !tree.menu().contains(u"Rename"),
             qPrintable(tree.menu()));
}

void TestLibraryTree::renames_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("failures");
    QTest::newRow("another") << u"(it's 1)"_s << int(Qt::Key_Return) << u"(it's 1).ra1"_s << 0;
    QTest::newRow("cancelled") << u"z"_s << int(Qt::Key_Escape) << u"a.ra1"_s << 0;
    QTest::newRow("nothing") << u""_s << int(Qt::Key_Return) << u"a.ra1"_s << 0;
    QTest::newRow("taken") << u"b"_s << int(Qt::Key_Return) << u"a.ra1"_s << 1;
    QTest::newRow("other case") << u"A"_s << int(Qt::Key_Return) << u"A.ra1"_s << 0;
    QTest::newRow("forbidden") << u"A\\/`~@#$%^&*:?\"<>|y"_s << int(Qt::Key_Return) << u"Ay.ra1"_s
                               << 0;
}

void TestLibraryTree::renames()
{
    QFETCH(const QString, typed);
    QFETCH(const int, key);
    QFETCH(const QString, name);
    Tree tree({u"a.ra1"_s, u"b.ra1"_s});
    QVERIFY(tree.show());
    tree.select({u"a.ra1"_s});
    const QSignalSpy failed(&tree.tree, &LibraryTree::failed);
    const Answer answer(typing(typed, key));
    tree.tree.renameCurrent();
    QTEST(int(failed.count()), "failures");
    QCOMPARE(tree.sessions(), name + u"|b.ra1");
    QTest::qWait(100);
    // The folder's own news of it change nothing any more.
    QCOMPARE(tree.sessions(), name + u"|b.ra1");
    QVERIFY(QFile::exists(tree.path(name)));
    QCOMPARE(QDir(tree.folder()).entryList(QDir::Files).size(), 2);
    QCOMPARE(tree.current(), name);
}

void TestLibraryTree::renameKeepsWhatBelongsToIt()
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
void TestLibraryTree::renamedFolderLives()
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
    tree.select({u"v1.0/a.ra1"_s});
    const Answer yes(pressing(u"Yes"_s));
    tree.tree.deleteSelected();
    QTRY_COMPARE(tree.sessions(), u"Days 2/d.ra1|v1.0/b.ra1|v1.0/deep/c.ra1"_s);
    QVERIFY(QFile::remove(tree.path(u"v1.0/b.ra1"_s)));
    QTRY_COMPARE(tree.sessions(), u"Days 2/d.ra1|v1.0/deep/c.ra1"_s);
}

void TestLibraryTree::deletes_data()
{
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("left");
    QTest::newRow("not after all") << u"a.ra1"_s << u"Cancel"_s << u"a.ra1|b.ra1|d/e.ra1|d/f.ra1"_s;
    QTest::newRow("folder") << u"d"_s << u"Yes"_s << u"a.ra1|b.ra1"_s;
    QTest::newRow("several") << u"a.ra1|d|d/e.ra1"_s << u"Yes"_s << u"b.ra1"_s;
}

void TestLibraryTree::deletes()
{
    QFETCH(const QString, selected);
    QFETCH(const QString, button);
    Tree tree({u"a.ra1"_s, u"b.ra1"_s, u"d/e.ra1"_s, u"d/f.ra1"_s});
    QVERIFY(tree.show());
    tree.select(selected.split(u'|'));
    const QSignalSpy failed(&tree.tree, &LibraryTree::failed);
    const Answer answer(pressing(button));
    tree.tree.deleteSelected();
    QCOMPARE(answer.count, 1);
    for (const QString &name : selected.split(u'|'))
        QCOMPARE(QFile::exists(tree.path(name)), button == u"Cancel");
    QFETCH(const QString, left);
    QTRY_COMPARE(tree.sessions(), left);
    QCOMPARE(failed.count(), 0);
}

void TestLibraryTree::keys()
{
    Tree tree({u"a.ra1"_s, u"Days/b.ra1"_s, u"ZUNO (1)/c.ra1"_s});
    QVERIFY(tree.show());
    tree.select({u"a.ra1"_s});
    const QSignalSpy changed(&tree.tree, &LibraryTree::currentChanged);
    QVERIFY(tree.press(Qt::Key_Return));
    QCOMPARE(changed.count(), 1);
    QVERIFY(!tree.press(Qt::Key_Down));
    const Answer yes(pressing(u"Yes"_s));
    QVERIFY(tree.press(Qt::Key_Delete));
    QVERIFY(!QFile::exists(tree.path(u"a.ra1"_s)));
    tree.select({u"Days"_s});
    for (const bool isExpanded : {true, false}) {
        QVERIFY(tree.press(Qt::Key_Return));
        QCOMPARE(tree.view.isExpanded(tree.index(u"Days"_s)), isExpanded);
    }
    // The logger's own names stay, whatever is pressed.
    tree.select({u"ZUNO (1)"_s});
    const Answer answer([](QDialog &dialog) { dialog.reject(); });
    QVERIFY(tree.press(Qt::Key_F2));
    QVERIFY(tree.press(Qt::Key_Delete));
    QCOMPARE(answer.count, 0);
}

void TestLibraryTree::delegateTexts()
{
    CustomFileSystemModelDelegate delegate({});
    delegate.setViewedStates({{u"new.ra1"_s, true}, {u"seen.ra1"_s, false}});
    for (const auto &[item, isBold, text] :
         {std::tuple(u"new.ra1"_s, true, u"new"_s), std::tuple(u"seen.ra1"_s, false, u"seen"_s),
          std::tuple(u"v1.0 damaged.ra1"_s, false, u"v1.0 damaged"_s),
          std::tuple(u"x.RA1"_s, false, u"x.RA1"_s), std::tuple(u"new"_s, false, u"new"_s)}) {
        const QStyleOptionViewItem option = styled(delegate, item);
        QCOMPARE(option.font.bold(), isBold);
        QCOMPARE(option.text, text);
        QVERIFY(option.icon.isNull());
    }
}

void TestLibraryTree::devices()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"ConfigMonitor.ini"_s);
    save(path, "[AA.BB.CC.DD.EE.FF]\nCustomZUNOName=Track bike\n");
    const CustomFileSystemModelDelegate delegate(path);
    for (const auto &[item, isDevice, suffix] :
         {std::tuple(u"Bike (AA.BB.CC.DD.EE.FF)"_s, true, u" - Track bike"_s),
          std::tuple(u"Bike (AA:BB:CC:DD:EE:FF)"_s, true, u" - Track bike"_s),
          std::tuple(u"Bike (old) (AA.BB.CC.DD.EE.FF) 2"_s, true, u" - Track bike"_s),
          std::tuple(u"Bike (00.00.00.00.00.00)"_s, true, u""_s),
          std::tuple(u"Bike (AA.BB.CC.DD.EE.F"_s, false, u""_s),
          std::tuple(u"(AA.BB.CC.DD.EE.FF)"_s, false, u""_s)}) {
        const QStyleOptionViewItem option = styled(delegate, item);
        QCOMPARE(option.text, item + suffix);
        QCOMPARE(option.features.testFlag(QStyleOptionViewItem::HasDecoration), isDevice);
    }
}

QTEST_MAIN(TestLibraryTree)
#include "tst_librarytree.moc"
