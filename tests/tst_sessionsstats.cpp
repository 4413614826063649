// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <memory>
#include <vector>

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTest>
#include <QWheelEvent>

#include <session/session.h>
#include <stats/checkablecombobox.h>
#include <stats/sessionfilter.h>
#include <stats/sessionsstats.h>
#include <stats/sessionsstatstablemodel.h>

using namespace zuno;
using namespace Qt::StringLiterals;

namespace {

using Column = SessionsStatsTableModel::Column;

using SessionPointer = std::unique_ptr<Session>;

/// "date|time|track|best lap|ideal time|vehicle|driver|event|condition|temperature"; what is left
/// out at the end is empty.
SessionPointer sessionOf(const QString &description)
{
    const QStringList fields = description.split(u'|');
    auto session = std::make_unique<Session>(u"ride.ra1"_s);
    Recording recording;
    recording.date = fields.value(0);
    recording.time = fields.value(1);
    session->setRecording(recording);
    SessionInformation information;
    information.circuitName.set(fields.value(2));
    information.bestLapText.set(fields.value(3));
    information.idealTimeText.set(fields.value(4));
    information.vehicle.set(fields.value(5));
    information.driver.set(fields.value(6));
    information.event.set(fields.value(7));
    information.condition.set(fields.value(8));
    information.temperature = fields.value(9).toInt();
    session->setInformation(information);
    return session;
}

/// Sessions of a library, told apart by their notes: "0", "1", ...
class Sessions
{
public:
    Sessions(std::initializer_list<const char *> descriptions)
    {
        for (const char *description : descriptions)
            add(QString::fromUtf8(description));
    }
    explicit Sessions(const QStringList &descriptions)
    {
        for (const QString &description : descriptions)
            add(description);
    }
    void add(const QString &description)
    {
        m_sessions.push_back(sessionOf(description));
        m_sessions.back()->setNotes(QString::number(m_sessions.size() - 1));
    }
    void remove(std::size_t index)
    {
        m_sessions.erase(m_sessions.begin() + static_cast<std::ptrdiff_t>(index));
    }
    [[nodiscard]] Session *at(std::size_t index) const { return m_sessions[index].get(); }
    [[nodiscard]] QList<Session *> list() const
    {
        QList<Session *> list;
        for (const SessionPointer &session : m_sessions)
            list.append(session.get());
        return list;
    }

private:
    std::vector<SessionPointer> m_sessions;
};

QString columnText(const QAbstractItemModel &model, int column)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts.append(model.index(row, column).data().toString());
    return texts.join(u' ');
}

/// The texts of a box's entries; the checked ones in brackets.
QString entries(const QComboBox &box)
{
    QStringList texts;
    for (int row = 0; row < box.count(); ++row) {
        const QString text = box.itemText(row);
        const bool isChecked = box.itemData(row, Qt::CheckStateRole).toInt() == Qt::Checked;
        texts.append(isChecked ? u'[' + text + u']' : text);
    }
    return texts.join(u' ');
}

QString shownText(const QComboBox &box)
{
    return box.currentIndex() < 0 ? box.placeholderText() : box.currentText();
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
        stats.show();
        stats.activateWindow();
        return QTest::qWaitForWindowActive(&stats);
    }
    [[nodiscard]] CheckableComboBox &box(const char *name) const
    {
        return *stats.findChild<CheckableComboBox *>(QString::fromLatin1(name));
    }
    /// The numbers of the sessions listed, in the table's order.
    [[nodiscard]] QString listed() const { return columnText(*table.model(), Column::Notes); }
    [[nodiscard]] QPoint cell(int row, int column) const
    {
        return table.visualRect(table.model()->index(row, column)).center();
    }
    void clickHeader(int column) const
    {
        QHeaderView &header = *table.horizontalHeader();
        table.scrollTo(table.model()->index(0, column));
        const QPoint position(header.sectionViewportPosition(column)
                                  + header.sectionSize(column) / 2,
                              header.height() / 2);
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, position);
    }
    void clickReset() const { stats.findChild<QPushButton *>(u"pb_reset"_s)->click(); }
    [[nodiscard]] QString count() const { return stats.findChild<QLabel *>(u"lb_count"_s)->text(); }

    SessionsStats stats;
    QTableView &table = *stats.findChild<QTableView *>(u"tw_stats"_s);
};

constexpr std::array BoxNames {"cb_date",   "cb_track", "cb_vehicle",
                               "cb_driver", "cb_event", "cb_weather"};

} // namespace

