// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <bit>
#include <cmath>
#include <random>

#include <QTest>

#include <session/numbers.h>
#include <session/session.h>
#include <session/sessionfile.h>
#include <session/smoothing.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinite = std::numeric_limits<double>::infinity();

/// The filter once more, for two states only: [row][column] without a matrix class, the inverse
/// by elimination. Every sum runs from the left and begins at 0.
class PlainFilter
{
public:
    explicit PlainFilter(float gain) : m_a {{{1.0F, gain}, {0.0F, 1.0F}}} {}

    void step(float speed, float acceleration)
    {
        const std::array<float, 2> x {dot(m_a[0][0], m_x[0], m_a[0][1], m_x[1]),
                                      dot(m_a[1][0], m_x[0], m_a[1][1], m_x[1])};
        const Square transposed {{{m_a[0][0], m_a[1][0]}, {m_a[0][1], m_a[1][1]}}};
        Square p = product(product(m_a, m_p), transposed);
        p[0][0] += 0.125F;
        p[1][1] += 0.01F;
        Square s = p;
        s[0][0] += 125.0F;
        s[1][1] += 1.0F;
        const Square k = product(p, inverse(s));
        const float dv = speed - x[0];
        const float da = acceleration - x[1];
        m_x = {x[0] + dot(k[0][0], dv, k[0][1], da), x[1] + dot(k[1][0], dv, k[1][1], da)};
        m_p = product({{{1.0F - k[0][0], 0.0F - k[0][1]}, {0.0F - k[1][0], 1.0F - k[1][1]}}}, p);
    }
    [[nodiscard]] float speed() const { return m_x[0]; }
    [[nodiscard]] float acceleration() const { return m_x[1]; }

private:
    using Square = std::array<std::array<float, 2>, 2>;

    static float dot(float a, float b, float c, float d) { return a * b + c * d; }
    static Square product(const Square &a, const Square &b)
    {
        Square c {};
        for (std::size_t i = 0; i < 2; ++i) {
            for (std::size_t j = 0; j < 2; ++j)
                c[i][j] = dot(a[i][0], b[0][j], a[i][1], b[1][j]);
        }
        return c;
    }
    // No rows to exchange: the speed's variance is by far the largest element.
    static Square inverse(const Square &s)
    {
        const float low = s[1][0] / s[0][0];
        const float pivot = s[1][1] - low * s[0][1];
        Square x {{{1.0F, 0.0F}, {0.0F - low, 1.0F}}};
        for (std::size_t j = 0; j < 2; ++j) {
            x[1][j] /= pivot;
            x[0][j] = (x[0][j] - x[1][j] * s[0][1]) / s[0][0];
        }
        return x;
    }

    Square m_a;
    Square m_p {{{1250.0F, 0.0F}, {0.0F, 0.01F}}};
    std::array<float, 2> m_x {};
};

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

/// Braking and accelerating with noise, as a ride does.
Points noisyRide()
{
    std::mt19937 random(7);
    Points points;
    for (int i = 0; i < 3000; ++i) {
        points.emplace_back();
        const auto noise = static_cast<float>(random() % 1000) / 500.0F - 1.0F;
        points.back().dataSpeed = 140.0 + 120.0 * std::sin(i / 40.0) + static_cast<double>(noise);
        points.back().dataAccelXPH = 0.8 * std::cos(i / 40.0) + static_cast<double>(noise) / 9.0;
    }
    return points;
}

/// How many samples are smoothed to other bits than the plain filter gives.
int differences(const Points &recorded, const Points &smoothed, float gain)
{
    PlainFilter filter(gain);
    int differences = 0;
    for (std::size_t i = 0; i < recorded.size(); ++i) {
        filter.step(static_cast<float>(recorded[i].dataSpeed),
                    static_cast<float>(recorded[i].dataAccelXPH));
        const bool same
            = smoothed[i].dataSpeed == static_cast<double>(filter.speed())
              && smoothed[i].dataAccelXPHComputed == static_cast<double>(filter.acceleration())
              && smoothed[i].dataAccelXPH == recorded[i].dataAccelXPH;
        differences += same ? 0 : 1;
    }
    return differences;
}

} // namespace

class TestPoints final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbers_data();
    void numbers();
    void channelFigures_data();
    void channelFigures();
    void attachesReadings_data();
    void attachesReadings();
    void smoothsToTheBit();
    void smoothingLimits_data();
    void smoothingLimits();
    void smoothsOnce();
};

