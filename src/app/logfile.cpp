// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/logfile.h>

#include <cstdio>
#include <cstdlib>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMutex>
#include <QStandardPaths>
#include <QStringList>
#include <QUrl>

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

QStringList &secrets()
{
    static QStringList texts;
    return texts;
}

QString withoutSecrets(QString text)
{
    for (const QString &secret : std::as_const(secrets()))
        text.replace(secret, QStringLiteral("(hidden)"));
    return text;
}

// What a program logs all day long is of use from where it ended.
void dropOlderHalf(QFile &file)
{
    if (!file.open(QIODevice::ReadWrite))
        return;
    file.seek(file.size() - MostLogBytes / 2);
    file.readLine();
    const QByteArray rest = file.readAll();
    file.resize(0);
    file.seek(0);
    file.write(rest);
    file.close();
}

// Before there is a window nothing else can tell it.
[[noreturn]] void end(const QString &message)
{
    if (QGuiApplication::platformName().isEmpty())
        std::fputs("ZUNO Analyzer has found no display to open its window on.\n", stderr);
    std::fprintf(stderr, "ZUNO Analyzer has to end: %s\n", qPrintable(message));
    std::fflush(stderr);
    std::_Exit(EXIT_FAILURE);
}

// Each message opens the file for itself: messages come from any thread, and the log can be read
// or deleted while the program runs.
void writeLine(const QByteArray &line)
{
    static QMutex mutex;
    const QMutexLocker locker(&mutex);
    QFile file(logPath());
    if (file.size() + line.size() > MostLogBytes)
        dropOlderHalf(file);
    if (file.open(QIODevice::Append | QIODevice::Text))
        file.write(line);
}

void writeMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const QString level = levelOf(type);
    if (level.isEmpty())
        return;
    const QString text = withoutSecrets(message);
    const QString line
        = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz ")) + level
          + QString::fromUtf8(context.category) + QStringLiteral(": ") + text + u'\n';
    writeLine(line.toUtf8().left(MostLogBytes / 4));
    if (type == QtFatalMsg)
        end(text);
}

} // namespace

void startLog()
{
    const QString path = logPath();
    QFile::remove(path);
    QDir().mkpath(QFileInfo(path).absolutePath());
    qInstallMessageHandler(writeMessage);
}

void hideInLog(const QString &secret)
{
    if (secret.isEmpty())
        return;
    secrets().append(secret);
    secrets().append(QString::fromLatin1(QUrl::toPercentEncoding(secret)));
}

} // namespace zuno
