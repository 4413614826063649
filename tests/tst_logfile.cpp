// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDateTime>
#include <QFile>
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
};

QTEST_GUILESS_MAIN(TestLogFile)
#include "tst_logfile.moc"
