// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <base/settings.h>
#include <demo/demolibrary.h>
#include <library/acquisitionlibrary.h>
#include <maps/detection/mapdetection.h>
#include <session/session.h>
#include <track/mapfile.h>
#include <views/idealtime/idealtimedialog.h>
#include <views/idealtime/idealtimemodel.h>

#include "builders.h"
#include "widgets.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

// Laps of 1.5 and 2 seconds in the two sections, and so many tenths more: "3/0 0/4".
std::unique_ptr<Session> sessionOfLaps(const QString &laps, const Map &map, const QString &name)
{
    QString description = u"-44.05..-4.05/10"_s;
    for (const QString &lap : laps.split(u' ')) {
        description
            += u" 5.95..95.95/10 95.95*%1 105.95..295.95/10 295.95*%2 -44.05..-4.05/10"_s.arg(
                lap.section(u'/', 0, 0), lap.section(u'/', 1));
    }
    std::unique_ptr<Session> session = sessionOf(ride(description + u" 5.95..45.95/10"_s));
    session->setFilePath(u"/somewhere/%1.ra1"_s.arg(name));
    session->setDriver(name.toLower());
    session->setMap(&map);
    return session;
}

} // namespace

class TestIdealTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    // Lap 1 leads to the line, so the first lap described is lap 2.
    void figures()
    {
        QLocale::setDefault(QLocale::c());
        const auto map = lineMap(10, 680, {{u"Start"_s, 0}, {u"Time 0"_s, 150}, {u"Time 1"_s, 0}});
        const auto a = sessionOfLaps(u"5/1 2/4 9/9"_s, *map, u"A"_s);
        const auto b = sessionOfLaps(u"9/9 1/8"_s, *map, u"B"_s);
        IdealTimeModel model;
        const QAbstractItemModelTester tester(&model);
        const auto rows = [&] {
            IdealTime idealTime;
            idealTime.add(*a);
            idealTime.add(*b);
            model.setIdealTime(idealTime);
            return model.toText().trimmed().replace(u'\t', u',').split(u'\n');
        };
        QCOMPARE(rows(),
                 QStringList({u"Section,Best time,Session,Driver,Lap,In best lap,Difference"_s,
                              u"Section 1,00:01.600,B,b,3,00:02.000,+0.400"_s,
                              u"Section 2,00:02.100,A,a,2,00:02.100,0.000"_s,
                              u"Ideal time,00:03.700,,,,00:04.100,+0.400"_s,
                              u"Best lap,00:04.100,A,a,2,,+0.400"_s,
                              u"Best continuous lap, from the end of section 1,00:03.800,"
                              "A,a,2 to 3,,+0.100"_s}));
        // The end of a lap that was thrown out is no part of a continuous lap either.
        a->setLapValid(1, false);
        QCOMPARE(rows().mid(2), QStringList({u"Section 2,00:02.400,A,a,3,00:02.400,0.000"_s,
                                             u"Ideal time,00:04.000,,,,00:04.100,+0.100"_s,
                                             u"Best lap,00:04.100,A,a,3,,+0.100"_s,
                                             u"Best continuous lap,00:04.100,A,a,3,,+0.100"_s}));
    }

    // With sessions that were never displayed, one of them of another place and one of no map's.
    void dialog()
    {
        const QTemporaryDir folder;
        QVERIFY(writeDemoLibrary(folder.filePath(u"Norvale"_s)).ok());
        const Settings settings(folder.path());
        MapLibrary maps;
        maps.loadMaps(settings.mapsFolder());
        AcquisitionLibrary library;
        library.load(settings.acquisitionFolder());
        QList<Session *> sessions;
        for (Session *session : library.sessions()) {
            const QString name = session->fileName();
            if (name.contains(u"Valmora") || name.contains(u"Hill")
                || name.startsWith(u"2026-05-24 14"))
                sessions.append(session);
        }
        QCOMPARE(sessions.size(), 6);
        // One was displayed and has let go of its laps again.
        Session *released
            = *std::find_if(sessions.begin(), sessions.end(), [](const auto *session) {
                  return session->fileName().contains(u"Valmora");
              });
        released->smooth();
        chooseMapByLength(*released, findCandidates(*released, maps.maps()));
        released->release();
        makeOld(released->filePath());
        const auto before = filesIn(folder.path());
        const QMap<QString, bool> states = library.viewedStateMap();

        IdealTimeDialog dialog({maps, settings}, sessions);
        const QSignalSpy spy(&dialog, &IdealTimeDialog::lapRequested);
        dialog.show();
        const auto &close = child<QPushButton>(dialog, "pb_close");
        QCOMPARE(close.text(), u"Cancel"_s);
        QTRY_COMPARE(close.text(), u"Close"_s);
        const QString leftOut = child<QLabel>(dialog, "lb_leftOut").text();
        QVERIFY(leftOut.contains(u"Hill road: no map") && leftOut.contains(u"on \"Haidemoor\""));
        QCOMPARE(child<QLabel>(dialog, "lb_map").text(), u"Map : Valmora, sessions : 4 of 6"_s);

        auto *table = &child<QTableView>(dialog, "tw_idealTime");
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text().count(u'\n'), table->model()->rowCount() + 1);
        const QModelIndex first = table->model()->index(0, IdealTimeModel::SessionName);
        Q_EMIT table->doubleClicked(table->model()->index(5, 0)); // the total
        QCOMPARE(spy.size(), 0);
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(first).center());
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {},
                           table->visualRect(first).center());
        QCOMPARE(spy.size(), 1);
        QVERIFY(spy[0][0].toString().endsWith(first.data().toString() + u".ra1"));
        QVERIFY(!dialog.isVisible());

        // What is left of the sessions is new and not displayed.
        QCOMPARE(filesIn(folder.path()), before);
        QVERIFY(isOld(released->filePath()));
        QCOMPARE(library.viewedStateMap(), states);
        for (const Session *session : std::as_const(sessions))
            QVERIFY(session->laps().empty() && (session->map() == nullptr || session == released));

        sessions.removeOne(released);
        const MapLibrary noMaps;
        IdealTimeDialog empty({noMaps, settings}, sessions.first(2));
        empty.show();
        QTRY_VERIFY(child<QLabel>(empty, "lb_state").text().startsWith(u"None of these"));
    }
};

QTEST_MAIN(TestIdealTime)
#include "tst_idealtime.moc"
