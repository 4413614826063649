// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <functional>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QWheelEvent>

#include <library/informationwriter.h>
#include <session/sessionfile.h>
#include <session/sessionrewrite.h>
#include <stats/sessioninfos.h>

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

using To = InformationBytes;

/// A page of its own that shows the session of a file.
struct Page
{
    explicit Page(const InformationBytes &information = {})
    {
        putFile(path, bytesOf(information));
        session = openSession(path).session;
        infos.showSession(session.get());
        if (!showActive(infos))
            qFatal("the window stays inactive");
    }
    [[nodiscard]] QByteArray file() const { return contents(path); }
    template<typename Widget = QLineEdit>
    [[nodiscard]] Widget &field(const char *name) const
    {
        return child<Widget>(infos, name);
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"ride.ra1"_s);
    InformationWriter writer;
    std::unique_ptr<Session> session;
    SessionInfos infos {writer, u"en"_s};
    struct
    {
        QLineEdit *event;
        QLineEdit *driver;
        QLineEdit *vehicle;
        QTextEdit *notes;
    } form {&field("le_event"), &field("le_driver"), &field("le_vehicle"),
            &field<QTextEdit>("te_infos")};
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
        const std::tuple<const char *, QString, void (*)(To &)> rows[] {
            {"le_event", u"  Fr\u00FCh  "_s, [](To &to) { to.event = "Fruh"; }},
            {"le_driver", u" \u00C6 "_s, [](To &to) { to.driver = " AE "; }},
            {"le_vehicle", u""_s, [](To &to) { to.vehicle = ""; }},
            {"le_tires", u"\u9234"_s, [](To &to) { to.tyres = ""; }},
            {"te_infos", u""_s, [](To &to) { to.notes = ""; }},
            {"cb_weather", u"D"_s, [](To &to) { to.condition = "D"; }},
            {"sb_trackTemp", u"unknown"_s, [](To &to) { to.temperature = 99; }},
            {"sb_trackTemp", u"255"_s, [](To &to) { to.temperature = 255; }},
            {"te_infos", QString(260, u'\u00E9'), [](To &to) { to.notes = QByteArray(255, 'e'); }},
        };
        for (const auto &[name, typed, store] : rows) {
            Page page;
            auto &field = page.field<QWidget>(name);
            type(field, typed);
            QTest::keyClick(&field, Qt::Key_Backtab);
            InformationBytes expected;
            store(expected);
            QCOMPARE(page.file(), bytesOf(expected));
        }
    }

    // The rider sees what is stored.
    void shown()
    {
        Page page;
        auto &driver = page.field("le_driver");
        type(driver, u"x"_s);
        driver.home(false);
        press(driver, u'\u00C6');
        QCOMPARE(driver.text() + page.field<QLabel>("lb_hint").text(),
                 u"AExReplaced: \u00C6 \u2192 AE"_s);
        QCOMPARE(driver.cursorPosition(), 2);
        auto &notes = page.field<QTextEdit>("te_infos");
        notes.moveCursor(QTextCursor::End);
        press(notes, u'\u00DF');
        QCOMPARE(notes.toPlainText() + page.field<QLabel>("lb_notesCount").text(),
                 u"rain, laterss13 / 255"_s);
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
        auto &notes = page.field<QTextEdit>("te_infos");
        for (QWidget *field : page.infos.findChildren<QWidget *>()) {
            if (field->focusPolicy() == Qt::NoFocus)
                continue;
            QApplication::sendEvent(field, &wheel);
            field->setFocus();
            if (field != &notes)
                QTest::keyClick(field, Qt::Key_Return);
        }
        QCOMPARE(page.file(), bytesOf(information));
        type(page.field("le_tires"), u"rain"_s);
        notes.setFocus();
        information.tyres = "rain";
        QCOMPARE(page.file(), bytesOf(information));
    }

    // Typed, but not finished with Enter: whatever the rider does next, it is in the file.
    void unfinished()
    {
        const auto leave = [](Page &page) {
            QFocusEvent leaving(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
            QApplication::sendEvent(page.infos.focusWidget(), &leaving);
        };
        const auto other = openSession(m_other).session;
        const std::function<void(Page &)> ends[] {
            leave,
            [](Page &page) { page.form.vehicle->setFocus(); },
            [](Page &page) { page.infos.showSession(nullptr); },
            [&other](Page &page) { page.infos.showSession(other.get()); },
            [](Page &page) { page.infos.close(); },
            [](Page &page) { page.infos.commit(); },
            [](Page &page) { page.writer.flush(); },
        };
        for (const auto &end : ends) {
            for (const bool isNotes : {false, true}) {
                Page page;
                if (isNotes)
                    type(*page.form.notes, u"Zoe"_s);
                else
                    type(*page.form.driver, u"Zoe"_s);
                page.infos.showSession(page.session.get()); // Its map has changed.
                QCOMPARE(page.file(), bytesOf({}));
                end(page);
                QCOMPARE(page.file(),
                         bytesOf(isNotes ? To {.notes = "Zoe"} : To {.driver = "Zoe"}));
            }
        }
    }

    // Not with every key, but also for who never stops.
    void writtenWhileTyping()
    {
        Page page;
        const QSignalSpy written(&page.writer, &InformationWriter::written);
        QElapsedTimer clock;
        clock.start();
        type(*page.form.notes, u"x"_s);
        type(*page.form.event, u"Race  "_s);
        QCOMPARE(openSession(page.path).session->notes(), u"x"_s); // the field was left
        const qsizetype before = written.count();
        while (clock.elapsed() < 2000) {
            press(*page.form.event, u'y');
            QTest::qWait(20);
        }
        const QByteArray event = openSession(page.path).session->eventName().toUtf8();
        QVERIFY2(event.startsWith("Race  yyyyyyyyyy"), event);
        QVERIFY(page.form.event->text().startsWith(u"Race  yy"));
        QCOMPARE(written.count(), before + 1);
    }

    // The field that two programs have changed: the later one stands, the other is offered.
    void twoPrograms()
    {
        for (const bool putsBack : {false, true}) {
            Page page;
            const auto &notice = child<QWidget>(page.infos, "informationNotice");
            type(*page.form.driver, u"Zoe"_s);
            const OpenedSession other = openSession(page.path);
            other.session->setDriver(u"Bob"_s);
            other.session->setTyres(u"hard"_s);
            QVERIFY(rewriteSessionFile(*other.session).ok());
            const QSignalSpy joined(&page.writer, &InformationWriter::joined);
            QVERIFY(!notice.isVisible());
            page.form.vehicle->setFocus();
            QCOMPARE(page.file(), bytesOf({.driver = "Zoe", .tyres = "hard"}));
            QVERIFY(joined.first().at(1).toString().contains(u"your text stands"));
            page.infos.showSession(nullptr);
            QVERIFY(!notice.isVisible());
            page.infos.showSession(page.session.get());
            QVERIFY(notice.isVisible());
            QVERIFY(child<QLabel>(page.infos, "lb_notice").text().endsWith(u": \"Bob\""));
            child<QPushButton>(page.infos, putsBack ? "pb_putBack" : "pb_keepMine").click();
            QVERIFY(!notice.isVisible());
            QCOMPARE(page.form.driver->text(), putsBack ? u"Bob"_s : u"Zoe"_s);
            QCOMPARE(page.file(), bytesOf({.driver = putsBack ? "Bob" : "Zoe", .tyres = "hard"}));
        }
    }

    // Shown, but nothing is typed that could not be stored.
    void notRewritable()
    {
        Page page;
        putFile(m_other,
                SessionBytes {.version = "2.0", .information = InformationBytes().bytes()}.bytes());
        const auto newer = openSession(m_other).session;
        page.infos.showSession(newer.get());
        QCOMPARE(page.form.driver->text(), u"Ann"_s);
        QVERIFY(!page.form.driver->isEnabled() && !page.form.notes->isEnabled());
        QVERIFY(child<QLabel>(page.infos, "lb_notice").text().contains(u"(2.0)"));
        page.infos.showSession(page.session.get());
        QVERIFY(page.form.driver->isEnabled());
        QVERIFY(!child<QWidget>(page.infos, "informationNotice").isVisible());
    }

    void failedWrite()
    {
        Page page;
        const QSignalSpy failed(&page.writer, &InformationWriter::failed);
        QVERIFY(QFile::rename(page.path, page.path + u".away"));
        type(*page.form.notes, u"abc"_s);
        page.infos.commit();
        QCOMPARE(failed.count(), 1);
        QVERIFY(page.session->isUnsaved());
        QVERIFY(QFile::rename(page.path + u".away", page.path));
        QTest::keyClick(page.form.notes, Qt::Key_D);
        page.infos.commit();
        QCOMPARE(page.file(), bytesOf({.notes = "abcd"}));
        QVERIFY(!page.session->isUnsaved());
    }

private:
    QTemporaryDir m_folder;
    QString m_other = m_folder.filePath(u"other.ra1"_s);
};

QTEST_MAIN(TestSessionInfos)
#include "tst_sessioninfos.moc"
