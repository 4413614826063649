// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

#include <app/darkstyle.h>

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
        QApplication::setStyle(new DarkStyle);
        QPushButton(u"Ok"_s).grab();
        QVERIFY(!qApp->styleSheet().isEmpty());
    }

    // On a screen of a higher density Qt takes those with a factor in their names by itself.
    void icons()
    {
        QStringList paths;
        for (const auto &found :
             QRegularExpression(uR"(url\(([^)]*)\))"_s).globalMatch(qApp->styleSheet()))
            paths.append(found.captured(1));
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
