// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/desktoptheme.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QSettings>

#include <theme/themes.h>

namespace zuno {

namespace {

constexpr QLatin1String Service("org.freedesktop.portal.Desktop");
constexpr QLatin1String Path("/org/freedesktop/portal/desktop");
constexpr QLatin1String Interface("org.freedesktop.portal.Settings");
constexpr QLatin1String Group("org.freedesktop.appearance");
constexpr QLatin1String Key("color-scheme");

// The portal wraps the value once or, in its older form, twice.
uint schemeOf(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value.toUInt();
}

void tellScheme(uint scheme)
{
    Themes &themes = Themes::instance();
    if (scheme == 1)
        themes.setDesktop(Theme::Kind::Dark);
    else if (scheme == 2)
        themes.setDesktop(Theme::Kind::Light);
    else
        themes.setDesktop({});
}

#ifdef Q_OS_WIN
void askWindows()
{
    const QSettings settings(
        QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes"
                       "\\Personalize"),
        QSettings::NativeFormat);
    const QVariant isLight = settings.value(QStringLiteral("AppsUseLightTheme"));
    if (isLight.isValid())
        tellScheme(isLight.toBool() ? 2 : 1);
}
#endif

} // namespace

DesktopTheme::DesktopTheme(QObject *parent) : QObject(parent)
{
#ifdef Q_OS_WIN
    askWindows();
#else
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(Service, Path, Interface, QStringLiteral("SettingChanged"), this,
                SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage question
        = QDBusMessage::createMethodCall(Service, Path, Interface, QStringLiteral("Read"));
    question << QString(Group) << QString(Key);
    auto *const answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (!reply.isError())
            tellScheme(schemeOf(QVariant::fromValue(reply.value())));
        answer->deleteLater();
    });
#endif
}

void DesktopTheme::onSettingChanged(const QString &group, const QString &key,
                                    const QDBusVariant &value)
{
    if (group == Group && key == Key)
        tellScheme(schemeOf(value.variant()));
}

} // namespace zuno
