// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <limits>

#include <QTest>

#include <views/charts/chartaxis.h>

using namespace zuno;
using namespace Qt::StringLiterals;

namespace {

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
    void ticks()
    {
        const std::tuple<AxisRange, int, QString> rows[] {
            {{-0.7, 0.5}, 6, u"-0.6 -0.4 -0.2 0.0 0.2 0.4"_s},
            {{0, 500}, 5, u"0 100 200 300 400 500"_s},
            {{0, 500}, 4, u"0 200 400"_s},
            {{38.07, 38.31}, 3, u"38.1 38.2 38.3"_s},
            {{7, 7}, 5, u"7"_s},
        };
        for (const auto &[range, intervals, expected] : rows) {
            const double step = roundStep(range.span(), intervals);
            QCOMPARE(text(ticksIn(range, step), decimalsOfStep(step)), expected);
        }
    }

    void samples()
    {
        const std::vector<double> standing {0, 10, 10, 10, 20};
        const std::pair<double, std::size_t> nearest[] {{-5, 0}, {5, 0},  {5.1, 1},
                                                        {15, 1}, {16, 4}, {99, 4}};
        for (const auto &[value, expected] : nearest)
            QCOMPARE(nearestSample(standing, value), expected);
        const std::pair<double, double> between[] {{-1, 0}, {4, 0.4}, {10, 1}, {15, 3.5}, {21, 4}};
        for (const auto &[value, expected] : between)
            QCOMPARE(positionAmong(standing, value), expected);
        const double none = std::numeric_limits<double>::quiet_NaN();
        const std::vector<double> values {1, 3, none, 5};
        const std::pair<double, double> known[] {{0.5, 2}, {1, 3}, {3, 5}};
        for (const auto &[position, expected] : known)
            QCOMPARE(valueAtPosition(values, position), expected);
        for (const double position : {-0.1, 1.1, 2.0, 2.9, 3.1, none})
            QVERIFY(std::isnan(valueAtPosition(values, position)));
    }

    void pixels()
    {
        const PixelScale up {{-1, 1}, 200, -100};
        QCOMPARE(up.pixelOf(1), 100.0);
        QCOMPARE(up.valueAt(150), 0.0);
        QCOMPARE((PixelScale {{5, 5}, 50, 400}.pixelOf(7)), 50.0);
        QCOMPARE((PixelScale {{5, 6}, 50, 0}.valueAt(7)), 5.0);
    }

    void zoom()
    {
        const std::tuple<AxisRange, double, double, QString> rows[] {
            {{0, 100}, 0.5, 20.0, u"10.0 60.0"_s}, // The place stays.
            {{10, 60}, 1.5, 60.0, u"0.0 75.0"_s}, // At the start.
            {{50, 100}, 1.5, 50.0, u"25.0 100.0"_s}, // At the end.
            {{40, 60}, 0.1, 50.0, u"47.5 52.5"_s}, // At the shortest.
            {{40, 60}, 0.5, 90.0, u"50.0 60.0"_s}, // Out of sight.
        };
        for (const auto &[visible, factor, around, expected] : rows) {
            const AxisRange zoomed = visible.zoomed(factor, around, {0, 100}, 5);
            QCOMPARE(text({zoomed.from, zoomed.to}, 1), expected);
        }
    }
};

QTEST_APPLESS_MAIN(TestChartAxis)
#include "tst_chartaxis.moc"
