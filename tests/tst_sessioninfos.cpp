// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QWheelEvent>

#include <library/informationwriter.h>
#include <session/sessionfile.h>
#include <stats/sessioninfos.h>
#include <stats/temperaturebox.h>

#include "builders.h"
#include "widgets.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

QByteArray bytesOf(const InformationBytes &information)
{
    return SessionBytes {.information = information.bytes()}.bytes();
}

/// A page of its own that shows the session of a file.
struct Page
{
    explicit Page(const InformationBytes &information = {})
    {
        form.condition->setEditable(true);
        form.condition->addItems({u"Dry"_s, u"Wet"_s});
        infos = std::make_unique<SessionInfos>(form, writer);
        putFile(path, bytesOf(information));
        session = openSession(path).session;
        infos->showSession(session.get());
        if (!showActive(window))
            qFatal("the window stays inactive");
    }
    [[nodiscard]] QByteArray file() const { return contents(path); }

    template<typename Widget>
    Widget *add()
    {
        fields.append(new Widget(&window));
        return static_cast<Widget *>(fields.last());
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"ride.ra1"_s);
    QWidget window;
    QList<QWidget *> fields;
    SessionInfos::Form form {add<QLineEdit>(), add<QLineEdit>(), add<QLineEdit>(),
                             add<QLineEdit>(), add<QComboBox>(), add<TemperatureBox>(),
                             add<QLabel>(),    add<QTextEdit>(), add<QLabel>(),
                             add<QLabel>(),    add<QLabel>(),    add<QLabel>(),
                             add<QLabel>(),    add<QLabel>(),    add<QTabWidget>()};
    InformationWriter writer;
    std::unique_ptr<Session> session;
    std::unique_ptr<SessionInfos> infos;
};

/// Letters that no keyboard has arrive like any other.
void press(QWidget &field, QChar letter)
{
    QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, QString(letter), {});
}

/// Replaces what a field holds, key by key.
void type(QWidget &field, const QString &text)
{
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Delete);
    for (const QChar letter : text)
        press(field, letter);
}

} // namespace

class TestSessionInfos final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // "|" is the cursor.
    void edits()
    {
        const QString full(250, u'a');
        const std::tuple<QString, QString, QString> rows[] {
            {u"|e\u0301"_s, u"|e"_s, u"Replaced: e\u0301 \u2192 e"_s},
            {u"x\u9234\u9234|"_s, u"x|"_s, u"Left out: \u9234"_s},
            {u"x|y\n"_s, u"x|y\n"_s, u""_s},
            // What stood there before stays.
            {full + u"bcdef|xyz", full + u"bc|xyz", u"Cut at 255 characters"_s},
        };
        for (const auto &[typed, stored, hint] : rows) {
            const QString text = QString(typed).remove(u'|');
            EditedText edited = storableEdit({text, static_cast<int>(typed.indexOf(u'|'))});
            QCOMPARE(edited.text.insert(edited.cursor, u'|'), stored);
            QCOMPARE(replacementHint(text), hint);
        }
    }

    void typing()
    {
        enum Field { Event, Driver, Vehicle, Tyres, Condition, Temperature, Degrees, Notes };
        using To = InformationBytes;
        const std::tuple<Field, QString, void (*)(To &)> rows[] {
            {Event, u"  Fr\u00FCh  "_s, [](To &to) { to.event = "Fruh"; }},
            {Driver, u" \u00C6 "_s, [](To &to) { to.driver = " AE "; }},
            {Vehicle, u""_s, [](To &to) { to.vehicle = ""; }},
            {Tyres, u"\u9234"_s, [](To &) {}},
            {Condition, u"D"_s, [](To &to) { to.condition = "D"; }},
            {Temperature, u"unknown"_s, [](To &to) { to.temperature = 99; }},
            {Temperature, u"255"_s, [](To &to) { to.temperature = 255; }},
            {Notes, QString(260, u'\u00E9'), [](To &to) { to.notes = QByteArray(255, 'e'); }},
        };
        for (const auto &[field, typed, store] : rows) {
            Page page;
            type(*page.fields[field], typed);
            QTest::keyClick(page.fields[field], Qt::Key_Backtab);
            InformationBytes expected;
            store(expected);
            QCOMPARE(page.file(), bytesOf(expected));
        }
    }

    // The rider sees what is stored.
    void shown()
    {
        const Page page;
        QLineEdit &driver = *page.form.driver;
        type(driver, u"x"_s);
        driver.home(false);
        press(driver, u'\u00C6');
        QCOMPARE(driver.text() + page.form.hint->text(), u"AExReplaced: \u00C6 \u2192 AE"_s);
        QCOMPARE(driver.cursorPosition(), 2);
        QTextEdit &notes = *page.form.notes;
        notes.moveCursor(QTextCursor::End);
        press(notes, u'\u00DF');
        QCOMPARE(notes.toPlainText() + page.form.notesCount->text(), u"rain, laterss13 / 255"_s);
        notes.undo();
        QTRY_COMPARE(notes.toPlainText(), u"rain, later"_s);
    }

    // Passing through the fields, or scrolling over them, changes nothing, and the change of one
    // field leaves the others, even where they hold what cannot be stored again.
    void untouched()
    {
        InformationBytes information;
        information.event = " F\xc3\xaate ";
        information.driver = "M\xe9xico";
        information.condition = "dry";
        information.temperature = 120;
        information.notes = "a\r\nb\xc2\xa0\xc3\xa9";
        Page page(information);
        QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
        for (QWidget *field : page.fields) {
            QApplication::sendEvent(field, &wheel);
            field->setFocus();
            if (field != page.form.notes)
                QTest::keyClick(field, Qt::Key_Return);
        }
        QCOMPARE(page.file(), bytesOf(information));
        type(*page.form.tyres, u"rain"_s);
        page.form.notes->setFocus();
        information.tyres = "rain";
        QCOMPARE(page.file(), bytesOf(information));
    }

    // Typed, but not finished with Enter.
    void unfinished()
    {
        Page page;
        type(*page.form.driver, u"Zoe"_s);
        page.infos->showSession(page.session.get()); // Its map has changed.
        QCOMPARE(page.file(), bytesOf({}));
        page.window.close();
        QCOMPARE(page.file(), bytesOf({.driver = "Zoe"}));
        // Leaving the tab saves, too, and for the session that was shown.
        page.form.tabs->addTab(new QWidget, {});
        page.form.tabs->addTab(new QWidget, {});
        page.form.tabs->setCurrentIndex(1);
        page.form.driver->setText(u"Eve"_s);
        page.form.tabs->setCurrentIndex(0);
        page.infos->showSession(nullptr);
        QCOMPARE(page.file(), bytesOf({.driver = "Eve"}));
        QCOMPARE(page.form.driver->text(), QString());
    }

    void failedWrite()
    {
        const Page page;
        const QSignalSpy failed(&page.writer, &InformationWriter::failed);
        QVERIFY(QFile::rename(page.path, page.path + u".away"));
        type(*page.form.notes, u"abc"_s);
        QCOMPARE(failed.count(), 1);
        QVERIFY(QFile::rename(page.path + u".away", page.path));
        QTest::keyClick(page.form.notes, Qt::Key_D);
        QCOMPARE(page.file(), bytesOf({.notes = "abcd"}));
    }
};

QTEST_MAIN(TestSessionInfos)
#include "tst_sessioninfos.moc"
