// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

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
    enum Column {
        Number,
        Type,
        CumulatedTime,
        LapTime,
        MaxSpeed,
        MinSpeed,
        LeftAngle,
        RightAngle,
        Accel,
        Decel,
        MinFrontSusp,
        MaxFrontSusp,
        MinRearSusp,
        MaxRearSusp,
        FirstSection,
    };
    /// Columns that have a header; tracks with more sections have nameless ones.
    static constexpr int HeaderCount = 20;

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

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    enum class Distinction { None, Invalid, Record, BestSection };

    [[nodiscard]] const Lap &lapAt(const QModelIndex &index) const;
    [[nodiscard]] QString text(const Lap &lap, int column) const;
    [[nodiscard]] static QString typeText(const Lap &lap);
    [[nodiscard]] Distinction distinctionOf(const Lap &lap, int column) const;
    [[nodiscard]] QVariant background(const Lap &lap, int column) const;
    [[nodiscard]] bool isRowSelected(const QModelIndex &index) const;

    const LapList *m_laps = nullptr;
    int m_sections = 0;
    QPointer<QItemSelectionModel> m_selection;
};

} // namespace zuno
