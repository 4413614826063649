// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QAbstractItemModelTester>
#include <QColor>
#include <QDir>
#include <QHeaderView>
#include <QMenu>
#include <QPainter>
#include <QSettings>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <app/settings.h>
#include <maps/map.h>
#include <session/session.h>
#include <views/customtableviewdelegate.h>
#include <views/lapselection.h>
#include <views/lapstablemodel.h>
#include <views/lapsview.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int Columns = LapsTableModel::FirstSection + 3;

using MapPointer = std::unique_ptr<Map>;

MapPointer circuit(const QString &name = u"/Hill.map"_s)
{
    MapPointer map = lineMap(
        10, 680, {{u"Start"_s, 0}, {u"Time 0"_s, 100}, {u"Time 1"_s, 200}, {u"Time 2"_s, -20}});
    map->setName(name);
    return map;
}

/// Out lap, laps of 4.5, 3.5 and 5.5 seconds, in lap. The third holds all records but those of
/// the rear suspension, which only the fourth has.
std::unique_ptr<Session> outing()
{
    Points points = ride(lapRide({10, 0, 20}));
    for (PointAcquisition &point : points)
        point.dataSpeed = 100;
    points[60].dataSpeed = 200.6;
    points[61].dataSpeed = 55.4;
    points[62].dataAngle = -48.5;
    points[63].dataAngle = 51.4;
    points[64].dataAccelXPHComputed = 0.456;
    points[65].dataAccelXPHComputed = -1.239;
    const Reading readings[] {{1, 12.345F}, {2, 99.5F}, {3, 7.25F}, {4, 8}};
    points[66].addSuspension1(readings, 2);
    points[100].addSuspension1(readings + 1, 1);
    points[101].addSuspension2(readings + 2, 2);
    return sessionOf(points);
}

QString rowText(const QAbstractItemModel &model, int row)
{
    QStringList texts;
    for (int column = 0; column < model.columnCount(); ++column)
        texts.append(model.index(row, column).data().toString());
    return texts.join(u'|');
}

QChar letter(const QVariant &background)
{
    const auto colour = background.value<QColor>();
    return !background.isValid()               ? u'.'
           : colour == QColor(Qt::red)         ? u'r'
           : colour == QColor(Qt::darkGreen)   ? u'g'
           : colour == QColor(Qt::darkMagenta) ? u'm'
                                               : u'?';
}

/// The backgrounds of a row's cells, a letter each.
QString colours(const QAbstractItemModel &model, int row, int role = Qt::BackgroundRole)
{
    QString letters;
    for (int column = 0; column < model.columnCount(); ++column)
        letters += letter(model.index(row, column).data(role));
    return letters;
}

/// The columns that are hidden.
QString hidden(const QTableView &table)
{
    QStringList columns;
    for (int column = 0; column < table.model()->columnCount(); ++column) {
        if (table.isColumnHidden(column))
            columns.append(QString::number(column));
    }
    return columns.join(u' ');
}

/// The table of a displayed session, with settings of its own.
struct Table
{
    Table()
    {
        settings.writeDisplayDefaults();
        session->setMap(map.get());
        display(session.get());
    }
    void display(Session *shown)
    {
        selection.setSession(shown);
        view.showLaps();
    }
    [[nodiscard]] bool show()
    {
        table.resize(900, 300);
        table.show();
        table.activateWindow();
        table.setFocus();
        return QTest::qWaitForWindowActive(&table);
    }
    /// The texts of the menu's entries; those that cannot be used in brackets.
    [[nodiscard]] QString menu()
    {
        QMenu menu;
        view.fillMenu(menu);
        QStringList texts;
        for (const QAction *action : menu.actions())
            texts.append(action->isEnabled() ? action->text() : u'(' + action->text() + u')');
        return texts.join(u'|');
    }

    QTemporaryDir folder;
    Settings settings {folder.path()};
    MapPointer map = circuit();
    std::unique_ptr<Session> session = outing();
    QTableView table;
    LapSelection selection;
    LapsView view {table, selection, settings};
};

} // namespace

