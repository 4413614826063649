// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Another logger's file of any kind, all the way to samples and to what is written of them.

#include <cmath>

#include <QBuffer>

#include <formats/convert/rideconverter.h>
#include <formats/ridereader.h>
#include <formats/table/tablereader.h>
#include <formats/table/valueguess.h>

#include "check.h"

using namespace zuno;
using namespace zuno::fuzz;

namespace {

void checkRide(const ConvertedRide &ride)
{
    for (std::size_t i = 0; i < ride.size(); ++i) {
        const RideSample sample = ride.sample(i);
        check(sample.milliseconds == 100 * i, "samples are even");
        check(std::isfinite(sample.speed) && sample.speed >= 0, "speeds are numbers");
        check(std::isfinite(sample.lean) && std::isfinite(sample.along)
                  && std::isfinite(sample.across),
              "channels are numbers");
        check(ride.frame.places()[i].isKnown() == (std::abs(sample.latitude) <= 90), "places are");
    }
}

// A table whose columns are proposed to the rider by their values.
void readGuessed(QIODevice &device, RideFacts &facts, RowSink &sink)
{
    const auto sheet = findSheet(device.peek(HeadSize));
    if (!sheet)
        return;
    ColumnMapping mapping = guessColumns(sheet->heading, sheet->rows);
    guessByValues(mapping, sheet->rows);
    (void)readSheet(device, facts, sink, *sheet, mapping);
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): the fuzzer calls it so
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    RideFacts facts;
    RideConverter converter(facts, [](ConvertedRide &&ride) { checkRide(ride); });
    if (const RideReader *reader = findRideReader(buffer.peek(HeadSize)))
        (void)reader->read(buffer, facts, converter);
    else
        readGuessed(buffer, facts, converter);
    converter.finish();
    return 0;
}