class TestSessionsStats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void filterRules_data();
    void filterRules();
    void valuesAreCollected_data();
    void valuesAreCollected();

    void cells_data();
    void cells();
    void modelKeepsItsContract();
    void rowsWithoutSession();

    void window();
    void entriesExcludeEachOther_data();
    void entriesExcludeEachOther();
    void filtersNarrow_data();
    void filtersNarrow();
    void resetListsAll();
    void noSessions();

    void sorting_data();
    void sorting();
    void listOrderUntilSorted();

    void goToSession_data();
    void goToSession();
    void goToSessionNeedsRow();

    void listReplaced();
    void sessionsDeleted();
    void describedMeanwhile();
    void currentRowStays();

    void popupByKeyboard();
    void popupByMouse();
    void closedBoxIgnoresChoosing();
    void textsArePlain();
};

// The signal's argument is a class that its header only announces.
void TestSessionsStats::initTestCase()
{
    qRegisterMetaType<Session *>("zuno::Session*");
}

void TestSessionsStats::filterRules_data()
{
    using Emptiness = SessionFilter::Emptiness;
    QTest::addColumn<QString>("session");
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("values");
    QTest::addColumn<bool>("anyEmpty");
    QTest::addColumn<bool>("accepted");

    const QString full = u"1/2/2026|9:00|Hill|01:00.000|00:59.000|R6|Paul|Cup|Dry"_s;
    const QString bare = u"1/2/2026|9:00||01:00.000"_s;
    const auto row = [](const char *name, const QString &session, SessionFilter::Field field,
                        const QString &values, Emptiness emptiness, bool accepted) {
        QTest::newRow(name) << session << static_cast<int>(field) << values
                            << (emptiness == Emptiness::Any) << accepted;
    };
    const auto Listed = Emptiness::Listed;
    const auto Any = Emptiness::Any;
    using F = SessionFilter::Field;
    row("value", full, F::Driver, u"Ann,Paul"_s, Listed, true);
    row("value in another case", full, F::Driver, u"pAUL"_s, Listed, true);
    row("part of a value", full, F::Driver, u"Pau,Paula"_s, Listed, false);
    row("no value of the list", full, F::Driver, u"Ann"_s, Any, false);
    row("value of another field", full, F::Event, u"Paul"_s, Listed, false);
    row("empty, taken with any", bare, F::Driver, u"Ann"_s, Any, true);
    row("empty, not taken", bare, F::Driver, u"Ann"_s, Listed, false);
    row("empty, listed", bare, F::Driver, u"-"_s, Listed, true);
    row("empty track", bare, F::Track, u"Hill"_s, Any, true);
    row("date", full, F::Date, u"1/2/2026"_s, Listed, true);
    row("another date", full, F::Date, u"01/02/2026"_s, Any, false);
    row("empty date is no wildcard", u"||Hill|01:00.000"_s, F::Date, u"1/2/2026"_s, Any, false);
    row("empty date, listed", u"||Hill|01:00.000"_s, F::Date, u"-"_s, Any, true);
    row("ideal time only", u"1/2/2026||Hill||00:59.000|R6|Paul"_s, F::Driver, u"Paul"_s, Listed,
        true);
    row("no times", u"1/2/2026||Hill|||R6|Paul"_s, F::Driver, u"Paul"_s, Listed, false);
}

void TestSessionsStats::filterRules()
{
    QFETCH(QString, session);
    QFETCH(int, field);
    QFETCH(QString, values);
    QFETCH(bool, anyEmpty);
    QFETCH(bool, accepted);
    const SessionPointer ride = sessionOf(session);
    SessionFilter filter;
    const bool hasTime = !ride->bestLapText().isEmpty() || !ride->idealTimeText().isEmpty();
    QCOMPARE(filter.accepts(*ride), hasTime);
    for (const SessionFilter::Field other : SessionFilter::Fields)
        filter.setCondition(other, {SessionFilter::valueOf(*ride, other)},
                            SessionFilter::Emptiness::Listed);
    filter.setCondition(static_cast<SessionFilter::Field>(field),
                        values == u'-' ? QStringList {QString()} : values.split(u','),
                        anyEmpty ? SessionFilter::Emptiness::Any
                                 : SessionFilter::Emptiness::Listed);
    QCOMPARE(filter.accepts(*ride), accepted);
}