void TestPoints::numbers_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<qint32>("rounded");
    QTest::addColumn<qint32>("truncated");
    QTest::addColumn<quint32>("stamp");
    constexpr qint32 Out = std::numeric_limits<qint32>::min();
    QTest::newRow("half") << 10.5 << 11 << 10 << 10U;
    QTest::newRow("negative half") << -10.5 << -11 << -10 << 4294967286U;
    QTest::newRow("below half") << 10.25 << 10 << 10 << 10U;
    QTest::newRow("negative, below one") << -0.75 << -1 << 0 << 0U;
    QTest::newRow("2^31 - 128") << 2147483520.0 << 2147483520 << 2147483520 << 2147483520U;
    QTest::newRow("2^31") << 2147483648.0 << Out << Out << 2147483648U;
    QTest::newRow("-2^31") << -2147483648.0 << Out << Out << 2147483648U;
    QTest::newRow("2^32") << 4294967296.0 << Out << Out << 0U;
    QTest::newRow("2^32 + 512") << 4294967808.0 << Out << Out << 512U;
    QTest::newRow("NaN") << NaN << Out << Out << 0U;
    QTest::newRow("infinite") << -Infinite << Out << Out << 0U;
}

void TestPoints::numbers()
{
    QFETCH(const double, value);
    PointAcquisition point;
    point.dataSpeed = value;
    point.dataAngle = value;
    QTEST(point.roundedSpeed(), "rounded");
    QTEST(point.roundedAngle(), "rounded");
    QTEST(truncatedToInt(value), "truncated");
    QTEST(stampFromFloat(static_cast<float>(value)), "stamp");
}

void TestPoints::channelFigures_data()
{
    QTest::addColumn<QList<float>>("values");
    QTest::addColumn<double>("mean");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    const auto fives = [](int count) { return QList<float>(count, 5.0F); };
    QTest::newRow("none") << QList<float>() << 0.0 << NoFixCoordinate << -NoFixCoordinate;
    QTest::newRow("ten") << fives(10) << 5.0 << 5.0 << 5.0;
    QTest::newRow("five count as ten") << fives(5) << 2.5 << 5.0 << 5.0;
    QTest::newRow("twenty count as ten") << fives(20) << 10.0 << 5.0 << 5.0;
    QTest::newRow("negative") << QList<float> {-3.0F, -7.0F, -5.0F} << -1.5 << -7.0 << -3.0;
    // In double precision the ones would not be lost.
    QTest::newRow("single precision")
        << QList<float> {1e8F, 1, 1, 1, 1, 1, 1, 1, 1, 1} << 1e7 << 1.0 << 1e8;
}

void TestPoints::channelFigures()
{
    QFETCH(const QList<float>, values);
    PointAcquisition point;
    for (const float value : values) {
        const Reading reading {7, value};
        point.addSuspension1(&reading, 1);
        point.addSuspension2(&reading, 1);
    }
    for (const SuspensionChannel &channel : {point.suspension1(), point.suspension2()}) {
        QCOMPARE(std::ssize(channel.readings), values.size());
        QTEST(static_cast<double>(channel.mean), "mean");
        QTEST(static_cast<double>(channel.min), "min");
        QTEST(static_cast<double>(channel.max), "max");
    }
    QCOMPARE(point.hasReadings(), !values.isEmpty());
}

void TestPoints::attachesReadings_data()
{
    QTest::addColumn<int>("count1");
    QTest::addColumn<int>("count2");
    QTest::addColumn<QString>("attached"); // to each of three samples: readings of 1 and 2
    QTest::newRow("none") << 0 << 0 << u"0+0 0+0 0+0"_s;
    QTest::newRow("a block short of one") << 9 << 0 << u"0+0 0+0 0+0"_s;
    QTest::newRow("a block at the end is left out") << 10 << 20 << u"0+10 0+0 0+0"_s;
    QTest::newRow("one more") << 11 << 21 << u"10+10 0+10 0+0"_s;
    QTest::newRow("the last sample") << 30 << 31 << u"10+10 10+10 0+10"_s;
    QTest::newRow("more than samples") << 99 << 0 << u"10+0 10+0 10+0"_s;
}

