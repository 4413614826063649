// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <app/logfile.h>

using namespace zuno;
using namespace Qt::StringLiterals;

namespace {

QString logText()
{
    QFile file(qEnvironmentVariable("XDG_DATA_HOME") + u"/Norvale/ZUNO Analyzer/logAnalyzer.txt");
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : u"no file"_s;
}

QString logBeforeTests;

} // namespace

class TestLogFile final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void levels();
};

// The handler is called as Qt does; a fatal message would end the test otherwise.
void TestLogFile::levels()
{
    // There was no application object yet, and the text of the run before is gone.
    QVERIFY2(logBeforeTests.endsWith(u" Debug default: before\n"), qPrintable(logBeforeTests));
    QCOMPARE(logBeforeTests.count(u'\n'), 1);
    const QtMessageHandler ofTest = qInstallMessageHandler(nullptr);
    startLog();
    const QtMessageHandler handler = qInstallMessageHandler(ofTest);
    const QMessageLogContext context("file.cpp", 1, "function", "some.module");
    const QDateTime before = QDateTime::currentDateTime().addMSecs(-1);
    for (const QtMsgType type : {QtDebugMsg, QtInfoMsg, QtWarningMsg, QtCriticalMsg, QtFatalMsg})
        handler(type, context, u"text \u00E4"_s);
    QStringList lines = logText().split(u'\n', Qt::SkipEmptyParts);
    for (QString &line : lines) {
        const auto time = QDateTime::fromString(line.left(23), u"yyyy-MM-dd hh:mm:ss.zzz"_s);
        QVERIFY2(before <= time && time <= QDateTime::currentDateTime(), qPrintable(line));
        line.remove(0, 23);
    }
    // Warnings are not logged.
    QCOMPARE(lines.join(u'|'),
             u" Debug some.module: text \u00E4| Info some.module: text \u00E4|"
             " Critical some.module: text \u00E4| Fatal some.module: text \u00E4"_s);
    // Without its folder messages are lost, no more.
    QDir(qEnvironmentVariable("XDG_DATA_HOME") + u"/Norvale").removeRecursively();
    handler(QtDebugMsg, context, u"lost"_s);
    QCOMPARE(logText(), u"no file"_s);
}

int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    QDir(home.path()).mkpath(u"Norvale/ZUNO Analyzer"_s);
    for (const char *text : {"last run", "before"}) {
        startLog();
        qDebug("%s", text);
    }
    logBeforeTests = logText();
    qInstallMessageHandler(nullptr);
    const QCoreApplication application(argc, argv);
    TestLogFile test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_logfile.moc"
