// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

class QDBusVariant;

namespace zuno {

/// Tells Themes what the desktop asks for, and again when it asks for something else: on Linux what
/// the desktop's portal says (org.freedesktop.appearance, color-scheme: 1 is dark, 2 light), on
/// Windows what is chosen for programs. Nobody waits for the answer; where there is none, nothing
/// is told.
class DesktopTheme final : public QObject
{
    Q_OBJECT

public:
    explicit DesktopTheme(QObject *parent = nullptr);

private Q_SLOTS:
    void onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value);
};

} // namespace zuno
