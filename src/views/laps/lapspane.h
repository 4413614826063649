// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QWidget>

namespace zuno {

class LapSelection;
class LapsView;
class Session;
class Settings;

namespace Ui {
class LapsPane;
}

/// The laps table and what is said around it: the ideal time, the distance, the best time of each
/// section, and the lap that is chosen for comparison. Without laps it says why there are none.
class LapsPane final : public QWidget
{
    Q_OBJECT

public:
    /// What is given must outlive the pane.
    LapsPane(LapSelection &selection, const Settings &settings, QWidget *parent = nullptr);
    ~LapsPane() override;

    [[nodiscard]] LapsView &table() { return *m_table; }

    /// Shows @p corners in place of the laps when the rider wants that.
    void addCorners(QWidget *corners);

    /// Shows the selection's session, its laps if it has any, and what is said about it.
    void showSession();
    /// Shows @p text in place of the laps; it may offer to make a map, or to choose another folder
    /// of sessions.
    void showState(const QString &text, bool canMakeMap, bool canChooseFolder = false);

Q_SIGNALS:
    /// The rider wants a map to be made from the session.
    void newMapRequested();
    /// The rider wants another folder of sessions.
    void folderWanted();

private:
    void showPage();
    void showFigures();
    void showSections(const Session *session);
    void fillSections(const Session &session, int sectors);

    std::unique_ptr<Ui::LapsPane> m_ui;
    const LapSelection &m_selection;
    LapsView *m_table;
    QWidget *m_corners = nullptr;
    bool m_hasLaps = false;
};

} // namespace zuno
