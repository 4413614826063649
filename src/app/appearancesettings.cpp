// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/appearancesettings.h>

#include <algorithm>
#include <array>

#include <QDir>
#include <QFileDialog>
#include <QLocale>

#include <base/units.h>
#include <theme/themes.h>

#include "ui_appearancesettings.h"

namespace zuno {

namespace {

// In the order of the box.
constexpr std::array Choices {ThemeChoice::AsDesktop, ThemeChoice::Dark, ThemeChoice::Light};

/// "Deutsch" of "de"
QString ownName(const QString &language)
{
    const QLocale locale(language);
    const QString name = locale.language() == QLocale::English ? QStringLiteral("English")
                                                               : locale.nativeLanguageName();
    return locale.toUpper(name.left(1)) + name.mid(1);
}

} // namespace

AppearanceSettings::AppearanceSettings(const Settings &settings, QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::AppearanceSettings>())
    , m_settings(settings)
{
    m_ui->setupUi(this);
    const ThemeChoice theme = Themes::choiceOf(m_settings.value(Setting::Theme).toString());
    m_ui->cb_theme->setCurrentIndex(
        static_cast<int>(std::find(Choices.begin(), Choices.end(), theme) - Choices.begin()));
    const Units units = Units::of(m_settings);
    m_ui->cb_speedUnit->setCurrentIndex(static_cast<int>(units.speedUnit));
    m_ui->cb_distanceUnit->setCurrentIndex(static_cast<int>(units.distanceUnit));
    m_ui->cb_temperatureUnit->setCurrentIndex(static_cast<int>(units.temperatureUnit));
    showLanguages();
    showFolders();
}

AppearanceSettings::~AppearanceSettings() = default;

void AppearanceSettings::showLanguages()
{
    for (const char *code : {"en", "fr", "de", "it", "es"}) {
        const QString language = QString::fromLatin1(code);
        m_ui->cb_language->addItem(ownName(language), language);
    }
    const QString language = m_settings.value(Setting::Language).toString();
    // Without a language the program speaks English.
    m_ui->cb_language->setCurrentIndex(std::max(0, m_ui->cb_language->findData(language)));
    m_ui->cb_language->setProperty("first", m_ui->cb_language->currentIndex());
}

void AppearanceSettings::showFolders()
{
    m_ui->le_acquisitionFolder->setText(QDir::toNativeSeparators(m_settings.acquisitionFolder()));
    m_ui->le_mapFiles->setText(QDir::toNativeSeparators(m_settings.mapsFolder()));
    connect(m_ui->pb_acquisitionFolder, &QPushButton::clicked, this,
            [this] { chooseFolder(*m_ui->le_acquisitionFolder, tr("Folder of your sessions")); });
    connect(m_ui->pb_mapFiles, &QPushButton::clicked, this,
            [this] { chooseFolder(*m_ui->le_mapFiles, tr("Folder of your maps")); });
}

void AppearanceSettings::chooseFolder(QLineEdit &field, const QString &title)
{
    const QString folder = QFileDialog::getExistingDirectory(this, title, field.text());
    if (!folder.isEmpty())
        field.setText(QDir::toNativeSeparators(folder));
}

void AppearanceSettings::storeValues() const
{
    const auto store = [this](Setting setting, const QString &now, const QString &before) {
        if (now != before)
            m_settings.setValue(setting, now);
    };
    const auto theme = Choices[static_cast<std::size_t>(m_ui->cb_theme->currentIndex())];
    store(Setting::Theme, Themes::textOf(theme), m_settings.value(Setting::Theme).toString());
    const Units chosen {static_cast<Units::Speed>(m_ui->cb_speedUnit->currentIndex()),
                        static_cast<Units::Distance>(m_ui->cb_distanceUnit->currentIndex()),
                        static_cast<Units::Temperature>(m_ui->cb_temperatureUnit->currentIndex())};
    if (chosen != Units::of(m_settings))
        chosen.store(m_settings);
    if (m_ui->cb_language->currentIndex() != m_ui->cb_language->property("first").toInt())
        m_settings.setValue(Setting::Language, m_ui->cb_language->currentData());
    store(Setting::AcquisitionFolder,
          QDir::fromNativeSeparators(m_ui->le_acquisitionFolder->text()),
          m_settings.acquisitionFolder());
    store(Setting::MapFiles, QDir::fromNativeSeparators(m_ui->le_mapFiles->text()),
          m_settings.mapsFolder());
}

} // namespace zuno