void TestSessionsStats::valuesAreCollected_data()
{
    QTest::addColumn<QString>("drivers");
    QTest::addColumn<QString>("values");

    QTest::newRow("none") << QString() << QString();
    QTest::newRow("once each") << u"Paul,Ann,Paul"_s << u"Ann,Paul"_s;
    QTest::newRow("first spelling stays") << u"paul,Paul,PAUL"_s << u"paul"_s;
    QTest::newRow("order ignores case") << u"b,A,c,a,C"_s << u"A,b,c"_s;
    QTest::newRow("empty one too") << u"Paul,,Ann,"_s << u",Ann,Paul"_s;
    QTest::newRow("blanks count") << u"Paul, Paul"_s << u" Paul,Paul"_s;
    QTest::newRow("beyond ASCII") << u"Émile,ÉMILE,émile"_s << u"Émile"_s;
}

void TestSessionsStats::valuesAreCollected()
{
    QFETCH(QString, drivers);
    QFETCH(QString, values);
    Sessions sessions({});
    if (!drivers.isEmpty()) {
        for (const QString &driver : drivers.split(u','))
            sessions.add(u"||||||"_s + driver);
    }
    const QStringList found
        = SessionFilter::valuesOf(sessions.list(), SessionFilter::Field::Driver);
    QCOMPARE(found.join(u','), values);
}

void TestSessionsStats::cells_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("header");
    QTest::addColumn<QString>("text");

    QTest::newRow("date") << int(Column::Date) << u"Date"_s << u"03/05/2026 - 10:11:12"_s;
    QTest::newRow("track") << int(Column::Track) << u"Track"_s << u"Hill"_s;
    QTest::newRow("best lap") << int(Column::BestLap) << u"Best Lap"_s << u"01:02.003"_s;
    QTest::newRow("ideal time") << int(Column::IdealTime) << u"Ideal Time"_s << u"01:01.001"_s;
    QTest::newRow("vehicle") << int(Column::Vehicle) << u"Vehicle"_s << u"R6"_s;
    QTest::newRow("driver") << int(Column::Driver) << u"Driver"_s << u"Ann"_s;
    QTest::newRow("event") << int(Column::Event) << u"Event"_s << u"Cup"_s;
    QTest::newRow("condition") << int(Column::Condition) << u"Track condition"_s << u"Wet"_s;
    QTest::newRow("temperature") << int(Column::Temperature) << u"Track temperature"_s << u"20"_s;
    QTest::newRow("tyres") << int(Column::Tyres) << u"Tires"_s << u"soft"_s;
    QTest::newRow("notes") << int(Column::Notes) << u"Notes"_s << u"rain,\nlater"_s;
}

void TestSessionsStats::cells()
{
    QFETCH(int, column);
    QFETCH(QString, header);
    QFETCH(QString, text);
    const SessionPointer session
        = sessionOf(u"03/05/2026|10:11:12|Hill|01:02.003|01:01.001|R6|Ann|Cup|Wet|20"_s);
    session->setTyres(u"soft"_s);
    session->setNotes(u"rain,\nlater"_s);
    const SessionsStatsTableModel model({session.get()});
    QCOMPARE(model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(), header);
    QVERIFY(!model.headerData(column, Qt::Horizontal, Qt::ToolTipRole).isValid());
    const QModelIndex index = model.index(0, column);
    for (int role = 0; role < Qt::UserRole + 10; ++role) {
        const QVariant value = model.data(index, role);
        if (role == Qt::DisplayRole)
            QCOMPARE(value, QVariant(text));
        else if (role == Qt::TextAlignmentRole)
            QCOMPARE(value.toInt(), int(Qt::AlignCenter));
        else
            QVERIFY2(!value.isValid(), qPrintable(QString::number(role)));
    }
    for (const auto &[degrees, shown] :
         {std::pair(98, u"98"_s), std::pair(99, QString()), std::pair(100, u"100"_s)}) {
        session->setTemperature(degrees);
        QCOMPARE(model.index(0, Column::Temperature).data().toString(), shown);
    }
}

void TestSessionsStats::modelKeepsItsContract()
{
    const Sessions sessions {"1/1/2026|9:00|A|01:00.000", "2/1/2026|9:00|B|01:00.000",
                             "3/1/2026|9:00|C"};
    SessionsStatsTableModel model(sessions.list());
    SessionsSortModel sorted(model);
    using Mode = QAbstractItemModelTester::FailureReportingMode;
    const QAbstractItemModelTester tester(&model, Mode::QtTest);
    const QAbstractItemModelTester sortedTester(&sorted, Mode::QtTest);
    QCOMPARE(columnText(model, Column::Track), u"A B C"_s);
    sorted.sort(Column::Track, Qt::DescendingOrder);
    SessionFilter filter;
    model.show(sessions.list(), filter);
    QCOMPARE(columnText(sorted, Column::Track), u"B A"_s);
    filter.setCondition(SessionFilter::Field::Track, {u"B"_s}, SessionFilter::Emptiness::Any);
    model.show(sessions.list(), filter);
    QCOMPARE(columnText(sorted, Column::Track), QString());
    model.show(sessions.list(), {});
    model.forget(sessions.at(0));
    QCOMPARE(columnText(sorted, Column::Track), u"B"_s);
    model.forget(sessions.at(0));
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.rowOf(sessions.at(1)), 0);
    QCOMPARE(model.rowOf(sessions.at(0)), -1);
}