class TestLapsTable final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void texts();
    void headers();
    void colours();
    void paintsRecordsOfSelectedRows();
    void modelKeepsItsWord();
    void columnSettings();
    void menu_data();
    void menu();
    void rowsAndSelection();
    void keys();
    void lapsThatAreNoMore();
    void firstLapOutlivesDisplay();
};

void TestLapsTable::texts_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, int index, const char *text) {
        QTest::newRow(name) << index << QString::fromLatin1(text);
    };
    row("out lap", 0, "1|Incomplete|00:00.440||100 km/h|100 km/h|0 d|0 d|0.00|0.00|||||||");
    row("no readings", 1,
        "2|Complete|00:04.940|00:04.500|100 km/h|100 km/h|0 d|0 d|0.00|0.00|||||"
        "00:01.000|00:01.000|00:02.300");
    row("records", 2,
        "3|Complete|00:08.440|00:03.500|201 km/h|55 km/h|-49 d|51 d|0.46|-1.24|12.35|99.50|||"
        "00:01.000|00:01.000|00:01.300");
    row("both suspensions", 3,
        "4|Complete|00:13.940|00:05.500|100 km/h|100 km/h|0 d|0 d|0.00|0.00|50.00|50.00|7.25|8.00|"
        "00:01.000|00:01.000|00:03.300");
    row("in lap", 4, "5|Incomplete|00:14.400||100 km/h|100 km/h|0 d|0 d|0.00|0.00|||||||");
}

void TestLapsTable::texts()
{
    QFETCH(const int, row);
    const Table table;
    QCOMPARE(table.table.model()->rowCount(), 5);
    QTEST(rowText(*table.table.model(), row), "text");
}

void TestLapsTable::longTimes()
{
    Table table;
    const_cast<Lap &>(*table.session->laps()[1]).setCumulatedTime(3600000 + 61001);
    QCOMPARE(table.table.model()->index(1, 2).data().toString(), u"01::01:01.001"_s);
}

void TestLapsTable::separatorsOfTheLanguage()
{
    const Table table;
    QLocale::setDefault(QLocale(QLocale::German));
    const QString text = rowText(*table.table.model(), 2);
    QLocale::setDefault(QLocale::c());
    QVERIFY2(text.contains(u"|00:03.500|201 km/h|55 km/h|-49 d|51 d|0,46|-1,24|12,35|99,50|"),
             qPrintable(text));
}

void TestLapsTable::headers_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QString>("text"); // null: nothing at all
    const QStringList texts {u"Lap"_s,
                             u"Type"_s,
                             u"Cumulated time"_s,
                             u"Lap time"_s,
                             u"Max speed"_s,
                             u"Min speed"_s,
                             u"Left Angle"_s,
                             u"Right Angle"_s,
                             u"Accel"_s,
                             u"Decel"_s,
                             u"Min front susp."_s,
                             u"Max front susp."_s,
                             u"Min rear susp."_s,
                             u"Max rear susp."_s,
                             u"Section 1"_s,
                             u"Section 2"_s,
                             u"Section 3"_s,
                             u"Section 4"_s,
                             u"Section 5"_s,
                             u"Section 6"_s};
    for (int section = 0; section < texts.size(); ++section)
        QTest::addRow("%d", section) << section << Qt::Horizontal << texts[section];
    QTest::newRow("20") << 20 << Qt::Horizontal << QString();
    QTest::newRow("-1") << -1 << Qt::Horizontal << QString();
    QTest::newRow("vertical") << 0 << Qt::Vertical << QString();
}

void TestLapsTable::headers()
{
    QFETCH(const int, section);
    QFETCH(const Qt::Orientation, orientation);
    QFETCH(const QString, text);
    const LapsTableModel model;
    const QVariant header = model.headerData(section, orientation, Qt::DisplayRole);
    QCOMPARE(header.isValid(), !text.isNull());
    QCOMPARE(header.toString(), text);
    QVERIFY(!model.headerData(section, orientation, Qt::ToolTipRole).isValid());
}

