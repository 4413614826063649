// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <formats/convert/rideframe.h>
#include <formats/rawride.h>

namespace zuno {

/// Where a channel of a converted ride comes from.
enum class ChannelSource {
    Recorded,
    Turned, ///< recorded with the other sign
    Computed, ///< since nothing was recorded
    Replaced, ///< computed, since what was recorded contradicts speed and turn
};

/// What was done to a recording to make samples of it.
struct ConversionReport
{
    ChannelSource speed = ChannelSource::Recorded;
    ChannelSource lean = ChannelSource::Recorded;
    ChannelSource along = ChannelSource::Recorded;
    ChannelSource across = ChannelSource::Recorded;
    PositionFilter::Counts positions;
    /// Rows left out since their time was nonsense.
    qint64 droppedRows = 0;
    /// Gaps of more than LongestBridge seconds.
    qint64 gaps = 0;
    /// Measured positions a second, while there were any.
    double rate = 0.0;
    bool hasSuspension = false;
};

/// One sample as a session file holds it.
struct RideSample
{
    quint32 milliseconds = 0;
    /// Degrees; the marker of no position where nobody knows.
    float longitude = 0.0F;
    float latitude = 0.0F;
    float speed = 0.0F; ///< km/h
    float lean = 0.0F; ///< degrees, right positive
    float along = 0.0F; ///< G, accelerating positive
    float across = 0.0F; ///< G, right positive
};

/// One outing, complete: every channel has a value at every sample.
struct ConvertedRide
{
    RideFrame frame;
    ConversionReport report;

    [[nodiscard]] std::size_t size() const { return frame.size(); }
    [[nodiscard]] RideSample sample(std::size_t i) const;
};

/// Completes the recorded channels of @p ride: speed from the receiver, or from positions when it
/// has none; accelerations and lean angle as recorded when they agree with speed and turn, with the
/// sign and the scale that these say, otherwise computed from them. @p isSpeedUnitUnknown: the
/// positions tell which unit the speed is in.
void completeRide(ConvertedRide &ride, bool isSpeedUnitUnknown);

} // namespace zuno
