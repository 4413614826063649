// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <memory>
#include <optional>

#include <QWidget>

namespace zuno {

class Comparison;
class LossButton;
class PlaceListModel;

namespace Ui {
class WherePane;
}

/// Where the selected lap's time is: the three largest losses as cards, all others as a list. A
/// click on either shows the place.
class WherePane final : public QWidget
{
    Q_OBJECT

public:
    /// @p comparison must outlive the pane.
    explicit WherePane(const Comparison &comparison, QWidget *parent = nullptr);
    ~WherePane() override;

    /// Marks the unit that charts and map show; none when they show the whole lap.
    void markUnit(std::optional<std::size_t> unit);

Q_SIGNALS:
    /// The rider wants to see a unit of the circuit; the one that is shown already, to see the
    /// whole lap again.
    void unitChosen(std::size_t unit);
    void referenceMenuWanted();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void show();
    void showCards();
    void showOthers();
    void fitList();

    std::unique_ptr<Ui::WherePane> m_ui;
    const Comparison &m_comparison;
    std::array<LossButton *, 3> m_cards {};
    PlaceListModel *m_list;
    std::optional<std::size_t> m_marked;
};

} // namespace zuno
