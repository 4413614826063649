// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <QDialog>
#include <QHash>

#include <insight/reference/referencechoice.h>

class QDialogButtonBox;
class QTreeWidget;
class QTreeWidgetItem;

namespace zuno {

class Comparison;

/// Chooses a lap among the sessions of the library that were ridden on the displayed session's
/// circuit, by whomever. A session is cut when it is opened.
class LapChooser final : public QDialog
{
    Q_OBJECT

public:
    /// @p comparison must outlive the dialog.
    explicit LapChooser(const Comparison &comparison, QWidget *parent = nullptr);

    /// None while no lap is chosen.
    [[nodiscard]] std::optional<ReferenceChoice> chosen() const;

private:
    void addSessions();
    void addLaps(QTreeWidgetItem *session);
    void showChosen();

    const Comparison &m_comparison;
    QTreeWidget *m_tree;
    QDialogButtonBox *m_buttons;
    QHash<QTreeWidgetItem *, ReferenceChoice> m_laps;
};

} // namespace zuno
