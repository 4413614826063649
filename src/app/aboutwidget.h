// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QDialog>

namespace zuno {

class Settings;

namespace Ui {
class AboutWidget;
}

/// The program's version and the ways to reach its maker.
class AboutWidget final : public QDialog
{
    Q_OBJECT

public:
    explicit AboutWidget(const Settings &settings, QWidget *parent = nullptr);
    ~AboutWidget() override;

private:
    void showLogo();

    std::unique_ptr<Ui::AboutWidget> m_ui;
};

} // namespace zuno