void TestSessionsStats::rowsWithoutSession()
{
    const Sessions sessions {"1/1/2026||A|01:00.000", "2/1/2026||B|01:00.000"};
    SessionsStatsTableModel model(sessions.list());
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    for (const auto &[row, count] : {std::pair(-1, 1), std::pair(3, 1), std::pair(0, 0)})
        QVERIFY(!model.insertRows(row, count));
    for (const auto &[row, count] : {std::pair(-1, 1), std::pair(0, 3), std::pair(2, 1)})
        QVERIFY(!model.removeRows(row, count));
    QVERIFY(model.insertRows(1, 2));
    QCOMPARE(columnText(model, Column::Track), u"A   B"_s);
    QVERIFY(model.session(1) == nullptr);
    QVERIFY(model.session(4) == nullptr);
    SessionsSortModel sorted(model);
    sorted.sort(Column::BestLap);
    QCOMPARE(sorted.rowCount(), 4);
    QVERIFY(model.removeRows(0, 3));
    QCOMPARE(columnText(model, Column::Track), u"B"_s);
}

void TestSessionsStats::window()
{
    const SessionsStats stats({});
    QCOMPARE(stats.windowTitle(), u"Statistics"_s);
    QVERIFY(stats.isModal());
    QVERIFY(!stats.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
    QVERIFY(!stats.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QVERIFY(stats.windowFlags().testFlag(Qt::WindowCloseButtonHint));
    QStringList labels;
    for (const char *name : BoxNames) {
        const auto *const box = stats.findChild<QComboBox *>(QString::fromLatin1(name));
        QVERIFY2(box != nullptr, name);
        for (const QLabel *label : stats.findChildren<QLabel *>()) {
            if (label->buddy() == box)
                labels.append(label->text());
        }
    }
    QCOMPARE(labels.join(u'|'), u"Date :|Track :|Vehicle :|Driver :|Event :|Track condition :"_s);
    QCOMPARE(stats.findChild<QPushButton *>(u"pb_reset"_s)->text(), u"Reset all filters"_s);
    QCOMPARE(stats.findChild<QPushButton *>(u"pb_close"_s)->text(), u"Close"_s);
}

void TestSessionsStats::entriesExcludeEachOther_data()
{
    QTest::addColumn<QString>("toggled");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("shown");

    QTest::newRow("nothing") << QString() << u"[All] (empty) Ann Bob Paul"_s << u"All"_s;
    QTest::newRow("one") << u"Bob"_s << u"All (empty) Ann [Bob] Paul"_s << u"Bob"_s;
    QTest::newRow("two") << u"Bob,Ann"_s << u"All (empty) [Ann] [Bob] Paul"_s << u"Multiple"_s;
    QTest::newRow("back to one") << u"Bob,Ann,Bob"_s << u"All (empty) [Ann] Bob Paul"_s << u"Ann"_s;
    QTest::newRow("last one unchecked")
        << u"Bob,Bob"_s << u"[All] (empty) Ann Bob Paul"_s << u"All"_s;
    QTest::newRow("all") << u"Bob,Ann,All"_s << u"[All] (empty) Ann Bob Paul"_s << u"All"_s;
    QTest::newRow("all unchecked") << u"All"_s << u"[All] (empty) Ann Bob Paul"_s << u"All"_s;
    QTest::newRow("empty one") << u"(empty)"_s << u"All [(empty)] Ann Bob Paul"_s << u"(empty)"_s;
}

void TestSessionsStats::entriesExcludeEachOther()
{
    QFETCH(QString, toggled);
    QFETCH(QString, result);
    QFETCH(QString, shown);
    CheckableComboBox box;
    box.setPlaceholderText(u"Multiple"_s);
    box.setValues({QString(), u"Ann"_s, u"Bob"_s, u"Paul"_s});
    for (const QString &text : toggled.split(u',', Qt::SkipEmptyParts))
        toggle(box, text);
    QCOMPARE(entries(box), result);
    QCOMPARE(shownText(box), shown);
    QCOMPARE(box.isAllChecked(), shown == u"All");
    for (int row = 0; row < box.count(); ++row) {
        QCOMPARE(box.model()->flags(box.model()->index(row, 0)) & ~Qt::ItemNeverHasChildren,
                 Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
    }
}

void TestSessionsStats::filtersNarrow_data()
{
    QTest::addColumn<QString>("toggled");
    QTest::addColumn<QString>("listed");

    QTest::newRow("all") << QString() << u"0 1 3 4 5"_s;
    QTest::newRow("driver, any case") << u"cb_driver=Paul"_s << u"0 3"_s;
    QTest::newRow("two drivers") << u"cb_driver=Paul cb_driver=Ann"_s << u"0 1 3"_s;
    QTest::newRow("no driver") << u"cb_driver=(empty)"_s << u"4 5"_s;
    QTest::newRow("no driver or Ann") << u"cb_driver=(empty) cb_driver=Ann"_s << u"1 4 5"_s;
    QTest::newRow("driver and track") << u"cb_driver=Paul cb_track=Hill"_s << u"0"_s;
    QTest::newRow("nothing meets both") << u"cb_driver=Ann cb_track=Heath"_s << QString();
    QTest::newRow("date") << u"cb_date=02/01/2026"_s << u"1 3"_s;
    QTest::newRow("no date") << u"cb_date=(empty)"_s << u"5"_s;
    QTest::newRow("vehicle") << u"cb_vehicle=MT"_s << u"3"_s;
    QTest::newRow("event") << u"cb_event=Cup"_s << u"0 1"_s;
    QTest::newRow("condition") << u"cb_weather=Wet"_s << u"1"_s;
    QTest::newRow("and back") << u"cb_driver=Paul cb_driver=Paul"_s << u"0 1 3 4 5"_s;
}

void TestSessionsStats::filtersNarrow()
{
    QFETCH(QString, toggled);
    QFETCH(QString, listed);
    const Sessions sessions {
        "01/01/2026|9:00|Hill|01:00.000|00:59.000|R6|Paul|Cup|Dry",
        "02/01/2026|9:00|Hill|01:00.000|00:59.000|R6|Ann|CUP|Wet",
        "02/01/2026|9:00|Hill|||R6|Paul|Cup|Dry",
        "02/01/2026|9:00|Heath|01:00.000|00:59.000|MT|pAUL||dry",
        "03/01/2026|9:00||01:00.000|||||",
        "||Heath||00:59.000|r6",
    };
    const Window window(sessions.list());
    for (const QString &choice : toggled.split(u' ', Qt::SkipEmptyParts)) {
        const QByteArray name = choice.section(u'=', 0, 0).toLatin1();
        toggle(window.box(name.constData()), choice.section(u'=', 1));
    }
    QCOMPARE(window.listed(), listed);
    const qsizetype rows = window.table.model()->rowCount();
    QCOMPARE(window.count(), u"Sessions : %1 of 6"_s.arg(rows));
}

void TestSessionsStats::resetListsAll()
{
    const Sessions sessions {"01/01/2026||Hill|01:00.000||R6|Paul|Cup|Dry",
                             "02/01/2026||Heath|01:00.000||MT|Ann|Test|Wet"};
    const Window window(sessions.list());
    for (const char *name : BoxNames)
        window.box(name).setItemData(1, Qt::Checked, Qt::CheckStateRole);
    QVERIFY(window.listed() != u"0 1");
    window.clickReset();
    QCOMPARE(window.listed(), u"0 1"_s);
    for (const char *name : BoxNames)
        QCOMPARE(shownText(window.box(name)), u"All"_s);
}

void TestSessionsStats::noSessions()
{
    Window window({});
    QVERIFY(window.show());
    for (const char *name : BoxNames)
        QCOMPARE(entries(window.box(name)), u"[All]"_s);
    QCOMPARE(window.table.model()->rowCount(), 0);
    QCOMPARE(window.count(), u"Sessions : 0 of 0"_s);
    window.clickReset();
    window.clickHeader(Column::Date);
    const QSignalSpy wishes(&window.stats, &SessionsStats::goToSession);
    window.table.setFocus();
    QTest::keyClick(&window.table, Qt::Key_Return);
    QCOMPARE(wishes.count(), 0);
    QVERIFY(window.stats.isVisible());
}

void TestSessionsStats::sorting_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("sessions");
    QTest::addColumn<QString>("ascending");
    QTest::addColumn<QString>("descending");

    QTest::newRow("dates by time")
        << int(Column::Date)
        << u"02/01/2026|9:00 01/02/2026|9:00 31/12/2025|23:59:59 01/02/2026|10:00"_s << u"2 0 1 3"_s
        << u"3 1 0 2"_s;
    QTest::newRow("dates, year first")
        << int(Column::Date) << u"2026-02-10|9:00 2026-02-09|9:00 2025-12-31|9:00"_s << u"2 1 0"_s
        << u"0 1 2"_s;
    QTest::newRow("dates of all kinds")
        << int(Column::Date) << u"10.2.26|9:00 2026-02-09|9:00 11/02/2026|x 08/02/2026|"_s
        << u"3 1 0 2"_s << u"2 0 1 3"_s;
    QTest::newRow("texts that are no dates come last")
        << int(Column::Date) << u"later| 30/02/2026| 01/03/2026| | 99999999999/1/1|"_s
        << u"2 3 1 4 0"_s << u"2 0 4 1 3"_s;
    QTest::newRow("laps by time")
        << int(Column::BestLap)
        << u"|||59:59.999 |||01::00:00.000 |||09:00.000 |||00:59.100 |||00:59.099"_s
        << u"4 3 2 0 1"_s << u"1 0 2 3 4"_s;
    QTest::newRow("sessions without a lap time come last")
        << int(Column::BestLap) << u"||||1 |||02:00.000|1 |||01:00.000|1"_s << u"2 1 0"_s
        << u"1 2 0"_s;
    QTest::newRow("ideal times") << int(Column::IdealTime)
                                 << u"||||10:00.000 ||||01::00:00.000 ||||09:59.999 |||1|"_s
                                 << u"2 0 1 3"_s << u"1 0 2 3"_s;
    QTest::newRow("temperatures by value, unknown last")
        << int(Column::Temperature)
        << u"|||1||||||9 |||1||||||99 |||1||||||100 |||1||||||10 |||1||||||0"_s << u"4 0 3 2 1"_s
        << u"2 3 0 4 1"_s;
    QTest::newRow("texts whatever the case")
        << int(Column::Driver) << u"|||1|||b |||1|||A |||1|||a |||1|||C"_s << u"1 2 0 3"_s
        << u"3 0 1 2"_s;
}

void TestSessionsStats::sorting()
{
    QFETCH(int, column);
    QFETCH(QString, sessions);
    QFETCH(QString, ascending);
    QFETCH(QString, descending);
    QStringList descriptions = sessions.split(u' ');
    for (QString &description : descriptions) {
        // Every session needs a lap time to be listed at all.
        if (column == Column::Date)
            description = description.section(u'|', 0, 1) + u"||01:00.000"_s;
    }
    const Sessions library(descriptions);
    Window window(library.list());
    window.stats.resize(1400, 400);
    QVERIFY(window.show());
    window.clickHeader(column);
    QCOMPARE(window.listed(), ascending);
    window.clickHeader(column);
    QCOMPARE(window.listed(), descending);
    window.clickReset();
    QCOMPARE(window.listed(), descending);
}

void TestSessionsStats::listOrderUntilSorted()
{
    const Sessions sessions {"02/01/2026||B|01:00.000", "01/01/2026||C|01:00.000",
                             "03/01/2026||A|01:00.000"};
    const Window window(sessions.list());
    QCOMPARE(window.listed(), u"0 1 2"_s);
}

void TestSessionsStats::goToSession_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::addColumn<int>("key");
    QTest::newRow("double-click") << false << 0;
    QTest::newRow("Return") << true << int(Qt::Key_Return);
    QTest::newRow("Enter") << true << int(Qt::Key_Enter);
}

// Copies of a file have the same name and track: the row decides.
void TestSessionsStats::goToSession()
{
    QFETCH(bool, byKey);
    QFETCH(int, key);
    const Sessions sessions {"1/1/2026||Hill|01:03.000", "1/1/2026||Hill|01:01.000",
                             "1/1/2026||Hill|", "1/1/2026||Hill|01:02.000"};
    Window window(sessions.list());
    QVERIFY(window.show());
    window.clickHeader(Column::BestLap);
    QCOMPARE(window.listed(), u"1 3 0"_s);
    const QSignalSpy wishes(&window.stats, &SessionsStats::goToSession);
    const QPoint position = window.cell(1, Column::Track);
    QTest::mouseClick(window.table.viewport(), Qt::LeftButton, {}, position);
    QCOMPARE(wishes.count(), 0);
    if (byKey)
        QTest::keyClick(&window.table, static_cast<Qt::Key>(key));
    else
        QTest::mouseDClick(window.table.viewport(), Qt::LeftButton, {}, position);
    QCOMPARE(wishes.count(), 1);
    QCOMPARE(wishes.first().first().value<Session *>(), sessions.at(3));
    QVERIFY(window.stats.isVisible());
}

void TestSessionsStats::goToSessionNeedsRow()
{
    const Sessions sessions {"1/1/2026||Hill|01:03.000"};
    Window window(sessions.list());
    const QSignalSpy wishes(&window.stats, &SessionsStats::goToSession);
    window.stats.onGoToSession({});
    QCOMPARE(wishes.count(), 0);
    window.stats.onGoToSession(window.table.model()->index(0, Column::Notes));
    QCOMPARE(wishes.count(), 1);
}

void TestSessionsStats::listReplaced()
{
    const Sessions old {"1/1/2026||Hill|01:00.000||R6|Paul", "2/1/2026||Hill|01:00.000||R6|Ann"};
    const Sessions sessions {"1/2/2026||Heath|01:00.000||R6|Bob",
                             "1/3/2026||Heath|01:00.000||R6|PAUL",
                             "1/4/2026||Hill|01:00.000||R6|Ann"};
    Window window(old.list());
    toggle(window.box("cb_driver"), u"Paul"_s);
    toggle(window.box("cb_date"), u"2/1/2026"_s);
    window.stats.setSessions(sessions.list());
    QCOMPARE(entries(window.box("cb_driver")), u"All Ann Bob [PAUL]"_s);
    QCOMPARE(shownText(window.box("cb_driver")), u"PAUL"_s);
    // A chosen value that no session has any more must not hide them all.
    QCOMPARE(shownText(window.box("cb_date")), u"All"_s);
    QCOMPARE(window.listed(), u"1"_s);
    window.stats.setSessions({});
    QCOMPARE(window.listed(), QString());
    QCOMPARE(entries(window.box("cb_driver")), u"[All]"_s);
}

void TestSessionsStats::sessionsDeleted()
{
    Sessions sessions {"1/1/2026|9:00|Hill|01:03.000", "2/1/2026|9:00|Hill|01:01.000",
                       "3/1/2026|9:00|Hill|", "4/1/2026|9:00|Heath|01:02.000"};
    Window window(sessions.list());
    QVERIFY(window.show());
    window.clickHeader(Column::BestLap);
    window.table.selectRow(0);
    sessions.remove(1);
    QCOMPARE(window.listed(), u"3 0"_s);
    QCOMPARE(window.count(), u"Sessions : 2 of 3"_s);
    // The filters still have the values of the deleted sessions.
    toggle(window.box("cb_track"), u"Heath"_s);
    QCOMPARE(window.listed(), u"3"_s);
    while (!sessions.list().isEmpty())
        sessions.remove(0);
    QCOMPARE(window.listed(), QString());
    window.clickReset();
    window.clickHeader(Column::Date);
    window.stats.setSessions({});
    QCOMPARE(window.count(), u"Sessions : 0 of 0"_s);
}

// A filter at "All" lets a session through that got its values after the window was opened.
void TestSessionsStats::describedMeanwhile()
{
    const Sessions sessions {"1/1/2026||Hill|01:00.000||R6|Paul",
                             "2/1/2026||Hill|01:00.000||R6|Paul"};
    Window window(sessions.list());
    sessions.at(1)->setDriver(u"Ann"_s);
    sessions.at(1)->setEventName(u"Cup"_s);
    toggle(window.box("cb_track"), u"Hill"_s);
    QCOMPARE(window.listed(), u"0 1"_s);
    QVERIFY(window.show());
    QCOMPARE(entries(window.box("cb_driver")), u"[All] Ann Paul"_s);
}

void TestSessionsStats::currentRowStays()
{
    Sessions sessions {"1/1/2026||Hill|01:00.000||R6|Paul", "2/1/2026||Heath|01:00.000||R6|Ann",
                       "3/1/2026||Hill|01:00.000||R6|Paul"};
    Window window(sessions.list());
    window.table.selectRow(2);
    toggle(window.box("cb_driver"), u"Paul"_s);
    QCOMPARE(window.listed(), u"0 2"_s);
    QCOMPARE(window.table.currentIndex().row(), 1);
    sessions.add(u"4/1/2026||Hill|01:00.000||R6|Paul"_s);
    window.stats.setSessions(sessions.list());
    QCOMPARE(window.table.currentIndex().row(), 1);
    QCOMPARE(window.table.selectionModel()->selectedRows().size(), 1);
}

void TestSessionsStats::popupByKeyboard()
{
    const Sessions sessions {"1/1/2026||Hill|01:00.000||R6|Paul",
                             "2/1/2026||Hill|01:00.000||R6|Ann"};
    Window window(sessions.list());
    QVERIFY(window.show());
    CheckableComboBox &box = window.box("cb_driver");
    for (const Qt::Key closing : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        window.clickReset();
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_Space);
        QTRY_VERIFY(box.view()->isVisible());
        QTest::keyClick(box.view(), Qt::Key_Home);
        QTest::keyClick(box.view(), Qt::Key_Down);
        QTest::keyClick(box.view(), Qt::Key_Space);
        QCOMPARE(entries(box), u"All [Ann] Paul"_s);
        QTest::keyClick(box.view(), Qt::Key_Down);
        QTest::keyClick(box.view(), Qt::Key_Space);
        QCOMPARE(entries(box), u"All [Ann] [Paul]"_s);
        QVERIFY(box.view()->isVisible());
        QTest::keyClick(box.view(), closing);
        QTRY_VERIFY(!box.view()->isVisible());
        QCOMPARE(entries(box), u"All [Ann] [Paul]"_s);
        QCOMPARE(shownText(box), u"Multiple"_s);
        QVERIFY(window.stats.isVisible());
    }
}

