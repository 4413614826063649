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
#include <stats/sessionfilter.h>
#include <stats/sessionsstats.h>
#include <stats/sessionsstatstablemodel.h>

using namespace zuno;
using namespace Qt::StringLiterals;

namespace {

using Column = SessionsStatsTableModel::Column;
using Field = SessionFilter::Field;
using Emptiness = SessionFilter::Emptiness;

/// "date|time|track|best lap|ideal time|vehicle|driver|event|condition|temperature"; what is left
/// out at the end is empty.
std::unique_ptr<Session> sessionOf(const QString &description)
{
    const QStringList fields = description.split(u'|');
    auto session = std::make_unique<Session>(u"ride.ra1"_s);
    Recording recording;
    recording.date = fields.value(0);
    recording.time = fields.value(1);
    session->setRecording(recording);
    SessionInformation texts;
    qsizetype next = 2;
    for (auto *text : {&texts.circuitName, &texts.bestLapText, &texts.idealTimeText, &texts.vehicle,
                       &texts.driver, &texts.event, &texts.condition})
        text->set(fields.value(next++));
    texts.temperature = fields.value(next).toInt();
    session->setInformation(texts);
    return session;
}

/// Sessions of a library, told apart by their notes: "0", "1", ...
struct Sessions
{
    explicit Sessions(const QStringList &descriptions)
    {
        for (const QString &description : descriptions) {
            owned.push_back(sessionOf(description));
            owned.back()->setNotes(QString::number(owned.size() - 1));
            list.append(owned.back().get());
        }
    }
    std::vector<std::unique_ptr<Session>> owned;
    QList<Session *> list;
};

QString columnText(const QAbstractItemModel &model, int column)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts.append(model.index(row, column).data().toString());
    return texts.join(u' ');
}

/// The texts of a box's entries, the checked ones in brackets, and what the closed box shows.
QString entries(const QComboBox &box)
{
    QString texts;
    for (int row = 0; row < box.count(); ++row) {
        const bool isChecked = box.itemData(row, Qt::CheckStateRole).toInt() == Qt::Checked;
        texts += (isChecked ? u"[%1] "_s : u"%1 "_s).arg(box.itemText(row));
    }
    return texts + u": " + (box.currentIndex() < 0 ? box.placeholderText() : box.currentText());
}

void toggle(QComboBox &box, const QString &text)
{
    const int row = box.findText(text);
    const bool isChecked = box.itemData(row, Qt::CheckStateRole).toInt() == Qt::Checked;
    box.setItemData(row, isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

/// The window of a library, and its widgets.
struct Window
{
    explicit Window(const QList<Session *> &sessions) : stats(sessions) { stats.setModal(false); }
    [[nodiscard]] bool show()
    {
        stats.resize(1400, 400);
        stats.show();
        stats.activateWindow();
        return QTest::qWaitForWindowActive(&stats);
    }
    [[nodiscard]] CheckableComboBox &box(const QString &name) const
    {
        return *stats.findChild<CheckableComboBox *>(name);
    }
    /// The numbers of the sessions listed, in the table's order.
    [[nodiscard]] QString listed() const { return columnText(*table.model(), Column::Notes); }
    void clickReset() const { stats.findChild<QPushButton *>(u"pb_reset"_s)->click(); }
    [[nodiscard]] QString count() const { return stats.findChild<QLabel *>(u"lb_count"_s)->text(); }

    SessionsStats stats;
    QTableView &table = *stats.findChild<QTableView *>(u"tw_stats"_s);
};

} // namespace

class TestSessionsStats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The signal's argument is a class that its header only announces.
    void initTestCase() { qRegisterMetaType<Session *>("zuno::Session*"); }
    void filterRules();
    void model();
    void boxEntries();
    void popup();
    void filters();
    void sorting();
    void goToSession();
    void listReplaced();
    void sessionsDeleted();
};

