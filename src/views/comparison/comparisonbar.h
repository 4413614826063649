// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QFrame>

namespace zuno {

class Comparison;
class LapSelection;
class ReferenceMenu;

namespace Ui {
class ComparisonBar;
}

/// The bar that says which lap is held against which, by how much they differ, and which others are
/// drawn. Its height and the places of its parts are the same with and without a comparison.
class ComparisonBar final : public QFrame
{
    Q_OBJECT

public:
    /// What is given must outlive the bar.
    ComparisonBar(Comparison &comparison, LapSelection &selection, QWidget *parent = nullptr);
    ~ComparisonBar() override;

    /// Opens the menu of references.
    void openMenu();
    [[nodiscard]] ReferenceMenu &menu() { return *m_menu; }

Q_SIGNALS:
    /// The rider wants the reference to be a lap of another file.
    void otherFileWanted();
    /// Why a lap is not drawn, in plain words.
    void refused(const QString &reason);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void prepareTexts();
    void connectParts();
    void show();
    void showSelected();
    void showReference();
    void showDifference();
    void showChips();
    void fillLapMenu();
    [[nodiscard]] QString referenceText() const;

    std::unique_ptr<Ui::ComparisonBar> m_ui;
    Comparison &m_comparison;
    LapSelection &m_selection;
    ReferenceMenu *m_menu;
};

} // namespace zuno
