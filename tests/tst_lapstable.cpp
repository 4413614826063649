// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <memory>
#include <vector>

#include <QAbstractItemModelTester>
#include <QColor>
#include <QMenu>
#include <QPainter>
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
QString colours(const QAbstractItemModel &model, int row)
{
    QString letters;
    for (int column = 0; column < model.columnCount(); ++column)
        letters += letter(model.index(row, column).data(Qt::BackgroundRole));
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
    void columnSettings();
    void menu_data();
    void menu();
    void rowsAndSelection();
    void keys();
    void lapsThatAreNoMore();
};

void TestLapsTable::texts()
{
    Table table;
    const QString plain = u"|100 km/h|100 km/h|0 d|0 d|0.00|0.00|"_s;
    const QString rows[] {
        u"1|Incomplete|00:00.440|"_s + plain + u"||||||",
        u"2|Complete|00:04.940|00:04.500"_s + plain + u"||||00:01.000|00:01.000|00:02.300",
        u"3|Complete|00:08.440|00:03.500|201 km/h|55 km/h|-49 d|51 d|0.46|-1.24|12.35|99.50|||"
        "00:01.000|00:01.000|00:01.300"_s,
        u"4|Complete|00:13.940|00:05.500"_s + plain
            + u"99.50|99.50|7.25|8.00|00:01.000|00:01.000|00:03.300",
        u"5|Incomplete|00:14.400|"_s + plain + u"||||||",
    };
    const auto &model = *table.table.model();
    QCOMPARE(model.rowCount(), 5);
    for (int row = 0; row < 5; ++row)
        QCOMPARE(rowText(model, row), rows[row]);
    QLocale::setDefault(QLocale(QLocale::German));
    const QString text = model.index(2, 9).data().toString();
    QLocale::setDefault(QLocale::c());
    QCOMPARE(text, u"-1,24"_s);
    const_cast<Lap &>(*table.session->laps()[1]).setCumulatedTime(3600000 + 61001);
    QCOMPARE(model.index(1, 2).data().toString(), u"01::01:01.001"_s);
}

// More sections than a lap can have times for still are columns, empty ones without a title.
void TestLapsTable::headers()
{
    LapsTableModel model;
    using Mode = QAbstractItemModelTester::FailureReportingMode;
    const QAbstractItemModelTester tester(&model, Mode::QtTest);
    QCOMPARE(model.columnCount(), 14);
    std::vector<MapPointer> maps;
    const auto session = outing();
    for (const int timingPoints : {0, 9}) {
        QList<NamedPlace> places {{u"Start"_s, 0}};
        for (int i = 0; i < timingPoints; ++i)
            places.append({u"Time %1"_s.arg(i), 100.0 + 20 * i});
        maps.push_back(lineMap(10, 680, places));
        session->setMap(maps.back().get());
        model.setLaps(&session->laps());
        QCOMPARE(model.columnCount(), 14 + timingPoints);
        QCOMPARE(model.rowCount(), 5);
        if (timingPoints == 9)
            QCOMPARE(model.index(2, 22).data(), QVariant(QString()));
    }
    model.setLaps(nullptr);
    QCOMPARE(model.rowCount(), 0);
    QStringList texts;
    for (int section = 0; section <= 20; ++section)
        texts.append(model.headerData(section, Qt::Horizontal, Qt::DisplayRole).toString());
    QCOMPARE(texts.join(u'|'),
             u"Lap|Type|Cumulated time|Lap time|Max speed|Min speed|Left Angle|Right Angle|Accel|"
             "Decel|Min front susp.|Max front susp.|Min rear susp.|Max rear susp.|Section 1|"
             "Section 2|Section 3|Section 4|Section 5|Section 6|"_s);
}

// A lap that was thrown out is red all over, the records included that it keeps.
void TestLapsTable::colours()
{
    Table table;
    const auto &model = *table.table.model();
    const QString red(Columns, u'r');
    const auto check = [&model](const QStringList &rows) {
        for (int row = 0; row < 5; ++row)
            QCOMPARE(::colours(model, row), rows[row]);
    };
    const QString none(Columns, u'.');
    const QString rear = u"............gg..."_s;
    check({none, u"..............mm."_s, u"...gg.gggggg....m"_s, rear, none});
    table.session->setLapValid(2, false);
    check({none, u"...g..........mmm"_s, red, rear, none});
    table.session->setLapValid(1, false);
    table.session->setLapValid(3, false);
    // The first lap is best for want of another, although its time is not shown.
    check({u"...g............."_s, red, red, red, none});
}