void TestLapsTable::columnCount_data()
{
    QTest::addColumn<int>("timingPoints"); // -1: no map
    QTest::addColumn<int>("count");
    QTest::newRow("no map") << -1 << 14;
    QTest::newRow("none") << 0 << 14;
    QTest::newRow("1") << 1 << 15;
    QTest::newRow("6") << 6 << 20;
    QTest::newRow("7") << 7 << 21;
    QTest::newRow("9") << 9 << 23;
}

// More sections than a lap can have times for still are columns, empty ones.
void TestLapsTable::columnCount()
{
    QFETCH(const int, timingPoints);
    QList<NamedPlace> places {{u"Start"_s, 0}};
    for (int i = 0; i < timingPoints; ++i)
        places.append({u"Time %1"_s.arg(i), 100.0 + 20 * i});
    const MapPointer map = lineMap(10, 680, places);
    const auto session = outing();
    if (timingPoints >= 0)
        session->setMap(map.get());
    LapsTableModel model;
    model.setLaps(&session->laps());
    QTEST(model.columnCount(), "count");
    QCOMPARE(model.rowCount(), timingPoints < 0 ? 0 : 5);
    if (timingPoints == 9) {
        QCOMPARE(model.index(2, 22).data(), QVariant(QString()));
        QVERIFY(!model.index(2, 22).data(Qt::BackgroundRole).isValid());
    }
    model.setLaps(nullptr);
    QCOMPARE(model.columnCount(), 14);
    QCOMPARE(model.rowCount(), 0);
}

// A lap that was thrown out is red all over, the records included that it keeps.
void TestLapsTable::colourOrder()
{
    Table table;
    const auto &model = *table.table.model();
    const QString none(Columns, u'.');
    const QString red(Columns, u'r');
    const QString rear = u"............gg..."_s;
    QCOMPARE(
        colours(model),
        QStringList({none, u"..............mm."_s, u"...gg.gggggg....m"_s, rear, none}).join(u' '));
    table.session->setLapValid(2, false);
    QCOMPARE(colours(model),
             QStringList({none, u"...g..........mmm"_s, red, rear, none}).join(u' '));
    table.session->setLapValid(1, false);
    table.session->setLapValid(3, false);
    // The first lap is best for want of another, although its time is not shown.
    QCOMPARE(colours(model), QStringList({u"...g............."_s, red, red, red, none}).join(u' '));
}

void TestLapsTable::rolesOfSelectedRows()
{
    Table table;
    const auto &model = *table.table.model();
    constexpr int Record = Qt::UserRole + 3;
    constexpr int Section = Qt::UserRole + 4;
    const QString none(Columns, u'.');
    const QString records = u"...tt.tttttt....."_s;
    const QString sections = u"................t"_s;
    // Displayed first: the best lap's row is the selected one.
    QCOMPARE(trueCells(model, 2, Record), records);
    QCOMPARE(trueCells(model, 2, Section), sections);
    QCOMPARE(trueCells(model, 1, Section), none);
    QCOMPARE(letter(model.index(2, 16).data(Record)), u'm');
    table.table.selectRow(1);
    QCOMPARE(trueCells(model, 2, Record), none);
    QCOMPARE(trueCells(model, 1, Section), u"..............tt."_s);
    QCOMPARE(letter(model.index(2, 3).data(Record)), u'g');
    QVERIFY(!model.index(2, 0).data(Record).isValid());
    table.session->setLapValid(1, false);
    QCOMPARE(trueCells(model, 1, Section), none);
    QCOMPARE(letter(model.index(1, 14).data(Section)), u'r');
}

