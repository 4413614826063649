// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <limits>

#include <QTest>

#include <views/chartaxis.h>

using namespace zuno;
using namespace Qt::StringLiterals;

namespace {

constexpr double None = std::numeric_limits<double>::quiet_NaN();

QString text(const std::vector<double> &values, int decimals)
{
    QStringList texts;
    for (const double value : values)
        texts << QString::number(value, 'f', decimals);
    return texts.join(u' ');
}

} // namespace

class TestChartAxis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ticks_data();
    void ticks();
    void samples();
    void pixels();
    void zoom_data();
    void zoom();
};

void TestChartAxis::ticks_data()
{
    QTest::addColumn<AxisRange>("range");
    QTest::addColumn<int>("intervals");
    QTest::addColumn<QString>("expected");
    QTest::newRow("through zero") << AxisRange {-0.7, 0.5} << 6 << u"-0.6 -0.4 -0.2 0.0 0.2 0.4"_s;
    QTest::newRow("room for all") << AxisRange {0, 500} << 5 << u"0 100 200 300 400 500"_s;
    QTest::newRow("room for one less") << AxisRange {0, 500} << 4 << u"0 200 400"_s;
    QTest::newRow("zoomed in") << AxisRange {38.07, 38.31} << 3 << u"38.1 38.2 38.3"_s;
    QTest::newRow("no span") << AxisRange {7, 7} << 5 << u"7"_s;
}

void TestChartAxis::ticks()
{
    QFETCH(AxisRange, range);
    QFETCH(int, intervals);
    const double step = roundStep(range.span(), intervals);
    QTEST(text(ticksIn(range, step), decimalsOfStep(step)), "expected");
}

void TestChartAxis::samples()
{
    const std::vector<double> standing {0, 10, 10, 10, 20};
    const QList<std::pair<double, std::size_t>> nearest {{-5, 0}, {5, 0},  {5.1, 1}, {11, 1},
                                                         {15, 1}, {16, 4}, {99, 4}};
    for (const auto &[value, expected] : nearest)
        QCOMPARE(nearestSample(standing, value), expected);
    const QList<std::pair<double, double>> between {{-1, 0}, {4, 0.4}, {10, 1}, {15, 3.5}, {21, 4}};
    for (const auto &[value, expected] : between)
        QCOMPARE(positionAmong(standing, value), expected);
    const std::vector<double> values {1, 3, None, 5};
    QCOMPARE(valueAtPosition(values, 0.5), 2.0);
    QCOMPARE(valueAtPosition(values, 1.0), 3.0);
    QCOMPARE(valueAtPosition(values, 3.0), 5.0);
    for (const double position : {-0.1, 1.1, 2.0, 2.9, 3.1, None})
        QVERIFY(std::isnan(valueAtPosition(values, position)));
}

void TestChartAxis::pixels()
{
    const PixelScale across {{100, 300}, 50, 400};
    QCOMPARE(across.pixelOf(150), 150.0);
    QCOMPARE(across.valueAt(0), 75.0);
    const PixelScale up {{-1, 1}, 200, -100};
    QCOMPARE(up.pixelOf(1), 100.0);
    QCOMPARE(up.valueAt(150), 0.0);
    QCOMPARE((PixelScale {{5, 5}, 50, 400}.pixelOf(7)), 50.0);
    QCOMPARE((PixelScale {{5, 6}, 50, 0}.valueAt(7)), 5.0);
}

void TestChartAxis::zoom_data()
{
    QTest::addColumn<AxisRange>("visible");
    QTest::addColumn<double>("factor");
    QTest::addColumn<double>("around");
    QTest::addColumn<QString>("expected");
    QTest::newRow("the place stays") << AxisRange {0, 100} << 0.5 << 20.0 << u"10.0 60.0"_s;
    QTest::newRow("at the start") << AxisRange {10, 60} << 1.5 << 60.0 << u"0.0 75.0"_s;
    QTest::newRow("at the end") << AxisRange {50, 100} << 1.5 << 50.0 << u"25.0 100.0"_s;
    QTest::newRow("at the shortest") << AxisRange {40, 60} << 0.1 << 50.0 << u"47.5 52.5"_s;
    QTest::newRow("out of sight") << AxisRange {40, 60} << 0.5 << 90.0 << u"50.0 60.0"_s;
}

void TestChartAxis::zoom()
{
    QFETCH(AxisRange, visible);
    QFETCH(double, factor);
    QFETCH(double, around);
    const AxisRange zoomed = visible.zoomed(factor, around, {0, 100}, 5);
    QTEST(text({zoomed.from, zoomed.to}, 1), "expected");
}

QTEST_APPLESS_MAIN(TestChartAxis)
#include "tst_chartaxis.moc"
