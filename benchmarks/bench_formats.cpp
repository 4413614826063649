// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Other loggers' files: what reading a VBO of a track day costs beside splitting it into lines.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <functional>
#include <vector>

#include <QBuffer>
#include <QFile>

#include <formats/convert/rideconverter.h>
#include <formats/ridereader.h>

namespace zuno {

namespace {

constexpr int Turns = 15;
constexpr qsizetype Size = 3'500'000;
constexpr double ReadAim = 10.0;

/// As loggers with video write them: 25 rows a second of 24 columns, half of them of the car.
QByteArray madeUpVbo()
{
    QByteArray text = "File created on 06/05/2024 at 10:20:30\r\n\r\n[header]\r\nsatellites\r\n"
                      "time\r\nlatitude\r\nlongitude\r\nvelocity kmh\r\n\r\n[column names]\r\n"
                      "sats time lat long velocity heading height";
    for (int i = 0; i < 17; ++i)
        text += " can" + QByteArray::number(i);
    text += "\r\n\r\n[data]\r\n";
    for (int i = 0; text.size() < Size; ++i) {
        const double angle = 0.004 * i;
        const int second = i / 25;
        const auto number = [](double value, int decimals) -> QByteArray {
            return (value < 0 ? QByteArray("-") : QByteArray("+"))
                   + QByteArray::number(std::abs(value), 'f', decimals);
        };
        text += "011 "
                + QByteArray::number(100000 + second / 3600 * 10000 + second / 60 % 60 * 100
                                     + second % 60)
                + '.' + QByteArray::number(40 * (i % 25)).rightJustified(3, '0') + ' '
                + number(2700 + 0.1 * std::sin(angle), 6) + ' '
                + number(-540 + 0.1 * std::cos(angle), 6) + ' '
                + QByteArray::number(100 + 50 * std::sin(7 * angle), 'f', 3).rightJustified(7, '0')
                + " 123.45 +000123.45";
        for (int k = 0; k < 17; ++k)
            text += ' ' + number(k + std::sin(angle), 6) + "E+00";
        text += "\r\n";
    }
    return text;
}

struct Sink final : RowSink
{
    void take(const RawRow &row) override { rows += row.time == row.time ? 1 : 0; }
    qsizetype rows = 0;
};

double milliseconds(const std::function<void()> &work)
{
    std::vector<double> times;
    for (int turn = 0; turn < Turns; ++turn) {
        // Processor time, so that a turn in which somebody else had the processor counts no more.
        const std::clock_t begin = std::clock();
        work();
        times.push_back(1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void readInto(QByteArray &bytes, RowSink &sink, RideFacts &facts)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    const RideReader *reader = findRideReader(buffer.peek(HeadSize));
    if (reader != nullptr)
        (void)reader->read(buffer, facts, sink);
}

} // namespace

int benchmarkFormats(const QByteArray &given)
{
    QByteArray bytes = given.isEmpty() ? madeUpVbo() : given;
    qsizetype lines = 0;
    qsizetype rows = 0;
    qsizetype samples = 0;
    const double split = milliseconds([&] { lines = bytes.split('\n').size(); });
    const double read = milliseconds([&] {
        RideFacts facts;
        Sink sink;
        readInto(bytes, sink, facts);
        rows = sink.rows;
    });
    const double convert = milliseconds([&] {
        RideFacts facts;
        RideConverter converter(facts, [&samples](ConvertedRide &&ride) {
            samples = static_cast<qsizetype>(ride.size());
        });
        readInto(bytes, converter, facts);
        converter.finish();
    });
    std::printf("%.1f MB, %d lines, %d rows, %d samples\n", static_cast<double>(bytes.size()) / 1e6,
                static_cast<int>(lines), static_cast<int>(rows), static_cast<int>(samples));
    std::printf("lines split             %7.2f ms\n", split);
    std::printf("rows read               %7.2f ms  %6.2f times, aim %.0f: %s\n", read, read / split,
                ReadAim, read <= ReadAim * split ? "met" : "MISSED");
    std::printf("samples made            %7.2f ms  %6.2f times\n", convert, convert / split);
    return rows > 0 && read <= ReadAim * split ? 0 : 1;
}

} // namespace zuno

int main(int argc, char *argv[])
{
    QFile file(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString());
    const bool isGiven = argc > 1 && file.open(QIODevice::ReadOnly);
    return zuno::benchmarkFormats(isGiven ? file.readAll() : QByteArray());
}
