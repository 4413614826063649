// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QPalette>
#include <QPushButton>
#include <QRegularExpression>
#include <QTableWidget>
#include <QTest>

#include <app/darkstyle.h>

using namespace zuno;
using namespace Qt::StringLiterals;

namespace {

// Qt reports a style sheet that it cannot read as a warning only, and goes on without it.
QStringList warnings;

void keepWarnings(QtMsgType type, const QMessageLogContext & /*context*/, const QString &text)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        warnings.append(text);
}

/// How much of the picture of @p widget has the colour exactly.
int pixels(QWidget &widget, const QColor &colour)
{
    const QImage image = widget.grab().toImage();
    int count = 0;
    for (int i = 0; i < image.width() * image.height(); ++i)
        count += image.pixelColor(i % image.width(), i / image.width()) == colour ? 1 : 0;
    return count;
}

} // namespace

class TestDarkStyle final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The sheet is read when the first widget asks for its looks, the pictures when it is drawn.
    void sheetIsReadWithoutWarnings()
    {
        const QtMessageHandler before = qInstallMessageHandler(keepWarnings);
        QApplication::setStyle(new DarkStyle);
        QPushButton(u"Ok"_s).grab();
        qInstallMessageHandler(before);
        QVERIFY(!qApp->styleSheet().isEmpty());
        QCOMPARE(warnings, QStringList());
    }

    void palette()
    {
        const QList<std::tuple<QPalette::ColorRole, QRgb, QRgb>> rows {
            {QPalette::Window, 0x19232d, 0x19232d},
            {QPalette::WindowText, 0xffffff, 0x7f7f7f},
            {QPalette::Base, 0x19232d, 0x19232d},
            {QPalette::AlternateBase, 0x33414c, 0x33414c},
            {QPalette::ToolTipBase, 0xffffff, 0xffffff},
            {QPalette::ToolTipText, 0x353535, 0x353535},
            {QPalette::Text, 0xffffff, 0x7f7f7f},
            {QPalette::Dark, 0x232323, 0x232323},
            {QPalette::Shadow, 0x141414, 0x141414},
            {QPalette::Button, 0x353535, 0x353535},
            {QPalette::ButtonText, 0xffffff, 0x7f7f7f},
            {QPalette::BrightText, 0xff0000, 0xff0000},
            {QPalette::Link, 0x2a82da, 0x2a82da},
            {QPalette::Highlight, 0x1464a1, 0x505050},
            {QPalette::HighlightedText, 0xffffff, 0x7f7f7f},
        };
        for (const auto &[role, colour, disabled] : rows) {
            const QPalette palette = QApplication::palette();
            QCOMPARE(palette.color(QPalette::Active, role), QColor(colour));
            QCOMPARE(palette.color(QPalette::Inactive, role), QColor(colour));
            QCOMPARE(palette.color(QPalette::Disabled, role), QColor(disabled));
        }
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
        QVERIFY(!QImage(u":/Resources/logo.png"_s).isNull());
        QVERIFY(QIcon(u":/Resources/Logos/logo.ico"_s).availableSizes().contains(QSize(256, 256)));
        QVERIFY(QIcon(u":/Resources/newfolder.ico"_s).availableSizes().contains(QSize(48, 48)));
    }

    // by a frame of the colour that says where the keys go
    void currentCellShows()
    {
        QTableWidget table(3, 3);
        table.resize(350, 200);
        table.show();
        table.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&table));
        table.setFocus();
        table.setCurrentCell(-1, -1);
        const int before = pixels(table, QColor(255, 180, 84));
        table.setCurrentCell(1, 1);
        QVERIFY(pixels(table, QColor(255, 180, 84)) > before + table.columnWidth(1));
    }
};

QTEST_MAIN(TestDarkStyle)
#include "tst_darkstyle.moc"
