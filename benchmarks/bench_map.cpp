// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How long the map page takes, on the built-in map: from the sending of a lap to the frame that
// shows it, beside the same way for a lap without samples; the moving of a cursor, beside a
// cursor alone on the map; and the memory of the page's process while laps follow each other.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <optional>
#include <vector>

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QMainWindow>
#include <QTimer>
#include <QVBoxLayout>
#include <QVariant>

#include <maps/page/jsconnector.h>
#include <maps/page/mapviewcontroller.h>
#include <maps/page/mapwebpage.h>
#include <maps/payload/lappayload.h>

namespace zuno {

namespace {

constexpr int SampleCount = 1200;
constexpr int Turns = 40;
constexpr int ManyLaps = 500;
constexpr double LapAim = 150.0;
constexpr double CursorAim = 16.0;
// What the page's garbage may come to between two collections.
constexpr double MemoryAim = 40.0;

/// A lap of 4 kilometres with bends, braking and accelerating in turns; variants differ a little.
QString lap(int variant)
{
    QStringList points;
    for (int i = 0; i <= SampleCount; ++i) {
        const double angle = 2 * M_PI * (i % SampleCount) / SampleCount;
        const double radius = 0.006 * (1 + 0.3 * std::sin(5 * angle)) + (1e-6 * variant);
        points << QStringLiteral(R"({"acquisitionNumber":%1,"dataTimeStamp":%2,"dataTimeSec":1.5,)"
                                 R"("dataCoordX":%3,"dataCoordY":%4,"dataSpeed":123,)"
                                 R"("dataAngle":12.345,"dataAccelXPH":0.1234,)"
                                 R"("dataAccelXPHComputed":%5,"dataAccelYPH":0.5678})")
                      .arg(i)
                      .arg(i * 100)
                      .arg(6 + radius * std::cos(angle), 0, 'f', 9)
                      .arg(46 + radius * std::sin(angle), 0, 'f', 9)
                      .arg(std::sin(7 * angle), 0, 'f', 6);
    }
    return QStringLiteral(R"({"lapPoints":[%1],"maxSpeeds":[%2],"minSpeeds":[%3],"landmarks":[)"
                          R"({"lat":46,"lng":6}],"accelMax":1,"decelMax":-1,"isComplete":true})")
        .arg(points.join(u','), points.mid(0, 12).join(u','), points.mid(600, 12).join(u','));
}

struct Figures
{
    double median = 0.0;
    double most = 0.0;
};

Figures figures(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return {values[values.size() / 2], values.back()};
}

class Page
{
public:
    Page()
    {
        auto *content = new QWidget;
        content->setLayout(new QVBoxLayout);
        m_window.setCentralWidget(content);
        m_window.resize(1000, 800);
        m_window.show();
        wait(&MapViewController::mapReady, [&] { m_view.init(&m_window, content->layout()); });
        m_view.initOnlineMap({}, -1);
    }

    /// Milliseconds from the sending to the frame that shows it.
    double draw(const QString &payload)
    {
        QElapsedTimer timer;
        timer.start();
        wait(&MapViewController::lapDrawn,
             [&] { Q_EMIT m_view.page()->connector().drawOneLap(payload); });
        return static_cast<double>(timer.nsecsElapsed()) / 1e6;
    }

    QVariant run(const QString &script)
    {
        QEventLoop loop;
        QVariant result;
        m_view.page()->runJavaScript(script, [&](const QVariant &value) {
            result = value;
            loop.quit();
        });
        loop.exec();
        return result;
    }

    /// Milliseconds of each cursor move, drawing included.
    Figures moveCursor()
    {
        const QVariantList times = run(QStringLiteral(R"(
            Array.from({length: %1}, (_, i) => {
                const text = JSON.stringify({dataCoordX: 6 + i * 1e-5, dataCoordY: 46});
                const begin = performance.now();
                drawCursor(text);
                document.body.offsetWidth;
                return performance.now() - begin;
            }))")
                                           .arg(Turns))
                                       .toList();
        std::vector<double> values;
        for (const QVariant &time : times)
            values.push_back(time.toDouble());
        return figures(std::move(values));
    }

    /// Resident megabytes of the page's process; 0 where the system does not tell.
    [[nodiscard]] double memory()
    {
        run(QStringLiteral("window.gc && gc()"));
        QFile file(QStringLiteral("/proc/%1/statm").arg(m_view.page()->renderProcessPid()));
        if (!file.open(QIODevice::ReadOnly))
            return 0.0;
        return file.readAll().split(' ').value(1).toDouble() * 4096.0 / 1e6;
    }

private:
    void wait(void (MapViewController::*signal)(), const std::function<void()> &act)
    {
        QEventLoop loop;
        QObject::connect(&m_view, signal, &loop, &QEventLoop::quit);
        QTimer::singleShot(0, &loop, act);
        loop.exec();
    }

    QMainWindow m_window;
    MapViewController m_view;
};

bool report(const char *what, const Figures &figure, const Figures &baseline, double aim)
{
    std::printf("%-32s %7.1f ms (most %6.1f)  %7.1f ms  %5.1f times  aim %5.0f ms\n", what,
                figure.median, figure.most, baseline.median, figure.median / baseline.median, aim);
    return figure.median <= aim;
}

bool measure(Page &page)
{
    const QString empty = QString::fromUtf8(emptyLapPayload());
    page.draw(lap(0));
    std::vector<double> laps;
    std::vector<double> nothing;
    for (int i = 0; i < Turns; ++i) {
        nothing.push_back(page.draw(empty));
        laps.push_back(page.draw(lap(i)));
    }
    const Figures withLap = page.moveCursor();
    page.draw(empty);
    const Figures alone = page.moveCursor();

    std::printf("%-32s %10s %15s  %10s\n", "what", "time", "", "baseline");
    const bool laps1200
        = report("a lap of 1,200 samples shown", figures(laps), figures(nothing), LapAim);
    const bool cursor = report("the cursor moved", withLap, alone, CursorAim);

    for (int i = 0; i < 50; ++i)
        page.draw(lap(i));
    const double before = page.memory();
    for (int i = 0; i < ManyLaps; ++i)
        page.draw(lap(i));
    const double growth = page.memory() - before;
    std::printf("memory of the page after %d laps: %+.1f MB beside %.1f MB, aim %.0f MB\n",
                ManyLaps, growth, before, MemoryAim);
    return laps1200 && cursor && growth <= MemoryAim;
}

} // namespace

} // namespace zuno

int main(int argc, char *argv[])
{
    qputenv("ZUNO_MAP_KEY", "");
    const QApplication application(argc, argv);
    zuno::Page page;
    const bool met = zuno::measure(page);
    std::puts(met ? "All aims are met." : "An aim is missed.");
    return met ? 0 : 1;
}
