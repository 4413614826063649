// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <bit>
#include <cmath>

#include <QTest>

#include <base/numbers.h>
#include <session/recording/gpsquality.h>
#include <session/recording/smoothing.h>
#include <session/session.h>
#include <session/sessionfile.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

Points measured(std::initializer_list<std::pair<double, double>> values)
{
    Points points;
    for (const auto &[speed, acceleration] : values) {
        points.emplace_back();
        points.back().dataSpeed = speed;
        points.back().dataAccelXPH = acceleration;
    }
    return points;
}

} // namespace

class TestPoints final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbers_data()
    {
        constexpr qint32 Out = std::numeric_limits<qint32>::min();
        QTest::addColumn<double>("value");
        QTest::addColumn<qint32>("rounded");
        QTest::addColumn<qint32>("truncated");
        QTest::newRow("half") << 10.5 << 11 << 10;
        QTest::newRow("half below zero") << -10.5 << -11 << -10;
        QTest::newRow("above minus one") << -0.75 << -1 << 0;
        QTest::newRow("largest") << 2147483520.0 << 2147483520 << 2147483520;
        QTest::newRow("too large") << 2147483648.0 << Out << Out;
        QTest::newRow("no number") << NaN << Out << Out;
        QTest::newRow("too small") << -1e300 << Out << Out;
    }
    void numbers()
    {
        QFETCH(const double, value);
        PointAcquisition point;
        point.dataSpeed = point.dataAngle = value;
        QTEST(point.roundedSpeed(), "rounded");
        QTEST(point.roundedAngle(), "rounded");
        QTEST(truncatedToInt(value), "truncated");
    }

    void floatStamps()
    {
        QCOMPARE(stampFromFloat(4294967808.0F), 512U);
        QCOMPARE(stampFromFloat(std::numeric_limits<float>::quiet_NaN()), 0U);
    }

    // Which positions are good (.), missing (-) or nowhere to be ridden to (!).
    void jumps_data()
    {
        QTest::addColumn<QString>("ride"); // metres east, at milliseconds
        QTest::addColumn<QString>("verdicts");
        QTest::newRow("500 km/h and 50 m") << u"0@0 188@1000"_s << u".."_s;
        QTest::newRow("faster") << u"0@0 190@1000"_s << u".!"_s;
        QTest::newRow("receiver's error") << u"0@0 49@0 -1@10"_s << u"..."_s;
        QTest::newRow("greater error") << u"0@0 51@0"_s << u".!"_s;
        QTest::newRow("all the way on") << u"0@0 180@1000 360@2000 540@3000"_s << u"...."_s;
        QTest::newRow("glitch") << u"0@0 5000@100 20@200"_s << u".!."_s;
        QTest::newRow("no position") << u"0@0 -@100 20@200"_s << u".-."_s;
        QTest::newRow("stays for a second")
            << u"0@0 5000@100 5000@600 5000@1099 5000@1100 5000@1200"_s << u".!!!.."_s;
        QTest::newRow("stays elsewhere for a second")
            << u"0@0 5000@100 9000@700 9000@1150 9000@1800"_s << u".!!!."_s;
        QTest::newRow("never stays")
            << u"0@0 5000@100 9000@1700 5000@3300 9000@4900"_s << u".!!!!"_s;
        QTest::newRow("back in between") << u"0@0 5000@100 0@200 5000@1500"_s << u".!.!"_s;
    }
    void jumps()
    {
        QFETCH(const QString, ride);
        QFETCH(const QString, verdicts);
        Points points;
        const QStringList spots = ride.split(u' ');
        for (const QString &spot : spots) {
            const bool isMissing = spot.startsWith(u"-@");
            const QGeoCoordinate where = place(0, spot.section(u'@', 0, 0).toDouble());
            points.emplace_back().dataTimeStamp = spot.section(u'@', 1).toUInt();
            points.back().dataCoordX = isMissing ? NoFixCoordinate : where.longitude();
            points.back().dataCoordY = isMissing ? NoFixCoordinate : where.latitude();
        }
        PositionJudge judge;
        QString found;
        for (const PointAcquisition &point : points)
            found += u".-!"_s[static_cast<int>(judge.judge(point))];
        QCOMPARE(found, verdicts);
        QCOMPARE(gpsQuality(points).withoutPosition, verdicts.count(u'-'));
        QCOMPARE(gpsQuality(points).jumps, verdicts.count(u'!'));
    }

    // Readings in blocks of ten, to each of three samples: those of the first list and of the
    // second.
    void attachesReadings()
    {
        const auto attached = [](int count1, int count2) {
            const QByteArray lists = readingList(count1) + readingList(count2);
            const SessionBytes file {.samples = 3, .listsFlag = 1, .lists = lists};
            const OpenedSession opened = decodeSession(file.bytes(), u"Ride.ra1"_s);
            QString text;
            for (const PointAcquisition &sample : opened.session->samples()) {
                for (const auto &channel : {sample.suspension1(), sample.suspension2()})
                    text += u" %1"_s.arg(channel.readings.empty() ? 0 : channel.readings[0].number);
            }
            return text;
        };
        QCOMPARE(attached(9, 0), u" 0 0 0 0 0 0"_s);
        QCOMPARE(attached(10, 20), u" 0 100 0 0 0 0"_s); // a block at the end is left out
        QCOMPARE(attached(11, 21), u" 100 100 0 110 0 0"_s);
        QCOMPARE(attached(99, 0), u" 100 0 110 0 120 0"_s);
    }

    // The numbers of the samples that slipped to where nobody can have ridden, and back.
    void slips()
    {
        const auto misplaced = [](const QString &description) {
            const auto session = sessionOf(ride(description));
            QString numbers;
            qint64 count = 0;
            for (const PointAcquisition &sample : session->samples()) {
                numbers += sample.isMisplaced ? u" %1"_s.arg(sample.acquisitionNumber) : QString();
                count += sample.isMisplaced ? 1 : 0;
            }
            const GpsQuality quality = gpsQuality(session->wholeSamples());
            return quality.withoutPosition == 0 && quality.jumps >= count ? numbers : u"?"_s;
        };
        const QString on = u" 40..120/10"_s;
        QCOMPARE(misplaced(u"0 10 300 30"_s + on), u" 3"_s);
        QCOMPARE(misplaced(u"0 10 35.1 30"_s + on), u""_s); // 251 m/s there, 51 m/s on
        QCOMPARE(misplaced(u"0 10 45.1 30"_s + on), u" 3"_s);
        QCOMPARE(misplaced(u"0 10 24.9 10.1 20 30"_s + on), u""_s); // 149 m/s
        QCOMPARE(misplaced(u"0 10 3000 -500 40..200/10"_s), u" 3 4"_s);
        // It stays at the new place; the first position; a ride with the wrong clock.
        QCOMPARE(misplaced(u"0..100/10 3000..3100/10"_s), u""_s);
        QCOMPARE(misplaced(u"3000 0..100/10"_s), u""_s);
        QCOMPARE(misplaced(u"0..2000/20 1980..0/20"_s), u""_s);
        QCOMPARE(gpsQuality(ride(u"0 10 -*2 40..100/10"_s)).withoutPosition, 2);
    }

    // A ride must come out of every release and machine with the same bits.
    void smoothsToTheBit()
    {
        Points samples;
        for (int i = 0; i < 500; ++i) {
            const double noise = (i * 37 % 100) / 50.0 - 1.0;
            samples.push_back(
                measured({{140.0 + std::abs(i % 200 - 100) + noise, 0.5 - i % 150 / 150.0}})[0]);
        }
        smoothSamples(samples);
        QString bits;
        for (const std::size_t i : {0U, 1U, 20U, 150U, 499U}) {
            for (const double value : {samples[i].dataSpeed, samples[i].dataAccelXPHComputed})
                bits += u' '
                        + QString::number(std::bit_cast<quint32>(static_cast<float>(value)), 16);
        }
        QCOMPARE(bits, u" 4359473a 3c819a33 4363902d 3d12cb56 4361f6b4 bd6e8de2 43393b7f 3e0542d4 "
                       "431080fb be2158b1"_s);
    }

    void smoothingLimits()
    {
        // The last sample's speed and acceleration, to a tenth and a hundredth.
        const auto smoothed = [](Points samples) {
            smoothSamples(samples);
            return u"%1 %2"_s.arg(samples.back().dataSpeed, 0, 'f', 1)
                .arg(samples.back().dataAccelXPHComputed + 0.001, 0, 'f', 2);
        };
        // From standstill with a variance of 1250 against the measurement's 125: about 10
        // elevenths.
        QCOMPARE(smoothed(measured({{100, 0}})), u"90.9 0.00"_s);
        QCOMPARE(smoothed(measured({{-50, 0}})), u"0.0 -0.00"_s);
        QVERIFY(smoothed(measured({{1000, 0}})).startsWith(u"399.0 "));
        QVERIFY(smoothed(measured({{0, 1000}})).endsWith(u" 2.00"));
        QVERIFY(smoothed(measured({{0, -1000}})).endsWith(u" -2.00"));
        QCOMPARE(smoothed(measured({{NaN, 0}, {50, 0}})), u"399.0 2.00"_s);
    }
};

QTEST_GUILESS_MAIN(TestPoints)
#include "tst_points.moc"
