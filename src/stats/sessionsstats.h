// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QDialog>
#include <QList>
#include <QTimer>

class QModelIndex;

namespace zuno {

class Session;
class SessionsSortModel;
class SessionsStatsTableModel;

namespace Ui {
class SessionsStats;
}

/// All sessions with their times in one table, narrowed by six filters.
///
/// The sessions are not owned. One that is deleted leaves the window at once; the filters forget
/// its values when the list is set again.
class SessionsStats final : public QDialog
{
    Q_OBJECT

public:
    explicit SessionsStats(const QList<Session *> &sessions, QWidget *parent = nullptr);
    ~SessionsStats() override;

    /// Shows another list; filters, order and current row stay as far as they can.
    void setSessions(const QList<Session *> &sessions);

Q_SIGNALS:
    /// The rider wants to see a session.
    void goToSession(zuno::Session *session);

public Q_SLOTS:
    /// Asks for the session of a row of the table.
    void onGoToSession(const QModelIndex &index);
    /// Shows what has changed in the sessions, once the rider stops typing.
    void refreshSoon();

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpTable();
    void setUpFilters();
    void takeSessions(const QList<Session *> &sessions);
    void forget(const Session *session);
    void fillFilters();
    void resetFilters();
    void applyFilters();
    void refresh();
    void showCount();
    void fitColumns();
    void fitWindow();
    [[nodiscard]] Session *currentSession() const;
    void selectSession(const Session *session);

    std::unique_ptr<Ui::SessionsStats> m_ui;
    QList<Session *> m_sessions;
    QTimer m_refreshTime;
    SessionsStatsTableModel *m_model;
    SessionsSortModel *m_sorted;
};

} // namespace zuno
