// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/logfile.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QString>

#include <base/settings.h>

namespace zuno {

namespace {

// Without an application object the location lacks the program's own folder, so it is the
// settings root already.
QString logPath()
{
    if (QCoreApplication::instance() != nullptr)
        return Settings(Settings::defaultRoot()).logPath();
    return Settings(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).logPath();
}

QString levelOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("Debug ");
    case QtInfoMsg:
        return QStringLiteral("Info ");
    case QtCriticalMsg:
        return QStringLiteral("Critical ");
    case QtFatalMsg:
        return QStringLiteral("Fatal ");
    case QtWarningMsg:
        break;
    }
    return {};
}

// Each message opens the file for itself: messages come from any thread, and the log can be read
// or deleted while the program runs.
void writeMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const QString level = levelOf(type);
    if (level.isEmpty())
        return;
    QFile file(logPath());
    if (!file.open(QIODevice::Append | QIODevice::Text))
        return;
    const QString line
        = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz ")) + level
          + QString::fromUtf8(context.category) + QStringLiteral(": ") + message + u'\n';
    file.write(line.toUtf8());
}

} // namespace

void startLog()
{
    const QString path = logPath();
    QFile::remove(path);
    QDir().mkpath(QFileInfo(path).absolutePath());
    qInstallMessageHandler(writeMessage);
}

} // namespace zuno
