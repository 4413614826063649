// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How long the charts take with two laps of 1,200 samples, and with six, five channels and the time
// gap: to follow the mouse, beside drawing everything anew; and to show another lap.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <vector>

#include <QApplication>
#include <QPainter>
#include <QTemporaryDir>

#include <app/darkstyle.h>
#include <base/settings.h>
#include <session/session.h>
#include <views/charts/chartcontent.h>
#include <views/charts/lapchart.h>
#include <views/charts/lapcharts.h>
#include <views/laps/lapselection.h>

namespace zuno {

namespace {

constexpr int SampleCount = 1200;
constexpr int Turns = 101;
constexpr double CursorAim = 16.0;
constexpr double LapAim = 100.0;
constexpr double RatioAim = 0.5;
// What is shown, beside drawing its lines once, sample by sample.
constexpr double LinesAim = 3.0;
// Eight hours beside a lap.
constexpr int LongSampleCount = 288000;
constexpr double LongAim = 400.0;

/// Four kilometres with all channels; variants differ in pace.
Points lap(int variant, int samples = SampleCount)
{
    Points points(static_cast<std::size_t>(samples));
    for (int i = 0; i < samples; ++i) {
        const double angle = 2 * M_PI * (i + (variant * 4 * std::sin(i / 190.0))) / SampleCount;
        PointAcquisition &point = points[static_cast<std::size_t>(i)];
        point.acquisitionNumber = static_cast<quint32>(i + 1);
        point.dataTimeStamp = static_cast<quint32>(i * (100 + variant));
        point.dataCoordX = 6 + (0.006 * (1 + 0.3 * std::sin(5 * angle)) * std::cos(angle));
        point.dataCoordY = 46 + (0.006 * (1 + 0.3 * std::sin(5 * angle)) * std::sin(angle));
        point.dataSpeed = 130 + (70 * std::sin(7 * angle)) + variant;
        point.dataAngle = 45 * std::sin(11 * angle);
        point.dataAccelXPHComputed = std::cos(7 * angle);
        std::vector<Reading> readings(10);
        for (int k = 0; k < 10; ++k)
            readings[static_cast<std::size_t>(k)].value
                = static_cast<float>(50 + (20 * std::sin(13 * angle)) + k);
        point.addSuspension1(readings.data(), readings.size());
        point.addSuspension2(readings.data(), readings.size());
    }
    return points;
}

/// Milliseconds of processor time, so that what other programs take does not count, from the start
/// of @p act until everything is painted; the median of many.
double median(const std::function<void(int)> &act)
{
    std::vector<double> times;
    for (int turn = 0; turn < Turns; ++turn) {
        const std::clock_t begin = std::clock();
        act(turn);
        // Layouts are made, and widgets painted, in the events that come of it.
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        times.push_back(1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC);
    }
    std::sort(times.begin(), times.end());
    std::printf("  least %.2f, most %.2f ms\n", times.front(), times.back());
    return times[times.size() / 2];
}

/// Every line of every chart, drawn once into a picture of its chart's size.
void drawLines(const std::vector<ChartContent> &contents, const AxisRange &whole)
{
    for (const ChartContent &content : contents) {
        QPixmap picture(1500, 130);
        picture.fill(Qt::black);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        const PixelScale across {whole, 0, 1500};
        const PixelScale up {content.least, 130, -130};
        for (const Curve &curve : content.curves) {
            painter.setPen(QPen(Qt::green, 1.5));
            for (const auto *values : {&curve.values, &curve.lows, &curve.highs}) {
                QList<QLineF> lines;
                for (std::size_t i = 1; i < values->size(); ++i) {
                    lines.append({across.pixelOf(curve.places[i - 1]), up.pixelOf((*values)[i - 1]),
                                  across.pixelOf(curve.places[i]), up.pixelOf((*values)[i])});
                }
                painter.drawLines(lines);
            }
        }
    }
}

/// Tells what is missed, too: whoever reads only the end of it learns why it failed.
bool report(const char *what, double value, double aim)
{
    const bool isMet = value <= aim;
    std::printf("%-58s %8.2f  aim %6.1f%s\n", what, value, aim, isMet ? "" : "  MISSED");
    return isMet;
}

/// With six laps: the cursor moved, a notch of the wheel, another lap.
bool runSix(LapCharts &charts, const Session &session, std::vector<Lap> &laps)
{
    const auto show = [&](std::size_t first) {
        std::vector<SessionLap> others;
        for (std::size_t i = 2; i < laps.size(); ++i)
            others.push_back({&session, &laps[(first + i) % laps.size()]});
        charts.state().showLaps({&session, &laps[first]},
                                {&session, &laps[(first + 1) % laps.size()]}, others);
    };
    show(0);
    const double length = charts.state().whole().to;
    const double cursor
        = median([&](int turn) { charts.state().hover(length * ((turn * 37) % Turns) / Turns); });
    const double zoom
        = median([&](int turn) { charts.state().zoom(turn % 20 < 10 ? 0.8 : 1.25, length / 3); });
    charts.state().showWhole();
    const double another
        = median([&](int turn) { show(static_cast<std::size_t>(turn) % laps.size()); });
    bool isGood = report("six laps: cursor moved, ms", cursor, CursorAim);
    isGood = report("six laps: zoomed by a notch, ms", zoom, LapAim) && isGood;
    return report("six laps: another lap, ms", another, LapAim) && isGood;
}

int run()
{
    const QTemporaryDir folder;
    const Settings settings(folder.path());
    settings.setValues({{Setting::ChartFrontSusp, true}, {Setting::ChartRearSusp, true}});
    const Session session(QStringLiteral("Cup.ra1"));
    Lap first;
    first.setPoints(lap(0));
    Lap second;
    second.setPoints(lap(1));

    LapSelection selection;
    LapCharts charts(selection, settings);
    charts.resize(1900, 900);
    charts.state().showLaps({&session, &first}, {&session, &second});
    charts.show();
    QCoreApplication::processEvents();
    const double length = charts.state().whole().to;
    const QList<LapChart *> drawn = charts.findChildren<LapChart *>();

    const double cursor
        = median([&](int turn) { charts.state().hover(length * ((turn * 37) % Turns) / Turns); });
    const double whole = median([&](int /*turn*/) { charts.layOut(); });
    const double zoom
        = median([&](int turn) { charts.state().zoom(turn % 20 < 10 ? 0.8 : 1.25, length / 3); });
    const double one = median([&](int turn) {
        charts.state().showLap({&session, turn % 2 == 0 ? &first : &second});
    });
    const double two = median([&](int turn) {
        charts.state().showLaps({&session, turn % 2 == 0 ? &first : &second},
                                {&session, turn % 2 == 0 ? &second : &first});
    });
    std::vector<ChartContent> contents;
    for (const Channel &channel : channels())
        contents.push_back(contentOf(channel, charts.state()));
    const double lines = median([&](int /*turn*/) { drawLines(contents, charts.state().whole()); });
    std::vector<Lap> six(6);
    for (int i = 0; i < 6; ++i)
        six[static_cast<std::size_t>(i)].setPoints(lap(i));
    const bool areSixGood = runSix(charts, session, six);
    Lap eightHours;
    eightHours.setPoints(lap(0, LongSampleCount));
    const double shownLong = median([&](int turn) {
        charts.state().showLap({&session, turn % 2 == 0 ? &eightHours : &first});
    });
    charts.state().showLap({&session, &eightHours});
    QCoreApplication::processEvents();
    const double longLength = charts.state().whole().to;
    const double longCursor = median(
        [&](int turn) { charts.state().hover(longLength * ((turn * 37) % Turns) / Turns); });
    std::printf("%lld charts drawn anew: %.2f ms, lines of two laps drawn once: %.2f ms\n",
                static_cast<long long>(drawn.size()), whole, lines);
    bool isGood = report("cursor moved, ms", cursor, CursorAim);
    isGood
        = report("cursor moved, beside all charts drawn anew", cursor / whole, RatioAim) && isGood;
    isGood = report("zoomed by a notch, ms", zoom, LapAim) && isGood;
    isGood = report("another lap, ms", one, LapAim) && isGood;
    isGood = report("two other laps, ms", two, LapAim) && isGood;
    isGood = report("two other laps, beside drawing their lines once", two / lines, LinesAim)
             && isGood;
    isGood = report("another lap, one of eight hours, ms", shownLong, LongAim) && isGood;
    isGood = report("cursor moved in it, ms", longCursor, CursorAim) && isGood;
    isGood = areSixGood && isGood;
    std::puts(isGood ? "All aims are met." : "An aim is MISSED.");
    return isGood ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

} // namespace zuno

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    zuno::DarkStyle::install();
    return zuno::run();
}
