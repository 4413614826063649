// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <app/logfile.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

class TestLogFile final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A log is of one run, and each line of it tells when and what; warnings are not logged.
    void levels()
    {
        const QTemporaryDir home;
        qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
        const QString path = home.filePath(u"Norvale/ZUNO Analyzer/logAnalyzer.txt"_s);
        putFile(path, "of the run before\n");
        startLog();
        qDebug("one");
        qWarning("two");
        qCritical("thr\u00E9\u00E9");
        qInstallMessageHandler(nullptr);
        const QRegularExpression log(u"^(.{23}) Debug default: one\n"
                                     "(.{23}) Critical default: thr\u00E9\u00E9\n$"_s);
        const auto match = log.match(QString::fromUtf8(contents(path)));
        QVERIFY2(match.hasMatch(), contents(path));
        for (const QString &time : match.capturedTexts().mid(1))
            QVERIFY(QDateTime::fromString(time, u"yyyy-MM-dd hh:mm:ss.zzz"_s).isValid());
    }

    // A log never fills the disk, and what was told last is in it.
    void bounded()
    {
        const QTemporaryDir home;
        qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
        const QString path = home.filePath(u"Norvale/ZUNO Analyzer/logAnalyzer.txt"_s);
        startLog();
        const QByteArray kilobyte(1000, 'x');
        for (int i = 0; i < 6000; ++i) {
            qDebug("%d %s", i, kilobyte.constData());
            QVERIFY(i % 100 != 0 || QFileInfo(path).size() <= MostLogBytes);
        }
        qDebug() << QByteArray(MostLogBytes, 'y');
        qInstallMessageHandler(nullptr);
        QVERIFY(QFileInfo(path).size() <= MostLogBytes);
        QVERIFY(contents(path).contains(" 5999 x"));
        QVERIFY(QDateTime::fromString(QString::fromUtf8(contents(path).left(23)),
                                      u"yyyy-MM-dd hh:mm:ss.zzz"_s)
                    .isValid());
    }

    // A page's messages have its address, which has the key of the map service.
    void secrets()
    {
        const QTemporaryDir home;
        qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
        startLog();
        hideInLog({});
        hideInLog(u"a/secret key"_s);
        qDebug("a/secret key, https://example.com/?key=a%%2Fsecret%%20key&v=1");
        qInstallMessageHandler(nullptr);
        const QByteArray log = contents(home.filePath(u"Norvale/ZUNO Analyzer/logAnalyzer.txt"_s));
        QVERIFY2(log.endsWith("(hidden), https://example.com/?key=(hidden)&v=1\n"), log);
    }

    // Where the program cannot open a window it says so, and ends as a program does.
    void noDisplay()
    {
        const QTemporaryDir home;
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_DATA_HOME"_s, home.path());
        environment.insert(u"QT_QPA_PLATFORM"_s, u"none"_s);
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(ZUNO_PROGRAM));
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 1);
        const QByteArray told = program.readAllStandardError();
        QVERIFY2(told.contains("found no display"), told);
    }
};

QTEST_GUILESS_MAIN(TestLogFile)
#include "tst_logfile.moc"
