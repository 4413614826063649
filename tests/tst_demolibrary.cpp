// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <cli/demolibrary.h>
#include <maps/mapdetection.h>
#include <maps/mapfile.h>
#include <session/sessionfile.h>

using namespace zuno;

namespace {

QMap<QString, QByteArray> contents(const QString &folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator iterator(folder, QDir::Files, QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        QFile file(iterator.next());
        if (file.open(QIODevice::ReadOnly))
            files.insert(QDir(folder).relativeFilePath(file.fileName()), file.readAll());
    }
    return files;
}

} // namespace

class TestDemoLibrary final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameBytesEveryTime()
    {
        for (const DemoOptions &options : {DemoOptions {}, DemoOptions {7, 500}}) {
            const QTemporaryDir first;
            const QTemporaryDir second;
            QVERIFY(writeDemoLibrary(first.path(), options).ok());
            const DemoResult result = writeDemoLibrary(second.path(), options);
            const auto files = contents(first.path());
            QCOMPARE(files.size(), result.mapFiles.size() + result.sessionFiles.size());
            QVERIFY(files.size() >= 10 && files == contents(second.path()));
            // Writing on top of itself finds everything in place.
            QVERIFY(writeDemoLibrary(second.path(), options).ok());
            QVERIFY(files == contents(second.path()));
        }
    }

    void leavesOtherFilesAlone()
    {
        const QTemporaryDir folder;
        const DemoResult demo = writeDemoLibrary(folder.path(), {2, 10});
        for (const QString &path : {demo.mapFiles.first(), demo.sessionFiles.last()}) {
            for (const qint64 at : {qint64(20), QFileInfo(path).size()}) { // changed; appended
                QFile file(path);
                QVERIFY(file.open(QIODevice::ReadWrite));
                const QByteArray before = file.readAll();
                QVERIFY(file.seek(at) && file.putChar('\x7f'));
                file.close();
                const auto files = contents(folder.path());
                const DemoResult result = writeDemoLibrary(folder.path(), {2, 10});
                QVERIFY2(result.error.contains(path), qPrintable(result.error));
                QVERIFY(!(result.mapFiles + result.sessionFiles).contains(path));
                QVERIFY(contents(folder.path()) == files);
                QVERIFY(file.open(QIODevice::WriteOnly) && file.write(before) == before.size());
            }
        }
    }

    void refuses()
    {
        const QTemporaryDir folder;
        QVERIFY(!writeDemoLibrary(QString()).ok());
        for (const DemoOptions &options :
             {DemoOptions {-1, 10}, {100001, 10}, {1, -1}, {1, 200001}}) {
            QVERIFY(!writeDemoLibrary(folder.path(), options).ok());
            QVERIFY(QDir(folder.path()).isEmpty());
        }
    }

    // What a reader of sessions meets once in a while is in the demo once.
    void hasUnusualSessions()
    {
        const QTemporaryDir folder;
        const DemoResult demo = writeDemoLibrary(folder.path());
        MapLibrary maps;
        maps.loadMaps(folder.filePath(QStringLiteral("Map")));
        QMap<QByteArray, int> counts;
        for (const QString &path : demo.sessionFiles) {
            const std::unique_ptr<Session> session = openSession(path).session;
            QVERIFY2(session && session->wholeSamples().size() > 5000, qPrintable(path));
            const auto lost
                = std::count_if(session->samples().begin(), session->samples().end(),
                                [](const auto &s) { return s.dataCoordX == NoFixCoordinate; });
            const bool hasInformation = !session->driver().isEmpty();
            counts["never opened"] += session->newSession();
            counts["without information"] += hasInformation ? 0 : 1;
            counts["without circuit"] += hasInformation && session->circuitName().isEmpty() ? 1 : 0;
            counts["unknown temperature"] += session->temperature() == 99 ? 1 : 0;
            counts["far away"] += findCandidates(*session, maps.maps()).isEmpty() ? 1 : 0;
            counts["without position for a while"] += lost > 0 ? 1 : 0;
        }
        for (auto it = counts.cbegin(); it != counts.cend(); ++it)
            QVERIFY2(it.value() == 1, it.key());
    }

    // The program remembers a session's map by its file name alone.
    void largeLibrary()
    {
        const QTemporaryDir folder;
        const DemoResult result = writeDemoLibrary(folder.path(), {21, 100});
        QSet<QString> names;
        QSet<QString> folders;
        for (const QString &path : result.sessionFiles) {
            QCOMPARE(openSession(path).session->wholeSamples().size(), 100U);
            names.insert(QFileInfo(path).fileName());
            folders.insert(QFileInfo(path).path());
        }
        QCOMPARE(names.size(), 21);
        QCOMPARE(folders.size(), 2);
    }
};

QTEST_GUILESS_MAIN(TestDemoLibrary)
#include "tst_demolibrary.moc"