void TestSessionsStats::filterRules()
{
    const QString full = u"1/2/2026|9:00|Hill|01:00.000|00:59.000|R6|Paul|Cup|Dry"_s;
    const QString bare = u"|9:00|Hill||00:59.000"_s;
    constexpr auto Listed = Emptiness::Listed;
    constexpr auto Any = Emptiness::Any;
    const struct
    {
        const char *name;
        QString session;
        Field field;
        QStringList values;
        Emptiness emptiness;
        bool isAccepted;
    } rows[] {
        {"whatever the case", full, Field::Driver, {u"Ann"_s, u"pAUL"_s}, Listed, true},
        {"part of a value", full, Field::Driver, {u"Pau"_s, u"Paula"_s}, Any, false},
        {"value of another field", full, Field::Event, {u"Paul"_s}, Listed, false},
        {"another date", full, Field::Date, {u"01/02/2026"_s}, Any, false},
        {"empty, taken with any", bare, Field::Driver, {u"Ann"_s}, Any, true},
        {"empty, not taken", bare, Field::Driver, {u"Ann"_s}, Listed, false},
        {"empty, listed", bare, Field::Driver, {u""_s}, Listed, true},
        {"empty date is no wildcard", bare, Field::Date, {u"1/2/2026"_s}, Any, false},
        {"no times", u"1/2/2026||Hill"_s, Field::Track, {u"Hill"_s}, Any, false},
    };
    for (const auto &row : rows) {
        const std::unique_ptr<Session> ride = sessionOf(row.session);
        SessionFilter filter;
        // It meets the conditions of the other fields.
        for (const Field other : SessionFilter::Fields)
            filter.setCondition(other, {SessionFilter::valueOf(*ride, other)}, Listed);
        filter.setCondition(row.field, row.values, row.emptiness);
        QVERIFY2(filter.accepts(*ride) == row.isAccepted, row.name);
    }
}

