// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <base/settings.h>
#include <formats/table/tablesheet.h>
#include <library/acquisitionlibrary.h>
#include <library/columndialog.h>
#include <library/columnmemory.h>
#include <library/columnunits.h>
#include <library/exportdialogs.h>
#include <library/importdialog.h>
#include <library/importtable.h>
#include <library/librarytree.h>
#include <library/recordingimport.h>
#include <library/ridepreview.h>
#include <library/sessionimport.h>
#include <session/session.h>
#include <track/mapdraft.h>
#include <track/mapfile.h>

#include "builders.h"
#include "madeuprides.h"
#include "mainwindow.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

/// The made-up ride as a table whose names tell nothing.
QByteArray namelessTable(const QByteArray &heading)
{
    QByteArray text = heading;
    for (const Moment &m : moments({}))
        text += QByteArray::number(m.time, 'f', 1) + ';' + QByteArray::number(m.latitude, 'f', 7)
                + ';' + QByteArray::number(m.longitude, 'f', 7) + ';'
                + QByteArray::number(m.speed, 'f', 2) + '\n';
    return text;
}

/// Gives the file dialog that opens next on @p window a path.
void answer(QWidget &window, const QString &path)
{
    QTimer::singleShot(0, &window, [&window, path] {
        auto *dialog = window.findChild<QFileDialog *>();
        dialog->findChild<QLineEdit *>()->setText(path);
        static_cast<QDialog *>(dialog)->accept();
    });
}

/// A rider's library, files to import, and the dialog that shows what they hold.
struct Outfit
{
    Outfit() { QDir().mkpath(settings.acquisitionFolder()); }

    QString put(const QString &name, const QByteArray &bytes) const
    {
        putFile(files.filePath(name), bytes);
        return files.filePath(name);
    }
    /// Starts the import and gives the dialog when all is read.
    [[nodiscard]] ImportDialog *offered(const QStringList &paths)
    {
        import.start(paths);
        return dialogOf(window, paths.size());
    }
    /// The dialog on @p window when it has read so many files.
    [[nodiscard]] static ImportDialog *dialogOf(const QWidget &window, qsizetype files)
    {
        ImportDialog *dialog = nullptr;
        const bool isRead = QTest::qWaitFor([&] {
            dialog = window.findChild<ImportDialog *>();
            return dialog != nullptr && rows(*dialog).size() >= files
                   && dialog->findChild<QLabel *>(u"lb_importState"_s)->text().contains(u"will be");
        });
        return isRead ? dialog : nullptr;
    }
    /// What the dialog's lines say: file, kind, duration, laps, remarks.
    [[nodiscard]] static QStringList rows(const ImportDialog &dialog)
    {
        QStringList rows;
        const auto &table = child<ImportTable>(dialog, "tw_import");
        for (int i = 0; i < table.topLevelItemCount(); ++i) {
            const QTreeWidgetItem &item = *table.topLevelItem(i);
            const bool isChecked = item.checkState(ImportTable::File) == Qt::Checked;
            QStringList cells {isChecked ? u"x"_s : u"-"_s};
            for (const int column : {ImportTable::File, ImportTable::Kind, ImportTable::Duration,
                                     ImportTable::Laps, ImportTable::Remarks})
                cells.append(item.text(column));
            rows.append(cells.join(u'|'));
        }
        return rows;
    }
    [[nodiscard]] QStringList imported() const
    {
        return QDir(settings.acquisitionFolder() + u"/Imported Sessions").entryList(QDir::Files);
    }

    QTemporaryDir root;
    QTemporaryDir files;
    Settings settings {root.path()};
    MapLibrary maps;
    AcquisitionLibrary library;
    QWidget window;
    SessionImport import {library, settings, &window};
    RecordingImport recordings {{import, maps, settings}, &window};
};

} // namespace

