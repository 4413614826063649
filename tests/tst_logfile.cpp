// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <app/logfile.h>

using namespace zuno;
using namespace Qt::StringLiterals;

namespace {

const QString LogFile = u"Norvale/ZUNO Analyzer/logAnalyzer.txt"_s;

QString contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The data folder of this program alone, for as long as it runs.
const QTemporaryDir &home()
{
    static const QTemporaryDir folder;
    return folder;
}

} // namespace

class TestLogFile final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameFileBeforeAndAfter();
    void levels_data();
    void levels();
    void freshEachRun();
    void folderGone();
};

// What was written before there was an application object stands in the same file as the rest.
void TestLogFile::sameFileBeforeAndAfter()
{
    const QStringList lines = contents(home().filePath(LogFile)).split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines[0].endsWith(u" Debug default: before"));
    QVERIFY(lines[1].endsWith(u" Info default: after"));
    QVERIFY(!contents(home().filePath(LogFile)).contains(u"last run"));
}

void TestLogFile::levels_data()
{
    QTest::addColumn<QtMsgType>("type");
    QTest::addColumn<QString>("line"); // empty: nothing is logged
    QTest::newRow("debug") << QtDebugMsg << u"Debug some.module: text \u00E4\n"_s;
    QTest::newRow("info") << QtInfoMsg << u"Info some.module: text \u00E4\n"_s;
    QTest::newRow("warning") << QtWarningMsg << QString();
    QTest::newRow("critical") << QtCriticalMsg << u"Critical some.module: text \u00E4\n"_s;
    QTest::newRow("fatal") << QtFatalMsg << u"Fatal some.module: text \u00E4\n"_s;
}

// The handler is called as Qt does; a fatal message would end the test otherwise.
void TestLogFile::levels()
{
    QFETCH(const QtMsgType, type);
    QFETCH(const QString, line);
    const QtMessageHandler ofTest = qInstallMessageHandler(nullptr);
    startLog();
    const QtMessageHandler handler = qInstallMessageHandler(ofTest);
    const QDateTime before = QDateTime::currentDateTime().addMSecs(-1);
    handler(type, QMessageLogContext("file.cpp", 1, "function", "some.module"), u"text \u00E4"_s);
    const QString text = contents(home().filePath(LogFile));
    if (line.isEmpty()) {
        QCOMPARE(text, QString());
        return;
    }
    constexpr qsizetype TimeLength = 23;
    const auto time = QDateTime::fromString(text.left(TimeLength), u"yyyy-MM-dd hh:mm:ss.zzz"_s);
    QVERIFY2(before <= time && time <= QDateTime::currentDateTime(), qPrintable(text));
    QCOMPARE(text.mid(TimeLength), u' ' + line);
}

void TestLogFile::freshEachRun()
{
    const QtMessageHandler ofTest = qInstallMessageHandler(nullptr);
    startLog();
    qDebug("first");
    qCritical("second");
    const qsizetype lines = contents(home().filePath(LogFile)).count(u'\n');
    startLog();
    qDebug("third");
    const QString fresh = contents(home().filePath(LogFile));
    qInstallMessageHandler(ofTest);
    QCOMPARE(lines, 2);
    QCOMPARE(fresh.count(u'\n'), 1);
    QVERIFY(fresh.endsWith(u"third\n"));
}

// The log may be deleted while the program runs; without its folder messages are lost, no more.
void TestLogFile::folderGone()
{
    const QtMessageHandler ofTest = qInstallMessageHandler(nullptr);
    startLog();
    QFile::remove(home().filePath(LogFile));
    qDebug("again");
    const QString again = contents(home().filePath(LogFile));
    QDir(home().filePath(u"Norvale"_s)).removeRecursively();
    qDebug("lost");
    qInstallMessageHandler(ofTest);
    QVERIFY(again.endsWith(u"again\n"));
    QVERIFY(!QFile::exists(home().filePath(LogFile)));
}

int main(int argc, char *argv[])
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(home().path()));
    QDir(home().path()).mkpath(QFileInfo(LogFile).path());
    QFile old(home().filePath(LogFile));
    if (!old.open(QIODevice::WriteOnly) || old.write("last run\n") < 0)
        return 1;
    old.close();
    startLog();
    qDebug("before");
    QCoreApplication application(argc, argv);
    qInfo("after");
    qInstallMessageHandler(nullptr);
    TestLogFile test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_logfile.moc"