void TestPoints::attachesReadings()
{
    QFETCH(const int, count1);
    QFETCH(const int, count2);
    const QByteArray lists = readingList(count1) + readingList(count2);
    const OpenedSession opened = decodeSession(
        SessionBytes {.samples = 3, .listsFlag = 1, .lists = lists}.bytes(), u"Ride.ra1"_s);
    QStringList attached;
    qint32 block = 100;
    for (const PointAcquisition &sample : opened.session->samples()) {
        const auto &front = sample.suspension1().readings;
        const auto &rear = sample.suspension2().readings;
        attached.append(u"%1+%2"_s.arg(front.size()).arg(rear.size()));
        for (const auto &readings : {front, rear}) {
            for (std::size_t k = 0; k < readings.size(); ++k) {
                const auto index = block + static_cast<qint32>(k);
                QCOMPARE(readings[k], (Reading {index, static_cast<float>(index) - 98.5F}));
            }
        }
        block += 10;
    }
    QTEST(attached.join(u' '), "attached");
}

void TestPoints::smoothsToTheBit()
{
    constexpr float Gain = std::bit_cast<float>(0x406205BDU);
    const Points recorded = noisyRide();
    Points smoothed = recorded;
    smoothSamples(smoothed);
    QCOMPARE(differences(recorded, smoothed, Gain), 0);
    // The constant's neighbours give other bits, so it is this one.
    QVERIFY(differences(recorded, smoothed, std::nextafter(Gain, 0.0F)) > 1000);
    QVERIFY(differences(recorded, smoothed, std::nextafter(Gain, 9.0F)) > 1000);
}

void TestPoints::smoothingLimits_data()
{
    QTest::addColumn<Points>("samples");
    QTest::addColumn<double>("lowSpeed"); // where the last sample's speed must lie
    QTest::addColumn<double>("highSpeed");
    QTest::addColumn<double>("lowAcceleration");
    QTest::addColumn<double>("highAcceleration");
    // From standstill with a variance of 1250 against the measurement's 125: about 10 elevenths.
    QTest::newRow("first sample") << measured({{100, 0}}) << 90.8 << 91.1 << -0.01 << 0.01;
    QTest::newRow("below 0") << measured({{-50, 0}}) << 0.0 << 0.0 << -0.01 << 0.01;
    QTest::newRow("at most 399") << measured({{1000, 0}}) << 399.0 << 399.0 << 0.0 << 2.0;
    QTest::newRow("at most 2 G") << measured({{0, 1000}}) << 0.0 << 399.0 << 2.0 << 2.0;
    QTest::newRow("at least -2 G") << measured({{0, -1000}}) << 0.0 << 0.0 << -2.0 << -2.0;
    QTest::newRow("no number") << measured({{NaN, 0}}) << 399.0 << 399.0 << 2.0 << 2.0;
    QTest::newRow("after no number")
        << measured({{NaN, 0}, {50, 0}}) << 399.0 << 399.0 << 2.0 << 2.0;
    QTest::newRow("no acceleration") << measured({{50, NaN}}) << 399.0 << 399.0 << 2.0 << 2.0;
    QTest::newRow("steady") << Points(200, measured({{100, 0}})[0]) << 99.9 << 100.1 << -0.01
                            << 0.01;
}

void TestPoints::smoothingLimits()
{
    QFETCH(Points, samples);
    QFETCH(const double, lowSpeed);
    QFETCH(const double, highSpeed);
    QFETCH(const double, lowAcceleration);
    QFETCH(const double, highAcceleration);
    smoothSamples(samples);
    const double speed = samples.back().dataSpeed;
    const double acceleration = samples.back().dataAccelXPHComputed;
    QVERIFY2(lowSpeed <= speed && speed <= highSpeed, qPrintable(QString::number(speed)));
    QVERIFY2(lowAcceleration <= acceleration && acceleration <= highAcceleration,
             qPrintable(QString::number(acceleration)));
}

void TestPoints::smoothsOnce()
{
    const auto session = sessionOf(measured({{100, 0}, {100, 0.5}}));
    QCOMPARE(session->samples()[0].dataSpeed, 100.0);
    session->smooth();
    const double once = session->samples()[0].dataSpeed;
    QVERIFY(once < 95.0);
    session->smooth();
    QCOMPARE(session->samples()[0].dataSpeed, once);
    QCOMPARE(session->samples()[1].dataAccelXPH, 0.5);

    const auto empty = sessionOf({});
    empty->smooth();
    QVERIFY(empty->samples().empty());
}

QTEST_GUILESS_MAIN(TestPoints)
#include "tst_points.moc"
