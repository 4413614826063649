// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

namespace zuno::test {

/// A moment of a made-up ride: a circle that is ridden clockwise, so to the right, with a speed
/// that swells.
struct Moment
{
    double time = 0.0; ///< seconds since the begin
    double latitude = 0.0;
    double longitude = 0.0;
    double speed = 0.0; ///< m/s
    double course = 0.0;
    double along = 0.0; ///< G
    double across = 0.0;
    double lean = 0.0;
};

/// Where and when a made-up ride takes place.
struct Scene
{
    double latitude = 45.0;
    double longitude = 9.0;
    QDateTime begin {QDate(2024, 5, 6), QTime(10, 20, 30), Qt::UTC};
    double step = 0.1;
    int count = 200;
};

[[nodiscard]] QList<Moment> moments(const Scene &scene);

/// Writes a ride in a format; the names are those of the readers, and of dialects behind a dash.
struct Format
{
    const char *name;
    const char *kind;
    std::function<QByteArray(const Scene &)> write;
};

/// Every format that there is a reader for.
[[nodiscard]] const QList<Format> &formats();
/// A ride in the format of that name.
[[nodiscard]] QByteArray madeUp(const char *name, const Scene &scene = {});

} // namespace zuno::test
