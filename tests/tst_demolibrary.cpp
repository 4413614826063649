// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <demo/demolibrary.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;

class TestDemoLibrary final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameBytesEveryTime()
    {
        for (const DemoOptions &options : {DemoOptions {}, DemoOptions {21, 500}}) {
            const QTemporaryDir first;
            const QTemporaryDir second;
            QVERIFY(writeDemoLibrary(first.path(), options).ok());
            const DemoResult result = writeDemoLibrary(second.path(), options);
            const auto files = filesIn(first.path());
            QCOMPARE(files.size(), result.mapFiles.size() + result.sessionFiles.size());
            QVERIFY(files.size() >= 10 && files == filesIn(second.path()));
        }
    }

    void leavesOtherFilesAlone()
    {
        const QTemporaryDir folder;
        const DemoResult demo = writeDemoLibrary(folder.path(), {2, 10});
        for (const QString &path : {demo.mapFiles.first(), demo.sessionFiles.last()}) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadWrite));
            const QByteArray before = file.readAll();
            QVERIFY(file.seek(20) && file.putChar('\x7f'));
            file.close();
            const auto files = filesIn(folder.path());
            const DemoResult result = writeDemoLibrary(folder.path(), {2, 10});
            QVERIFY2(result.error.contains(path), qPrintable(result.error));
            QVERIFY(filesIn(folder.path()) == files);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(before) == before.size());
        }
    }
};

QTEST_GUILESS_MAIN(TestDemoLibrary)
#include "tst_demolibrary.moc"
