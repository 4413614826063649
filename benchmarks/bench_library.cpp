// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The program with a rider's whole career: what knowing every recording costs beside reading all
// their bytes, how long the display of a session takes, and the memory that it leaves behind.
//   bench_library [SESSIONS]    (1000 without)

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <vector>

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QHashSeed>
#include <QTemporaryDir>
#include <QThread>

#include <app/application.h>
#include <app/zunoanalyzer.h>
#include <base/processorstate.h>
#include <base/settings.h>
#include <demo/demolibrary.h>
#include <library/acquisitionlibrary.h>
#include <maps/detection/mapdetection.h>
#include <session/sessionfile.h>
#include <stats/sessionsstats.h>
#include <track/mapfile.h>

namespace zuno {

namespace {

constexpr int Turns = 11;
constexpr int SamplesEach = 12000;
constexpr int Displayed = 200;
constexpr double LoadAim = 1.0;
constexpr double DisplayAim = 100.0;
constexpr double StatisticsAim = 200.0;
constexpr double MemoryAim = 60.0;
constexpr double PassAim = 1.2;
constexpr int PassSample = 50;
constexpr qint64 LongestPass = 600000; // ms
// The start with all of them, beside that with a hundred.
constexpr int FewSessions = 100;
constexpr double GrowthAim = 1.5;

double milliseconds(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// Resident megabytes of this process; 0 where the system does not tell.
double residentMegabytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0.0;
    return file.readAll().split(' ').value(1).toDouble() * 4096.0 / 1e6;
}

QStringList filesBelow(const QString &folder)
{
    QStringList files;
    QDirIterator all(folder, QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext())
        files << all.next();
    files.sort();
    return files;
}

// As `cat` does it: every byte into a buffer, and nowhere else.
void readAll(const QString &folder)
{
    std::vector<char> buffer(std::size_t(1) << 17U);
    for (const QString &path : filesBelow(folder)) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
            while (file.read(buffer.data(), static_cast<qint64>(buffer.size())) > 0) {}
        }
    }
}

bool report(const char *what, double value, const char *unit, double aim)
{
    const bool met = value <= aim;
    std::printf("%-52s %8.2f %-5s  aim %6.1f%s\n", what, value, unit, aim, met ? "" : "  MISSED");
    return met;
}

bool measureLoading(const QString &folder)
{
    std::vector<double> ratios;
    std::vector<double> loads;
    readAll(folder);
    for (int turn = 0; turn < Turns; ++turn) {
        const double baseline = milliseconds([&] { readAll(folder); });
        loads.push_back(milliseconds([&] { AcquisitionLibrary().load(folder); }));
        ratios.push_back(loads.back() / baseline);
    }
    const auto [least, most] = std::minmax_element(ratios.begin(), ratios.end());
    std::printf("every session known after %.1f ms; ratios %.2f .. %.2f\n", median(loads), *least,
                *most);
    return report("knowing every session, beside reading all bytes", median(ratios), "times",
                  LoadAim);
}