void TestLapsTable::paintsRecordsOfSelectedRows()
{
    Table table;
    table.table.selectRow(2);
    const auto painted = [&table](int column) {
        QImage image(40, 20, QImage::Format_RGB32);
        image.fill(Qt::yellow);
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.rect = image.rect();
        option.state = QStyle::State_Enabled | QStyle::State_Active | QStyle::State_Selected;
        option.showDecorationSelected = true;
        option.palette.setColor(QPalette::Highlight, Qt::blue);
        const CustomTableViewDelegate delegate;
        static_cast<const QAbstractItemDelegate &>(delegate).paint(
            &painter, option, table.table.model()->index(2, column));
        return image.pixelColor(1, 1);
    };
    QCOMPARE(painted(0), QColor(Qt::blue));
    QCOMPARE(painted(3), QColor(Qt::darkGreen));
    QCOMPARE(painted(16), QColor(Qt::darkMagenta));
}

void TestLapsTable::modelKeepsItsWord()
{
    LapsTableModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    const auto session = outing();
    const MapPointer map = circuit();
    model.setLaps(&session->laps());
    session->setMap(map.get());
    model.setLaps(&session->laps());
    const QSignalSpy changed(&model, &LapsTableModel::dataChanged);
    session->setLapValid(2, false);
    model.refresh();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed[0][1].toModelIndex(), model.index(4, Columns - 1));
    model.setLaps(nullptr);
    model.refresh();
    QCOMPARE(changed.count(), 1);
}

void TestLapsTable::columnSettings_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("hidden");
    QTest::newRow("type") << u"showLapType"_s << u"1"_s;
    QTest::newRow("cumulated") << u"showCumulatedTime"_s << u"2"_s;
    QTest::newRow("max speed") << u"showMaxSpeed"_s << u"4"_s;
    QTest::newRow("min speed") << u"showMinSpeed"_s << u"5"_s;
    QTest::newRow("left") << u"showAngleLeft"_s << u"6"_s;
    QTest::newRow("right") << u"showAngleRight"_s << u"7"_s;
    QTest::newRow("accel") << u"showAccel"_s << u"8"_s;
    QTest::newRow("decel") << u"showDecel"_s << u"9"_s;
    QTest::newRow("min front") << u"showMinFrontSusp"_s << u"10"_s;
    QTest::newRow("max front") << u"showMaxFrontSusp"_s << u"11"_s;
    QTest::newRow("min rear") << u"showMinRearSusp"_s << u"12"_s;
    QTest::newRow("max rear") << u"showMaxRearSusp"_s << u"13"_s;
    QTest::newRow("sections") << u"showPartiels"_s << u"14 15 16"_s;
    QTest::newRow("of no column") << u"showLocalMinMax"_s << u""_s;
}

void TestLapsTable::columnSettings()
{
    QFETCH(const QString, key);
    QFETCH(const QString, hidden);
    Table table;
    QSettings file(table.settings.path(SettingsFile::Analyzer), QSettings::IniFormat);
    for (const Setting setting : Settings::displaySettings())
        file.setValue(Settings::key(setting), true);
    file.setValue(key, false);
    file.sync();
    table.view.applyColumns();
    QStringList expected;
    for (int column = 0; column < Columns; ++column) {
        if (!hidden.split(u' ').contains(QString::number(column)))
            expected.append(QString::number(column));
    }
    QCOMPARE(visibleColumns(table.table), expected.join(u' '));
}

void TestLapsTable::missingKeyHidesColumn()
{
    Table table;
    QCOMPARE(visibleColumns(table.table), u"0 1 2 3 4 5 6 7 8 9 14 15 16"_s);
    QFile::remove(table.settings.path(SettingsFile::Analyzer));
    table.view.applyColumns();
    QCOMPARE(visibleColumns(table.table), u"0 3"_s);
    // Shown again for another session, too.
    table.settings.setValue(Setting::ShowPartiels, true);
    table.display(table.session.get());
    QCOMPARE(visibleColumns(table.table), u"0 3 14 15 16"_s);
}

