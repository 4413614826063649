// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/settings.h>

#include <algorithm>
#include <array>
#include <filesystem>

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>
#include <QUrl>

namespace zuno {

namespace {

// More than the settings take, and the file that locks them; bytes.
constexpr std::uintmax_t LeastRoom = 1 << 18;

struct Entry
{
    Setting setting = Setting::Language;
    SettingsFile file = SettingsFile::Config;
    const char16_t *key = nullptr;
    QMetaType::Type type = QMetaType::QString;
    /// "true" or "false"; for a folder, its place below the root; null for no default.
    const char16_t *standard = nullptr;
    bool isDisplay = false;
};

constexpr auto Config = SettingsFile::Config;
constexpr auto Analyzer = SettingsFile::Analyzer;
constexpr auto Text = QMetaType::QString;
constexpr auto Bool = QMetaType::Bool;
constexpr auto Bytes = QMetaType::QByteArray;

// The one list of settings; nobody else spells a key.
constexpr std::array Table {
    Entry {Setting::Language, Config, u"language", Text, u""},
    Entry {Setting::MapFiles, Config, u"mapFiles", Text, u"/Norvale/Map"},
    Entry {Setting::AcquisitionFolder, Config, u"acquisitionFolder", Text,
           u"/Norvale/RemoteDevice"},
    Entry {Setting::ShowLapType, Analyzer, u"showLapType", Bool, u"true", true},
    Entry {Setting::ShowCumulatedTime, Analyzer, u"showCumulatedTime", Bool, u"true", true},
    Entry {Setting::ShowMinSpeed, Analyzer, u"showMinSpeed", Bool, u"true", true},
    Entry {Setting::ShowMaxSpeed, Analyzer, u"showMaxSpeed", Bool, u"true", true},
    Entry {Setting::ShowAngleLeft, Analyzer, u"showAngleLeft", Bool, u"true", true},
    Entry {Setting::ShowAngleRight, Analyzer, u"showAngleRight", Bool, u"true", true},
    Entry {Setting::ShowAccel, Analyzer, u"showAccel", Bool, u"true", true},
    Entry {Setting::ShowDecel, Analyzer, u"showDecel", Bool, u"true", true},
    Entry {Setting::ShowMinFrontSusp, Analyzer, u"showMinFrontSusp", Bool, u"false", true},
    Entry {Setting::ShowMaxFrontSusp, Analyzer, u"showMaxFrontSusp", Bool, u"false", true},
    Entry {Setting::ShowMinRearSusp, Analyzer, u"showMinRearSusp", Bool, u"false", true},
    Entry {Setting::ShowMaxRearSusp, Analyzer, u"showMaxRearSusp", Bool, u"false", true},
    Entry {Setting::ShowPartiels, Analyzer, u"showPartiels", Bool, u"true", true},
    Entry {Setting::ShowLocalMinMax, Analyzer, u"showLocalMinMax", Bool, u"true", true},
    Entry {Setting::ShowPartielsPoints, Analyzer, u"showPartielsPoints", Bool, u"true", true},
    Entry {Setting::UseGradientCompare, Analyzer, u"useGradientCompare", Bool, u"true", true},
    Entry {Setting::ChartSpeed, Analyzer, u"chartSpeed", Bool, u"true"},
    Entry {Setting::ChartAngle, Analyzer, u"chartAngle", Bool, u"true"},
    Entry {Setting::ChartAccel, Analyzer, u"chartAccel", Bool, u"true"},
    Entry {Setting::ChartFrontSusp, Analyzer, u"chartFrontSusp", Bool, u"false"},
    Entry {Setting::ChartRearSusp, Analyzer, u"chartRearSusp", Bool, u"false"},
    // As earlier versions divide their window; not read, since panes have moved.
    Entry {Setting::Splitter0Sizes, Analyzer, u"splitter0Sizes", Bytes, nullptr},
    Entry {Setting::Splitter1Sizes, Analyzer, u"splitter1Sizes", Bytes, nullptr},
    Entry {Setting::Splitter2Sizes, Analyzer, u"splitter2Sizes", Bytes, nullptr},
    Entry {Setting::Splitter3Sizes, Analyzer, u"splitter3Sizes", Bytes, nullptr},
    Entry {Setting::TreeSizes, Analyzer, u"treeSizes", Bytes, nullptr},
    Entry {Setting::RowsSizes, Analyzer, u"rowsSizes", Bytes, nullptr},
    Entry {Setting::TopRowSizes, Analyzer, u"topRowSizes", Bytes, nullptr},
    Entry {Setting::BottomRowSizes, Analyzer, u"bottomRowSizes", Bytes, nullptr},
    Entry {Setting::LastFileSelected, Analyzer, u"lastFileSelected", Text, nullptr},
    Entry {Setting::V1400, Analyzer, u"v1400", Bool, u"false"},
    Entry {Setting::CheckForUpdates, Analyzer, u"checkForUpdates", Bool, u"true"},
    Entry {Setting::Theme, Analyzer, u"theme", Text, u"desktop"},
    Entry {Setting::SpeedUnit, Analyzer, u"speedUnit", Text, u"km/h"},
    Entry {Setting::DistanceUnit, Analyzer, u"distanceUnit", Text, u"m"},
    Entry {Setting::TemperatureUnit, Analyzer, u"temperatureUnit", Text, u"C"},
};

const Entry &entryOf(Setting setting)
{
    return *std::find_if(Table.begin(), Table.end(),
                         [setting](const Entry &entry) { return entry.setting == setting; });
}

QVariant standardOf(const Entry &entry)
{
    if (entry.standard == nullptr)
        return QVariant(QMetaType(entry.type));
    QVariant value(QString::fromUtf16(entry.standard));
    value.convert(QMetaType(entry.type));
    return value;
}

// What QSettings puts for characters that are not written as they are.
QString unescaped(QString text)
{
    static const QRegularExpression escape(
        QStringLiteral("\\\\(?:x([0-9A-Fa-f]{1,4})|([\\\\\"]))"));
    for (qsizetype at = 0;;) {
        const QRegularExpressionMatch found = escape.match(text, at);
        if (!found.hasMatch())
            return text;
        const QString code = found.captured(1);
        const QChar meant
            = code.isEmpty() ? found.captured(2).front() : QChar(code.toUShort(nullptr, 16));
        text.replace(found.capturedStart(), found.capturedLength(), meant);
        at = found.capturedStart() + 1;
    }
}

// Somebody has typed a text with a comma without putting it into quotes, and QSettings takes it for
// a list. What stands between its commas it does not keep, so the line is read.
QString textWithCommas(const QString &path, const QString &key)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    QString text;
    bool isGeneral = true;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString &whole : lines) {
        const QStringView line = QStringView(whole).trimmed();
        if (line.startsWith(u'['))
            isGeneral = line.compare(u"[General]", Qt::CaseInsensitive) == 0;
        const qsizetype equals = line.indexOf(u'=');
        if (isGeneral && equals >= 0 && line.first(equals).trimmed() == key)
            text = unescaped(line.mid(equals + 1).trimmed().toString());
    }
    return text;
}

