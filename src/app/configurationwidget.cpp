// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/configurationwidget.h>

#include <array>

#include <QIcon>

#include <app/appearancesettings.h>

#include "ui_configurationwidget.h"

namespace zuno {

namespace {

struct Choice
{
    QCheckBox *Ui::ConfigurationWidget::*box;
    Setting setting;
};

// In the order of the form, which is also the order of writing.
constexpr std::array Choices {
    Choice {&Ui::ConfigurationWidget::cb_lapType, Setting::ShowLapType},
    Choice {&Ui::ConfigurationWidget::cb_cumulateTime, Setting::ShowCumulatedTime},
    Choice {&Ui::ConfigurationWidget::cb_maxSpeed, Setting::ShowMaxSpeed},
    Choice {&Ui::ConfigurationWidget::cb_minSpeed, Setting::ShowMinSpeed},
    Choice {&Ui::ConfigurationWidget::cb_angleLeft, Setting::ShowAngleLeft},
    Choice {&Ui::ConfigurationWidget::cb_angleRight, Setting::ShowAngleRight},
    Choice {&Ui::ConfigurationWidget::cb_accel, Setting::ShowAccel},
    Choice {&Ui::ConfigurationWidget::cb_decel, Setting::ShowDecel},
    Choice {&Ui::ConfigurationWidget::cb_minFrontSusp, Setting::ShowMinFrontSusp},
    Choice {&Ui::ConfigurationWidget::cb_maxFrontSusp, Setting::ShowMaxFrontSusp},
    Choice {&Ui::ConfigurationWidget::cb_minRearSusp, Setting::ShowMinRearSusp},
    Choice {&Ui::ConfigurationWidget::cb_maxRearSusp, Setting::ShowMaxRearSusp},
    Choice {&Ui::ConfigurationWidget::cb_partiels, Setting::ShowPartiels},
    Choice {&Ui::ConfigurationWidget::cb_displayMinMax, Setting::ShowLocalMinMax},
    Choice {&Ui::ConfigurationWidget::cb_showPartiels, Setting::ShowPartielsPoints},
    Choice {&Ui::ConfigurationWidget::cb_gradientCompare, Setting::UseGradientCompare},
    Choice {&Ui::ConfigurationWidget::cb_checkForUpdates, Setting::CheckForUpdates},
};

} // namespace

ConfigurationWidget::ConfigurationWidget(const Settings &settings, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::ConfigurationWidget>())
    , m_settings(settings)
    , m_appearance(new AppearanceSettings(settings, this))
{
    m_ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":/Resources/Logos/logo.ico")));
    m_ui->columnsLayout->addWidget(m_appearance);
    // By the keyboard the right column comes after the left one.
    setTabOrder(m_ui->cb_checkForUpdates, m_appearance);
    setTabOrder(m_appearance, m_ui->pb_ok);
    for (const Choice &choice : Choices)
        (m_ui.get()->*choice.box)->setChecked(m_settings.isOn(choice.setting));
    connect(m_ui->pb_ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->pb_cancel, &QPushButton::clicked, this, &QDialog::reject);
}

ConfigurationWidget::~ConfigurationWidget() = default;

void ConfigurationWidget::storeValues() const
{
    QList<std::pair<Setting, QVariant>> values;
    for (const Choice &choice : Choices)
        values.append({choice.setting, (m_ui.get()->*choice.box)->isChecked()});
    m_settings.setValues(values);
    m_appearance->storeValues();
}

} // namespace zuno
