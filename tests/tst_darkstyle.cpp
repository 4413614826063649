// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

#include <app/darkstyle.h>
#include <theme/themes.h>

using namespace zuno;
using namespace Qt::StringLiterals;

class TestDarkStyle final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Qt reports a style sheet that it cannot read as a warning only, and goes on without it. The
    // sheet is read when the first widget asks for its looks, the pictures when it is drawn.
    void sheetIsReadWithoutWarnings()
    {
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        DarkStyle::install();
        QPushButton(u"Ok"_s).grab();
        QVERIFY(!qApp->styleSheet().isEmpty());
        QVERIFY(!qApp->styleSheet().section(u"*/"_s, 1).contains(u'@'));
    }

    // A window that is open takes the other colours at once, and whoever hears of it finds them.
    void themeChanges()
    {
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        QWidget window;
        QPushButton button(u"Ok"_s, &window);
        const auto ground = [&window] { return window.grab().toImage().pixelColor(290, 90); };
        window.resize(300, 100);
        QCOMPARE(ground(), Theme(Theme::Kind::Dark).colour(Colour::Window));
        QColor heard;
        connect(&Themes::instance(), &Themes::changed, &window,
                [&] { heard = window.palette().color(QPalette::Window); });
        Themes::instance().choose(ThemeChoice::Light);
        QCOMPARE(heard, Theme(Theme::Kind::Light).colour(Colour::Window));
        QCOMPARE(ground(), heard);
        button.grab();
        Themes::instance().choose(ThemeChoice::AsDesktop);
        QCOMPARE(ground(), Theme(Theme::Kind::Dark).colour(Colour::Window));
        Themes::instance().setDesktop(Theme::Kind::Light);
        QCOMPARE(ground(), heard);
        Themes::instance().choose(ThemeChoice::Dark);
        QCOMPARE(ground(), Theme(Theme::Kind::Dark).colour(Colour::Window));
    }

    // On a screen of a higher density Qt takes those with a factor in their names by itself.
    void icons()
    {
        QStringList paths;
        for (const auto &found :
             QRegularExpression(uR"(url\(([^)]*)\))"_s).globalMatch(qApp->styleSheet()))
            paths += {found.captured(1),
                      QString(found.captured(1)).replace(u"style/"_s, u"style/light/"_s)};
        QVERIFY(!paths.isEmpty());
        const QString names = u"split_v split_h compute rename cross export database databaseGreen "
                              "invalidate check compare Logo_blanc_Norvale_2020"_s;
        for (const QString &name : names.split(u' '))
            paths.append(u":/Resources/%1.png"_s.arg(name));
        for (const QString &path : std::as_const(paths)) {
            const QImage image(path);
            QVERIFY2(!image.isNull(), qPrintable(path));
            for (const int factor : {2, 3}) {
                const QImage larger(QString(path).replace(u".png"_s, u"@%1x.png"_s.arg(factor)));
                QVERIFY2(larger.size() == image.size() * factor, qPrintable(path));
            }
        }
    }
};

QTEST_MAIN(TestDarkStyle)
#include "tst_darkstyle.moc"
