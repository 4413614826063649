// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the core costs beside a plain piece of work of the same size. Seconds say little, since they
// are another machine's; a ratio of two things measured in turns, within the same second, says
// more. First comes the table of the ratios with their aims, then Google Benchmark's timings of
// each part.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <base/processorstate.h>
#include <demo/demolibrary.h>
#include <insight/sessioninsight.h>
#include <maps/check/mapcheck.h>
#include <maps/detection/mapdetection.h>
#include <maps/proposal/mapproposal.h>
#include <session/recording/smoothing.h>
#include <session/sessionfile.h>
#include <track/mapfile.h>

namespace zuno {

namespace {

// Twenty minutes, as long as most outings.
constexpr int SampleCount = 12000;

constexpr int Rounds = 41;
constexpr double SecondsPerTurn = 0.005;

/// Work to be timed. What it uses up is made anew before each run, outside of the time.
struct Work
{
    const char *name;
    std::function<void()> run;
    std::function<void()> prepare = nullptr;
    /// Begins as in a fresh process. Everything else begins with what Qt leaves in the processor's
    /// registers, so that a slowness of this kind shows in the ratio.
    bool isBaseline = false;

    void runOnce() const
    {
        isBaseline ? clearVectorRegisters() : dirtyVectorRegisters();
        run();
    }
};

/// Processor time, so that a turn in which somebody else had the processor counts no more than the
/// others. The clock ticks in microseconds, hence many runs at a time.
double meanSeconds(const Work &work, int runs)
{
    std::clock_t spent = 0;
    if (!work.prepare) {
        const std::clock_t begin = std::clock();
        for (int i = 0; i < runs; ++i)
            work.runOnce();
        spent = std::clock() - begin;
    } else {
        for (int i = 0; i < runs; ++i) {
            work.prepare();
            const std::clock_t begin = std::clock();
            work.runOnce();
            spent += std::clock() - begin;
        }
    }
    return static_cast<double>(spent) / CLOCKS_PER_SEC / runs;
}

int runsPerTurn(const Work &work)
{
    int runs = 1;
    while (meanSeconds(work, runs) * runs < SecondsPerTurn)
        runs *= 2;
    return runs;
}

struct Spread
{
    explicit Spread(std::vector<double> values)
    {
        std::sort(values.begin(), values.end());
        least = values.front();
        median = values[values.size() / 2];
        most = values.back();
    }
    double least;
    double median;
    double most;
};

/// Two works and how many times the second's duration the first may take.
struct Comparison
{
    Work measured;
    Work baseline;
    double aim = 0.0;

    /// Prints a line of the table; whether the aim is met. A machine that gets slower or faster
    /// meanwhile does so for both, and which goes first changes from turn to turn.
    [[nodiscard]] bool print() const
    {
        const int measuredRuns = runsPerTurn(measured);
        const int baselineRuns = runsPerTurn(baseline);
        std::vector<double> times;
        std::vector<double> baselineTimes;
        std::vector<double> ratios;
        for (int round = 0; round < Rounds; ++round) {
            if (round % 2 == 0)
                times.push_back(meanSeconds(measured, measuredRuns));
            baselineTimes.push_back(meanSeconds(baseline, baselineRuns));
            if (round % 2 != 0)
                times.push_back(meanSeconds(measured, measuredRuns));
            ratios.push_back(times.back() / baselineTimes.back());
        }
        const Spread time(times);
        const Spread base(baselineTimes);
        const Spread ratio(ratios);
        const bool isMet = ratio.median <= aim;
        std::printf("%-28s %9.1f  %-34s %8.1f %8.1f .. %-8.1f %6.2f %7.2f .. %-6.2f %4.0f  %s\n",
                    measured.name, time.median * 1e6, baseline.name, base.median * 1e6,
                    base.least * 1e6, base.most * 1e6, ratio.median, ratio.least, ratio.most, aim,
                    isMet ? "met" : "MISSED");
        return isMet;
    }
};

void printHeader()
{
    std::printf(
        "Microseconds of the processor for %d samples: medians of %d turns, the least and the "
        "most of them.\n\n",
        SampleCount, Rounds);
    std::printf("%-28s %9s  %-34s %8s %20s %6s %17s %4s\n", "measured", "time", "baseline", "time",
                "least .. most   ", "ratio", "least .. most ", "aim");
}

/// Two rows of two numbers, or a column of two, without anything else.
struct Square
{
    float a, b, c, d;

