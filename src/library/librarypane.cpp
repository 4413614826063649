// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/librarypane.h>

#include "ui_librarypane.h"

#include <library/librarytree.h>

namespace zuno {

LibraryPane::LibraryPane(AcquisitionLibrary &library, const Settings &settings, QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::LibraryPane>())
{
    m_ui->setupUi(this);
    connect(m_ui->tb_removeDemo, &QToolButton::clicked, this, &LibraryPane::demoRemovalWanted);
    m_tree = new LibraryTree(*m_ui->tw_arbo, library, settings);
}

// The tree goes before the view that it works with.
LibraryPane::~LibraryPane()
{
    delete m_tree;
}

void LibraryPane::showDemo(bool isThere)
{
    m_ui->demoStrip->setVisible(isThere);
}

QTreeView *LibraryPane::view() const
{
    return m_ui->tw_arbo;
}

} // namespace zuno
