// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

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

/// The filter once more, for two states and without a matrix class, the inverse by elimination.
/// Every sum runs from the left and begins at 0.
class PlainFilter
{
public:
    explicit PlainFilter(float gain) : m_gain(gain) {}

    void step(float v, float a)
    {
        const float x0 = speed + m_gain * acceleration;
        const Square ap {m_p.a + m_gain * m_p.c, m_p.b + m_gain * m_p.d, m_p.c, m_p.d};
        const Square p {ap.a + ap.b * m_gain + 0.125F, ap.b, ap.c + ap.d * m_gain, ap.d + 0.01F};
        const Square s {p.a + 125.0F, p.b, p.c, p.d + 1.0F};
        // No rows to exchange: the speed's variance is by far the largest element.
        const float low = s.c / s.a;
        const float pivot = s.d - low * s.b;
        const float c = (0.0F - low) / pivot;
        const float d = 1.0F / pivot;
        const Square k = product(p, {(1.0F - c * s.b) / s.a, (0.0F - d * s.b) / s.a, c, d});
        const float dv = v - x0;
        const float da = a - acceleration;
        speed = x0 + (k.a * dv + k.b * da);
        acceleration += k.c * dv + k.d * da;
        m_p = product({1.0F - k.a, 0.0F - k.b, 0.0F - k.c, 1.0F - k.d}, p);
    }

    float speed = 0.0F;
    float acceleration = 0.0F;

private:
    struct Square
    {
        float a, b, c, d; // by rows
    };
    static Square product(const Square &x, const Square &y)
    {
        return {x.a * y.a + x.b * y.c, x.a * y.b + x.b * y.d, x.c * y.a + x.d * y.c,
                x.c * y.b + x.d * y.d};
    }

    float m_gain;
    Square m_p {1250.0F, 0.0F, 0.0F, 0.01F};
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

/// How many samples are smoothed to other bits than the plain filter gives.
int differences(const Points &recorded, const Points &smoothed, float gain)
{
    PlainFilter filter(gain);
    int differences = 0;
    for (std::size_t i = 0; i < recorded.size(); ++i) {
        filter.step(static_cast<float>(recorded[i].dataSpeed),
                    static_cast<float>(recorded[i].dataAccelXPH));
        const bool same
            = smoothed[i].dataSpeed == static_cast<double>(filter.speed)
              && smoothed[i].dataAccelXPHComputed == static_cast<double>(filter.acceleration)
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
    void numbers();
    void channelFigures();
    void attachesReadings();
    void smoothsToTheBit();
    void smoothingLimits();
};

// A value, rounded and cut off.
void TestPoints::numbers()
{
    constexpr qint32 Out = std::numeric_limits<qint32>::min();
    const QList<std::tuple<double, qint32, qint32>> rows {{10.5, 11, 10},
                                                          {-10.5, -11, -10},
                                                          {10.25, 10, 10},
                                                          {-0.75, -1, 0},
                                                          {2147483520, 2147483520, 2147483520},
                                                          {2147483648, Out, Out},
                                                          {NaN, Out, Out},
                                                          {-Infinite, Out, Out}};
    for (const auto &[value, rounded, truncated] : rows) {
        PointAcquisition point;
        point.dataSpeed = point.dataAngle = value;
        QCOMPARE(point.roundedSpeed(), rounded);
        QCOMPARE(point.roundedAngle(), rounded);
        QCOMPARE(truncatedToInt(value), truncated);
    }
    QCOMPARE(stampFromFloat(-10.5F), 4294967286U);
    QCOMPARE(stampFromFloat(2147483648.0F), 2147483648U);
    QCOMPARE(stampFromFloat(4294967808.0F), 512U);
    QCOMPARE(stampFromFloat(std::numeric_limits<float>::quiet_NaN()), 0U);
}

void TestPoints::channelFigures()
{
    const auto figures = [](const QList<float> &values) {
        PointAcquisition point;
        addReadings(point, 1, values);
        const SuspensionChannel &channel = point.suspension1();
        return u"%1 %2 %3"_s.arg(channel.mean).arg(channel.min).arg(channel.max);
    };
    QCOMPARE(figures({}), u"0 3.40282e+38 -3.40282e+38"_s);
    // Any number of readings counts as ten.
    QCOMPARE(figures(QList<float>(5, 5.0F)), u"2.5 5 5"_s);
    QCOMPARE(figures(QList<float>(20, 5.0F)), u"10 5 5"_s);
    QCOMPARE(figures({-3.0F, -7.0F, -5.0F}), u"-1.5 -7 -3"_s);
}

// Readings in blocks of ten, to each of three samples: those of the first list and of the second.
void TestPoints::attachesReadings()
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

void TestPoints::smoothsToTheBit()
{
    constexpr float Gain = std::bit_cast<float>(0x406205BDU);
    std::mt19937 random(7);
    Points recorded;
    for (int i = 0; i < 3000; ++i) {
        const double noise = static_cast<double>(random() % 1000) / 500.0 - 1.0;
        recorded.push_back(measured({{140.0 + 120.0 * std::sin(i / 40.0) + noise,
                                      0.8 * std::cos(i / 40.0) + noise / 9.0}})[0]);
    }
    Points smoothed = recorded;
    smoothSamples(smoothed);
    QCOMPARE(differences(recorded, smoothed, Gain), 0);
    // The constant's neighbours give other bits, so it is this one.
    QVERIFY(differences(recorded, smoothed, std::nextafter(Gain, 0.0F)) > 1000);
    QVERIFY(differences(recorded, smoothed, std::nextafter(Gain, 9.0F)) > 1000);
}

void TestPoints::smoothingLimits()
{
    // The last sample's speed and acceleration, to a tenth and a hundredth.
    const auto smoothed = [](Points samples) {
        smoothSamples(samples);
        return u"%1 %2"_s.arg(samples.back().dataSpeed, 0, 'f', 1)
            .arg(samples.back().dataAccelXPHComputed + 0.001, 0, 'f', 2);
    };
    // From standstill with a variance of 1250 against the measurement's 125: about 10 elevenths.
    QCOMPARE(smoothed(measured({{100, 0}})), u"90.9 0.00"_s);
    QCOMPARE(smoothed(measured({{-50, 0}})), u"0.0 -0.00"_s);
    QVERIFY(smoothed(measured({{1000, 0}})).startsWith(u"399.0 "));
    QVERIFY(smoothed(measured({{0, 1000}})).endsWith(u" 2.00"));
    QVERIFY(smoothed(measured({{0, -1000}})).endsWith(u" -2.00"));
    QCOMPARE(smoothed(measured({{NaN, 0}, {50, 0}})), u"399.0 2.00"_s);
    QCOMPARE(smoothed(measured({{50, NaN}})), u"399.0 2.00"_s);
}

QTEST_GUILESS_MAIN(TestPoints)
#include "tst_points.moc"