void TestSessionsStats::popupByMouse()
{
    const Sessions sessions {"1/1/2026||Hill|01:00.000||R6|Paul",
                             "2/1/2026||Hill|01:00.000||R6|Ann"};
    Window window(sessions.list());
    QVERIFY(window.show());
    CheckableComboBox &box = window.box("cb_driver");
    QTest::mouseClick(&box, Qt::LeftButton);
    QTRY_VERIFY(box.view()->isVisible());
    const auto click = [&box](int row, int x) {
        const QRect rect = box.view()->visualRect(box.model()->index(row, 0));
        QTest::mouseClick(box.view()->viewport(), Qt::LeftButton, {}, {x, rect.center().y()});
    };
    // On the small box and on the text.
    click(1, 8);
    QCOMPARE(entries(box), u"All [Ann] Paul"_s);
    click(2, box.view()->viewport()->width() - 8);
    QCOMPARE(entries(box), u"All [Ann] [Paul]"_s);
    QVERIFY(box.view()->isVisible());
    click(0, 8);
    QCOMPARE(entries(box), u"[All] Ann Paul"_s);
    QCOMPARE(window.listed(), u"0 1"_s);
    const QRect second = box.view()->visualRect(box.model()->index(1, 0));
    QTest::mouseRelease(box.view()->viewport(), Qt::LeftButton, {}, second.center());
    QCOMPARE(entries(box), u"[All] Ann Paul"_s);
    box.hidePopup();
}