class TestImportDialog final : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void offers()
    {
        QLocale::setDefault(QLocale(u"en"_s));
        Outfit outfit;
        Scene later;
        later.begin = later.begin.addDays(1);
        QByteArray spoiled = madeUp("vbo-racechrono");
        spoiled.insert(spoiled.lastIndexOf("012 1020"), "012 xyz\r\n");
        // Names tell nothing, contents do.
        const QStringList paths {outfit.put(u"a.vbo"_s, spoiled),
                                 outfit.put(u"b.bin"_s, madeUp("racechrono-csv", later)),
                                 outfit.put(u"c.gpx"_s, "<gpx><trk></trk></gpx>"),
                                 outfit.put(u"d.vbo"_s, "nothing")};
        ImportDialog *dialog = outfit.offered(paths);
        QVERIFY(dialog != nullptr);
        const QStringList rows = Outfit::rows(*dialog);
        QCOMPARE(rows.size(), 4);
        QVERIFY2(rows[0].startsWith(u"x|a.vbo|VBO|0:00:"), qPrintable(rows[0]));
        QVERIFY2(rows[0].contains(u"1 damaged lines left out, the first is line"),
                 qPrintable(rows[0]));
        QVERIFY2(rows[1].startsWith(u"x|b.bin|RaceChrono CSV|0:00:"), qPrintable(rows[1]));
        QVERIFY2(rows[2].startsWith(u"-|c.gpx|GPX||") && rows[2].contains(u"no track"),
                 qPrintable(rows[2]));
        QVERIFY2(rows[3].startsWith(u"-|d.vbo|||") && rows[3].contains(u"no kind"),
                 qPrintable(rows[3]));
        QCOMPARE(outfit.imported(), QStringList());
        const QSignalSpy finished(&outfit.import, &SessionImport::finished);
        child<QPushButton>(*dialog, "pb_import").click();
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(outfit.imported().size(), 2);
        // The newest one is told, whatever the order.
        const auto result = finished[0][0].value<ImportResult>();
        QVERIFY2(result.path.contains(u"2024-05-07"), qPrintable(result.path));
        QCOMPARE(contents(paths[0]), spoiled);
        QTRY_VERIFY(outfit.window.findChild<ImportDialog *>() == nullptr);

        ImportDialog *again = outfit.offered({paths[1]});
        QVERIFY(again != nullptr);
        QVERIFY2(Outfit::rows(*again)[0].contains(u"was imported before, as \"2024-05-07"),
                 qPrintable(Outfit::rows(*again)[0]));
        QVERIFY(!child<QPushButton>(*again, "pb_import").isEnabled());
        again->reject();
        QTRY_VERIFY(outfit.window.findChild<ImportDialog *>() == nullptr);
        QCOMPARE(outfit.imported().size(), 2);
    }

    void choosesFewer()
    {
        Outfit outfit;
        Scene later;
        later.begin = later.begin.addDays(1);
        ImportDialog *dialog
            = outfit.offered({outfit.put(u"a.vbo"_s, madeUp("vbo-racechrono")),
                              outfit.put(u"a.csv"_s, madeUp("racechrono-csv", later))});
        QVERIFY(dialog != nullptr);
        auto &table = child<ImportTable>(*dialog, "tw_import");
        table.topLevelItem(1)->setCheckState(ImportTable::File, Qt::Unchecked);
        const QSignalSpy finished(&outfit.import, &SessionImport::finished);
        child<QPushButton>(*dialog, "pb_import").click();
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(outfit.imported(), QStringList(u"2024-05-06 10h20 a.ra1"_s));
    }

    // A double click on a file in the file manager ends with its newest session on display.
    void opensInWindow()
    {
        const Home home;
        home.startedBefore();
        const QTemporaryDir files;
        const QString path = files.filePath(u"x.bin"_s);
        putFile(path, madeUp("vbo-racechrono"));
        Window window;
        QVERIFY(window.open());
        window.main.openFile(path);
        ImportDialog *dialog = Outfit::dialogOf(window.main, 1);
        QVERIFY(dialog != nullptr);
        child<QPushButton>(*dialog, "pb_import").click();
        const auto &view = window.part<QTreeView>("tw_arbo");
        QTRY_COMPARE(view.currentIndex().data().toString(), u"2024-05-06 10h20 x.ra1"_s);
        QTRY_VERIFY(view.isExpanded(view.currentIndex().parent()));
        QTRY_VERIFY(window.state().contains(u"No map is known"));
        // And it can be passed on from the tree's menu.
        QMenu menu;
        window.main.findChild<LibraryTree *>()->fillMenu(menu);
        answer(window.main, files.filePath(u"out"_s));
        menu.actions().last()->menu()->actions()[1]->trigger();
        QVERIFY(contents(files.filePath(u"out"_s)).contains("<gpx"));
    }

    void sheets_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("names");
        QTest::addColumn<int>("line");
        const auto row = [](const char *name, const QByteArray &text, const QString &names,
                            int line) { QTest::newRow(name) << text << names << line; };
        row("none", "a,b\n1,2\n", {}, 0);
        row("one row", "a,b,c\n1,2,3\n", {}, 0);
        row("plain", "a,b,c\n1,2,3\n4,5,6\n", u"a b c"_s, 1);
        row("no names", "1;2;3\n4;5;6\n", u"1 2 3"_s, 1);
        row("preamble", "Run,7\n\na;b;c\nm;s;x\n1,5;2;3\n4,5;5;6\n", u"a b c"_s, 3);
        row("times", "t\tx\ty\n12:00:01\t1\t2\n12:00:02\t3\t4\n", u"t x y"_s, 1);
    }

    void sheets()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, names);
        QFETCH(const int, line);
        const auto sheet = findSheet(text);
        QCOMPARE(sheet.has_value(), line > 0);
        if (!sheet)
            return;
        QCOMPARE(sheet->heading.names.join(u' '), names);
        QCOMPARE(sheet->line, line);
        QCOMPARE(sheet->rows.size(), std::size_t(2));
    }

    void columns_data()
    {
        QTest::addColumn<QByteArray>("heading");
        QTest::newRow("names") << QByteArray("Zeit;Breite;Hoehe;v\n");
        QTest::newRow("no names") << QByteArray();
    }

    // What the values tell is proposed; what the rider says is remembered.
    void columns()
    {
        QFETCH(const QByteArray, heading);
        Outfit outfit;
        const QString path = outfit.put(u"other.csv"_s, namelessTable(heading));
        ImportDialog *dialog = outfit.offered({path});
        QVERIFY(dialog != nullptr);
        QVERIFY2(Outfit::rows(*dialog)[0].contains(u"say what its columns are"),
                 qPrintable(Outfit::rows(*dialog)[0]));
        double fastest = 0;
        QTimer::singleShot(0, this, [&] {
            auto *columns = dialog->findChild<ColumnDialog *>();
            auto &table = child<QTableWidget>(*columns, "tw_columns");
            const auto box = [&table](int row, int column) {
                return qobject_cast<QComboBox *>(table.cellWidget(row, column));
            };
            QCOMPARE(box(1, 2)->currentText(), nameOfQuantity(Quantity::Latitude));
            box(3, 2)->setCurrentIndex(box(3, 2)->findData(int(Quantity::Speed)));
            Q_EMIT box(3, 2)->activated(0);
            box(3, 3)->setCurrentText(u"m/s"_s);
            Q_EMIT box(3, 3)->activated(0);
            for (const auto &point : columns->findChild<RidePreview *>()->points())
                fastest = std::max(fastest, point.speed);
            columns->accept();
        });
        dialog->matchColumns();
        double ridden = 0;
        for (const Moment &m : moments({}))
            ridden = std::max(ridden, 3.6 * m.speed);
        QVERIFY(std::abs(fastest - ridden) < 0.1);
        QTRY_VERIFY(Outfit::rows(*dialog)[0].startsWith(u"x|other.csv|CSV|0:00:"));
        dialog->reject();
        QTRY_VERIFY(outfit.window.findChild<ImportDialog *>() == nullptr);
        // Another file with that heading needs no question.
        const QString next = outfit.put(u"next.csv"_s, namelessTable(heading) + "\n");
        const QString row = Outfit::rows(*outfit.offered({next}))[0];
        QVERIFY2(row.startsWith(u"x|next.csv|CSV|0:00:"), qPrintable(row));
    }

    void memory_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::newRow("no JSON") << QByteArray("{");
        QTest::newRow("no uses") << QByteArray(R"({"k": {"clock": 1}})");
        QTest::newRow("no clock") << QByteArray(R"({"k": {"clock": 99, "uses": []}})");
        QTest::newRow("column") << QByteArray(R"({"k": {"clock": 1, "uses": [)")
                                       + QByteArray("[-7, 1],").repeated(21) + "[1, 1]]}}";
    }

    void memory()
    {
        QFETCH(const QByteArray, stored);
        const QTemporaryDir root;
        const Settings settings(root.path());
        const QFileInfo file(settings.path(SettingsFile::Analyzer));
        QDir().mkpath(file.path());
        putFile(file.path() + u"/ImportColumns.json", stored);
        ColumnMemory memory(settings);
        QVERIFY(memory.all().isEmpty());
        ColumnMapping mapping;
        useColumn(mapping, Quantity::Longitude, 7, unitsOf(Quantity::Longitude)[3]);
        useColumn(mapping, Quantity::Time, 2, unitsOf(Quantity::Time)[4]);
        useColumn(mapping, Quantity::Speed, 3, unitsOf(Quantity::Speed).last());
        memory.remember(u"k"_s, mapping);
        QVERIFY(ColumnMemory(settings).find(u"k"_s) == mapping);
        QCOMPARE(unitIndex(Quantity::Longitude, mapping), 3);
        QCOMPARE(unitIndex(Quantity::Time, mapping), 4);
        QCOMPARE(unitIndex(Quantity::Speed, mapping), 4);
    }

    void exports()
    {
        Outfit outfit;
        QList<Session *> sessions;
        for (const QString &name : {u"a.ra1"_s, u"b.ra1"_s})
            sessions.append(outfit.library.add(outfit.put(name, fullSession().bytes()), ""));
        outfit.put(u"b.gpx"_s, "there");
        ExportDialogs exports(&outfit.window);
        const QSignalSpy done(&exports, &ExportDialogs::done);
        answer(outfit.window, outfit.files.path());
        exports.exportRides(sessions, u"gpx"_s);
        QVERIFY2(done.last()[0].toString().startsWith(u"2 sessions were exported"),
                 qPrintable(done.last()[0].toString()));
        QVERIFY(contents(outfit.files.filePath(u"a.gpx"_s)).contains("<trkpt"));
        QCOMPARE(contents(outfit.files.filePath(u"b.gpx"_s)), QByteArray("there"));
        QVERIFY(contents(outfit.files.filePath(u"b (2).gpx"_s)).contains("<trkpt"));
        answer(outfit.window, outfit.files.filePath(u"one"_s));
        exports.exportRides({sessions[0]}, u"kml"_s);
        QVERIFY(contents(outfit.files.filePath(u"one"_s)).contains("<kml"));
    }
};

QTEST_MAIN(TestImportDialog)
#include "tst_importdialog.moc"
