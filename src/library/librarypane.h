// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QWidget>

class QTreeView;

namespace zuno {

class AcquisitionLibrary;
class LibraryTree;
class Settings;

namespace Ui {
class LibraryPane;
}

/// The pane of the file tree.
class LibraryPane final : public QWidget
{
    Q_OBJECT

public:
    /// What is given must outlive the pane.
    LibraryPane(AcquisitionLibrary &library, const Settings &settings, QWidget *parent = nullptr);
    ~LibraryPane() override;

    [[nodiscard]] LibraryTree &tree() { return *m_tree; }
    [[nodiscard]] QTreeView *view() const;
    /// Says above the tree that demo sessions are in it, with a button that takes them away.
    void showDemo(bool isThere);

Q_SIGNALS:
    void demoRemovalWanted();

private:
    std::unique_ptr<Ui::LibraryPane> m_ui;
    LibraryTree *m_tree;
};

} // namespace zuno
