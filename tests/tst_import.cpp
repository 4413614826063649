// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <sys/stat.h>

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <base/settings.h>
#include <library/acquisitionlibrary.h>
#include <library/exportdialogs.h>
#include <library/sessionimport.h>
#include <session/csvexport.h>
#include <session/session.h>
#include <widgets/downloadinprogress.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

QByteArray recorded(const QByteArray &time, const QByteArray &driver = "Ann")
{
    return SessionBytes {.time = time, .information = InformationBytes {.driver = driver}.bytes()}
        .bytes();
}

/// A rider's library, a card with files to import, and a window to drop them on.
struct Outfit
{
    Outfit()
    {
        folder.mkpath(u".."_s);
        QDir(card.path()).mkpath(u"all/deep"_s);
    }
    QString put(const QString &name, const QByteArray &bytes) const
    {
        putFile(card.filePath(name), bytes);
        return card.filePath(name);
    }
    /// Drops files or folders of the card, of a program that allows @p actions; what came of it.
    [[nodiscard]] QString drop(QWidget &target, const QStringList &names,
                               Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction)
    {
        const QSignalSpy finished(&import, &SessionImport::finished);
        QList<QUrl> urls;
        for (const QString &name : names)
            urls.append(QUrl::fromLocalFile(card.filePath(name)));
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter({}, actions, &data, Qt::LeftButton, {});
        QDropEvent drop({}, actions, &data, Qt::LeftButton, {});
        for (QEvent *event : std::initializer_list<QEvent *> {&enter, &drop})
            QCoreApplication::sendEvent(&target, event);
        if (!drop.isAccepted() || drop.dropAction() != Qt::CopyAction
            || !QTest::qWaitFor([&] { return !finished.isEmpty(); }))
            return u"nothing"_s;
        result = finished[0][0].value<ImportResult>();
        return result.summary();
    }

    QTemporaryDir root;
    QTemporaryDir card;
    Settings settings {root.path()};
    QDir folder {settings.acquisitionFolder() + u"/Imported Sessions"};
    AcquisitionLibrary library;
    QWidget window;
    QLineEdit field {&window};
    SessionImport import {library, settings, &window};
    ImportResult result;
};

} // namespace