bool measureDisplay(ZunoAnalyzer &window, const QStringList &files, double memoryBefore)
{
    std::vector<double> times;
    for (const QString &path : files.mid(0, Displayed)) {
        // Until it is painted.
        times.push_back(milliseconds([&] {
            dirtyVectorRegisters();
            window.openFile(path);
            QApplication::sendPostedEvents();
            QApplication::processEvents();
        }));
        // What is to be deleted later waits for an event loop to return to, and here is none.
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    const bool fast
        = report("a session displayed and painted (median)", median(times), "ms", DisplayAim);
    std::printf("the slowest of them %.1f ms\n", *std::max_element(times.begin(), times.end()));
    const double grown = residentMegabytes() - memoryBefore;
    return report("memory of library and 200 displays", grown, "MB", MemoryAim) && fast;
}

/// Milliseconds until the window stands and its library is read as far as it is at the start.
double started()
{
    return milliseconds([] { const ZunoAnalyzer window; });
}

/// How the start grows from a hundred recordings to all; each without samples worth reading.
bool measureGrowth(const QString &folder)
{
    const QStringList files = filesBelow(folder);
    const QString away = folder + QStringLiteral(".away");
    (void)started();
    std::vector<double> many;
    for (int turn = 0; turn < Turns; ++turn)
        many.push_back(started());
    QDir().rename(folder, away);
    for (const QString &path : files.mid(0, FewSessions)) {
        const QString to = folder + path.mid(folder.size());
        QDir().mkpath(QFileInfo(to).path());
        QFile::copy(away + path.mid(folder.size()), to);
    }
    std::vector<double> few;
    for (int turn = 0; turn < Turns; ++turn)
        few.push_back(started());
    QDir(folder).removeRecursively();
    QDir().rename(away, folder);
    std::printf("the window is made after %.1f ms, with %d recordings after %.1f\n", median(many),
                FewSessions, median(few));
    return report("the start with all, beside a hundred", median(many) / median(few), "times",
                  GrowthAim);
}

/// The first start's pass, from the window on, beside what the core takes for the same files.
bool measurePass(const Settings &settings, const QStringList &files)
{
    MapLibrary maps;
    maps.loadMaps(settings.mapsFolder());
    const QStringList some = files.mid(0, PassSample);
    const double core = milliseconds([&] {
        for (const QString &path : some) {
            const OpenedSession opened = openSession(path);
            opened.session->smooth();
            chooseMapByLength(*opened.session, findCandidates(*opened.session, maps.maps()));
        }
    });
    const double all = core * static_cast<double>(files.size()) / static_cast<double>(some.size())
                       / QThread::idealThreadCount();
    settings.setValue(Setting::V1400, false);
    QElapsedTimer timer;
    timer.start();
    const ZunoAnalyzer window;
    const auto stands = static_cast<double>(timer.elapsed());
    while (!settings.isOn(Setting::V1400) && timer.elapsed() < LongestPass)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    const double pass = static_cast<double>(timer.elapsed()) - stands;
    std::printf("the window stood after %.0f ms, the pass took %.0f ms, the core alone %.0f\n",
                stands, pass, all);
    return report("the first start's pass, beside the core's work", pass / all, "times", PassAim);
}

bool measure(const QString &root)
{
    const Settings settings(root);
    const QString folder = settings.acquisitionFolder();
    bool met = measureLoading(folder);

    // What window and web engine take themselves is known by a first window, without a library.
    const QString away = folder + QStringLiteral(".away");
    QDir().rename(folder, away);
    ZunoAnalyzer empty;
    empty.show();
    QApplication::processEvents();
    QDir().rmdir(folder);
    QDir().rename(away, folder);
    const double before = residentMegabytes();

    empty.loadAcquisitionsFolder(folder);
    met = measureDisplay(empty, filesBelow(folder), before) && met;
    const double statistics = milliseconds([&] {
        empty.openStatistics();
        QApplication::processEvents();
    });
    met = report("statistics opened", statistics, "ms", StatisticsAim) && met;
    return measurePass(settings, filesBelow(folder)) && met;
}

} // namespace

} // namespace zuno

int main(int argc, char *argv[])
{
    QHashSeed::setDeterministicGlobalSeed();
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
    const zuno::Application application(argc, argv);
    const int sessions = argc > 1 ? QByteArray(argv[1]).toInt() : 1000;
    const zuno::Settings settings(zuno::Settings::defaultRoot());
    const zuno::DemoResult demo = zuno::writeDemoLibrary(
        settings.root() + QStringLiteral("/Norvale"), {sessions, zuno::SamplesEach});
    if (!demo.ok()) {
        std::fprintf(stderr, "%s\n", qPrintable(demo.error));
        return 1;
    }
    settings.setValue(zuno::Setting::V1400, true);
    bool met = zuno::measureGrowth(settings.acquisitionFolder());
    met = zuno::measure(settings.root()) && met;
    std::puts(met ? "All aims are met." : "An aim is missed.");
    return met ? 0 : 1;
}
