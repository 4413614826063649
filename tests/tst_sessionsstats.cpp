// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <memory>
#include <vector>

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include <session/session.h>
#include <stats/checkablecombobox.h>
#include <stats/sessionsstats.h>
#include <stats/sessionsstatstablemodel.h>

#include "widgets.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

using Column = SessionsStatsTableModel::Column;

/// Sessions of a library, told apart by their notes: "0", "1", ... Each is described as
/// "date|time|track|best lap|ideal time|vehicle|driver|event|condition|temperature"; what is left
/// out at the end is empty.
struct Sessions
{
    explicit Sessions(const QStringList &descriptions)
    {
        for (const QString &description : descriptions) {
            const QStringList fields = description.split(u'|');
            owned.push_back(std::make_unique<Session>(u"ride.ra1"_s));
            Session &session = *owned.back();
            Recording recording;
            recording.date = fields.value(0);
            recording.time = fields.value(1);
            session.setRecording(recording);
            SessionInformation texts;
            qsizetype next = 2;
            for (auto *text : {&texts.circuitName, &texts.bestLapText, &texts.idealTimeText,
                               &texts.vehicle, &texts.driver, &texts.event, &texts.condition})
                text->set(fields.value(next++));
            texts.temperature = fields.value(next).toInt();
            texts.notes.set(QString::number(list.size()));
            session.setInformation(texts);
            list.append(&session);
        }
    }
    std::vector<std::unique_ptr<Session>> owned;
    QList<Session *> list;
};

bool isChecked(const QComboBox &box, int row)
{
    return box.itemData(row, Qt::CheckStateRole).toInt() == Qt::Checked;
}

/// The texts of a box's entries, the checked ones in brackets, and what the closed box shows.
QString entries(const QComboBox &box)
{
    QString texts;
    for (int row = 0; row < box.count(); ++row)
        texts += (isChecked(box, row) ? u"[%1] "_s : u"%1 "_s).arg(box.itemText(row));
    return texts + u": " + (box.currentIndex() < 0 ? box.placeholderText() : box.currentText());
}