void TestLapsTable::paintsRecordsOfSelectedRows()
{
    Table table;
    const auto painted = [&table](int column) {
        QImage image(40, 20, QImage::Format_RGB32);
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
    // Displayed first: the best lap's row is the selected one.
    QCOMPARE(painted(0), QColor(Qt::blue));
    QCOMPARE(painted(3), QColor(Qt::darkGreen));
    QCOMPARE(painted(16), QColor(Qt::darkMagenta));
    table.table.selectRow(1);
    QCOMPARE(painted(3), QColor(Qt::blue));
}

void TestLapsTable::columnSettings()
{
    Table table;
    QCOMPARE(hidden(table.table), u"10 11 12 13"_s);
    QFile::remove(table.settings.path(SettingsFile::Analyzer));
    for (const auto &[setting, columns] :
         {std::pair(Setting::ShowLapType, u"1"_s), std::pair(Setting::ShowCumulatedTime, u"2"_s),
          std::pair(Setting::ShowMaxSpeed, u"4"_s), std::pair(Setting::ShowMinSpeed, u"5"_s),
          std::pair(Setting::ShowAngleLeft, u"6"_s), std::pair(Setting::ShowAngleRight, u"7"_s),
          std::pair(Setting::ShowAccel, u"8"_s), std::pair(Setting::ShowDecel, u"9"_s),
          std::pair(Setting::ShowMinFrontSusp, u"10"_s),
          std::pair(Setting::ShowMaxFrontSusp, u"11"_s),
          std::pair(Setting::ShowMinRearSusp, u"12"_s),
          std::pair(Setting::ShowMaxRearSusp, u"13"_s),
          std::pair(Setting::ShowPartiels, u"14 15 16"_s)}) {
        table.view.applyColumns();
        // A missing key hides its column.
        const QString before = hidden(table.table);
        table.settings.setValue(setting, true);
        table.display(table.session.get());
        QCOMPARE(before, QString(columns + u' ' + hidden(table.table)).trimmed());
    }
    QCOMPARE(hidden(table.table), QString());
}

void TestLapsTable::menu_data()
{
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QString>("firstOn"); // name of the first lap's map; "same": the lap itself
    QTest::addColumn<QString>("entries");
    const QString with = u" lap|Compare this lap with...|Export lap"_s;
    const QString to = u"Invalidate lap|Compare to this lap|Reselect first lap|Export lap"_s;
    const QString alone = u"Invalidate lap|Reselect first lap|Export lap"_s;
    QTest::newRow("valid") << true << u""_s << u"Invalidate"_s + with;
    QTest::newRow("thrown out") << false << u""_s << u"Validate"_s + with;
    QTest::newRow("to another session's") << true << u"/Hill.map"_s << to;
    QTest::newRow("to itself") << true << u"same"_s << alone;
    QTest::newRow("on another map") << true << u"/HILL.map"_s << alone;
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
    const QSignalSpy exported(&table.view, &LapsView::exportRequested);
    QTEST(table.menu(), "entries");
    QMenu menu;
    table.view.fillMenu(menu);
    menu.actions().last()->trigger();
    QCOMPARE(exported[0][0].value<const Lap *>(), table.session->laps()[1].get());
}

void TestLapsTable::rowsAndSelection()
{
    Table table;
    QVERIFY(table.show());
    QCOMPARE(table.table.currentIndex().row(), 2);
    const QSignalSpy changed(&table.selection, &LapSelection::currentLapChanged);
    QTest::keyClick(&table.table, Qt::Key_Down);
    QTest::keyClick(&table.table, Qt::Key_Right);
    QCOMPARE(table.selection.currentLap(), table.session->laps()[3].get());
    QCOMPARE(changed.count(), 1);
    table.selection.setCurrentLap(0);
    QVERIFY(table.table.selectionModel()->isRowSelected(0));
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

void TestLapsTable::keys()
{
    Table table;
    QVERIFY(table.show());
    const QSignalSpy validity(&table.view, &LapsView::validityChanged);
    const QSignalSpy asked(&table.selection, &LapSelection::comparisonRequested);
    const auto press = [&table](Qt::Key key) { QTest::keyClick(&table.table, key); };
    press(Qt::Key_V);
    QCOMPARE(table.session->invalidLaps(), QList<quint8> {3});
    QCOMPARE(table.selection.currentIndex(), 2);
    press(Qt::Key_V);
    QVERIFY(table.session->laps()[2]->isBest());
    QCOMPARE(validity.count(), 2);
    press(Qt::Key_C);
    press(Qt::Key_C); // A lap is not compared to itself.
    QCOMPARE(table.selection.firstLap(), table.session->laps()[2].get());
    press(Qt::Key_R);
    QVERIFY(table.selection.firstLap() == nullptr);
    press(Qt::Key_C);
    press(Qt::Key_Up);
    press(Qt::Key_C);
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked[0][0].value<const Lap *>(), table.session->laps()[2].get());
    QCOMPARE(asked[0][1].value<const Lap *>(), table.session->laps()[1].get());
    QVERIFY(table.selection.firstLap() == nullptr);
    table.display(nullptr);
    press(Qt::Key_V);
    QCOMPARE(validity.count(), 2);
}

// Named by index, a lap of a session that was cut anew must not turn into another one.
void TestLapsTable::lapsThatAreNoMore()
{
    const MapPointer map = circuit();
    const MapPointer heath = circuit(u"/Heath.map"_s);
    auto session = outing();
    LapSelection selection;
    for (const Map *next :
         {static_cast<const Map *>(nullptr), static_cast<const Map *>(heath.get())}) {
        session->setMap(map.get());
        selection.setSession(session.get());
        QCOMPARE(selection.currentLap(), session->laps()[2].get());
        selection.setFirstLap(session.get(), 1);
        QCOMPARE(selection.firstLap(), session->laps()[1].get());
        session->setMap(next);
        QVERIFY(selection.firstLap() == nullptr);
    }
    selection.setCurrentLap(5);
    QVERIFY(selection.currentLap() == nullptr);
    selection.setCurrentLap(1);
    selection.setFirstLap(session.get(), 1);
    // The first lap outlives the display of its session, but not the session.
    const auto other = outing();
    selection.setSession(other.get());
    QVERIFY(selection.firstLap() != nullptr);
    const QSignalSpy first(&selection, &LapSelection::firstLapChanged);
    selection.forget(session.get());
    QCOMPARE(first.count(), 1);
    QVERIFY(selection.firstLap() == nullptr);
    selection.setSession(session.get());
    selection.setFirstLap(session.get(), 1);
    session.reset();
    QVERIFY(selection.firstLap() == nullptr);
    QVERIFY(selection.currentLap() == nullptr);
}

QTEST_MAIN(TestLapsTable)
#include "tst_lapstable.moc"
