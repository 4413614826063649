// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QSortFilterProxyModel>

namespace zuno {

class Session;
class SessionFilter;

/// Sessions, a row each: what the rider says about them, best lap and ideal time.
///
/// The sessions are not owned; whoever deletes one takes it out of the model.
class SessionsStatsTableModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        Date,
        Track,
        BestLap,
        IdealTime,
        Vehicle,
        Driver,
        Event,
        Condition,
        Temperature,
        Tyres,
        Notes,
    };
    static constexpr int ColumnCount = Notes + 1;

    explicit SessionsStatsTableModel(const QList<Session *> &sessions, QObject *parent = nullptr);

    /// Shows those of @p sessions that @p filter accepts. Rows that stay the same are only shown
    /// anew.
    void show(const QList<Session *> &sessions, const SessionFilter &filter);
    /// Takes out the rows of a session, of which nothing but the address is used.
    void forget(const Session *session);

    /// The session of a row; nullptr for a row that was inserted without one.
    [[nodiscard]] Session *session(int row) const;
    /// The first row of a session; -1 without one.
    [[nodiscard]] int rowOf(const Session *session) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    bool insertRows(int row, int count, const QModelIndex &parent = {}) override;
    bool removeRows(int row, int count, const QModelIndex &parent = {}) override;

private:
    QList<Session *> m_sessions;
};

/// Sorts a SessionsStatsTableModel: times, temperatures and dates by value, rows without one last
/// in either direction; everything else as text without regard to case.
class SessionsSortModel final : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit SessionsSortModel(SessionsStatsTableModel &model, QObject *parent = nullptr);

protected:
    [[nodiscard]] bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    const SessionsStatsTableModel &m_model;
};

} // namespace zuno
