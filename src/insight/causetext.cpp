// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/causes.h>

#include <QCoreApplication>
#include <QLocale>

namespace zuno {

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("zuno::Cause", text);
}

// Whole sentences, as word order differs between languages. %1 is the figure, %2 the metres of
// accelerating later.
const char *pattern(const Cause &cause)
{
    switch (cause.kind) {
    case CauseKind::ArrivesSlower:
        return QT_TRANSLATE_NOOP("zuno::Cause", "arrives %1 km/h slower");
    case CauseKind::BrakesEarlier:
        return QT_TRANSLATE_NOOP("zuno::Cause", "brakes %1 m earlier");
    case CauseKind::SlowerInto:
        return QT_TRANSLATE_NOOP("zuno::Cause", "%1 km/h slower into the corner");
    case CauseKind::SlowerLowest:
        return QT_TRANSLATE_NOOP("zuno::Cause", "%1 km/h slower at the slowest point");
    case CauseKind::SlowerExit:
        return cause.gasLater ? QT_TRANSLATE_NOOP(
                   "zuno::Cause", "%1 km/h slower at the exit, on the gas %2 m later")
                              : QT_TRANSLATE_NOOP("zuno::Cause", "%1 km/h slower at the exit");
    case CauseKind::SlowerBefore:
        return QT_TRANSLATE_NOOP("zuno::Cause", "up to %1 km/h slower before the corner");
    case CauseKind::SlowerIn:
        return QT_TRANSLATE_NOOP("zuno::Cause", "up to %1 km/h slower in the corner");
    case CauseKind::SlowerAfter:
        return QT_TRANSLATE_NOOP("zuno::Cause", "up to %1 km/h slower after the corner");
    }
    return "";
}

} // namespace

QString causeText(const Cause &cause, const QString &label)
{
    const QLocale locale;
    QString text = translated(pattern(cause)).arg(locale.toString(cause.amount, 'f', 0));
    if (cause.kind == CauseKind::SlowerExit && cause.gasLater)
        text = text.arg(locale.toString(*cause.gasLater, 'f', 0));
    if (label.isEmpty())
        return text;
    // %1 is a corner's number or name, %2 what happened there.
    return translated(QT_TRANSLATE_NOOP("zuno::Cause", "corner %1: %2")).arg(label, text);
}

} // namespace zuno
