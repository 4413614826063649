// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QWidget>

#include <base/settings.h>

class QLineEdit;

namespace zuno {

namespace Ui {
class AppearanceSettings;
}

/// The part of the settings dialog about the program as a whole: theme, units, language, and the
/// two folders. It writes nothing by itself.
class AppearanceSettings final : public QWidget
{
    Q_OBJECT

public:
    explicit AppearanceSettings(const Settings &settings, QWidget *parent = nullptr);
    ~AppearanceSettings() override;

    /// Writes what the rider has changed; the rest stays as others wrote it.
    void storeValues() const;

private:
    void showLanguages();
    void showFolders();
    void chooseFolder(QLineEdit &field, const QString &title);

    std::unique_ptr<Ui::AppearanceSettings> m_ui;
    Settings m_settings;
};

} // namespace zuno
