// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/columnmemory.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <base/settings.h>
#include <base/wholefile.h>

namespace zuno {

namespace {

constexpr qint64 LargestFile = 1 << 20; // bytes
constexpr int MostColumns = 10000;

QJsonObject toJson(const ColumnMapping &mapping)
{
    QJsonArray uses;
    for (const ColumnUse &use : mapping.uses)
        uses.append(QJsonArray {use.column, use.factor});
    return {{QStringLiteral("clock"), static_cast<int>(mapping.clock)},
            {QStringLiteral("speedUnitUnknown"), mapping.isSpeedUnitUnknown},
            {QStringLiteral("uses"), uses}};
}

// Nothing for what another version, or somebody by hand, has written otherwise.
std::optional<ColumnMapping> fromJson(const QJsonObject &object)
{
    const QJsonArray uses = object[QStringLiteral("uses")].toArray();
    const int clock = object[QStringLiteral("clock")].toInt(-1);
    if (uses.size() != qsizetype(QuantityCount) || clock < 0
        || clock > static_cast<int>(ClockForm::Parts))
        return std::nullopt;
    ColumnMapping mapping;
    mapping.clock = static_cast<ClockForm>(clock);
    mapping.isSpeedUnitUnknown = object[QStringLiteral("speedUnitUnknown")].toBool();
    for (std::size_t i = 0; i < QuantityCount; ++i) {
        const QJsonArray use = uses[static_cast<qsizetype>(i)].toArray();
        mapping.uses[i] = {use[0].toInt(-1), use[1].toDouble(1.0)};
        if (mapping.uses[i].column < -1 || mapping.uses[i].column > MostColumns)
            return std::nullopt;
    }
    return mapping;
}

} // namespace

ColumnMemory::ColumnMemory(const Settings &settings)
    : m_path(QFileInfo(settings.path(SettingsFile::Analyzer)).path() + u"/ImportColumns.json")
{
    QFile file(m_path);
    if (!QFileInfo(m_path).isFile() || file.size() > LargestFile || !file.open(QIODevice::ReadOnly))
        return;
    const QJsonObject stored = QJsonDocument::fromJson(file.readAll()).object();
    for (auto entry = stored.begin(); entry != stored.end(); ++entry) {
        if (const auto mapping = fromJson(entry.value().toObject()))
            m_mappings.insert(entry.key(), *mapping);
    }
}

std::optional<ColumnMapping> ColumnMemory::find(const QString &key) const
{
    const auto found = m_mappings.constFind(key);
    return found != m_mappings.cend() ? std::optional(*found) : std::nullopt;
}

void ColumnMemory::remember(const QString &key, const ColumnMapping &mapping)
{
    m_mappings.insert(key, mapping);
    QJsonObject stored;
    for (auto entry = m_mappings.cbegin(); entry != m_mappings.cend(); ++entry)
        stored.insert(entry.key(), toJson(entry.value()));
    QDir().mkpath(QFileInfo(m_path).path());
    (void)writeWholeFile(m_path, QJsonDocument(stored).toJson());
}

} // namespace zuno
