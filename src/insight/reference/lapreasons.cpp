// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/reference/lapreasons.h>

#include <array>

#include <QCoreApplication>
#include <QStringList>

#include <base/settings.h>
#include <insight/reference/recordingkey.h>

namespace zuno {

namespace {

// More than anybody types; bounds what the settings grow by.
constexpr qsizetype LongestText = 255;

struct Word
{
    LapReasonKind kind;
    const char16_t *text;
};

constexpr std::array Words {
    Word {LapReasonKind::HeldUp, u"heldUp"}, Word {LapReasonKind::MissedLine, u"missedLine"},
    Word {LapReasonKind::WarmUp, u"warmUp"}, Word {LapReasonKind::Other, u"other"}};

QString translated(const char *text)
{
    return QCoreApplication::translate("zuno::LapReason", text);
}

// "12 heldUp", "13 other rain began".
QString entryOf(qint32 lap, const LapReason &reason)
{
    for (const Word &word : Words) {
        if (word.kind != reason.kind)
            continue;
        const QString text
            = reason.kind == LapReasonKind::Other ? reason.text.simplified() : QString();
        return QStringLiteral("%1 %2 %3")
            .arg(QString::number(lap), QString::fromUtf16(word.text), text.left(LongestText))
            .trimmed();
    }
    return {};
}

qint32 lapOf(const QString &entry)
{
    return entry.section(u' ', 0, 0).toInt();
}

// None of a kind that a later program knows.
std::optional<LapReason> reasonOf(const QString &entry)
{
    for (const Word &word : Words) {
        if (entry.section(u' ', 1, 1) == QString::fromUtf16(word.text))
            return LapReason {word.kind, entry.section(u' ', 2).left(LongestText)};
    }
    return {};
}

} // namespace

QString reasonText(LapReasonKind kind)
{
    switch (kind) {
    case LapReasonKind::HeldUp:
        return translated(QT_TRANSLATE_NOOP("zuno::LapReason", "held up"));
    case LapReasonKind::MissedLine:
        return translated(QT_TRANSLATE_NOOP("zuno::LapReason", "missed the line"));
    case LapReasonKind::WarmUp:
        return translated(QT_TRANSLATE_NOOP("zuno::LapReason", "warm-up"));
    case LapReasonKind::Other:
        return translated(QT_TRANSLATE_NOOP("zuno::LapReason", "other"));
    }
    return {};
}

QString reasonText(const LapReason &reason)
{
    const bool isOwn = reason.kind == LapReasonKind::Other && !reason.text.isEmpty();
    return isOwn ? reason.text : reasonText(reason.kind);
}

LapReasons::LapReasons(const Settings &settings, const Session &session)
    : m_settings(settings)
    , m_key(recordingKey(session))
{
}

QMap<qint32, LapReason> LapReasons::all() const
{
    QMap<qint32, LapReason> reasons;
    if (m_key.isEmpty())
        return reasons;
    const QStringList entries = m_settings.kept(SettingsGroup::LapReasons, m_key);
    for (const QString &entry : entries) {
        if (const std::optional<LapReason> reason = reasonOf(entry))
            reasons.insert(lapOf(entry), *reason);
    }
    return reasons;
}

std::optional<LapReason> LapReasons::of(qint32 lap) const
{
    const QMap<qint32, LapReason> reasons = all();
    const auto found = reasons.constFind(lap);
    return found != reasons.cend() ? std::optional(*found) : std::nullopt;
}

void LapReasons::set(qint32 lap, const std::optional<LapReason> &reason) const
{
    if (m_key.isEmpty())
        return;
    QStringList entries = m_settings.kept(SettingsGroup::LapReasons, m_key);
    entries.removeIf([lap](const QString &entry) { return lapOf(entry) == lap; });
    if (reason)
        entries.append(entryOf(lap, *reason));
    m_settings.keep(SettingsGroup::LapReasons, m_key, entries);
}

} // namespace zuno
