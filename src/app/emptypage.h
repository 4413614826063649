// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QWidget>

namespace zuno {

namespace Ui {
class EmptyPage;
}

/// What stands in place of laps, map and charts as long as the library has no session.
class EmptyPage final : public QWidget
{
    Q_OBJECT

public:
    explicit EmptyPage(QWidget *parent = nullptr);
    ~EmptyPage() override;

    /// The folder to which files can be copied as well.
    void showFolder(const QString &folder);

Q_SIGNALS:
    void importWanted();
    void demoWanted();

private:
    std::unique_ptr<Ui::EmptyPage> m_ui;
};

} // namespace zuno
