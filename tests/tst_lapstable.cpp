// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <memory>

#include <QAbstractItemModelTester>
#include <QFile>
#include <QMenu>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <base/settings.h>
#include <session/session.h>
#include <theme/themes.h>
#include <track/map.h>
#include <views/laps/lapselection.h>
#include <views/laps/lapstablemodel.h>
#include <views/laps/lapsview.h>

#include "builders.h"
#include "widgets.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

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

/// The backgrounds of a row's cells, a letter each.
QString colours(const QAbstractItemModel &model, int row)
{
    const QMap<QString, QString> letters {{theme().colour(Colour::ThrownOut).name(), u"r"_s},
                                          {theme().colour(Colour::BestLap).name(), u"g"_s},
                                          {theme().colour(Colour::BestSection).name(), u"m"_s}};
    QString text;
    for (int column = 0; column < model.columnCount(); ++column) {
        const QVariant background = model.index(row, column).data(Qt::BackgroundRole);
        text += background.isValid() ? letters[background.value<QColor>().name()] : u"."_s;
    }
    return text;
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
        table.setFocus();
        return showActive(table);
    }
    [[nodiscard]] QString menu()
    {
        QMenu menu;
        view.fillMenu(menu);
        return menuText(menu);
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

    void texts()
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
    }

    // A figure that damage has spoilt is none; a rider would believe any other number.
    void damagedSamples()
    {
        Table table;
        Points points = ride(lapRide({0}));
        constexpr float Infinite = std::numeric_limits<float>::infinity();
        points[20].dataAngle = -static_cast<double>(Infinite);
        points[21].dataAngle = 181;
        addReadings(points[22], 1, {Infinite, -3e38F});
        const auto damaged = sessionOf(points);
        damaged->setMap(table.map.get());
        table.display(damaged.get());
        QVERIFY(rowText(*table.table.model(), 1)
                    .contains(u"|\u2013|\u2013|0.00|0.00|\u2013|\u2013|"_s));
    }

    // More sections than a lap can have times for still are columns, empty ones.
    void sections()
    {
        LapsTableModel model;
        using Mode = QAbstractItemModelTester::FailureReportingMode;
        const QAbstractItemModelTester tester(&model, Mode::QtTest);
        QList<NamedPlace> places {{u"Start"_s, 0}};
        for (int i = 0; i < 9; ++i)
            places.append({u"Time %1"_s.arg(i), 100.0 + 20 * i});
        const auto map = lineMap(10, 680, places);
        const auto session = outing();
        session->setMap(map.get());
        model.setLaps(&session->laps(), 9);
        QCOMPARE(model.columnCount(), 14 + 9);
        QCOMPARE(model.index(2, 22).data(), QVariant(QString()));
        model.setLaps(nullptr);
        QCOMPARE(model.rowCount(), 0);
    }

    // A lap that was thrown out is red all over, the records included that it keeps.
    void colours()
    {
        Table table;
        const auto &model = *table.table.model();
        const QString red(model.columnCount(), u'r');
        const auto rows = [&model] {
            QStringList rows;
            for (int row = 0; row < 5; ++row)
                rows.append(::colours(model, row));
            return rows;
        };
        const QString none(model.columnCount(), u'.');
        const QString rear = u"............gg..."_s;
        QCOMPARE(rows(),
                 QStringList({none, u"..............mm."_s, u"...gg.gggggg....m"_s, rear, none}));
        table.session->setLapValid(2, false);
        QCOMPARE(rows(), QStringList({none, u"...g..........mmm"_s, red, rear, none}));
        table.session->setLapValid(1, false);
        table.session->setLapValid(3, false);
        // The first lap is best for want of another, although its time is not shown.
        QCOMPARE(rows(), QStringList({u"...g............."_s, red, red, red, none}));
    }

    void columnSettings()
    {
        Table table;
        QCOMPARE(hidden(table.table), u"10 11 12 13"_s);
        // As a rider has it who used the program before there were settings: each has its default.
        QFile::remove(table.settings.path(SettingsFile::Analyzer));
        table.view.applyColumns();
        QCOMPARE(hidden(table.table), u"10 11 12 13"_s);
        // In the order of the columns, each setting shows the next.
        const Setting settings[] {
            Setting::ShowLapType,      Setting::ShowCumulatedTime, Setting::ShowMaxSpeed,
            Setting::ShowMinSpeed,     Setting::ShowAngleLeft,     Setting::ShowAngleRight,
            Setting::ShowAccel,        Setting::ShowDecel,         Setting::ShowMinFrontSusp,
            Setting::ShowMaxFrontSusp, Setting::ShowMinRearSusp,   Setting::ShowMaxRearSusp};
        for (const Setting setting : settings)
            table.settings.setValue(setting, false);
        table.settings.setValue(Setting::ShowPartiels, false);
        QString rest = u"1 2 4 5 6 7 8 9 10 11 12 13 14 15 16"_s;
        for (const Setting setting : settings) {
            table.view.applyColumns();
            QCOMPARE(hidden(table.table), rest);
            table.settings.setValue(setting, true);
            rest = rest.section(u' ', 1);
        }
        table.settings.setValue(Setting::ShowPartiels, true);
        table.display(table.session.get());
        QCOMPARE(hidden(table.table), QString());
    }

    void keys()
    {
        Table table;
        QVERIFY(table.show());
        const QSignalSpy validity(&table.view, &LapsView::validityChanged);
        const QSignalSpy refused(&table.view, &LapsView::refused);
        const QSignalSpy chosen(&table.view, &LapsView::referenceChosen);
        const QSignalSpy menu(&table.view, &LapsView::referenceMenuWanted);
        const auto press = [&table](Qt::Key key) { QTest::keyClick(&table.table, key); };
        press(Qt::Key_V);
        QCOMPARE(table.session->invalidLaps(), QList<quint8> {3});
        QCOMPARE(table.selection.currentIndex(), 2);
        press(Qt::Key_V);
        QVERIFY(table.session->laps()[2]->isBest());
        QCOMPARE(validity.count(), 2);
        const QString first = u"Invalidate lap|Compare this lap with...|Reselect first lap|"
                              "Draw besides|(Export lap)"_s;
        QCOMPARE(table.menu(), first);
        press(Qt::Key_C);
        QCOMPARE(chosen[0][0].value<SessionLap>().lap, table.session->laps()[2].get());
        table.selection.setReference(table.session.get(), 2);
        press(Qt::Key_C); // A lap is not compared to itself, and the rider is told.
        QCOMPARE(refused.count(), 1);
        press(Qt::Key_Up);
        QVERIFY(table.menu().contains(u"|Compare to this lap|"));
        press(Qt::Key_R);
        QCOMPARE(menu.count(), 1);
        press(Qt::Key_O);
        QVERIFY(table.menu().contains(u"|Draw no longer besides|"));
        QVERIFY(table.selection.others().isEmpty()); // It is the selected one.
        table.selection.setCurrentLap(0);
        QVERIFY(table.table.selectionModel()->isRowSelected(0));
        table.display(nullptr);
        QCOMPARE(table.table.model()->rowCount(), 0);
        press(Qt::Key_V);
        QCOMPARE(validity.count(), 2);
    }

    // The selected lap, the reference and four more; what is to be drawn is told once.
    void drawnLaps()
    {
        const MapPointer map = circuit();
        const MapPointer heath = circuit(u"/Heath.map"_s);
        const auto session = outing();
        const auto other = outing();
        session->setMap(map.get());
        other->setMap(heath.get());
        LapSelection selection;
        const QSignalSpy shown(&selection, &LapSelection::shownChanged);
        connect(&selection, &LapSelection::sessionChanged, &selection,
                [&] { selection.setReference(session.get(), 1); });
        selection.setSession(session.get());
        QCOMPARE(shown.count(), 1);
        QCOMPARE(selection.compared().lap, session->laps()[1].get());
        for (int lap = 0; lap < 4; ++lap)
            QVERIFY(selection.toggleOther(session.get(), lap));
        QVERIFY(!selection.toggleOther(session.get(), 4));
        QCOMPARE(selection.others().size(), 2); // Without the two that are compared.
        selection.setCurrentLap(4);
        QCOMPARE(selection.others().size(), 3);
        QVERIFY(selection.toggleOther(session.get(), 0));
        QCOMPARE(selection.others().size(), 2);
        selection.setCurrentLap(1); // With itself a lap is not compared.
        QVERIFY(!selection.compared() && selection.reference());
        selection.setSession(other.get()); // Nor with one of another circuit.
        QVERIFY(!selection.compared() && selection.reference() && selection.others().isEmpty());
    }

    // Named by index, a lap of a session that was cut anew must not turn into another one.
    void lapsThatAreNoMore()
    {
        const MapPointer map = circuit();
        const MapPointer heath = circuit(u"/Heath.map"_s);
        auto session = outing();
        session->setMap(map.get());
        LapSelection selection;
        selection.setSession(session.get());
        selection.setReference(session.get(), 1);
        QCOMPARE(selection.reference().lap, session->laps()[1].get());
        session->setMap(heath.get());
        QVERIFY(selection.reference().lap == nullptr && selection.currentLap() == nullptr);
        selection.setReference(session.get(), 1);
        // The first lap outlives the display of its session, but not the session.
        const auto other = outing();
        selection.setSession(other.get());
        QVERIFY(selection.reference().lap != nullptr);
        session.reset();
        QVERIFY(selection.reference().lap == nullptr);
    }
};

QTEST_MAIN(TestLapsTable)
#include "tst_lapstable.moc"