    friend Square operator*(const Square &l, const Square &r)
    {
        return {(l.a * r.a) + (l.b * r.c), (l.a * r.b) + (l.b * r.d), (l.c * r.a) + (l.d * r.c),
                (l.c * r.b) + (l.d * r.d)};
    }
    friend Square operator+(const Square &l, const Square &r)
    {
        return {l.a + r.a, l.b + r.b, l.c + r.c, l.d + r.d};
    }
    friend Square operator-(const Square &l, const Square &r)
    {
        return {l.a - r.a, l.b - r.b, l.c - r.c, l.d - r.d};
    }
    [[nodiscard]] Square transposed() const { return {a, c, b, d}; }

    /// By LU with row pivoting; the permuted identity when singular.
    [[nodiscard]] Square inverse() const
    {
        const bool isSwapped = std::fabs(c) > std::fabs(a);
        const Square s = isSwapped ? Square {c, d, a, b} : *this;
        Square i = isSwapped ? Square {0.0F, 1.0F, 1.0F, 0.0F} : Square {1.0F, 0.0F, 0.0F, 1.0F};
        const float factor = s.a != 0.0F ? s.c / s.a : s.c;
        const float pivot = s.d - (factor * s.b);
        if (s.a == 0.0F || pivot == 0.0F)
            return i;
        i.c = (i.c - (i.a * factor)) / pivot;
        i.d = (i.d - (i.b * factor)) / pivot;
        i.a = (i.a - (i.c * s.b)) / s.a;
        i.b = (i.b - (i.d * s.b)) / s.a;
        return i;
    }
};

struct Column
{
    float a, b;

    friend Column operator*(const Square &l, const Column &r)
    {
        return {(l.a * r.a) + (l.b * r.b), (l.c * r.a) + (l.d * r.b)};
    }
    friend Column operator*(const Column &l, float r) { return {l.a * r, l.b * r}; }
    friend Column operator+(const Column &l, const Column &r) { return {l.a + r.a, l.b + r.b}; }
    friend Column operator-(const Column &l, const Column &r) { return {l.a - r.a, l.b - r.b}; }
};

float limited(float value, float low, float high)
{
    const float raised = low > value ? low : value;
    return high > raised ? raised : high;
}

/// The loop that one would write for this filter alone, on numbers that stay in registers. It does
/// every operation of the general filter, so that the results are the same to the bit.
void smoothByHand(Points &samples)
{
    constexpr Square A {1.0F, 3.5316002368927F, 0.0F, 1.0F};
    constexpr Square H {1.0F, 0.0F, 0.0F, 1.0F};
    constexpr Square R {125.0F, 0.0F, 0.0F, 1.0F};
    constexpr Square Q {0.125F, 0.0F, 0.0F, 0.01F};
    constexpr Square I {1.0F, 0.0F, 0.0F, 1.0F};
    constexpr Column B {0.0F, 0.0F};
    constexpr float U = 0.0F;
    Square p {1250.0F, 0.0F, 0.0F, 0.01F};
    Column x {0.0F, 0.0F};
    for (PointAcquisition &sample : samples) {
        sample.rawSpeed = static_cast<float>(sample.dataSpeed);
        const Column z {sample.rawSpeed, static_cast<float>(sample.dataAccelXPH)};
        x = A * x + B * U;
        p = A * p * A.transposed() + Q;
        const Square s = H * p * H.transposed() + R;
        const Square k = p * H.transposed() * s.inverse();
        x = x + k * (z - H * x);
        p = (I - k * H) * p;
        sample.rawSpeed = static_cast<float>(sample.dataSpeed);
        sample.dataSpeed = static_cast<double>(limited(x.a, 0.0F, 399.0F));
        sample.dataAccelXPHComputed = static_cast<double>(limited(x.b, -2.0F, 2.0F));
    }
}

/// A made-up ride, and the circuits that it may have been ridden on.
struct Ride
{
    Ride()
    {
        const DemoResult written = writeDemoLibrary(folder.path(), {1, SampleCount});
        if (!written.ok())
            return;
        maps.loadMaps(folder.filePath(QStringLiteral("Map")));
        path = written.sessionFiles.front();
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            bytes = file.readAll();
        session = openSession(path).session;
        if (!session)
            return;
        raw = session->samples();
        session->smooth();
        chooseMapByLength(*session, findCandidates(*session, maps.maps()));
    }

