// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <QHash>
#include <QString>

#include <formats/table/columnmapping.h>

namespace zuno {

class Settings;

/// How the rider has matched the columns of tables, by what files with the same heading have in
/// common (headingKey). Kept in a file of its own beside the settings.
class ColumnMemory
{
public:
    explicit ColumnMemory(const Settings &settings);

    [[nodiscard]] const QHash<QString, ColumnMapping> &all() const { return m_mappings; }
    [[nodiscard]] std::optional<ColumnMapping> find(const QString &key) const;
    /// Stores it; when that fails it is known until the program ends.
    void remember(const QString &key, const ColumnMapping &mapping);

private:
    QString m_path;
    QHash<QString, ColumnMapping> m_mappings;
};

} // namespace zuno