void TestLapsTable::menu_data()
{
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QString>("firstOn"); // name of the first lap's map; "same": the lap itself
    QTest::addColumn<QString>("entries");
    const QString compareTo
        = u"Invalidate lap|Compare to this lap|Reselect first lap|(Export lap)"_s;
    const QString alone = u"Invalidate lap|Reselect first lap|(Export lap)"_s;
    QTest::newRow("valid") << true << u""_s
                           << u"Invalidate lap|Compare this lap with...|(Export lap)"_s;
    QTest::newRow("thrown out") << false << u""_s
                                << u"Validate lap|Compare this lap with...|(Export lap)"_s;
    QTest::newRow("to another session's") << true << u"/Hill.map"_s << compareTo;
    QTest::newRow("to itself") << true << u"same"_s << alone;
    QTest::newRow("to one on another map") << true << u"/Heath.map"_s << alone;
    QTest::newRow("map's name in capitals") << true << u"/HILL.map"_s << alone;
}

void TestLapsTable::menu()
{
    QFETCH(const bool, valid);
    QFETCH(const QString, firstOn);
    Table table;
    const MapPointer otherMap = circuit(firstOn);
    const auto other = outing();
    other->setMap(otherMap.get());
    table.selection.setCurrentLap(1);
    table.session->setLapValid(1, valid);
    if (!firstOn.isEmpty())
        table.selection.setFirstLap(firstOn == u"same" ? table.session.get() : other.get(), 1);
    QTEST(table.menu(), "entries");
}

void TestLapsTable::menuCanExport()
{
    Table table;
    const QSignalSpy exported(&table.view, &LapsView::exportRequested);
    QMenu menu;
    table.view.fillMenu(menu);
    QAction *action = menu.actions().last();
    QCOMPARE(action->text(), u"Export lap"_s);
    QVERIFY(action->isEnabled());
    action->trigger();
    QCOMPARE(exported.count(), 1);
    QCOMPARE(exported[0][0].value<const Lap *>(), table.session->laps()[2].get());
}

void TestLapsTable::rowsAndSelection()
{
    Table table;
    QVERIFY(table.show());
    QCOMPARE(table.table.currentIndex().row(), 2);
    QCOMPARE(table.selection.currentIndex(), 2);
    const QSignalSpy changed(&table.selection, &LapSelection::currentLapChanged);
    QTest::keyClick(&table.table, Qt::Key_Down);
    QCOMPARE(table.selection.currentLap(), table.session->laps()[3].get());
    QTest::keyClick(&table.table, Qt::Key_Right);
    QCOMPARE(changed.count(), 1);
    table.selection.setCurrentLap(0);
    QCOMPARE(table.table.currentIndex().row(), 0);
    QVERIFY(table.table.selectionModel()->isRowSelected(0));
    QCOMPARE(table.table.selectionModel()->selectedRows().size(), 1);
    // A session of fewer laps, none, and back.
    const auto other = sessionOf(ride(lapRide({0})));
    other->setMap(table.map.get());
    table.selection.setCurrentLap(4);
    table.display(other.get());
    QCOMPARE(table.table.currentIndex().row(), 1);
    table.display(nullptr);
    QCOMPARE(table.table.model()->rowCount(), 0);
    QVERIFY(table.selection.currentLap() == nullptr);
    QCOMPARE(table.menu(), u"(Validate lap)|(Compare this lap with...)|(Export lap)"_s);
    table.display(table.session.get());
    QCOMPARE(table.table.currentIndex().row(), 2);
}

void TestLapsTable::keyThrowsLapOut()
{
    Table table;
    QVERIFY(table.show());
    const QSignalSpy changed(&table.view, &LapsView::validityChanged);
    QTest::keyClick(&table.table, Qt::Key_V);
    QVERIFY(!table.session->laps()[2]->isValid());
    QCOMPARE(table.session->invalidLaps(), QList<quint8> {3});
    QCOMPARE(changed.count(), 1);
    QCOMPARE(table.selection.currentIndex(), 2);
    QTest::keyClick(&table.table, Qt::Key_V);
    QVERIFY(table.session->laps()[2]->isBest());
    QCOMPARE(changed.count(), 2);
    table.display(nullptr);
    QTest::keyClick(&table.table, Qt::Key_V);
    QCOMPARE(changed.count(), 2);
}