// A slash would make a group of its own.
QString keyIn(SettingsGroup group, const QString &name)
{
    const QString folder = group == SettingsGroup::LapReasons ? QStringLiteral("LapReasons/")
                                                              : QStringLiteral("References/");
    return folder + QString::fromLatin1(QUrl::toPercentEncoding(name));
}

} // namespace

Settings::Settings(QString root) : m_root(std::move(root)) {}

QString Settings::defaultRoot()
{
    const QString location = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return location.left(location.lastIndexOf(u'/'));
}

QString Settings::path(SettingsFile file) const
{
    switch (file) {
    case SettingsFile::Config:
        return m_root + u"/Norvale/Config.ini";
    case SettingsFile::Analyzer:
        return m_root + u"/Norvale/ZUNO Analyzer/ConfigAnalyzer.ini";
    case SettingsFile::Monitor:
        return m_root + u"/Norvale/ZUNO Monitor/ConfigMonitor.ini";
    }
    return {};
}

QString Settings::logPath() const
{
    return m_root + u"/Norvale/ZUNO Analyzer/logAnalyzer.txt";
}

QVariant Settings::value(Setting setting) const
{
    const Entry &entry = entryOf(setting);
    QVariant value = QSettings(path(entry.file), QSettings::IniFormat).value(key(setting));
    if (entry.type == Text && value.typeId() == QMetaType::QStringList)
        value = textWithCommas(path(entry.file), key(setting));
    if (!value.isValid() || value.isNull() || !value.convert(QMetaType(entry.type)))
        return standardOf(entry);
    return value;
}

bool Settings::isStored(Setting setting) const
{
    const Entry &entry = entryOf(setting);
    return QSettings(path(entry.file), QSettings::IniFormat).value(key(setting)).isValid();
}

// Qt 6.4 replaces the file without looking whether there was room for the new one: on a full disk
// all settings would be gone. They stay as they were instead.
void Settings::change(SettingsFile file, const std::function<void(QSettings &)> &make) const
{
    std::error_code unknown;
    const QString folder = QFileInfo(path(file)).absolutePath();
    const auto room = std::filesystem::space(folder.toStdU16String(), unknown);
    if (!unknown && room.available < LeastRoom) {
        qCritical() << "No room on the disk to store the settings:" << path(file);
        return;
    }
    QSettings settings(path(file), QSettings::IniFormat);
    make(settings);
}

