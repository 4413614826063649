// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

#include <session/recording/pointacquisition.h>
#include <session/recording/sessionorigin.h>

namespace zuno {

/// What a session or a lap of it says, for other programs.
struct RideToExport
{
    /// Every sample, or those of one lap; times count on from the recording's begin.
    std::span<const PointAcquisition> samples;
    /// When the recording began, as its file says; invalid when it does not.
    QDateTime begin;
    /// What the ride is called in the file, and who rode what.
    QString name;
    QString driver;
    QString vehicle;
    QString circuit;
    /// The start line and timing points, for formats that have such.
    QList<RideGate> gates;
};

/// A format that other programs read.
struct RideFormat
{
    /// The name on the command line, which is also the file's suffix: "vbo".
    const char *id;
    /// What riders call it.
    const char *name;
    QByteArray (*write)(const RideToExport &ride);
};

/// All of them.
[[nodiscard]] std::span<const RideFormat> rideFormats();
/// The one of that id; nullptr without one.
[[nodiscard]] const RideFormat *findRideFormat(const QString &id);

/// VBO: sections of lines, positions in minutes with the west positive.
[[nodiscard]] QByteArray rideAsVbo(const RideToExport &ride);
/// GPX 1.1 with speed and course in the common extension. Where there was no position for a while,
/// a new segment begins.
[[nodiscard]] QByteArray rideAsGpx(const RideToExport &ride);
/// KML: a line for each piece of about the same speed, from blue (slow) to red.
[[nodiscard]] QByteArray rideAsKml(const RideToExport &ride);
/// CSV with one row a sample, a decimal point, and units in the heading. Texts that a spreadsheet
/// would run begin with an apostrophe.
[[nodiscard]] QByteArray rideAsCsv(const RideToExport &ride);

/// When the recording of those two texts began, in UTC whatever zone it is in; invalid when they
/// are no date and time.
[[nodiscard]] QDateTime recordingBegin(const QString &date, const QString &time);

/// Whether the sample has a position.
[[nodiscard]] bool hasPlace(const PointAcquisition &sample);
/// Text for a cell of CSV: quoted where it must be, and never run by a spreadsheet as a formula.
[[nodiscard]] QByteArray csvText(const QString &text);

} // namespace zuno
