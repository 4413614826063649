// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <memory>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPixmap>
#include <QPushButton>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <QTableWidget>
#include <QTest>
#include <QTreeWidget>

#include <app/darkstyle.h>

using namespace zuno;

namespace {

// Qt reports a style sheet that it cannot read as a warning only, and goes on without it.
QStringList warnings;

void keepWarnings(QtMsgType type, const QMessageLogContext & /*context*/, const QString &text)
{
    if (type != QtDebugMsg && type != QtInfoMsg) {
        warnings.append(text);
    }
}

QString sheetText()
{
    QFile file(QStringLiteral(":/darkstyle/darkstyle.qss"));
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// How much of the picture of @p widget has the colour exactly.
int pixels(QWidget &widget, const QColor &colour)
{
    const QImage image = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y) == colour ? 1 : 0;
        }
    }
    return count;
}

/// Paints every selected cell in a colour of its own.
class OwnHighlight final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        QStyleOptionViewItem copy(option);
        copy.palette.setBrush(QPalette::Highlight, QBrush(Qt::darkGreen));
        QStyledItemDelegate::paint(painter, copy, index);
    }
};

} // namespace

class TestDarkStyle final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const QtMessageHandler before = qInstallMessageHandler(keepWarnings);
        QApplication::setStyle(new DarkStyle);
        // The sheet is read when the first widget asks for its looks, the pictures when it is
        // drawn.
        QPushButton button(QStringLiteral("Ok"));
        button.grab();
        qInstallMessageHandler(before);
    }

    void palette_data()
    {
        QTest::addColumn<QPalette::ColorRole>("role");
        QTest::addColumn<QColor>("colour");
        QTest::addColumn<QColor>("disabled");
        const auto row
            = [](const char *name, QPalette::ColorRole role, const QColor &colour,
                 const QColor &disabled) { QTest::newRow(name) << role << colour << disabled; };
        const QColor white(255, 255, 255);
        const QColor grey(127, 127, 127);
        const QColor ground(25, 35, 45);
        row("window", QPalette::Window, ground, ground);
        row("window text", QPalette::WindowText, white, grey);
        row("base", QPalette::Base, ground, ground);
        row("alternate base", QPalette::AlternateBase, {51, 65, 76}, {51, 65, 76});
        row("tool tip base", QPalette::ToolTipBase, white, white);
        row("tool tip text", QPalette::ToolTipText, {53, 53, 53}, {53, 53, 53});
        row("text", QPalette::Text, white, grey);
        row("dark", QPalette::Dark, {35, 35, 35}, {35, 35, 35});
        row("shadow", QPalette::Shadow, {20, 20, 20}, {20, 20, 20});
        row("button", QPalette::Button, {53, 53, 53}, {53, 53, 53});
        row("button text", QPalette::ButtonText, white, grey);
        row("bright text", QPalette::BrightText, {255, 0, 0}, {255, 0, 0});
        row("link", QPalette::Link, {42, 130, 218}, {42, 130, 218});
        row("highlight", QPalette::Highlight, {20, 100, 161}, {80, 80, 80});
        row("highlighted text", QPalette::HighlightedText, white, grey);
    }
    void palette()
    {
        QFETCH(const QPalette::ColorRole, role);
        QFETCH(const QColor, colour);
        QFETCH(const QColor, disabled);
        // Both as the style gives it, and as the application has it afterwards.
        QPalette polished;
        DarkStyle().polish(polished);
        for (const QPalette &palette : {polished, QApplication::palette()}) {
            QCOMPARE(palette.color(QPalette::Active, role), colour);
            QCOMPARE(palette.color(QPalette::Inactive, role), colour);
            QCOMPARE(palette.color(QPalette::Disabled, role), disabled);
        }
    }

    void sheetIsReadWithoutWarnings()
    {
        QVERIFY(!sheetText().isEmpty());
        QCOMPARE(qApp->styleSheet(), sheetText());
        QCOMPARE(warnings.join(QLatin1Char('\n')), QString());
    }

    void icons_data()
    {
        QTest::addColumn<QString>("path");
        static const QRegularExpression url(QStringLiteral(R"(url\(([^)]*)\))"));
        QStringList paths;
        for (auto found = url.globalMatch(sheetText()); found.hasNext();) {
            paths.append(found.next().captured(1));
        }
        QVERIFY(!paths.isEmpty());
        for (const char *const name :
             {"split_v.png", "split_h.png", "compute.png", "rename.png", "cross.png", "export.png",
              "newfolder.ico", "database.png", "databaseGreen.png", "invalidate.png", "check.png",
              "compare.png", "logo.png", "Logos/logo.ico", "Logo_blanc_Norvale_2020.png"}) {
            paths.append(QStringLiteral(":/Resources/") + QLatin1String(name));
        }
        paths.removeDuplicates();
        for (const QString &path : std::as_const(paths)) {
            QTest::newRow(qPrintable(path)) << path;
        }
    }
    void icons()
    {
        QFETCH(const QString, path);
        const QPixmap pixmap(path);
        QVERIFY(!pixmap.isNull());
        const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
        bool drawn = false;
        for (int y = 0; y < image.height() && !drawn; ++y) {
            for (int x = 0; x < image.width() && !drawn; ++x) {
                drawn = image.pixelColor(x, y).alpha() > 0;
            }
        }
        QVERIFY2(drawn, "fully transparent");
        if (!path.endsWith(QLatin1String(".png")) || path.endsWith(QLatin1String("/logo.png"))) {
            return;
        }
        // Qt takes these by themselves on a screen of a higher density.
        for (const int factor : {2, 3}) {
            QString name = path;
            name.insert(name.size() - 4, QStringLiteral("@%1x").arg(factor));
            const QImage larger(name);
            QVERIFY2(!larger.isNull(), qPrintable(name));
            QCOMPARE(larger.size(), pixmap.size() * factor);
        }
    }

    void windowsIconsHaveEverySize_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QList<int>>("sizes");
        QTest::newRow("logo") << QStringLiteral(":/Resources/Logos/logo.ico")
                              << QList<int> {16, 20, 24, 32, 40, 48, 64, 128, 256};
        QTest::newRow("new folder")
            << QStringLiteral(":/Resources/newfolder.ico") << QList<int> {16, 20, 24, 32, 40, 48};
    }
    void windowsIconsHaveEverySize()
    {
        QFETCH(const QString, path);
        QFETCH(const QList<int>, sizes);
        const QList<QSize> available = QIcon(path).availableSizes();
        for (const int size : sizes) {
            QVERIFY2(available.contains(QSize(size, size)), qPrintable(QString::number(size)));
        }
    }

    void disabledTextIsGrey_data()
    {
        QTest::addColumn<std::shared_ptr<QWidget>>("widget");
        const QString text = QStringLiteral("HHHHHHHH");
        const auto row = [](const char *name, QWidget *widget) {
            QTest::newRow(name) << std::shared_ptr<QWidget>(widget);
        };
        row("label", new QLabel(text));
        row("push button", new QPushButton(text));
        row("check box", new QCheckBox(text));
        row("line edit", new QLineEdit(text));
        auto *const box = new QComboBox;
        box->addItem(text);
        row("combo box", box);
        auto *const tree = new QTreeWidget;
        tree->addTopLevelItem(new QTreeWidgetItem({text}));
        row("tree", tree);
    }
    void disabledTextIsGrey()
    {
        QFETCH(const std::shared_ptr<QWidget>, widget);
        // Thin strokes are blended with the ground; these are thick enough to have the colour
        // itself.
        QFont font = widget->font();
        font.setPointSize(28);
        font.setBold(true);
        widget->setFont(font);
        widget->resize(300, 150);
        QVERIFY(pixels(*widget, Qt::white) > 0);
        widget->setEnabled(false);
        QCOMPARE(pixels(*widget, Qt::white), 0);
        QVERIFY(pixels(*widget, QColor(127, 127, 127)) > 0);
    }

    void cellsKeepTheirColours()
    {
        QTableWidget table(3, 1);
        table.resize(200, 150);
        for (int row = 0; row < 3; ++row) {
            table.setItem(row, 0, new QTableWidgetItem);
        }
        table.item(0, 0)->setBackground(Qt::red);
        table.item(1, 0)->setBackground(Qt::darkMagenta);
        table.item(2, 0)->setSelected(true);
        const int cell = table.rowHeight(0) * table.columnWidth(0) * 8 / 10;
        QVERIFY(pixels(table, Qt::red) > cell);
        QVERIFY(pixels(table, Qt::darkMagenta) > cell);
        QVERIFY(pixels(table, QColor(20, 100, 161)) > cell);
        table.setItemDelegate(new OwnHighlight(&table));
        QVERIFY(pixels(table, Qt::darkGreen) > cell);
        table.setEnabled(false);
        table.setItemDelegate(new QStyledItemDelegate(&table));
        QVERIFY(pixels(table, QColor(80, 80, 80)) > cell);
    }

    void focusShows_data()
    {
        QTest::addColumn<std::shared_ptr<QWidget>>("widget");
        const auto row = [](const char *name, QWidget *widget) {
            QTest::newRow(name) << std::shared_ptr<QWidget>(widget);
        };
        row("push button", new QPushButton(QStringLiteral("Ok")));
        row("check box", new QCheckBox(QStringLiteral("Speed")));
        row("line edit", new QLineEdit);
        row("combo box", new QComboBox);
        row("tree", new QTreeWidget);
        row("table", new QTableWidget(2, 2));
        auto *const tabs = new QTabBar;
        tabs->addTab(QStringLiteral("Laps"));
        row("tabs", tabs);
        auto *const link
            = new QLabel(QStringLiteral("<a href=\"https://www.example.com/\">Page</a>"));
        link->setTextInteractionFlags(Qt::TextBrowserInteraction);
        row("label with a link", link);
    }
    void focusShows()
    {
        QFETCH(const std::shared_ptr<QWidget>, widget);
        const QColor accent(255, 180, 84);
        QWidget window;
        QWidget other(&window);
        other.setFocusPolicy(Qt::StrongFocus);
        widget->setParent(&window);
        const auto release = qScopeGuard([&widget] { widget->setParent(nullptr); });
        widget->setGeometry(10, 10, 160, 80);
        window.resize(200, 120);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        other.setFocus();
        QCOMPARE(pixels(*widget, accent), 0);
        widget->setFocus(Qt::TabFocusReason);
        QVERIFY(pixels(*widget, accent) > 20);
    }

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

    void comboBoxKeepsAnothersDelegate()
    {
        QComboBox plain;
        plain.ensurePolished();
        QVERIFY(qobject_cast<QStyledItemDelegate *>(plain.itemDelegate()) != nullptr);
        QComboBox own;
        auto *const delegate = new OwnHighlight(&own);
        own.setItemDelegate(delegate);
        own.ensurePolished();
        QCOMPARE(own.itemDelegate(), delegate);
    }
};

QTEST_MAIN(TestDarkStyle)
#include "tst_darkstyle.moc"