void TestLapsTable::keysCompare()
{
    Table table;
    QVERIFY(table.show());
    const QSignalSpy first(&table.selection, &LapSelection::firstLapChanged);
    const QSignalSpy asked(&table.selection, &LapSelection::comparisonRequested);
    const auto press = [&table](Qt::Key key) { QTest::keyClick(&table.table, key); };
    press(Qt::Key_R);
    QCOMPARE(first.count(), 0);
    press(Qt::Key_C);
    QCOMPARE(table.selection.firstLap(), table.session->laps()[2].get());
    press(Qt::Key_C);
    QCOMPARE(asked.count(), 0);
    press(Qt::Key_R);
    QVERIFY(table.selection.firstLap() == nullptr);
    press(Qt::Key_C);
    press(Qt::Key_Up);
    press(Qt::Key_C);
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked[0][0].value<const Lap *>(), table.session->laps()[2].get());
    QCOMPARE(asked[0][1].value<const Lap *>(), table.session->laps()[1].get());
    QVERIFY(table.selection.firstLap() == nullptr);
    QCOMPARE(table.menu(), u"Invalidate lap|Compare this lap with...|(Export lap)"_s);
}

// Named by index, a lap of a session that was cut anew must not turn into another one.
void TestLapsTable::lapsThatAreNoMore()
{
    LapSelection selection;
    auto session = outing();
    selection.setSession(session.get());
    QCOMPARE(selection.currentIndex(), -1);
    QVERIFY(selection.currentLap() == nullptr);
    const MapPointer map = circuit();
    session->setMap(map.get());
    selection.setSession(session.get());
    QCOMPARE(selection.currentLap(), session->laps()[2].get());
    selection.setFirstLap(session.get(), 1);
    QCOMPARE(selection.firstLap(), session->laps()[1].get());
    for (const int outside : {-1, 5}) {
        selection.setCurrentLap(outside);
        QVERIFY(selection.currentLap() == nullptr);
    }
    session->setMap(nullptr);
    QVERIFY(selection.firstLap() == nullptr);
    session->setMap(map.get());
    selection.setSession(session.get());
    selection.setFirstLap(session.get(), 1);
    const MapPointer other = circuit(u"/Heath.map"_s);
    session->setMap(other.get());
    QVERIFY(selection.firstLap() == nullptr);
    selection.setFirstLap(session.get(), 1);
    session.reset();
    QVERIFY(selection.firstLap() == nullptr);
    QVERIFY(selection.currentLap() == nullptr);
    QVERIFY(selection.session() == nullptr);
}

void TestLapsTable::firstLapOutlivesDisplay()
{
    LapSelection selection;
    const MapPointer map = circuit();
    const auto one = outing();
    const auto two = outing();
    one->setMap(map.get());
    two->setMap(map.get());
    selection.setSession(one.get());
    selection.setFirstLap(one.get(), 1);
    selection.setSession(two.get());
    QCOMPARE(selection.firstLap(), one->laps()[1].get());
    const QSignalSpy first(&selection, &LapSelection::firstLapChanged);
    const QSignalSpy current(&selection, &LapSelection::currentLapChanged);
    selection.forget(one.get());
    QVERIFY(selection.firstLap() == nullptr);
    QCOMPARE(selection.session(), two.get());
    QCOMPARE(first.count(), 1);
    QCOMPARE(current.count(), 0);
    selection.forget(two.get());
    QVERIFY(selection.session() == nullptr);
    QCOMPARE(current.count(), 1);
    QCOMPARE(first.count(), 1);
}

QTEST_MAIN(TestLapsTable)
#include "tst_lapstable.moc"
