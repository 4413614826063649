// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QDialog>

namespace zuno {

namespace Ui {
class AboutWidget;
}

/// The program's version and the ways to reach its maker.
class AboutWidget final : public QDialog
{
    Q_OBJECT

public:
    /// The web site's link depends on @p language, a locale's name.
    explicit AboutWidget(const QString &language, QWidget *parent = nullptr);
    ~AboutWidget() override;

private:
    void showLogo();

    std::unique_ptr<Ui::AboutWidget> m_ui;
};

} // namespace zuno
