// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/ridereader.h>

#include <algorithm>
#include <array>

#include <formats/readers/readers.h>
#include <formats/text/linereader.h>

namespace zuno {

namespace {

constexpr std::array Readers {
    RideReader {"xrk", "AiM XRK", looksLikeAimXrk, readAimXrk},
    RideReader {"rcz", "RaceChrono RCZ", looksLikeRaceChronoArchive, readRaceChronoArchive},
    RideReader {"gpx", "GPX", looksLikeGpx, readGpx},
    RideReader {"vbo", "VBO", looksLikeVbo, readVbo},
    RideReader {"speedangle", "SpeedAngle", looksLikeSpeedAngle, readSpeedAngle},
    RideReader {"racechrono-csv", "RaceChrono CSV", looksLikeRaceChronoCsv, readRaceChronoCsv},
    RideReader {"trackaddict", "TrackAddict CSV", looksLikeTrackAddict, readTrackAddict},
    RideReader {"racecapture", "RaceCapture", looksLikeRaceCapture, readRaceCapture},
    RideReader {"aim-csv", "Race Studio CSV", looksLikeAimCsv, readAimCsv},
    RideReader {"nmea", "NMEA", looksLikeNmea, readNmea},
    RideReader {"table", "CSV", looksLikeTable, readTable},
};

} // namespace

std::span<const RideReader> rideReaders()
{
    return Readers;
}

const RideReader *findRideReader(QByteArrayView head)
{
    const QByteArray plain = utf8Head(head);
    const auto found
        = std::find_if(Readers.begin(), Readers.end(),
                       [&plain](const RideReader &reader) { return reader.looksLike(plain); });
    return found != Readers.end() ? found : nullptr;
}

} // namespace zuno
