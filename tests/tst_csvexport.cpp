// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLocale>
#include <QTest>

#include <maps/map.h>
#include <session/csvexport.h>
#include <session/session.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

const QByteArray Header = "TimeSec;CoordX;CoordY;Vitesse;Accel;Angle;Accel Lat.";
const QByteArray SuspensionHeader = Header + ";Front Susp.; Rear Susp.";

PointAcquisition point()
{
    PointAcquisition point;
    point.dataTimeSec = 1.2;
    point.dataCoordX = 9.25;
    point.dataCoordY = -45.12345678;
    point.dataSpeed = 100.5;
    point.dataAngle = -20;
    point.dataAccelXPH = 99;
    point.dataAccelXPHComputed = 0.25;
    point.dataAccelYPH = -0.5;
    return point;
}

PointAcquisition withReadings(const QList<float> &front, const QList<float> &rear)
{
    PointAcquisition sample = point();
    for (const float value : front) {
        const Reading reading {1, value};
        sample.addSuspension1(&reading, 1);
    }
    for (const float value : rear) {
        const Reading reading {1, value};
        sample.addSuspension2(&reading, 1);
    }
    return sample;
}

} // namespace

class TestCsvExport final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbers_data();
    void numbers();
    void rows_data();
    void rows();
    void wholeSamplesOnly();
    void lap();
};

void TestCsvExport::numbers_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("speed");
    QTest::addColumn<QString>("longitude");
    const auto row
        = [](const char *locale, double value, const char *speed, const char *longitude) {
              QTest::addRow("%s, %g", locale, value)
                  << QString::fromLatin1(locale) << value << QString::fromLatin1(speed)
                  << QString::fromLatin1(longitude);
          };
    row("C", 1234.5, "1234,5", "1234,5000000");
    row("en_US", 1234.5, "1,234,5", "1,234,5000000");
    row("de_DE", 1234.5, "1,234,5", "1,234,5000000");
    // These separate groups by characters that no spreadsheet would take for one.
    row("fr_FR", 1234.5, "1234,5", "1234,5000000");
    row("de_CH", 1234.5, "1234,5", "1234,5000000");
    row("en_US", 12.3456789, "12,3457", "12,3456789");
    row("en_US", -0.00001234, "-1,234e-05", "-0,0000123");
    row("C", 7, "7", "7,0000000");
    row("fr_FR", 1234567, "1,23457e+06", "1234567,0000000");
}

void TestCsvExport::numbers()
{
    QFETCH(const QString, locale);
    QFETCH(const double, value);
    PointAcquisition sample;
    sample.dataSpeed = value;
    sample.dataCoordX = value;
    const QByteArray csv = sessionCsv(*sessionOf({sample}), QLocale(locale));
    const QStringList cells = QString::fromUtf8(csv).section(u'\n', 1).split(u';');
    // Lower-case exponents everywhere: locales write them in either way.
    QTEST(QString(cells.value(3)).replace(u'E', u'e'), "speed");
    QTEST(cells.value(1), "longitude");
}

void TestCsvExport::rows_data()
{
    QTest::addColumn<Points>("points");
    QTest::addColumn<QByteArray>("csv");
    const QByteArray channels = ";9,2500000;-45,1234568;100,5;0,25;-20;-0,5";
    QTest::newRow("none") << Points() << Header;
    QTest::newRow("no readings") << Points {point(), point()}
                                 << Header + "\n1,2" + channels + "\n1,2" + channels;
    QTest::newRow("both channels")
        << Points {withReadings({1.5F, 2}, {3, 0.1F})}
        << SuspensionHeader + "\n1,2" + channels + ";1,5;3" + "\n1,21" + channels + ";2;0,1";
    QTest::newRow("lists of different lengths")
        << Points {withReadings({1, 2}, {3}), withReadings({}, {4})}
        << SuspensionHeader + "\n1,2" + channels + ";1;3" + "\n1,21" + channels + ";2;" + "\n1,2"
               + channels + ";;4";
    // The first sample decides about the header, every sample about its own row.
    QTest::newRow("the first without") << Points {point(), withReadings({1}, {})}
                                       << Header + "\n1,2" + channels + "\n1,2" + channels + ";1;";
    QTest::newRow("the second without")
        << Points {withReadings({}, {1}), point()}
        << SuspensionHeader + "\n1,2" + channels + ";;1" + "\n1,2" + channels;
}

void TestCsvExport::rows()
{
    QFETCH(const Points, points);
    QTEST(sessionCsv(*sessionOf(points), QLocale::c()), "csv");
}

void TestCsvExport::wholeSamplesOnly()
{
    const auto session = sessionOf({point(), point(), point()}, 1);
    QCOMPARE(sessionCsv(*session, QLocale::c()).count('\n'), 1);
    session->smooth();
    QVERIFY(!sessionCsv(*session, QLocale::c()).contains(";100,5;"));
}

void TestCsvExport::lap()
{
    const auto session = sessionOf(ride(u"-14.05 -4.05 5.95"_s));
    const auto map = lineMap(10, 100);
    session->setMap(map.get());
    const QList<QByteArray> lines = lapCsv(*session->laps()[1], QLocale::c()).split('\n');
    QCOMPARE(lines.size(), 5);
    QCOMPARE(lines[0], QByteArray("Session : Ride.ra1 "));
    QCOMPARE(lines[1], QByteArray("Lap number : 2 "));
    QCOMPARE(lines[2], Header);
    // The lap begins on the line, at the whole second.
    QCOMPARE(lines[3], QByteArray("0;9,0000000;45,0000000;0;0;0;0"));
    QVERIFY(lines[4].startsWith("0,2;9,0000000;45,00005"));
}

QTEST_GUILESS_MAIN(TestCsvExport)
#include "tst_csvexport.moc"