void TestSessionsStats::model()
{
    const QString full = u"3/5/2026|10:11|Hill|01:02.003|01:01.001|R6|Ann|Cup|Wet|99"_s;
    const Sessions sessions({full, u"2/1/2026|9:00|B|01:00.000"_s, u"3/1/2026|9:00|C"_s});
    sessions.owned[0]->setTyres(u"soft"_s);
    SessionsStatsTableModel model(sessions.list);
    SessionsSortModel sorted(model);
    using Mode = QAbstractItemModelTester::FailureReportingMode;
    const QAbstractItemModelTester tester(&model, Mode::QtTest);
    const QAbstractItemModelTester sortedTester(&sorted, Mode::QtTest);
    QStringList headers;
    QStringList texts;
    for (int column = 0; column < model.columnCount(); ++column) {
        headers.append(model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
        texts.append(model.index(0, column).data().toString());
    }
    QCOMPARE(headers.join(u'|'),
             u"Date|Track|Best Lap|Ideal Time|Vehicle|Driver|Event|Track condition|"
             "Track temperature|Tires|Notes"_s);
    // 99 stands for a temperature that nobody noted.
    QCOMPARE(texts.join(u'|'),
             u"3/5/2026 - 10:11|Hill|01:02.003|01:01.001|R6|Ann|Cup|Wet||soft|0"_s);
    sorted.sort(Column::Track, Qt::DescendingOrder);
    model.show(sessions.list, {});
    QCOMPARE(columnText(sorted, Column::Track), u"Hill B"_s);
    model.forget(sessions.owned[1].get());
    QCOMPARE(columnText(sorted, Column::Track), u"Hill"_s);
}

void TestSessionsStats::boxEntries()
{
    for (const auto &[toggled, result] :
         {std::pair("", u"[All] (empty) Ann Bob : All"_s),
          std::pair("Bob", u"All (empty) Ann [Bob] : Bob"_s),
          std::pair("Bob,(empty)", u"All [(empty)] Ann [Bob] : Multiple"_s),
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
void TestSessionsStats::popup()
{
    const Sessions sessions({u"1/1/2026||Hill|1||R6|<b>"_s, u"1/1/2026||Hill|1||R6|Ann"_s});
    Window window(sessions.list);
    QVERIFY(window.show());
    CheckableComboBox &box = window.box(u"cb_driver"_s);
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_End); // The closed box chooses nothing.
    QCOMPARE(entries(box), u"[All] <b> Ann : All"_s);
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
    QVERIFY(box.view()->isVisible());
    QTest::keyClick(box.view(), Qt::Key_Return);
    QTRY_VERIFY(!box.view()->isVisible());
    QCOMPARE(entries(box), u"All [<b>] [Ann] : Multiple"_s);
}

void TestSessionsStats::filters()
{
    const Sessions sessions(
        {u"1/1/2026|9:00|Hill|1||R6|Paul|Cup|Dry"_s, u"2/1/2026|9:00|Hill|1||R6|Ann|CUP|Wet"_s,
         u"2/1/2026|9:00|Hill|||R6|Paul|Cup|Dry"_s, u"2/1/2026|9:00|Heath|1||MT|pAUL|x|Dry"_s,
         u"3/1/2026|9:00|Heath||1|MT||x|Dry"_s});
    const Window window(sessions.list);
    for (const auto &[toggled, listed] : {std::pair(u"cb_driver=Paul"_s, u"0 3"_s),
                                          std::pair(u"cb_driver=(empty) cb_driver=Ann"_s, u"1 4"_s),
                                          std::pair(u"cb_driver=Paul cb_track=Hill"_s, u"0"_s),
                                          std::pair(u"cb_date=2/1/2026 cb_weather=Wet"_s, u"1"_s),
                                          std::pair(u"cb_vehicle=R6 cb_event=Cup"_s, u"0 1"_s)}) {
        for (const QString &choice : toggled.split(u' '))
            toggle(window.box(choice.section(u'=', 0, 0)), choice.section(u'=', 1));
        QCOMPARE(window.listed(), listed);
        QCOMPARE(window.count(), u"Sessions : %1 of 5"_s.arg(listed.count(u' ') + 1));
        window.clickReset();
        QCOMPARE(window.listed(), u"0 1 3 4"_s);
    }
}

void TestSessionsStats::sorting()
{
    const QString dates = u"9.2.26|9:00||1 2026-02-08|||1 later|||1 31/12/2025|||1 30/02/26|||1"_s;
    const QString laps = u"|||59:59.999 |||01::00:00.000 ||||1 |||09:00.000"_s;
    const struct
    {
        int column;
        QString sessions;
        const char *up;
        const char *down;
    } rows[] {
        {Column::Date, dates, "3 1 0 4 2", "0 1 3 2 4"},
        {Column::BestLap, laps, "3 0 1 2", "1 0 3 2"},
        {Column::Temperature, u"|||1||||||9 |||1||||||99 |||1||||||100"_s, "0 2 1", "2 0 1"},
        {Column::Driver, u"|||1|||b |||1|||A |||1|||a |||1|||C"_s, "1 2 0 3", "3 0 1 2"},
    };
    for (const auto &row : rows) {
        const Sessions library(row.sessions.split(u' '));
        Window window(library.list);
        window.table.sortByColumn(row.column, Qt::AscendingOrder);
        QCOMPARE(window.listed(), QString::fromLatin1(row.up));
        window.table.sortByColumn(row.column, Qt::DescendingOrder);
        window.clickReset();
        QCOMPARE(window.listed(), QString::fromLatin1(row.down));
    }
}

// Copies of a file have the same name and track: the row decides.
void TestSessionsStats::goToSession()
{
    const Sessions sessions({u"||Hill|3"_s, u"||Hill|1"_s, u"||Hill|"_s, u"||Hill|2"_s});
    Window window(sessions.list);
    QVERIFY(window.show());
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
        QCOMPARE(wish.first().value<Session *>(), sessions.owned[3].get());
    QVERIFY(window.stats.isVisible());
}

void TestSessionsStats::listReplaced()
{
    const Sessions old({u"1/1/2026||Hill|1||R6|Paul"_s, u"2/1/2026||Hill|1||R6|Ann"_s});
    const Sessions sessions({u"1/2/2026||Hill|1||R6|Bob"_s, u"1/3/2026||Heath|1||R6|PAUL"_s});
    Window window(old.list);
    toggle(window.box(u"cb_driver"_s), u"Paul"_s);
    toggle(window.box(u"cb_date"_s), u"2/1/2026"_s);
    window.stats.setSessions(sessions.list);
    QCOMPARE(entries(window.box(u"cb_driver"_s)), u"All Bob [PAUL] : PAUL"_s);
    // A chosen value that no session has any more must not hide them all.
    QCOMPARE(entries(window.box(u"cb_date"_s)), u"[All] 1/2/2026 1/3/2026 : All"_s);
    QCOMPARE(window.listed(), u"1"_s);
    window.stats.setSessions({});
    QCOMPARE(window.count(), u"Sessions : 0 of 0"_s);
    QCOMPARE(entries(window.box(u"cb_driver"_s)), u"[All] : All"_s);
}

void TestSessionsStats::sessionsDeleted()
{
    Sessions sessions({u"||Hill|1"_s, u"||Hill|1"_s, u"||Hill|"_s, u"||Heath|1"_s});
    Window window(sessions.list);
    window.table.selectRow(2);
    sessions.owned.erase(sessions.owned.begin());
    QCOMPARE(window.listed(), u"1 3"_s);
    QCOMPARE(window.count(), u"Sessions : 2 of 3"_s);
    QCOMPARE(window.table.currentIndex().row(), 1);
    toggle(window.box(u"cb_track"_s), u"Heath"_s);
    QCOMPARE(window.listed(), u"3"_s);
    QCOMPARE(window.table.currentIndex().row(), 0);
    sessions.owned.clear();
    window.clickReset();
    QCOMPARE(window.listed(), QString());
}

QTEST_MAIN(TestSessionsStats)
#include "tst_sessionsstats.moc"
