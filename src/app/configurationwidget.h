// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QDialog>

#include <base/settings.h>

namespace zuno {

class AppearanceSettings;

namespace Ui {
class ConfigurationWidget;
}

/// What the laps table and the map show, whether new releases are looked for, and how the program
/// as a whole appears. The dialog writes
/// nothing by itself: whoever opened it stores its values once it is accepted.
class ConfigurationWidget final : public QDialog
{
    Q_OBJECT

public:
    explicit ConfigurationWidget(const Settings &settings, QWidget *parent = nullptr);
    ~ConfigurationWidget() override;

    /// Writes the state of every check box, changed or not, and what else was changed.
    void storeValues() const;

private:
    std::unique_ptr<Ui::ConfigurationWidget> m_ui;
    Settings m_settings;
    AppearanceSettings *m_appearance;
};

} // namespace zuno
