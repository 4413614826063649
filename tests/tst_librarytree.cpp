// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdio>
#include <functional>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileSystemModel>
#include <QInputDialog>
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

/// Answers the next modal dialog of a kind.
template<typename Dialog>
class Answer
{
public:
    explicit Answer(std::function<void(Dialog &)> act)
    {
        m_timer.setInterval(10);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, act] {
            auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return;
            m_timer.stop();
            ++count;
            act(*dialog);
        });
        m_timer.start();
    }

    int count = 0;

private:
    QTimer m_timer;
};

/// Types a name into the dialog that asks for one; the name that it offered is in @p before.
Answer<QInputDialog> typeName(const QString &name, bool accept = true, QString *before = nullptr)
{
    return Answer<QInputDialog>([=](QInputDialog &dialog) {
        auto *edit = dialog.findChild<QLineEdit *>();
        if (before != nullptr)
            *before = dialog.textValue();
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        if (name.toLatin1().contains('\\')) // only what is typed is checked key by key
            QTest::keyClicks(edit, name);
        else
            edit->insert(name);
        QTest::keyClick(edit, accept ? Qt::Key_Return : Qt::Key_Escape);
    });
}

Answer<QMessageBox> press(const QString &button)
{
    return Answer<QMessageBox>([button](QMessageBox &box) {
        for (QAbstractButton *each : box.buttons()) {
            if (each->text() == button)
                each->click();
        }
    });
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
    [[nodiscard]] QString current() const
    {
        return QDir(folder()).relativeFilePath(tree.currentPath());
    }
    [[nodiscard]] QString sessions() const
    {
        QStringList list;
        for (const Session *session : library.sessions())
            list.append(QDir(folder()).relativeFilePath(session->filePath()));
        list.sort();
        return list.join(u'|');
    }
    void selectAll(const QStringList &names)
    {
        tree.select(path(names.first()));
        for (const QString &name : names) {
            view.selectionModel()->select(index(name),
                                          QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
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
    void riderWasFirst();
    void showsSessionsOnly();
    void newFiles();
    void newFileInOpenFolder();
    void vanishing_data();
    void vanishing();
    void vanishingSelection();
    void changedFile();
    void menus_data();
    void menus();
    void menuEntriesWork();
    void rootIsSafe();
    void renames_data();
    void renames();
    void renameKeepsWhatBelongsToIt();
    void renamesFolder();
    void renamedFolderLives();
    void forbiddenCharacters();
    void deletes_data();
    void deletes();
    void createsFolder_data();
    void createsFolder();
    void keys();
    void weights_data();
    void weights();
    void devices_data();
    void devices();
};

void TestLibraryTree::restores_data()
{
    QTest::addColumn<QString>("last");
    QTest::addColumn<bool>("restored");
    QTest::newRow("at the top") << u"b.ra1"_s << true;
    QTest::newRow("in a folder of a folder") << u"ZUNO/deep/c.ra1"_s << true;
    QTest::newRow("gone") << u"gone.ra1"_s << false;
    QTest::newRow("a folder") << u"ZUNO"_s << false;
    QTest::newRow("none") << QString() << false;
}

void TestLibraryTree::restores()
{
    QFETCH(const QString, last);
    QFETCH(const bool, restored);
    Tree tree({u"a.ra1"_s, u"b.ra1"_s, u"ZUNO/deep/c.ra1"_s}, last);
    const QSignalSpy changed(&tree.tree, &LibraryTree::currentChanged);
    QVERIFY(tree.show());
    if (restored) {
        QTRY_COMPARE(tree.current(), last);
        QVERIFY(tree.tree.isCurrentFile());
        QCOMPARE(tree.view.selectionModel()->selectedRows(), QModelIndexList {tree.index(last)});
    }
    QTest::qWait(50);
    QCOMPARE(changed.count(), restored ? 1 : 0);
    QCOMPARE(tree.tree.isCurrentFile(), restored);
}

// Folders that load later leave the selection alone.
void TestLibraryTree::riderWasFirst()
{
    Tree tree({u"a.ra1"_s, u"ZUNO/b.ra1"_s}, u"a.ra1"_s);
    tree.tree.select(tree.path(u"ZUNO/b.ra1"_s));
    QVERIFY(tree.show());
    tree.view.expandAll();
    QTRY_VERIFY(tree.model().rowCount(tree.index(u"ZUNO"_s)) == 1);
    QTest::qWait(50);
    QCOMPARE(tree.current(), u"ZUNO/b.ra1"_s);
}

void TestLibraryTree::showsSessionsOnly()
{
    Tree tree({u"b.ra1"_s, u"ZUNO/c.ra1"_s, u"A folder/d.ra1"_s});
    save(tree.path(u"notes.txt"_s), "x");
    save(tree.path(u"a damaged.ra1"_s), "x");
    QVERIFY(tree.show());
    const auto names = [&tree] {
        QStringList list;
        for (int row = 0; row < tree.model().rowCount(tree.view.rootIndex()); ++row)
            list.append(tree.model().index(row, 0, tree.view.rootIndex()).data().toString());
        return list.join(u'|');
    };
    QTRY_COMPARE(names(), u"A folder|ZUNO|a damaged.ra1|b.ra1"_s);
    QVERIFY(tree.view.isHeaderHidden());
    QVERIFY(!tree.view.isColumnHidden(0));
    for (int column = 1; column < tree.model().columnCount(); ++column)
        QVERIFY(tree.view.isColumnHidden(column));
    QCOMPARE(tree.view.editTriggers(), QAbstractItemView::NoEditTriggers);
    QVERIFY(!tree.model().isReadOnly());
}

void TestLibraryTree::newFiles()
{
    Tree tree({u"m.ra1"_s});
    QVERIFY(tree.show());
    save(tree.path(u"text.ra1"_s), "hello");
    for (const char *name : {"x.ra1", "y.ra1", "z.ra1", "a.ra1", "no.RA1"})
        save(tree.path(QString::fromLatin1(name)));
    QTRY_COMPARE(tree.sessions(), u"a.ra1|m.ra1|x.ra1|y.ra1|z.ra1"_s);
    QVERIFY(styled(*tree.view.itemDelegate(), u"z.ra1"_s).font.bold());
    QCOMPARE(tree.tree.isCurrentFile(), false);
}

void TestLibraryTree::newFileInOpenFolder()
{
    Tree tree({u"ZUNO/a.ra1"_s});
    QVERIFY(tree.show());
    tree.view.expand(tree.index(u"ZUNO"_s));
    QTRY_COMPARE(tree.model().rowCount(tree.index(u"ZUNO"_s)), 1);
    save(tree.path(u"ZUNO/b.ra1"_s));
    QTRY_COMPARE(tree.sessions(), u"ZUNO/a.ra1|ZUNO/b.ra1"_s);
    // A folder is looked into when it is opened.
    save(tree.path(u"new/c.ra1"_s));
    QTRY_VERIFY(tree.model().rowCount(tree.view.rootIndex()) == 2);
    tree.view.expand(tree.index(u"new"_s));
    QTRY_COMPARE(tree.sessions(), u"ZUNO/a.ra1|ZUNO/b.ra1|new/c.ra1"_s);
}

void TestLibraryTree::vanishing_data()
{
    QTest::addColumn<QStringList>("gone");
    QTest::addColumn<QString>("left");
    QTest::newRow("a file") << QStringList {u"b.ra1"_s} << u"a.ra1|c.ra1|d/e.ra1|d/f/g.ra1"_s;
    QTest::newRow("three at once")
        << QStringList {u"a.ra1"_s, u"b.ra1"_s, u"c.ra1"_s} << u"d/e.ra1|d/f/g.ra1"_s;
    QTest::newRow("a folder of folders") << QStringList {u"d"_s} << u"a.ra1|b.ra1|c.ra1"_s;
}

void TestLibraryTree::vanishing()
{
    QFETCH(const QStringList, gone);
    Tree tree({u"a.ra1"_s, u"b.ra1"_s, u"c.ra1"_s, u"d/e.ra1"_s, u"d/f/g.ra1"_s});
    QVERIFY(tree.show());
    const QSignalSpy leaving(&tree.library, &AcquisitionLibrary::sessionAboutToBeRemoved);
    for (const QString &name : gone) {
        QVERIFY(QFile::remove(tree.path(name)) || QDir(tree.path(name)).removeRecursively());
    }
    QFETCH(const QString, left);
    QTRY_COMPARE(tree.sessions(), left);
    QCOMPARE(leaving.count(), 5 - left.count(u'|') - 1);
}

// Nobody has asked to see the neighbour of a file that vanished.
void TestLibraryTree::vanishingSelection()
{
    Tree tree({u"a.ra1"_s, u"b.ra1"_s});
    QVERIFY(tree.show());
    tree.tree.select(tree.path(u"a.ra1"_s));
    const QSignalSpy changed(&tree.tree, &LibraryTree::currentChanged);
    QVERIFY(QFile::remove(tree.path(u"a.ra1"_s)));
    QTRY_COMPARE(tree.sessions(), u"b.ra1"_s);
    QTest::qWait(50);
    QCOMPARE(changed.count(), 0);
}

void TestLibraryTree::changedFile()
{
    Tree tree({u"a.ra1"_s});
    QVERIFY(tree.show());
    const QSignalSpy changed(&tree.tree, &LibraryTree::fileChanged);
    // As programs that take care replace a file: the new one is written beside it first.
    save(tree.path(u"a.new"_s), SessionBytes {.samples = 3}.bytes());
    QVERIFY(std::rename(QFile::encodeName(tree.path(u"a.new"_s)).constData(),
                        QFile::encodeName(tree.path(u"a.ra1"_s)).constData())
            == 0);
    QTRY_VERIFY(!changed.isEmpty());
    QCOMPARE(changed.last()[0].toString(), tree.path(u"a.ra1"_s));
    QCOMPARE(tree.sessions(), u"a.ra1"_s);
}

void TestLibraryTree::menus_data()
{
    QTest::addColumn<QStringList>("selected"); // the first is current
    QTest::addColumn<QString>("entries");
    const QString file = u"Rename|Delete|(Export Session)|(Export Session Data (CSV))"_s;
    QTest::newRow("a folder") << QStringList {u"Days"_s} << u"Rename|Delete|New folder"_s;
    QTest::newRow("a session") << QStringList {u"a1.ra1"_s} << file;
    QTest::newRow("without a map") << QStringList {u"none.ra1"_s} << file;
    QTest::newRow("no session") << QStringList {u"text.ra1"_s} << u"Rename|Delete"_s;
    QTest::newRow("a logger's folder") << QStringList {u"ZUNO (1)"_s} << u"New folder"_s;
    QTest::newRow("in small letters") << QStringList {u"my zuno"_s} << u"New folder"_s;
    QTest::newRow("a logger's file")
        << QStringList {u"Zuno.ra1"_s} << u"(Export Session)|(Export Session Data (CSV))"_s;
    QTest::newRow("two on the same map")
        << QStringList {u"a1.ra1"_s, u"a2.ra1"_s} << u"(Compute multisession ideal time)"_s;
    QTest::newRow("one of them without a map")
        << QStringList {u"a1.ra1"_s, u"none.ra1"_s} << u"(Compute multisession ideal time)"_s;
    QTest::newRow("on two maps") << QStringList {u"a1.ra1"_s, u"b.ra1"_s} << u"Rename|Delete"_s;
    QTest::newRow("a session and a folder") << QStringList {u"a1.ra1"_s, u"Days"_s} << file;
    QTest::newRow("a folder and a session")
        << QStringList {u"Days"_s, u"a1.ra1"_s} << u"Rename|Delete|New folder"_s;
}

void TestLibraryTree::menus()
{
    QFETCH(const QStringList, selected);
    Tree tree({u"a1.ra1"_s, u"a2.ra1"_s, u"b.ra1"_s, u"none.ra1"_s, u"Zuno.ra1"_s, u"Days/x.ra1"_s,
               u"ZUNO (1)/x.ra1"_s, u"my zuno/x.ra1"_s});
    save(tree.path(u"text.ra1"_s), "hello");
    QVERIFY(tree.show());
    const auto hill = lineMap(10, 680);
    hill->setName(u"/Hill.map"_s);
    const auto heath = lineMap(10, 680);
    heath->setName(u"/Heath.map"_s);
    for (const char *name : {"a1.ra1", "a2.ra1"})
        tree.library.find(tree.path(QString::fromLatin1(name)))->setMap(hill.get());
    tree.library.find(tree.path(u"b.ra1"_s))->setMap(heath.get());
    tree.selectAll(selected);
    QTEST(tree.menu(), "entries");
}

void TestLibraryTree::menuEntriesWork()
{
    Tree tree({u"a.ra1"_s, u"b.ra1"_s});
    QVERIFY(tree.show());
    const QSignalSpy whole(&tree.tree, &LibraryTree::exportSessionRequested);
    const QSignalSpy data(&tree.tree, &LibraryTree::exportDataRequested);
    const QSignalSpy ideal(&tree.tree, &LibraryTree::idealTimeRequested);
    Session *b = tree.library.find(tree.path(u"b.ra1"_s));
    const auto trigger = [&tree](const QStringList &selected, const QString &entries, int entry) {
        tree.selectAll(selected);
        QCOMPARE(tree.menu(), entries);
        QMenu menu;
        tree.tree.fillMenu(menu);
        menu.actions().at(entry)->trigger();
    };
    const QString entries = u"Rename|Delete|Export Session|Export Session Data (CSV)"_s;
    trigger({u"b.ra1"_s}, entries, 2);
    trigger({u"b.ra1"_s}, entries, 3);
    trigger({u"b.ra1"_s, u"a.ra1"_s}, u"Compute multisession ideal time"_s, 0);
    QCOMPARE(whole.count(), 1);
    QCOMPARE(whole[0][0].value<Session *>(), b);
    QCOMPARE(data.count(), 1);
    QCOMPARE(data[0][0].value<Session *>(), b);
    QCOMPARE(ideal.count(), 1);
    QCOMPARE(ideal[0][0].value<QList<Session *>>().size(), 2);
}

// The library's folder is current until something in it is selected; that must not offer the
// rider to delete the whole library.
void TestLibraryTree::rootIsSafe()
{
    Tree tree({u"a.ra1"_s});
    QVERIFY(tree.show());
    auto named = typeName(u"Elsewhere"_s);
    auto deleted = press(u"Yes"_s);
    tree.press(Qt::Key_Delete);
    tree.press(Qt::Key_F2);
    QCOMPARE(deleted.count, 0);
    QCOMPARE(named.count, 0);
    QVERIFY(QFile::exists(tree.path(u"a.ra1"_s)));
    QStringList entries;
    QTimer::singleShot(0, this, [&entries] {
        if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
            for (const QAction *action : menu->actions())
                entries.append(action->text());
            menu->close();
        }
    });
    tree.tree.openMenu({200, 300});
    QTest::qWait(10);
    entries.removeAll(u"New folder"_s);
    QCOMPARE(entries, QStringList());
}

void TestLibraryTree::renames_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("sessions");
    QTest::addColumn<int>("failures");
    const auto row = [](const char *name, const char *typed, const char *first,
                        bool accepted = true, int failures = 0) {
        QTest::newRow(name) << u"a.ra1"_s << QString::fromUtf8(typed) << accepted
                            << QString(QString::fromUtf8(first) + u"|b.ra1") << failures;
    };
    row("another name", "Fr\u00FCh (it's 1)", "Fr\u00FCh (it's 1).ra1");
    row("cancelled", "z", "a.ra1", false);
    row("the same", "a", "a.ra1");
    row("nothing", "", "a.ra1");
    row("taken", "b", "a.ra1", true, 1);
    row("other case", "A", "A.ra1");
}

void TestLibraryTree::renames()
{
    QFETCH(const QString, from);
    QFETCH(const QString, typed);
    QFETCH(const bool, accepted);
    QFETCH(const QString, sessions);
    Tree tree({u"a.ra1"_s, u"b.ra1"_s});
    QVERIFY(tree.show());
    tree.tree.select(tree.path(from));
    const QSignalSpy failed(&tree.tree, &LibraryTree::failed);
    QString before;
    const auto answer = typeName(typed, accepted, &before);
    tree.tree.renameCurrent();
    QCOMPARE(answer.count, 1);
    QCOMPARE(before, u"a"_s);
    QTEST(static_cast<int>(failed.count()), "failures");
    QCOMPARE(tree.sessions(), sessions);
    QTest::qWait(100);
    // The folder's own news of it change nothing any more.
    QCOMPARE(tree.sessions(), sessions);
    QStringList files = QDir(tree.folder()).entryList(QDir::Files);
    files.sort();
    QCOMPARE(files.join(u'|'), sessions);
    QCOMPARE(tree.current(), sessions.section(u'|', 0, 0));
}

void TestLibraryTree::renameKeepsWhatBelongsToIt()
{
    Tree tree({u"a.ra1"_s, u"b.ra1"_s});
    QVERIFY(tree.show());
    tree.settings.setValue(Setting::LastFileSelected, tree.path(u"a.ra1"_s));
    tree.settings.setMapChoice(u"a.ra1"_s, u"/Hill.map"_s);
    tree.settings.setMapChoice(u"b.ra1"_s, u"/Heath.map"_s);
    const Session *session = tree.library.find(tree.path(u"a.ra1"_s));
    const auto rename = [&tree](const QString &from, const QString &to) {
        tree.tree.select(tree.path(from));
        const auto answer = typeName(to);
        tree.tree.renameCurrent();
    };
    rename(u"a.ra1"_s, u"z"_s);
    QCOMPARE(tree.library.find(tree.path(u"z.ra1"_s)), session);
    QCOMPARE(tree.settings.value(Setting::LastFileSelected).toString(), tree.path(u"z.ra1"_s));
    QCOMPARE(tree.settings.mapChoice(u"z.ra1"_s), u"/Hill.map"_s);
    QVERIFY(tree.settings.mapChoice(u"a.ra1"_s).isNull());
    rename(u"b.ra1"_s, u"z"_s);
    QCOMPARE(tree.settings.mapChoice(u"z.ra1"_s), u"/Hill.map"_s);
    QCOMPARE(tree.settings.mapChoice(u"b.ra1"_s), u"/Heath.map"_s);
    QCOMPARE(tree.settings.value(Setting::LastFileSelected).toString(), tree.path(u"z.ra1"_s));
}

void TestLibraryTree::renamesFolder()
{
    Tree tree({u"Days/a.ra1"_s, u"Days/deep/b.ra1"_s, u"Days 2/c.ra1"_s});
    QVERIFY(tree.show());
    tree.view.expand(tree.index(u"Days"_s));
    QTRY_COMPARE(tree.model().rowCount(tree.index(u"Days"_s)), 2);
    tree.settings.setValue(Setting::LastFileSelected, tree.path(u"Days/deep/b.ra1"_s));
    tree.tree.select(tree.path(u"Days"_s));
    const auto answer = typeName(u"v1.0"_s);
    tree.tree.renameCurrent();
    QCOMPARE(tree.sessions(), u"Days 2/c.ra1|v1.0/a.ra1|v1.0/deep/b.ra1"_s);
    QCOMPARE(tree.settings.value(Setting::LastFileSelected).toString(),
             tree.path(u"v1.0/deep/b.ra1"_s));
    QTest::qWait(100);
    QCOMPARE(tree.sessions(), u"Days 2/c.ra1|v1.0/a.ra1|v1.0/deep/b.ra1"_s);
}

// The renamed folder is looked after as before.
void TestLibraryTree::renamedFolderLives()
{
    Tree tree({u"Days/a.ra1"_s, u"Days/b.ra1"_s, u"Days/c.ra1"_s});
    QVERIFY(tree.show());
    tree.view.expand(tree.index(u"Days"_s));
    QTRY_COMPARE(tree.model().rowCount(tree.index(u"Days"_s)), 3);
    tree.tree.select(tree.path(u"Days"_s));
    const auto name = typeName(u"May"_s);
    tree.tree.renameCurrent();
    QCOMPARE(tree.sessions(), u"May/a.ra1|May/b.ra1|May/c.ra1"_s);
    tree.tree.select(tree.path(u"May/a.ra1"_s));
    const auto yes = press(u"Yes"_s);
    tree.tree.deleteSelected();
    QVERIFY(!QFile::exists(tree.path(u"May/a.ra1"_s)));
    QTRY_COMPARE(tree.sessions(), u"May/b.ra1|May/c.ra1"_s);
    QVERIFY(QFile::remove(tree.path(u"May/b.ra1"_s)));
    QTRY_COMPARE(tree.sessions(), u"May/c.ra1"_s);
}

void TestLibraryTree::forbiddenCharacters()
{
    Tree tree({u"a.ra1"_s});
    QVERIFY(tree.show());
    tree.tree.select(tree.path(u"a.ra1"_s));
    const auto answer = typeName(u"x\\/`~@#$%^&*:?\"<>|y"_s);
    tree.tree.renameCurrent();
    QCOMPARE(tree.sessions(), u"xy.ra1"_s);
}

void TestLibraryTree::deletes_data()
{
    QTest::addColumn<QStringList>("selected");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("left");
    QTest::newRow("a file") << QStringList {u"a.ra1"_s} << u"Yes"_s << u"b.ra1|d/e.ra1|d/f.ra1"_s;
    QTest::newRow("not after all")
        << QStringList {u"a.ra1"_s} << u"Cancel"_s << u"a.ra1|b.ra1|d/e.ra1|d/f.ra1"_s;
    QTest::newRow("a folder") << QStringList {u"d"_s} << u"Yes"_s << u"a.ra1|b.ra1"_s;
    QTest::newRow("everything") << QStringList {u"a.ra1"_s, u"b.ra1"_s, u"d"_s, u"d/e.ra1"_s}
                                << u"Yes"_s << u""_s;
}

void TestLibraryTree::deletes()
{
    QFETCH(const QStringList, selected);
    QFETCH(const QString, button);
    Tree tree({u"a.ra1"_s, u"b.ra1"_s, u"d/e.ra1"_s, u"d/f.ra1"_s});
    QVERIFY(tree.show());
    tree.selectAll(selected);
    const QSignalSpy failed(&tree.tree, &LibraryTree::failed);
    const auto answer = press(button);
    tree.tree.deleteSelected();
    QCOMPARE(answer.count, 1);
    for (const QString &name : selected)
        QCOMPARE(QFile::exists(tree.path(name)), button == u"Cancel");
    QFETCH(const QString, left);
    QTRY_COMPARE(tree.sessions(), left);
    QCOMPARE(failed.count(), 0);
}

void TestLibraryTree::createsFolder_data()
{
    QTest::addColumn<QString>("in");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("made"); // empty: nothing
    QTest::addColumn<int>("failures");
    QTest::newRow("in a folder") << u"Days"_s << u"May"_s << u"Days/May"_s << 0;
    QTest::newRow("nameless") << u"Days"_s << u""_s << QString() << 0;
    QTest::newRow("there already") << u"Days"_s << u"deep"_s << QString() << 1;
}

void TestLibraryTree::createsFolder()
{
    QFETCH(const QString, in);
    QFETCH(const QString, typed);
    QFETCH(const QString, made);
    Tree tree({u"a.ra1"_s, u"Days/deep/b.ra1"_s});
    QVERIFY(tree.show());
    tree.tree.select(tree.path(in));
    const QSignalSpy failed(&tree.tree, &LibraryTree::failed);
    const auto answer = typeName(typed);
    QVERIFY(tree.press(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier));
    QCOMPARE(answer.count, 1);
    QTEST(static_cast<int>(failed.count()), "failures");
    if (!made.isEmpty())
        QVERIFY(QDir(tree.path(made)).exists());
    QCOMPARE(QDir(tree.path(in)).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(),
             made.isEmpty() ? 1 : 2);
}

void TestLibraryTree::keys()
{
    Tree tree({u"a.ra1"_s, u"Days/b.ra1"_s, u"ZUNO (1)/c.ra1"_s});
    QVERIFY(tree.show());
    tree.tree.select(tree.path(u"a.ra1"_s));
    const QSignalSpy changed(&tree.tree, &LibraryTree::currentChanged);
    QVERIFY(tree.press(Qt::Key_Return));
    QVERIFY(tree.press(Qt::Key_Enter));
    QCOMPARE(changed.count(), 2);
    QVERIFY(!tree.press(Qt::Key_Down));
    QVERIFY(!tree.press(Qt::Key_N));
    QVERIFY(tree.press(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier)); // not in a file
    {
        const auto answer = typeName(u"z"_s);
        QVERIFY(tree.press(Qt::Key_F2));
        QCOMPARE(answer.count, 1);
        QVERIFY(QFile::exists(tree.path(u"z.ra1"_s)));
    }
    {
        const auto answer = press(u"Yes"_s);
        QVERIFY(tree.press(Qt::Key_Delete));
        QCOMPARE(answer.count, 1);
        QVERIFY(!QFile::exists(tree.path(u"z.ra1"_s)));
    }
    tree.tree.select(tree.path(u"Days"_s));
    QVERIFY(tree.press(Qt::Key_Return));
    QVERIFY(tree.view.isExpanded(tree.index(u"Days"_s)));
    QVERIFY(tree.press(Qt::Key_Return));
    QVERIFY(!tree.view.isExpanded(tree.index(u"Days"_s)));
    // The logger's own names stay, whatever is pressed.
    tree.tree.select(tree.path(u"ZUNO (1)"_s));
    const auto name = typeName(u"mine"_s);
    const auto box = press(u"Yes"_s);
    QVERIFY(tree.press(Qt::Key_F2));
    QVERIFY(tree.press(Qt::Key_Delete));
    QCOMPARE(name.count + box.count, 0);
    QVERIFY(QDir(tree.path(u"ZUNO (1)"_s)).exists());
}

void TestLibraryTree::weights_data()
{
    QTest::addColumn<QString>("item");
    QTest::addColumn<bool>("bold");
    QTest::addColumn<QString>("text");
    QTest::newRow("never opened") << u"new.ra1"_s << true << u"new"_s;
    QTest::newRow("opened") << u"seen.ra1"_s << false << u"seen"_s;
    QTest::newRow("not loaded") << u"damaged.ra1"_s << false << u"damaged"_s;
    QTest::newRow("points in the name") << u"v1.0 new.ra1"_s << true << u"v1.0 new"_s;
    QTest::newRow("other ending") << u"x.RA1"_s << false << u"x.RA1"_s;
    QTest::newRow("a folder") << u"new"_s << false << u"new"_s;
    QTest::newRow("a folder with an ending") << u"May.ra1"_s << false << u"May"_s;
}

void TestLibraryTree::weights()
{
    QFETCH(const QString, item);
    CustomFileSystemModelDelegate delegate({});
    delegate.setViewedStates({{u"new.ra1"_s, true}, {u"seen.ra1"_s, false}});
    const QStyleOptionViewItem option = styled(delegate, item);
    QTEST(option.font.weight() == QFont::Bold, "bold");
    QTEST(option.text, "text");
    QVERIFY(option.icon.isNull());
}

void TestLibraryTree::devices_data()
{
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("device"); // empty: no device folder
    QTest::addColumn<QString>("text");
    const QString device = u"AA.BB.CC.DD.EE.FF"_s;
    const auto row = [](const char *name, const QString &item, const QString &found = {},
                        const QString &suffix = {}) {
        QTest::newRow(name) << item << found << QString(item + suffix);
    };
    row("named", u"Bike (AA.BB.CC.DD.EE.FF)"_s, device, u" - Track bike"_s);
    row("with colons", u"Bike (AA:BB:CC:DD:EE:FF)"_s, device, u" - Track bike"_s);
    row("last bracket counts", u"Bike (old) (AA.BB.CC.DD.EE.FF)"_s, device, u" - Track bike"_s);
    row("text behind", u"Bike (AA.BB.CC.DD.EE.FF) 2"_s, device, u" - Track bike"_s);
    row("nameless", u"Bike (00.00.00.00.00.00)"_s, u"00.00.00.00.00.00"_s);
    row("no bracket at the end", u"Bike (AA.BB.CC.DD.EE.FF"_s, device, u" - Track bike"_s);
    row("16 characters", u"Bike (AA.BB.CC.DD.EE.F"_s);
    row("bracket first", u"(AA.BB.CC.DD.EE.FF)"_s);
    row("no bracket", u"AA.BB.CC.DD.EE.FF"_s);
    row("short", u"Bike (2)"_s);
}

void TestLibraryTree::devices()
{
    QFETCH(const QString, item);
    QFETCH(const QString, device);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"ConfigMonitor.ini"_s);
    save(path, "[AA.BB.CC.DD.EE.FF]\nCustomZUNOName=Track bike\n"
               "[BB.BB.CC.DD.EE.FF]\nCustomZUNOName=Other\n");
    const QDateTime before = QFileInfo(path).lastModified();
    const CustomFileSystemModelDelegate delegate(path);
    const QStyleOptionViewItem option = styled(delegate, item);
    QCOMPARE(CustomFileSystemModelDelegate::deviceOf(item), device);
    QTEST(option.text, "text");
    const bool hasIcon = option.features.testFlag(QStyleOptionViewItem::HasDecoration);
    QCOMPARE(hasIcon, !device.isEmpty());
    if (hasIcon)
        QCOMPARE(option.decorationSize, QSize(20, 20));
    QCOMPARE(QFileInfo(path).lastModified(), before);
}

QTEST_MAIN(TestLibraryTree)
#include "tst_librarytree.moc"
