// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

class QAction;
class QMenu;
class QTableView;

namespace zuno {

struct SessionLap;
class LapSelection;
class LapsTableModel;
class Session;
class Settings;

/// The laps table: shows the laps of the selection's session, makes the selected row the current
/// lap, and offers what can be done with a lap.
class LapsView : public QObject
{
    Q_OBJECT

public:
    LapsView(QTableView &table, LapSelection &selection, const Settings &settings);

    /// Shows the laps of the selection's session and selects its current lap.
    void showLaps();
    /// Hides the columns that the rider has switched off.
    void applyColumns();
    /// Opens the menu of the current lap; @p position is in the table's viewport.
    void openMenu(const QPoint &position);
    /// The menu's entries for the current lap.
    void fillMenu(QMenu &menu);

Q_SIGNALS:
    /// The rider threw a lap out or took it back.
    void validityChanged(zuno::Session *session);
    /// The rider wants every lap to be compared with this one, or to choose another one for that.
    void referenceChosen(const zuno::SessionLap &lap);
    void referenceMenuWanted();
    /// Why a lap is not compared, in plain words.
    void refused(const QString &reason);
    void exportRequested(const zuno::SessionLap &lap);
    /// The rider clicked a sector of the current lap; counts from 0.
    void sectorChosen(int sector);

private:
    void connectSelection();
    void selectCurrentRow();
    QAction *makeAction(const QKeySequence &shortcut, void (LapsView::*run)());
    void updateActions();
    void toggleValidity();
    void compare();
    void reselect();
    void toggleOther();
    void exportLap();

    QTableView &m_table;
    LapSelection &m_selection;
    const Settings &m_settings;
    LapsTableModel *m_model;
    QAction *m_validity;
    QAction *m_compare;
    QAction *m_reselect;
    QAction *m_other;
    QAction *m_export;
};

} // namespace zuno
