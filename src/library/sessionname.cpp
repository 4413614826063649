// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/sessionname.h>

#include <algorithm>

#include <QCoreApplication>

#include <base/filename.h>

namespace zuno {

namespace {

struct SessionName
{
    Q_DECLARE_TR_FUNCTIONS(zuno::SessionName)
};

} // namespace

bool isLoggersName(const QString &name)
{
    return name.contains(u"ZUNO", Qt::CaseInsensitive);
}

QString faultOfSessionName(const QString &name)
{
    if (name.startsWith(u'.'))
        return SessionName::tr("A name that begins with a dot is hidden: it would not be listed "
                               "any more.");
    if (std::any_of(name.cbegin(), name.cend(), isForbiddenInFileName))
        return SessionName::tr("These cannot stand in a name: %1").arg(u"< > : \" / \\ | ? *");
    if (name.endsWith(u'.') || name.endsWith(u' ') || name.startsWith(u' '))
        return SessionName::tr("A name cannot begin or end with a blank, nor end with a dot.");
    if (isDeviceName(name.section(u'.', 0, 0).trimmed()))
        return SessionName::tr("Windows keeps this name for a device; choose another one.");
    if (isLoggersName(name))
        return SessionName::tr("Names with \"ZUNO\" are kept for the folders of loggers, which can "
                               "be neither renamed nor deleted.");
    return {};
}

} // namespace zuno
