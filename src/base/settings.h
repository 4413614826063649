// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <utility>

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

class QSettings;

namespace zuno {

/// The settings files, all below the settings root.
enum class SettingsFile { Config, Analyzer, Monitor };

/// Every setting; the table in settings.cpp gives file, key, type and default of each.
enum class Setting {
    Language,
    MapFiles,
    AcquisitionFolder,
    ShowLapType,
    ShowCumulatedTime,
    ShowMinSpeed,
    ShowMaxSpeed,
    ShowAngleLeft,
    ShowAngleRight,
    ShowAccel,
    ShowDecel,
    ShowMinFrontSusp,
    ShowMaxFrontSusp,
    ShowMinRearSusp,
    ShowMaxRearSusp,
    ShowPartiels,
    ShowLocalMinMax,
    ShowPartielsPoints,
    UseGradientCompare,
    ChartSpeed,
    ChartAngle,
    ChartAccel,
    ChartFrontSusp,
    ChartRearSusp,
    Splitter0Sizes,
    Splitter1Sizes,
    Splitter2Sizes,
    Splitter3Sizes,
    TreeSizes,
    RowsSizes,
    TopRowSizes,
    BottomRowSizes,
    LastFileSelected,
    V1400,
    CheckForUpdates,
    Theme,
    SpeedUnit,
    DistanceUnit,
    TemperatureUnit,
};

/// Groups of the analyzer's file that hold lists of texts by names which only the program knows.
enum class SettingsGroup { LapReasons, References };

/// The program's settings. Each read and each write opens the file anew, since other programs of
/// the rider's set write to the same files.
class Settings
{
public:
    /// Settings below @p root, a folder without a trailing slash.
    explicit Settings(QString root);
    /// The folder that holds the files of all programs of the set: the user's application-data
    /// location less its last component, which is the program's own.
    [[nodiscard]] static QString defaultRoot();

    [[nodiscard]] const QString &root() const { return m_root; }
    [[nodiscard]] QString path(SettingsFile file) const;
    [[nodiscard]] QString logPath() const;

    /// The stored value, or the default of the table.
    [[nodiscard]] QVariant value(Setting setting) const;
    [[nodiscard]] bool isOn(Setting setting) const { return value(setting).toBool(); }
    /// Whether the file holds a value.
    [[nodiscard]] bool isStored(Setting setting) const;
    void setValue(Setting setting, const QVariant &value) const { setValues({{setting, value}}); }
    /// Writes several values, each file once.
    void setValues(const QList<std::pair<Setting, QVariant>> &values) const;

    /// The key of a setting, its default, and the sixteen display settings in the order of the
    /// table.
    [[nodiscard]] static QString key(Setting setting);
    [[nodiscard]] static QVariant standard(Setting setting);
    [[nodiscard]] static QList<Setting> displaySettings();
    /// Writes the defaults of all display settings when the first of them has none.
    void writeDisplayDefaults() const;

    /// The folders of maps and of recordings; what the table gives as default is relative to the
    /// root.
    [[nodiscard]] QString mapsFolder() const;
    [[nodiscard]] QString acquisitionFolder() const;
    /// The folder of recordings as long as the rider has named none.
    [[nodiscard]] QString standardAcquisitionFolder() const;

    /// The name of the map that the rider chose for a session, by the session's file name; null
    /// without one.
    [[nodiscard]] QString mapChoice(const QString &sessionFileName) const;
    void setMapChoice(const QString &sessionFileName, const QString &mapName) const;
    void removeMapChoice(const QString &sessionFileName) const;
    /// Makes every stored choice of the map @p from one of the map @p to.
    void renameMapChoices(const QString &from, const QString &to) const;
    /// Forgets every stored choice of a map.
    void removeMapChoices(const QString &mapName) const;

    /// What is kept in a group by a name; nothing when nothing is. A map's reference goes by the
    /// map's name and follows it as the choices do.
    [[nodiscard]] QStringList kept(SettingsGroup group, const QString &name) const;
    /// Keeps texts in place of what was there; none forgets it.
    void keep(SettingsGroup group, const QString &name, const QStringList &texts) const;

private:
    void change(SettingsFile file, const std::function<void(QSettings &)> &make) const;
    [[nodiscard]] QStringList sessionsOnMap(const QString &mapName) const;

    QString m_root;
};

} // namespace zuno
