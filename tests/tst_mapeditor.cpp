// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <base/settings.h>
#include <formats/import/importer.h>
#include <formats/sessionride.h>
#include <insight/cornerfile.h>
#include <library/acquisitionlibrary.h>
#include <library/informationwriter.h>
#include <library/sessiondisplay.h>
#include <maps/editor/cornerspane.h>
#include <maps/editor/mapedit.h>
#include <maps/editor/mapmaker.h>
#include <session/session.h>
#include <session/sessionfile.h>
#include <track/map.h>
#include <track/mapfile.h>
#include <track/mapname.h>

#include "builders.h"
#include "testcircuit.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

// A square of 100 metres a side, clockwise from its south-west corner, with three timing points.
MapDraft square()
{
    MapDraft draft;
    draft.outline = {place(0), place(50), place(100), place(100, 100), place(0, 100), place(0)};
    draft.start = place(0);
    draft.timingPoints = {place(100), place(100, 100), place(0)};
    draft.gateSize = 5.0;
    return draft;
}

void takeGates(MapEdit &edit, int line, const QStringList &words)
{
    QList<QGeoCoordinate> splits;
    for (const QString &word : words.mid(1))
        splits.append(place(word.toInt()));
    edit.takeGates(place(line), splits);
}

// Does what a text says: "0 20 -5" moves point 0 by 20 metres and back by 5 in one gesture; "add
// 30", "remove 1", "gate 12", "undo"; "gates 30 60" takes a file's line at 30 and a split at 60.
void run(MapEdit &edit, const QString &command)
{
    QStringList words = command.split(u' ');
    const QString what = words.takeFirst();
    const int number = words.value(0).toInt();
    edit.beginGesture();
    if (what == u"add")
        words.isEmpty() ? edit.addPoint() : edit.addPoint(place(number));
    else if (what == u"remove")
        edit.removePoint(number);
    else if (what == u"gate")
        edit.setGateSize(number);
    else if (what == u"undo")
        edit.history().undo();
    else if (what == u"gates")
        takeGates(edit, number, words);
    else
        for (const QString &metres : words)
            edit.nudgePoint(what.toInt(), metres.toInt());
    edit.settle(MapEdit::NoPoint);
}

// Where the line has moved to, the distances of the timing points from it, and the gate.
QString textOf(const MapEdit &edit)
{
    QStringList distances;
    for (int point = 0; point < edit.pointCount(); ++point)
        distances.append(QString::number(qRound(edit.distance(point))));
    return u"%1: %2 / %3"_s.arg(qRound(edit.draft().start.distanceTo(place(0))))
        .arg(distances.join(u' '))
        .arg(edit.draft().gateSize);
}

} // namespace

// Instead of typing a name into the map editor.
const QString NameCorner = u"!"_s;

class TestMapEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void edits_data()
    {
        QTest::addColumn<QString>("commands");
        QTest::addColumn<QString>("expected");
        QTest::newRow("past another") << u"0 150"_s << u"0: 200 250 400 / 5"_s;
        QTest::newRow("past the line") << u"0 -120"_s << u"0: 200 380 400 / 5"_s;
        QTest::newRow("line") << u"-1 30"_s << u"30: 70 170 400 / 5"_s;
        QTest::newRow("line past a point") << u"-1 20 40 36 3 -19"_s << u"80: 20 120 400 / 5"_s;
        QTest::newRow("line alone") << u"remove 2,-1 30"_s << u"30: 70 170 / 5"_s;
        QTest::newRow("a gesture is a step")
            << u"0 -10 -20,gate 9,undo,undo"_s << u"0: 100 200 400 / 5"_s;
        QTest::newRow("line of a file") << u"gates 30"_s << u"30: 70 170 400 / 5"_s;
        QTest::newRow("sectors of a file") << u"gates 30 90 60"_s << u"30: 30 60 400 / 5"_s;
        QTest::newRow("one step") << u"gates 30 60,undo"_s << u"0: 100 200 400 / 5"_s;
        QTest::newRow("in the longest") << u"add"_s << u"0: 100 200 300 400 / 5"_s;
        QTest::newRow("eight at most") << u"add 10,add 20,add 30,add 40,add 50,add 60,gate 0"_s
                                       << u"0: 10 20 30 40 50 100 200 400 / 1"_s;
    }
    void edits()
    {
        QFETCH(const QString, commands);
        MapEdit edit(square());
        const QStringList list = commands.split(u',');
        for (const QString &command : list)
            run(edit, command);
        QTEST(textOf(edit), "expected");
        QCOMPARE(edit.draft().outline.first(), edit.draft().start);
        QCOMPARE(edit.draft().outline.last(), edit.draft().start);
        QVERIFY(qAbs(TrackRing(edit.draft().outline).length() - 400.0) < 0.1);
        while (edit.history().canUndo())
            edit.history().undo();
        QCOMPARE(edit.draft(), square());
    }

    // Two points along the course: the first is on the line; across it, the middle is.
    void gatesOfFile()
    {
        SessionOrigin origin;
        origin.gates = {{u"far"_s, place(5000), place(5000), true, false},
                        {u"line"_s, place(20), place(60), true, true},
                        {u"second line"_s, place(90), place(90), true, true},
                        {u"split"_s, place(40), place(60), false, false}};
        const FileGates gates = gatesOn(square(), origin);
        QVERIFY(gates.start.distanceTo(place(20)) < 0.1);
        QCOMPARE(gates.splits.size(), 1);
        QVERIFY(gates.splits[0].distanceTo(place(50)) < 0.1);
        QVERIFY(!gatesOn({}, origin).start.isValid());
    }

    // At a crossing a dragged point stays on its piece of track.
    void crossing()
    {
        const TrackRing ring(
            {place(-100, -100), place(100, 100), place(100, -100), place(-100, 100)});
        const double along = ring.nearest(place(-50, -50)).along;
        QVERIFY(qAbs(ring.nearest(place(1, -1), along).along - along) < 80.0);
    }

    void names()
    {
        using enum MapNameFault;
        for (const auto &[name, fault] : {std::pair(u"Brünn 2"_s, None),
                                          {u" "_s, Empty},
                                          {u".a"_s, Dot},
                                          {u"a/b"_s, Character},
                                          {u"a\tb"_s, Character},
                                          {u"NUL"_s, Reserved},
                                          {u"com1"_s, Reserved},
                                          {u"x"_s.repeated(MaximumMapName), None},
                                          {u"x"_s.repeated(MaximumMapName + 1), TooLong}})
            QCOMPARE(faultOfMapName(name), fault);
        QCOMPARE(faultOfMapFolder(u"Spain/South"_s), None);
        QCOMPARE(faultOfMapFolder(u"../Spain"_s), Dot);
        QCOMPARE(faultOfMapFolder(u"Spain/"_s), Character);
        QCOMPARE(freeMapName(u"Jerez"_s, {u"/Spain/jerez.map"_s, u"/Jerez 2.map"_s}), u"Jerez 3"_s);
        QCOMPARE(proposedMapName({}, u"2026-07-11 13h45 Le_Mans.ra1"_s, u"Cup"_s), u"Le Mans"_s);
        QCOMPARE(proposedMapName({}, u"0012.ra1"_s, u"Cup: 1."_s), u"Cup 1"_s);
    }

    // The whole way: proposed, named, saved, changed, renamed, deleted; a map of the demo's is not
    // ours, so a copy of it is changed.
    void files()
    {
        const QTemporaryDir root;
        // Where the trash is.
        qputenv("XDG_DATA_HOME", root.path().toUtf8());
        const Settings settings(root.path());
        const QString folder = settings.mapsFolder();
        const QString session = settings.acquisitionFolder() + u"/" + AtValmora;
        putFile(session, demoFile(AtValmora));
        putFile(folder + u"/Karoosberg.map", demoFile(u"Karoosberg.map"_s));
        AcquisitionLibrary library;
        library.load(settings.acquisitionFolder());
        MapLibrary maps;
        maps.loadMaps(folder);
        InformationWriter writer;
        SessionDisplay display({library, maps, settings, writer});
        MapMaker maker({library, maps, display, settings}, nullptr);
        connect(&maker, &MapMaker::mapsChanged, &display, [&] {
            display.clear();
            library.reload(settings.acquisitionFolder());
            maps.loadMaps(folder);
            display.display(session);
        });
        const auto shownMap = [&display] {
            const Map *map = display.session()->map();
            return map != nullptr ? map->name() : QString();
        };
        display.display(session);
        QCOMPARE(shownMap(), QString());
        const QByteArray foreign = contents(folder + u"/Karoosberg.map");

        answer({u"a.b"_s, u"Hill"_s});
        maker.newMap();
        QCOMPARE(shownMap(), u"/Hill.map"_s);
        QVERIFY(display.session()->laps().size() > 3);

        answer({u"Moved"_s});
        maker.editMap(u"/Hill.map"_s);
        QCOMPARE(shownMap(), u"/Moved.map"_s);
        QCOMPARE(settings.mapChoice(AtValmora), u"/Moved.map"_s);
        QVERIFY(QFile::exists(root.filePath(u"Trash/files/Hill.map"_s)));
        answer({QString()});
        maker.editMap(u"/Karoosberg.map"_s);
        answer({u"Karoosberg"_s, u"Turn"_s});
        maker.renameMap(u"/Moved.map"_s);
        QCOMPARE(shownMap(), u"/Turn.map"_s);
        QCOMPARE(settings.mapChoice(AtValmora), u"/Turn.map"_s);
        QCOMPARE(filesIn(folder).keys(),
                 QStringList({u"Karoosberg 2.map"_s, u"Karoosberg.map"_s, u"Turn.map"_s}));
        QCOMPARE(contents(folder + u"/Karoosberg.map"), foreign);

        // Corners lie beside the map, also beside one that is not ours, and go where it goes.
        const auto nameIn = [&folder](const QString &file) {
            const CornerEdits edits = readCornerFile(folder + u'/' + file).edits;
            return edits.isEmpty() ? QString() : edits.constFirst().name;
        };
        answer({NameCorner});
        maker.editMap(u"/Karoosberg.map"_s);
        QCOMPARE(nameIn(u"Karoosberg.corners"_s), u"Loop"_s);
        QCOMPARE(contents(folder + u"/Karoosberg.map"), foreign);
        putFile(folder + u"/Turned.corners", "of a map that is gone");
        answer({NameCorner});
        maker.editMap(u"/Turn.map"_s);
        answer({u"Turned"_s});
        maker.renameMap(u"/Turn.map"_s);
        QCOMPARE(nameIn(u"Turned.corners"_s), u"Loop"_s);
        answer({u"Turn"_s});
        maker.editMap(u"/Turned.map"_s);
        QCOMPARE(nameIn(u"Turn.corners"_s), u"Loop"_s);
        QCOMPARE(filesIn(folder).keys(),
                 QStringList({u"Karoosberg 2.map"_s, u"Karoosberg.corners"_s, u"Karoosberg.map"_s,
                              u"Turn.corners"_s, u"Turn.map"_s}));

        answer({u""_s});
        maker.deleteMap(u"/Turn.map"_s);
        QCOMPARE(shownMap(), QString());
        QVERIFY(settings.mapChoice(AtValmora).isNull());
        QVERIFY(QFile::exists(root.filePath(u"Trash/files/Turn.map"_s)));
        QVERIFY(!QFile::exists(folder + u"/Turn.corners"));
    }

    // As the rider does it: with the table and its buttons, each step to be undone.
    void corners()
    {
        MapEdit edit(MapDraft::of(*TestCircuit(u"S300 R50:180 S800 R50:180 S500"_s).map()));
        CornersPane pane;
        connect(&pane, &CornersPane::editRequested, &edit, &MapEdit::editCorner);
        connect(&pane, &CornersPane::resetRequested, &edit, &MapEdit::forgetCornerEdits);
        connect(&edit, &MapEdit::changed, &pane, [&] { pane.showCorners(edit); });
        pane.refuse({});
        pane.showCorners(edit);
        auto *table = pane.findChild<QTableWidget *>();
        const auto names = [table] {
            QStringList texts;
            for (int row = 0; row < table->rowCount(); ++row)
                texts.append(table->item(row, 0)->text());
            return texts.join(u' ');
        };
        const auto click = [&pane, table](int row, const QString &text) {
            table->setCurrentCell(row, 0);
            const auto buttons = pane.findChildren<QPushButton *>();
            for (QPushButton *button : buttons) {
                if (button->text() == text)
                    button->click();
            }
        };
        QCOMPARE(names(), u"1 2"_s);
        table->item(1, 0)->setText(u" Long  one "_s);
        QCOMPARE(names(), u"1 Long one"_s);
        click(0, u"Split"_s);
        QCOMPARE(names(), u"1 2 Long one"_s);
        click(1, u"Join"_s);
        QCOMPARE(names(), u"1 Long one"_s);
        click(0, u"Delete"_s);
        QCOMPARE(names(), u"Long one"_s);
        table->item(0, 0)->setText(u"1"_s);
        QCOMPARE(names(), u"1"_s);
        click(0, u"As found"_s);
        QCOMPARE(names(), u"1 2"_s);
        QVERIFY(edit.corners().isEmpty());
        for (int step = 0; step < 3; ++step)
            edit.history().undo();
        QCOMPARE(names(), u"1 Long one"_s);
        while (edit.history().canUndo())
            edit.history().undo();
        QVERIFY(edit.corners().isEmpty());
        pane.refuse(u"not yours"_s);
        click(0, u"Delete"_s);
        QCOMPARE(names(), u"1 2"_s);
    }

    // A new map of an imported session has the line that the imported file names.
    void importedLine()
    {
        const QTemporaryDir root;
        const Settings settings(root.path());
        const OpenedSession demo = decodeSession(demoFile(AtValmora), AtValmora);
        RideToExport ride = rideOf(*demo.session);
        const PointAcquisition &sample = ride.samples[ride.samples.size() / 2];
        const QGeoCoordinate line(sample.dataCoordY, sample.dataCoordX);
        ride.gates = {{u"Line"_s, line, line, true, true}};
        putFile(root.filePath(u"a.vbo"_s), rideAsVbo(ride));
        ImportOptions options;
        options.folder = settings.acquisitionFolder();
        const ImportOutcome outcome = importRecording(root.filePath(u"a.vbo"_s), options);
        QCOMPARE(outcome.sessions.size(), std::size_t(1));
        AcquisitionLibrary library;
        library.load(settings.acquisitionFolder());
        const MapLibrary maps;
        InformationWriter writer;
        SessionDisplay display({library, maps, settings, writer});
        display.display(outcome.sessions[0].path);
        MapMaker maker({library, maps, display, settings}, nullptr);
        answer({u"Own"_s});
        maker.newMap();
        const auto map = readMapFile(settings.mapsFolder() + u"/Own.map", settings.mapsFolder());
        QVERIFY(map != nullptr);
        QVERIFY2(map->startPoint().distanceTo(line) < 10,
                 qPrintable(QString::number(map->startPoint().distanceTo(line))));
    }

private:
    // Types the names into the dialogs that come, one after the other, and says yes.
    static void answer(const QStringList &names)
    {
        QTimer::singleShot(0, qApp, [names] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (auto *box = qobject_cast<QMessageBox *>(dialog)) {
                answer(names);
                QAbstractButton *yes = box->button(QMessageBox::Yes);
                (yes != nullptr ? yes : box->button(QMessageBox::Ok))->click();
                return;
            }
            auto *edit = dialog->findChild<QLineEdit *>();
            if (names[0] == NameCorner) {
                MapEdit &map = qobject_cast<MapEditor *>(dialog)->edit();
                map.editCorner({CornerEdit::Kind::Rename, map.draft().start, u"Loop"_s});
            } else if (!names[0].isNull()) {
                edit->setText(names[0]);
            }
            // A name that cannot be had leaves the dialog open, or brings a message.
            if (names.size() > 1)
                answer(names.mid(1));
            QTest::keyClick(edit, Qt::Key_Return);
        });
    }
};

QTEST_MAIN(TestMapEditor)
#include "tst_mapeditor.moc"
