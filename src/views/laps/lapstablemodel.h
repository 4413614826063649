// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <span>

#include <QAbstractTableModel>
#include <QPointer>

#include <base/settings.h>
#include <session/laps/lapcutter.h>

class QItemSelectionModel;

namespace zuno {

/// The laps of a session, a row each: figures, records in colour, sections.
class LapsTableModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Role {
        /// True for a record's cell in a selected row: it keeps its colour.
        SelectedRecordRole = Qt::UserRole + 3,
        /// True for a best section's cell in a selected row.
        SelectedSectionRole = Qt::UserRole + 4,
    };

    explicit LapsTableModel(QObject *parent = nullptr);

    /// Shows the laps of @p laps, which must stand until the next call; nullptr for none. So many
    /// @p sections has the track.
    void setLaps(const LapList *laps, int sections = 0);
    /// The laps stay the same, their flags and records have changed.
    void refresh();
    /// Where the model learns which rows are selected.
    void setSelection(QItemSelectionModel *selection);

    /// The setting that shows a column; none for a column that is always shown.
    [[nodiscard]] static std::optional<Setting> settingOf(int column);
    /// The section, from 0, whose times a column has; negative for a figure of the whole lap.
    [[nodiscard]] static int sectionOf(int column);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    /// A figure of the whole lap, as data: to add a column is to add a row of the table.
    struct Column
    {
        /// Still to be translated.
        const char *header = nullptr;
        QString (*text)(const Lap &lap) = nullptr;
        /// Shows it; none for a column that is always shown.
        std::optional<Setting> setting;
        /// Whether the lap's figure is a record of the session; nullptr where there is none.
        bool (*isRecord)(const Lap &lap) = nullptr;
        Qt::Alignment alignment = Qt::AlignCenter;
    };
    enum class Distinction { None, Invalid, Record, BestSection };

    /// The columns before those of the sections.
    [[nodiscard]] static std::span<const Column> columns();
    /// nullptr for a section's.
    [[nodiscard]] static const Column *columnAt(int column);
    [[nodiscard]] const Lap &lapAt(const QModelIndex &index) const;
    [[nodiscard]] static QString text(const Lap &lap, int column);
    [[nodiscard]] static QString typeText(const Lap &lap);
    [[nodiscard]] static Distinction distinctionOf(const Lap &lap, int column);
    [[nodiscard]] static QVariant background(const Lap &lap, int column);
    [[nodiscard]] bool isRowSelected(const QModelIndex &index) const;

    const LapList *m_laps = nullptr;
    int m_sections = 0;
    QPointer<QItemSelectionModel> m_selection;
};

} // namespace zuno
