// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QWheelEvent>

#include <library/informationwriter.h>
#include <session/sessionfile.h>
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
        using To = InformationBytes;
        const std::tuple<const char *, QString, void (*)(To &)> rows[] {
            {"le_event", u"  Fr\u00FCh  "_s, [](To &to) { to.event = "Fruh"; }},
            {"le_driver", u" \u00C6 "_s, [](To &to) { to.driver = " AE "; }},
            {"le_vehicle", u""_s, [](To &to) { to.vehicle = ""; }},
            {"le_tires", u"\u9234"_s, [](To &) {}},
            {"cb_weather", u"D"_s, [](To &to) { to.condition = "D"; }},
            {"sb_trackTemp", u"unknown"_s, [](To &to) { to.temperature = 99; }},
            {"sb_trackTemp", u"255"_s, [](To &to) { to.temperature = 255; }},
            {"te_infos", QString(260, u'\u00E9'), [](To &to) { to.notes = QByteArray(255, 'e'); }},
        };
        for (const auto &[name, typed, store] : rows) {
            const Page page;
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
        const Page page;
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
        const Page page(information);
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

    // Typed, but not finished with Enter.
    void unfinished()
    {
        Page page;
        auto &driver = page.field("le_driver");
        type(driver, u"Zoe"_s);
        page.infos.showSession(page.session.get()); // Its map has changed.
        QCOMPARE(page.file(), bytesOf({}));
        page.infos.close();
        QCOMPARE(page.file(), bytesOf({.driver = "Zoe"}));
        // Leaving the tab saves, too, and for the session that was shown.
        driver.setText(u"Eve"_s);
        page.infos.onTabChanged(1);
        QCOMPARE(page.file(), bytesOf({.driver = "Zoe"}));
        page.infos.onTabChanged(0);
        page.infos.showSession(nullptr);
        QCOMPARE(page.file(), bytesOf({.driver = "Eve"}));
        QCOMPARE(driver.text(), QString());
    }

    void failedWrite()
    {
        const Page page;
        const QSignalSpy failed(&page.writer, &InformationWriter::failed);
        QVERIFY(QFile::rename(page.path, page.path + u".away"));
        auto &notes = page.field<QTextEdit>("te_infos");
        type(notes, u"abc"_s);
        QCOMPARE(failed.count(), 1);
        QVERIFY(QFile::rename(page.path + u".away", page.path));
        QTest::keyClick(&notes, Qt::Key_D);
        QCOMPARE(page.file(), bytesOf({.notes = "abcd"}));
    }
};

QTEST_MAIN(TestSessionInfos)
#include "tst_sessioninfos.moc"