class TestImport final : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void drops()
    {
        Outfit outfit;
        const QByteArray present = recorded("08:00:00", "Bob");
        outfit.folder.mkpath(u"."_s);
        putFile(outfit.folder.filePath(u"there.ra1"_s), present);
        putFile(outfit.folder.filePath(u"taken.ra1"_s), present);
        QFile::setPermissions(outfit.put(u"first.ra1"_s, recorded("10:11:12")), QFile::ReadOwner);
        outfit.put(u"all/UPPER.RA1"_s, recorded("10:11:13"));
        outfit.put(u"all/there.ra1"_s, recorded("08:00:00"));
        outfit.put(u"all/deep/taken.ra1"_s, recorded("09:00:00"));
        outfit.put(u"all/deep/<b>.ra1"_s, "no session");
        outfit.put(u"all/photo.jpg"_s, "photo");
        outfit.put(u".ride.bak"_s, recorded("11:00:00"));
        outfit.put(u"a.txt"_s, "text");
        QCOMPARE(::mkfifo(QFile::encodeName(outfit.card.filePath(u"pipe.ra1"_s)), 0600), 0);
        QFile::link(u"/dev/zero"_s, outfit.card.filePath(u"zero.ra1"_s));
        QCOMPARE(outfit.drop(outfit.field, {u"a.txt"_s}), u"nothing"_s);
        QCOMPARE(outfit.drop(outfit.field, {u"all"_s}, Qt::MoveAction), u"nothing"_s);
        const QStringList dropped {u"first.ra1"_s, u"all"_s,      u"a.txt"_s,   u".ride.bak"_s,
                                   u"none.ra1"_s,  u"pipe.ra1"_s, u"zero.ra1"_s};
        QCOMPARE(outfit.drop(outfit.field, dropped),
                 u"Imported: 4, already there: 1, no session files: 2, under another name: 1, "
                 "could not be copied: 3"_s);
        QCOMPARE(outfit.field.text(), QString());
        for (const auto *name : {u"&lt;b&gt;.ra1", u"a.txt", u"taken (2).ra1", u"none.ra1"})
            QVERIFY(outfit.result.details().contains(name));
        const QString all = u"UPPER.ra1 first.ra1 ride.bak.ra1 taken (2).ra1 taken.ra1 there.ra1"_s;
        QCOMPARE(outfit.folder.entryList(QDir::Files | QDir::Hidden, QDir::Name).join(u' '), all);
        QCOMPARE(contents(outfit.folder.filePath(u"there.ra1"_s)), present);
        QCOMPARE(contents(outfit.folder.filePath(u"taken.ra1"_s)), present);
        const QString first = outfit.library.at(0)->filePath();
        QCOMPARE(first, outfit.folder.filePath(u"first.ra1"_s));
        QCOMPARE(contents(first), recorded("10:11:12"));
        QVERIFY(QFile::permissions(first).testFlag(QFile::WriteOwner));
        // The numbered one is known as well.
        QVERIFY(outfit.drop(outfit.field, dropped).startsWith(u"Imported: 0, already there: 5"));
        QCOMPARE(outfit.folder.entryList(QDir::Files | QDir::Hidden, QDir::Name).join(u' '), all);
    }

    // What stands in the library under the name already: so many bytes of the same recording, or
    // something else; and whether it is replaced, kept beside the other, or all there is to have.
    void sameName_data()
    {
        QTest::addColumn<QByteArray>("present");
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("summary");
        const QByteArray whole = fullSession().bytes();
        const QString replaced = u"Imported: 1, already there: 0, no session files: 0"_s;
        const QString present = u"Imported: 0, already there: 1, no session files: 0"_s;
        const QString beside = replaced + u", under another name: 1";
        for (const qsizetype size : {qsizetype(0), qsizetype(3), qsizetype(30), qsizetype(60),
                                     whole.size() - 200, whole.size() - 1}) {
            QTest::addRow("%d bytes", int(size)) << whole.first(size) << whole << replaced;
            if (size > 30)
                QTest::addRow("only %d bytes", int(size)) << whole << whole.first(size) << present;
        }
        QByteArray other = whole;
        other[40] = static_cast<char>(other[40] ^ 1);
        QTest::newRow("all") << whole << whole << present;
        QTest::newRow("other information")
            << fullSession({.driver = "Bob"}).bytes() << whole << present;
        QTest::newRow("other sample") << other << whole << beside;
        QTest::newRow("begins otherwise") << other.first(60) << whole << beside;
        QTest::newRow("no session") << QByteArray("text") << whole << beside;
        QTest::newRow("recorded on")
            << SessionBytes {.samples = 3, .sampleCount = 9}.bytes().first(17 + 3 * 28)
            << SessionBytes {.samples = 5, .sampleCount = 12}.bytes() << replaced;
    }
    void sameName()
    {
        QFETCH(const QByteArray, present);
        QFETCH(const QByteArray, file);
        QFETCH(const QString, summary);
        Outfit outfit;
        outfit.folder.mkpath(u"."_s);
        const QString path = outfit.folder.filePath(u"x.ra1"_s);
        putFile(path, present);
        outfit.library.load(outfit.settings.acquisitionFolder());
        outfit.put(u"x.ra1"_s, file);
        for (const bool isFirst : {true, false}) {
            const QString told = outfit.drop(outfit.window, {u"x.ra1"_s});
            QCOMPARE(told,
                     isFirst ? summary : u"Imported: 0, already there: 1, no session files: 0"_s);
            const bool isBeside = summary.contains(u"another");
            const bool isReplaced = !isBeside && summary.startsWith(u"Imported: 1");
            QCOMPARE(contents(path), isReplaced ? file : present);
            QCOMPARE(outfit.folder.entryList(QDir::Files).size(), isBeside ? 2 : 1);
            QCOMPARE(outfit.result.path, isBeside ? outfit.folder.filePath(u"x (2).ra1"_s) : path);
            Session *session = outfit.library.find(outfit.result.path);
            QVERIFY(session != nullptr && session->sampleCount() >= 2);
        }
    }

    // Nothing is made where the library's drive belongs, or where a link leads out of it.
    void noFolder()
    {
        Outfit outfit;
        outfit.put(u"x.ra1"_s, recorded("10:11:12"));
        const QString mount = outfit.root.filePath(u"mount"_s);
        outfit.settings.setValue(Setting::AcquisitionFolder, mount);
        outfit.settings.setValue(Setting::LastFileSelected, QString(mount + u"/a.ra1"));
        const QString refused
            = u"Nothing was imported: the folder of your sessions is not there."_s;
        QCOMPARE(outfit.drop(outfit.window, {u"x.ra1"_s}), refused);
        QDir().mkdir(mount);
        QCOMPARE(outfit.drop(outfit.window, {u"x.ra1"_s}), refused);
        QVERIFY(QDir(mount).isEmpty());
        QFile::link(outfit.root.path(), mount + u"/Imported Sessions");
        QCOMPARE(outfit.drop(outfit.window, {u"x.ra1"_s}), refused);
        QVERIFY(!QFile::exists(outfit.root.filePath(u"x.ra1"_s)));
    }

    void cancels()
    {
        Outfit outfit;
        for (int i = 0; i < 99; ++i)
            outfit.put(u"%1.ra1"_s.arg(i), recorded("10:11:12"));
        // As slow as a card.
        connect(&outfit.library, &AcquisitionLibrary::sessionsChanged, this, [&outfit] {
            QTest::qSleep(20);
            if (outfit.library.size() == 40)
                outfit.window.findChild<DownloadInProgress *>()->close();
        });
        QCOMPARE(outfit.drop(outfit.window, {QString()}),
                 u"Import cancelled. Imported: 40, already there: 0, no session files: 0"_s);
        QCOMPARE(outfit.folder.entryList(QDir::Files | QDir::Hidden).size(), 40);
    }

    void exports()
    {
        Outfit outfit;
        const QString path = outfit.put(u"Run.ra1"_s, recorded("10:11:12"));
        Session *session = outfit.library.add(path, "");
        Points points(1);
        points[0].dataTimeSec = 2000; // Written in groups, which tells the locale.
        const auto late = sessionOf(points);
        late->setFilePath(path);
        ExportDialogs exports(&outfit.window);
        const QSignalSpy done(&exports, &ExportDialogs::done);
        // Chooses a file; gives what the dialog proposed and what was told.
        const auto choose = [&](auto run, Session *exported, const QString &name) -> QString {
            QString proposed;
            QTimer::singleShot(0, this, [&] {
                auto *dialog = outfit.window.findChild<QFileDialog *>();
                auto *field = dialog->findChild<QLineEdit *>();
                proposed = dialog->windowTitle() + u'|' + field->text() + u'|';
                field->setText(outfit.card.filePath(name));
                static_cast<QDialog *>(dialog)->accept();
            });
            (exports.*run)(exported);
            return proposed + done.last()[0].toString().remove(outfit.card.path() + u'/');
        };
        QLocale::setDefault(QLocale(u"en"_s));
        QCOMPARE(choose(&ExportDialogs::exportSessionData, late.get(), u"csv"_s),
                 u"Export Session Data file|Run.ra1.csv|Exported to \"csv\"."_s);
        QCOMPARE(contents(outfit.card.filePath(u"csv"_s)), sessionCsv(*late, QLocale()));
        QCOMPARE(choose(&ExportDialogs::exportSession, session, u"copy"_s),
                 u"Export Session file|Run.ra1|Exported to \"copy\"."_s);
        QCOMPARE(contents(outfit.card.filePath(u"copy"_s)), recorded("10:11:12"));
        QVERIFY(choose(&ExportDialogs::exportSession, session, u"csv"_s)
                    .contains(u"\"csv\" exists already"));
        QVERIFY(choose(&ExportDialogs::exportSession, session, u"csv/x"_s)
                    .contains(u"not be written: Cannot"));
        QVERIFY(choose(&ExportDialogs::exportSessionData, session, u"csv/x"_s)
                    .contains(u"could not be written"));
    }
};

QTEST_MAIN(TestImport)
#include "tst_import.moc"
