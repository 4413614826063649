// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <demo/demolibrary.h>
#include <insight/losscards.h>
#include <insight/sessioninsight.h>
#include <session/sessionfile.h>
#include <track/map.h>
#include <track/mapfile.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

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

    // What somebody does wrong in every other lap is what his session lists first.
    void listsHabits_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("cause");
        QTest::newRow("2026-05-23 15h11 Haidemoor") << u"11"_s << u"slower after the corner"_s;
        QTest::newRow("2026-07-11 10h02 Karoosberg") << u"7"_s << u"at the slowest point"_s;
        QTest::newRow("2026-07-12 15h50 Karoosberg") << u"1-2"_s << u"brakes"_s;
    }
    void listsHabits()
    {
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        const QTemporaryDir folder;
        const QString circuit = name.section(u' ', -1) + u".map"_s;
        putFile(folder.filePath(circuit), demoFile(circuit));
        MapLibrary maps;
        maps.loadMaps(folder.path());
        const OpenedSession opened = decodeSession(demoFile(name + u".ra1"_s), name);
        opened.session->smooth();
        opened.session->setMap(maps.maps().constFirst());
        const SessionInsight insight = insightOf(
            *opened.session->map(), {}, opened.session->wholeSamples(), opened.session->laps());
        QVERIFY(!insight.list.empty());
        const ListedLoss &listed = insight.list.front();
        const QString causes = causeTexts(listed.loss, insight.circuit).join(u"; "_s);
        QTEST(insight.circuit.unitLabel(listed.loss.unit), "unit");
        QFETCH(QString, cause);
        QVERIFY2(causes.contains(cause), qPrintable(causes));
        // Full laps with the habit are the even ones: the first lap of a recording leads to the
        // line.
        QCOMPARE(insight.laps[listed.lap].number % 2, 0);
        QCOMPARE(insight.laps[listed.against].number % 2, 1);
    }
};

QTEST_GUILESS_MAIN(TestDemoLibrary)
#include "tst_demolibrary.moc"
