// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/laptimes.h>

#include <QTime>

namespace zuno {

QString timeText(qint64 milliseconds)
{
    constexpr qint64 Hour = 3600000;
    if (milliseconds < 0 || milliseconds >= 24 * Hour)
        return {};
    const QTime time = QTime::fromMSecsSinceStartOfDay(static_cast<int>(milliseconds));
    return time.toString(milliseconds < Hour ? u"mm:ss.zzz" : u"hh::mm:ss.zzz");
}

} // namespace zuno