void toggle(QComboBox &box, const QString &text)
{
    const int row = box.findText(text);
    box.setItemData(row, isChecked(box, row) ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

/// The window of a library, and its widgets.
struct Window
{
    explicit Window(const QList<Session *> &sessions) : stats(sessions)
    {
        stats.setModal(false);
        stats.resize(1400, 400);
        if (!showActive(stats))
            qFatal("the window stays inactive");
    }
    [[nodiscard]] CheckableComboBox &box(const char *name) const
    {
        return child<CheckableComboBox>(stats, name);
    }
    /// The numbers of the sessions listed, in the table's order.
    [[nodiscard]] QString listed() const
    {
        QStringList numbers;
        for (int row = 0; row < table.model()->rowCount(); ++row)
            numbers.append(table.model()->index(row, Column::Notes).data().toString());
        return numbers.join(u' ');
    }
    [[nodiscard]] QString count() const { return child<QLabel>(stats, "lb_count").text(); }

    SessionsStats stats;
    QTableView &table = child<QTableView>(stats, "tw_stats");
    QPushButton &reset = child<QPushButton>(stats, "pb_reset");
};

} // namespace

class TestSessionsStats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The signal's argument is a class that its header only announces.
    void initTestCase() { qRegisterMetaType<Session *>("zuno::Session*"); }

    void model()
    {
        const Sessions sessions({u"3/5/2026|10:11|Hill|01:02.003|01:01.001|R6|Ann|Cup|Wet|99"_s});
        const SessionsStatsTableModel model(sessions.list);
        QStringList texts;
        for (int column = 0; column < model.columnCount(); ++column)
            texts.append(model.index(0, column).data().toString());
        // 99 stands for a temperature that nobody noted.
        QCOMPARE(texts.join(u'|'),
                 u"3/5/2026 - 10:11|Hill|01:02.003|01:01.001|R6|Ann|Cup|Wet|||0"_s);
    }

    // What a session starts with is nothing that somebody entered.
    void untouched()
    {
        Session session(u"ride.ra1"_s);
        const SessionsStatsTableModel model({&session});
        const auto texts = [&model]() -> QString {
            return model.index(0, Column::Condition).data().toString()
                   + model.index(0, Column::Temperature).data().toString();
        };
        QCOMPARE(texts(), u""_s);
        session.setDriver(u"Ann"_s);
        QCOMPARE(texts(), u"Dry20"_s);
    }

    void boxEntries()
    {
        for (const auto &[toggled, result] :
             {std::pair("Bob,(empty)", u"All [(empty)] Ann [Bob] : Multiple"_s),
              std::pair("Bob,Bob", u"[All] (empty) Ann Bob : All"_s),
              std::pair("Bob,Ann,All", u"[All] (empty) Ann Bob : All"_s),
              std::pair("All", u"[All] (empty) Ann Bob : All"_s)}) {
            CheckableComboBox box;
            box.setPlaceholderText(u"Multiple"_s);
            box.setValues({QString(), u"Ann"_s, u"Bob"_s});
            for (const QString &text : QString::fromLatin1(toggled).split(u',', Qt::SkipEmptyParts))
                toggle(box, text);
            QCOMPARE(entries(box), result);
        }
    }

    // The list stays open while entries are checked, by key or anywhere on an entry.
    void popup()
    {
        const Sessions sessions({u"1/1/2026||Hill|1||R6|<b>"_s, u"1/1/2026||Hill|1||R6|Ann"_s});
        const Window window(sessions.list);
        CheckableComboBox &box = window.box("cb_driver");
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_End); // The closed box chooses nothing.
        QTest::keyClick(&box, Qt::Key_Space);
        QTRY_VERIFY(box.view()->isVisible());
        const QRect first = box.view()->visualRect(box.model()->index(1, 0));
        QTest::mouseRelease(box.view()->viewport(), Qt::LeftButton, {}, first.center());
        QCOMPARE(entries(box), u"[All] <b> Ann : All"_s); // The click that opened the list.
        QTest::mouseClick(box.view()->viewport(), Qt::LeftButton, {}, first.center());
        QCOMPARE(entries(box), u"All [<b>] Ann : <b>"_s);
        QVERIFY(!box.toolTip().contains(u"<b>")); // A name is no markup.
        QTest::keyClick(box.view(), Qt::Key_Down);
        QTest::keyClick(box.view(), Qt::Key_Space);
        QTest::keyClick(box.view(), Qt::Key_Return);
        QTRY_VERIFY(!box.view()->isVisible());
        QCOMPARE(entries(box), u"All [<b>] [Ann] : Multiple"_s);
    }

    void filters()
    {
        const Sessions sessions(
            {u"1/1/2026|9:00|Hill|1||R6|Paul|Cup|Dry"_s,
             u"2/1/2026|9:00|Hill|1||R6|Paula|CUP|Wet"_s, u"2/1/2026|9:00|Hill|||R6|Paul|Cup|Dry"_s,
             u"2/1/2026|9:00|Heath|1||MT|pAUL|x|Dry"_s, u"|9:00|Heath||1|MT||x|Dry"_s});
        const Window window(sessions.list);
        for (const auto &[toggled, listed] :
             {std::pair(u"cb_driver=Paul"_s, u"0 3"_s),
              std::pair(u"cb_driver=(empty) cb_driver=Paula"_s, u"1 4"_s),
              std::pair(u"cb_driver=Paul cb_track=Hill"_s, u"0"_s),
              std::pair(u"cb_date=2/1/2026 cb_weather=Dry"_s, u"3"_s),
              std::pair(u"cb_vehicle=R6 cb_event=Cup"_s, u"0 1"_s)}) {
            for (const QString &choice : toggled.split(u' '))
                toggle(window.box(choice.section(u'=', 0, 0).toLatin1()), choice.section(u'=', 1));
            QCOMPARE(window.listed(), listed);
            QCOMPARE(window.count(), u"Sessions : %1 of 5"_s.arg(listed.count(u' ') + 1));
            window.reset.click();
            QCOMPARE(window.listed(), u"0 1 3 4"_s);
        }
    }

    void sorting()
    {
        const QString dates
            = u"9.2.26|9:00||1 2026-02-08|||1 later|||1 31/12/2025|||1 30/02/26|||1"_s;
        const QString laps = u"|||59:59.999 |||01::00:00.000 ||||1 |||09:00.000"_s;
        const std::tuple<Column, QString, QString, QString> rows[] {
            {Column::Date, dates, u"3 1 0 4 2"_s, u"0 1 3 2 4"_s},
            {Column::BestLap, laps, u"3 0 1 2"_s, u"1 0 3 2"_s},
            {Column::Temperature, u"|||1||||||9 |||1||||||99 |||1||||||100"_s, u"0 2 1"_s,
             u"2 0 1"_s},
            {Column::Driver, u"|||1|||b |||1|||A |||1|||a |||1|||C"_s, u"1 2 0 3"_s, u"3 0 1 2"_s},
        };
        for (const auto &[column, descriptions, up, down] : rows) {
            const Sessions sessions(descriptions.split(u' '));
            const Window window(sessions.list);
            window.table.sortByColumn(column, Qt::AscendingOrder);
            QCOMPARE(window.listed(), up);
            window.table.sortByColumn(column, Qt::DescendingOrder);
            window.reset.click();
            QCOMPARE(window.listed(), down);
        }
    }

    // Copies of a file have the same name and track: the row decides.
    void goToSession()
    {
        const Sessions sessions({u"||Hill|3"_s, u"||Hill|1"_s, u"||Hill|"_s, u"||Hill|2"_s});
        const Window window(sessions.list);
        const QSignalSpy wishes(&window.stats, &SessionsStats::goToSession);
        QTest::keyClick(&window.table, Qt::Key_Return);
        QCOMPARE(wishes.count(), 0); // No row is current yet.
        const QModelIndex index = window.table.model()->index(2, Column::Track);
        const QPoint position = window.table.visualRect(index).center();
        QTest::mouseClick(window.table.viewport(), Qt::LeftButton, {}, position);
        QCOMPARE(wishes.count(), 0);
        QTest::mouseDClick(window.table.viewport(), Qt::LeftButton, {}, position);
        QTest::keyClick(&window.table, Qt::Key_Enter);
        QCOMPARE(wishes.count(), 2);
        for (const QList<QVariant> &wish : wishes)
            QCOMPARE(wish.first().value<Session *>(), sessions.list[3]);
    }

    void libraryChanges()
    {
        const Sessions old({u"1/1/2026||Hill|1||R6|Paul"_s, u"2/1/2026||Hill|1||R6|Ann"_s});
        Sessions sessions({u"1/2/2026||Hill|1||R6|Bob"_s, u"1/3/2026||Heath|1||R6|PAUL"_s});
        Window window(old.list);
        const QAbstractItemModelTester tester(window.table.model());
        toggle(window.box("cb_driver"), u"Paul"_s);
        toggle(window.box("cb_date"), u"2/1/2026"_s);
        window.stats.setSessions(sessions.list);
        QCOMPARE(entries(window.box("cb_driver")), u"All Bob [PAUL] : PAUL"_s);
        // A chosen value that no session has any more must not hide them all.
        QCOMPARE(entries(window.box("cb_date")), u"[All] 1/2/2026 1/3/2026 : All"_s);
        QCOMPARE(window.listed(), u"1"_s);
        window.table.selectRow(0);
        sessions.list[0]->setDriver(u"paul"_s);
        window.stats.refreshSoon();
        QTRY_COMPARE(window.listed(), u"0 1"_s);
        QCOMPARE(window.table.currentIndex().row(), 1);
        sessions.owned.erase(sessions.owned.begin());
        QCOMPARE(window.listed() + window.count(), u"1Sessions : 1 of 1"_s);
        sessions.owned.clear();
        window.reset.click();
        QCOMPARE(window.listed() + window.count(), u"Sessions : 0 of 0"_s);
        window.stats.setSessions({});
        QCOMPARE(entries(window.box("cb_driver")), u"[All] : All"_s);
    }
};

QTEST_MAIN(TestSessionsStats)
#include "tst_sessionsstats.moc"
