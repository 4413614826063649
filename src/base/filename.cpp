// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/filename.h>

#include <QRegularExpression>

namespace zuno {

bool isForbiddenInFileName(QChar c)
{
    return c.unicode() < u' ' || c.unicode() == 0x7F || QStringView(u"<>:\"/\\|?*").contains(c);
}

bool isDeviceName(const QString &name)
{
    static const QRegularExpression devices(QStringLiteral("^(con|prn|aux|nul|(com|lpt)[0-9])$"),
                                            QRegularExpression::CaseInsensitiveOption);
    return devices.match(name).hasMatch();
}

} // namespace zuno