    /// What a benchmark would be worth nothing without: laps with sectors, no readings, and a
    /// baseline that does the same as what it is compared with.
    [[nodiscard]] const char *fault() const
    {
        if (!session || session->wholeSamples().size() != SampleCount)
            return "the ride has not been written or read";
        if (session->map() == nullptr || session->laps().size() < 4
            || session->results().idealTime < 0)
            return "the ride has no laps with sectors";
        if (!session->readingLists().list1.empty() || !session->readingLists().list2.empty())
            return "the ride has suspension readings";
        Points byHand = raw;
        smoothByHand(byHand);
        if (insightOf(*session->map(), {}, session->wholeSamples(), session->laps()).used.size()
            < 3)
            return "the ride does not tell where its time is";
        return byHand == session->samples() ? nullptr : "the two filters disagree";
    }

    QTemporaryDir folder;
    MapLibrary maps;
    QString path;
    QByteArray bytes;
    std::unique_ptr<Session> session;
    Points raw;
};

Comparison decoding(const Ride &ride)
{
    const auto decode = [&ride] {
        const OpenedSession opened = decodeSession(ride.bytes, ride.path);
        benchmark::DoNotOptimize(opened.session->samples().data());
        benchmark::ClobberMemory();
    };
    const auto copy = [&ride] {
        const auto size = static_cast<std::size_t>(ride.bytes.size());
        const auto buffer = std::make_unique_for_overwrite<char[]>(size);
        std::memcpy(buffer.get(), ride.bytes.constData(), size);
        benchmark::DoNotOptimize(buffer.get());
        benchmark::ClobberMemory();
    };
    return {{"decoding", decode}, {"copying the bytes to a new buffer", copy, nullptr, true}, 6.0};
}

Comparison smoothing(const Ride &ride)
{
    const auto work = [&ride](const char *name, void (*smooth)(Points &), bool isBaseline) {
        const auto samples = std::make_shared<Points>();
        const auto run = [samples, smooth] {
            smooth(*samples);
            benchmark::DoNotOptimize(samples->data());
            benchmark::ClobberMemory();
        };
        return Work {name, run, [samples, &ride] { *samples = ride.raw; }, isBaseline};
    };
    return {work("smoothing", smoothSamples, false),
            work("the filter in single numbers", smoothByHand, true), 5.0};
}

Comparison cutting(const Ride &ride)
{
    const auto cut = [&ride] {
        ride.session->cutIntoLaps();
        benchmark::DoNotOptimize(ride.session->laps().data());
        benchmark::ClobberMemory();
    };
    const auto measure = [&ride] {
        const QGeoCoordinate start = ride.session->map()->startPoint();
        double sum = 0.0;
        for (const PointAcquisition &sample : ride.session->wholeSamples())
            sum += QGeoCoordinate(sample.dataCoordY, sample.dataCoordX).distanceTo(start);
        benchmark::DoNotOptimize(sum);
    };
    return {{"laps, figures and sectors", cut},
            {"a coordinate and a distance each", measure, nullptr, true},
            2.0};
}

/// What an editor of maps does after each change.
Comparison checking(const Ride &ride)
{
    const MapDraft draft = MapDraft::of(*ride.session->map());
    const auto check = [&ride, draft] {
        benchmark::DoNotOptimize(checkMap(ride.session->wholeSamples(), draft).laps.data());
        benchmark::ClobberMemory();
    };
    return {{"a map checked", check}, cutting(ride).baseline, 10.0};
}

Comparison proposing(const Ride &ride)
{
    const auto propose = [&ride] {
        benchmark::DoNotOptimize(proposeMap(ride.session->wholeSamples()).laps.data());
        benchmark::ClobberMemory();
    };
    return {{"a map proposed", propose}, cutting(ride).baseline, 60.0};
}

/// What a session tells beyond its laps, all of it.
Comparison telling(const Ride &ride)
{
    const auto tell = [&ride] {
        const Session &session = *ride.session;
        benchmark::DoNotOptimize(
            insightOf(*session.map(), {}, session.wholeSamples(), session.laps()).laps.data());
        benchmark::ClobberMemory();
    };
    return {{"where its time is, all of it", tell}, cutting(ride).measured, 3.0};
}

Comparison findingCorners(const Ride &ride)
{
    const auto find = [&ride] {
        benchmark::DoNotOptimize(findCorners(*ride.session->map()).corners.data());
        benchmark::ClobberMemory();
    };
    return {{"corners of a map", find}, cutting(ride).measured, 1.0};
}

Comparison puttingOnOutline(const Ride &ride)
{
    // The laps are others after each cutting.
    const auto put = [&ride, ring = CircuitRing(*ride.session->map())] {
        const Lap &lap = *ride.session->laps()[1];
        benchmark::DoNotOptimize(
            putOnOutline(ring, ride.session->wholeSamples(), lap).nodes().data());
        benchmark::ClobberMemory();
    };
    const auto measure = [&ride] {
        const Lap &lap = *ride.session->laps()[1];
        const QGeoCoordinate start = ride.session->map()->startPoint();
        double sum = 0.0;
        for (const PointAcquisition &sample : lap.points())
            sum += QGeoCoordinate(sample.dataCoordY, sample.dataCoordX).distanceTo(start);
        benchmark::DoNotOptimize(sum);
    };
    return {{"a lap put on the outline", put}, {"a coordinate and a distance each", measure}, 8.0};
}

/// The laps of the ride over and over, up to twenty.
Comparison listingLosses(const Ride &ride)
{
    constexpr std::size_t Laps = 20;
    const Session &session = *ride.session;
    const auto insight = std::make_shared<SessionInsight>(
        insightOf(*session.map(), {}, session.wholeSamples(), session.laps()));
    const auto list = [insight] {
        std::vector<RiddenLap> laps;
        for (std::size_t i = 0; i < Laps; ++i)
            laps.push_back(insight->laps[i % insight->laps.size()].ridden());
        benchmark::DoNotOptimize(listLosses(laps, insight->circuit).data());
        benchmark::ClobberMemory();
    };
    return {{"the losses of 20 laps", list}, cutting(ride).measured, 1.0};
}

#if defined(__GLIBC__)
std::size_t bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// What a session holds once its samples are decoded; whether the aim is met.
bool printMemory(const char *name, const std::function<std::unique_ptr<Session>()> &open)
{
    constexpr double Aim = 112.0;
    const std::size_t before = bytesInUse();
    const std::unique_ptr<Session> session = open();
    const auto count = static_cast<double>(session->samples().size());
    const double each = static_cast<double>(bytesInUse() - before) / count;
    std::printf("%-44s %6.1f bytes a sample %29s %4.0f  %s\n", name, each, "", Aim,
                each <= Aim ? "met" : "MISSED");
    return each <= Aim;
}

bool printMemory(const Ride &ride)
{
    std::printf("\nTaken from the heap, the session itself included:\n");
    const bool isMet
        = printMemory("opened from its file", [&ride] { return openSession(ride.path).session; });
    const auto decode = [&ride] {
        const QByteArray own(ride.bytes.constData(), ride.bytes.size());
        return decodeSession(own, ride.path).session;
    };
    return printMemory("decoded in memory, its bytes included", decode) && isMet;
}
#else
bool printMemory(const Ride &)
{
    std::printf("\nMemory is measured with the GNU C library only.\n");
    return true;
}
#endif

void timeInDetail(benchmark::State &state, const Work &work)
{
    for (auto _ : state) {
        if (work.prepare) {
            state.PauseTiming();
            work.prepare();
            state.ResumeTiming();
        }
        work.runOnce();
    }
    state.SetItemsProcessed(state.iterations() * SampleCount);
}

int run()
{
    const Ride ride;
    if (const char *fault = ride.fault()) {
        std::fprintf(stderr, "bench_core: %s\n", fault);
        return 1;
    }
    const std::array comparisons {
        decoding(ride),       smoothing(ride),        cutting(ride),
        checking(ride),       proposing(ride),        telling(ride),
        findingCorners(ride), puttingOnOutline(ride), listingLosses(ride)};
    printHeader();
    bool areMet = true;
    for (const Comparison &comparison : comparisons)
        areMet &= comparison.print();
    areMet &= printMemory(ride);
    std::printf("\n%s\n\n", areMet ? "Every aim is met." : "An aim is MISSED.");
    std::fflush(stdout);

    for (const Comparison &comparison : comparisons) {
        for (const Work &work : {comparison.measured, comparison.baseline}) {
            benchmark::RegisterBenchmark(work.name, timeInDetail, work)
                ->Unit(benchmark::kMicrosecond);
        }
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return areMet ? 0 : 1;
}

} // namespace

} // namespace zuno

int main(int argc, char *argv[])
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    return zuno::run();
}