void Settings::setValues(const QList<std::pair<Setting, QVariant>> &values) const
{
    for (const SettingsFile file : {SettingsFile::Config, SettingsFile::Analyzer}) {
        QList<std::pair<Setting, QVariant>> own = values;
        own.removeIf([file](const auto &pair) { return entryOf(pair.first).file != file; });
        if (own.isEmpty())
            continue;
        change(file, [&own](QSettings &settings) {
            for (const auto &[setting, value] : std::as_const(own))
                settings.setValue(key(setting), value);
        });
    }
}

QString Settings::key(Setting setting)
{
    return QString::fromUtf16(entryOf(setting).key);
}

QVariant Settings::standard(Setting setting)
{
    return standardOf(entryOf(setting));
}

QList<Setting> Settings::displaySettings()
{
    QList<Setting> settings;
    for (const Entry &entry : Table) {
        if (entry.isDisplay)
            settings.append(entry.setting);
    }
    return settings;
}

void Settings::writeDisplayDefaults() const
{
    if (isStored(Setting::ShowLapType))
        return;
    QList<std::pair<Setting, QVariant>> values;
    for (const Setting setting : displaySettings())
        values.append({setting, standardOf(entryOf(setting))});
    setValues(values);
}

QString Settings::mapsFolder() const
{
    return isStored(Setting::MapFiles) ? value(Setting::MapFiles).toString()
                                       : m_root + standardOf(entryOf(Setting::MapFiles)).toString();
}

QString Settings::standardAcquisitionFolder() const
{
    return m_root + standardOf(entryOf(Setting::AcquisitionFolder)).toString();
}

QString Settings::acquisitionFolder() const
{
    return isStored(Setting::AcquisitionFolder) ? value(Setting::AcquisitionFolder).toString()
                                                : standardAcquisitionFolder();
}

QString Settings::mapChoice(const QString &sessionFileName) const
{
    const QSettings settings(path(SettingsFile::Analyzer), QSettings::IniFormat);
    return settings.value(sessionFileName).toString();
}

void Settings::setMapChoice(const QString &sessionFileName, const QString &mapName) const
{
    change(SettingsFile::Analyzer,
           [&](QSettings &settings) { settings.setValue(sessionFileName, mapName); });
}

void Settings::removeMapChoice(const QString &sessionFileName) const
{
    change(SettingsFile::Analyzer, [&](QSettings &settings) { settings.remove(sessionFileName); });
}

// Every key that is none of the table's is a session's.
QStringList Settings::sessionsOnMap(const QString &mapName) const
{
    const QSettings settings(path(SettingsFile::Analyzer), QSettings::IniFormat);
    QStringList keys = settings.allKeys();
    for (const Entry &entry : Table)
        keys.removeOne(QString::fromUtf16(entry.key));
    keys.removeIf([&](const QString &key) { return settings.value(key).toString() != mapName; });
    return keys;
}

void Settings::renameMapChoices(const QString &from, const QString &to) const
{
    const QStringList sessions = sessionsOnMap(from);
    change(SettingsFile::Analyzer, [&](QSettings &settings) {
        for (const QString &session : sessions)
            settings.setValue(session, to);
    });
    if (const QStringList reference = kept(SettingsGroup::References, from); !reference.isEmpty()) {
        keep(SettingsGroup::References, to, reference);
        keep(SettingsGroup::References, from, {});
    }
}

void Settings::removeMapChoices(const QString &mapName) const
{
    const QStringList sessions = sessionsOnMap(mapName);
    change(SettingsFile::Analyzer, [&](QSettings &settings) {
        for (const QString &session : sessions)
            settings.remove(session);
        settings.remove(keyIn(SettingsGroup::References, mapName));
    });
}

QStringList Settings::kept(SettingsGroup group, const QString &name) const
{
    const QSettings settings(path(SettingsFile::Analyzer), QSettings::IniFormat);
    return settings.value(keyIn(group, name)).toStringList();
}

void Settings::keep(SettingsGroup group, const QString &name, const QStringList &texts) const
{
    if (kept(group, name) == texts)
        return;
    change(SettingsFile::Analyzer, [&](QSettings &settings) {
        if (texts.isEmpty())
            settings.remove(keyIn(group, name));
        else
            settings.setValue(keyIn(group, name), texts);
    });
}

} // namespace zuno
