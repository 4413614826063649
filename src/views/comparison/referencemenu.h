// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QCoreApplication>
#include <QMenu>

namespace zuno {

class Comparison;

/// The menu of what laps can be held against; made anew each time that it is opened.
class ReferenceMenu final : public QMenu
{
    Q_OBJECT

public:
    /// @p comparison must outlive the menu.
    explicit ReferenceMenu(Comparison &comparison, QWidget *parent = nullptr);

Q_SIGNALS:
    /// The rider wants to choose among the laps of other files.
    void otherFileWanted();

private:
    void fill();
    void addBest(QActionGroup &group);
    void addLaps(QActionGroup &group);
    void addRecent(QActionGroup &group);
    QAction *add(QActionGroup &group, const QString &text, bool isChosen,
                 const std::function<void()> &choose);

    Comparison &m_comparison;
};

} // namespace zuno
