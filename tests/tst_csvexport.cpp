// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QLocale>
#include <QTest>

#include <session/csvexport.h>
#include <session/session.h>
#include <session/sessionlap.h>
#include <track/map.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

const QByteArray Header = "TimeSec;CoordX;CoordY;Vitesse;Accel;Angle;Accel Lat.";
const QByteArray SuspensionHeader = Header + ";Front Susp.; Rear Susp.";

PointAcquisition point(const QList<float> &front = {}, const QList<float> &rear = {})
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
    if (!front.isEmpty())
        addReadings(point, 1, front);
    if (!rear.isEmpty())
        addReadings(point, 2, rear);
    return point;
}

} // namespace

class TestCsvExport final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbers()
    {
        // Speed and longitude of such a value.
        const auto written = [](const char *locale, double value) -> QString {
            PointAcquisition sample;
            sample.dataSpeed = sample.dataCoordX = value;
            const QByteArray csv
                = sessionCsv(*sessionOf({sample}), QLocale(QString::fromLatin1(locale)));
            const QStringList cells = QString::fromUtf8(csv).section(u'\n', 1).split(u';');
            // Lower-case exponents everywhere: locales write them in either way.
            return QString(cells.value(3)).replace(u'E', u'e') + u' ' + cells.value(1);
        };
        // The decimal point becomes a comma even where a comma separates groups.
        QCOMPARE(written("en_US", 1234.5), u"1,234,5 1,234,5000000"_s);
        // French separates groups by a character that no spreadsheet would take for one.
        QCOMPARE(written("fr_FR", 1234.5), u"1234,5 1234,5000000"_s);
        QCOMPARE(written("en_US", -0.00001234), u"-1,234e-05 -0,0000123"_s);
        QCOMPARE(written("fr_FR", 1234567), u"1,23457e+06 1234567,0000000"_s);
    }

    void rows()
    {
        const auto csv
            = [](const Points &points) { return sessionCsv(*sessionOf(points), QLocale::c()); };
        const QByteArray row = "\n1,2;9,2500000;-45,1234568;100,5;0,25;-20;-0,5";
        const QByteArray second = QByteArray(row).replace("1,2;", "1,21;");
        QCOMPARE(csv({}), Header);
        QCOMPARE(csv({point({1.5F, 2}, {3}), point({}, {0.1F})}),
                 SuspensionHeader + row + ";1,5;3" + second + ";2;" + row + ";;0,1");
        // No position, no number; what the logger wrote by mistake is what the file says.
        PointAcquisition lost = point();
        lost.dataCoordX = lost.dataCoordY = NoFixCoordinate;
        QCOMPARE(csv({lost}), Header + "\n1,2;;;100,5;0,25;-20;-0,5");
        // The first sample decides about the header, every sample about its own row.
        QCOMPARE(csv({point(), point({1})}), Header + row + row + ";1;");
        QCOMPARE(csv({point({}, {1}), point()}), SuspensionHeader + row + ";;1" + row);
    }

    void wholeSamplesOnly()
    {
        const auto session = sessionOf({point(), point(), point()}, 1);
        QCOMPARE(sessionCsv(*session, QLocale::c()).count('\n'), 1);
    }

    void lap()
    {
        const auto session = sessionOf(ride(u"-14.05 -4.05 5.95"_s));
        const auto map = lineMap(10, 100);
        session->setMap(map.get());
        const QList<QByteArray> lines
            = lapCsv({session.get(), session->laps()[1].get()}, QLocale::c()).split('\n');
        QCOMPARE(lines.size(), 5);
        QCOMPARE(lines[0], QByteArray("Session : Ride.ra1 "));
        QCOMPARE(lines[1], QByteArray("Lap number : 2 "));
        QCOMPARE(lines[2], Header);
        // The lap begins on the line, at the whole second.
        QCOMPARE(lines[3], QByteArray("0;9,0000000;45,0000000;0;0;0;0"));
        QVERIFY(lines[4].startsWith("0,2;9,0000000;45,00005"));
    }
};

QTEST_GUILESS_MAIN(TestCsvExport)
#include "tst_csvexport.moc"