void TestSessionsStats::closedBoxIgnoresChoosing()
{
    CheckableComboBox box;
    box.setValues({u"Ann"_s, u"Paul"_s});
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_End, Qt::Key_P, Qt::Key_Return})
        QTest::keyClick(&box, key);
    QWheelEvent wheel(box.rect().center(), box.mapToGlobal(box.rect().center()), {}, {0, -120},
                      Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&box, &wheel);
    QCOMPARE(shownText(box), u"All"_s);
    QVERIFY(!box.view()->isVisible());
}

void TestSessionsStats::textsArePlain()
{
    const QString markup = u"<b>Paul</b> & <img src=x>"_s;
    const Sessions sessions(QStringList {u"1/1/2026||Hill|01:00.000||R6|"_s + markup});
    const Window window(sessions.list());
    CheckableComboBox &box = window.box("cb_driver");
    toggle(box, markup);
    QCOMPARE(shownText(box), markup);
    QVERIFY(!box.toolTip().contains(u"<b>"));
    QVERIFY(!box.toolTip().contains(u"<img"));
    QCOMPARE(window.table.model()->index(0, Column::Driver).data().toString(), markup);
    sessions.at(0)->setNotes(u"first\nsecond"_s);
    const QModelIndex notes = window.table.model()->index(0, Column::Notes);
    const auto *const delegate
        = qobject_cast<QStyledItemDelegate *>(window.table.itemDelegateForIndex(notes));
    QCOMPARE(delegate->displayText(notes.data(), {}), u"first second"_s);
}

QTEST_MAIN(TestSessionsStats)
#include "tst_sessionsstats.moc"
