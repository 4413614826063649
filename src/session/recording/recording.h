// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <QByteArray>
#include <QString>

#include <session/recording/pointacquisition.h>

namespace zuno {

/// What a session file holds where its information belongs.
enum class InformationBlock {
    /// Nothing yet.
    Missing,
    Whole,
    /// A block that something is missing of.
    EndsEarly,
    /// The format is not 1.x: nobody knows what stands there.
    OtherFormat,
    /// The way there leads through samples, words or lists that are damaged or missing, or another
    /// recording begins there.
    Unreachable,
};

/// What a session file says around its samples, as the logger wrote it.
struct Recording
{
    QByteArray version;
    /// How many samples the session has: those that the file declares, less any that damage
    /// must have added.
    qint64 sampleCount = 0;
    /// How many of them the file holds whole. The rest, of a file cut short, read as zeros and
    /// are used for nothing.
    qint64 wholeSampleCount = 0;
    /// The number of 32-bit words after the samples; their meaning is the logger's.
    quint32 words = 0;
    /// Header texts A and B: the recording's date and time.
    QString date;
    QString time;
    quint8 reservedByte = 0;
    double reservedDouble = 0.0;
    /// 1 when lists of suspension readings follow.
    quint8 listsFlag = 0;
    InformationBlock block = InformationBlock::Missing;

    /// Whether the information can be written into the file without harm to anything in it.
    [[nodiscard]] bool isRewritable() const
    {
        return block != InformationBlock::OtherFormat && block != InformationBlock::Unreachable;
    }
};

/// Whether a file that says @p now holds the recording that it held @p before, grown perhaps.
[[nodiscard]] inline bool isStillRecording(const Recording &before, const Recording &now)
{
    // While it is being written, a file has no header yet.
    const bool wasGrowing = before.wholeSampleCount < before.sampleCount;
    return wasGrowing
           || (before.version == now.version && before.date == now.date && before.time == now.time);
}

/// The readings of both suspension channels as they stand in the file, ten to a sample.
struct ReadingLists
{
    std::vector<Reading> list1;
    std::vector<Reading> list2;
};

} // namespace zuno
