// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <tools/pictures/pictures.h>

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QTableView>
#include <QWebEngineView>

#include <library/librarytree.h>
#include <maps/editor/mapmaker.h>
#include <maps/page/mapviewcontroller.h>
#include <tools/pictures/stage.h>
#include <views/charts/lapcharts.h>
#include <views/laps/lapsview.h>

namespace zuno {

namespace {

using Take = std::function<void(const QString &name, const QPixmap &picture)>;

// Of the menu bar.
enum Menu { Settings = 1, Maps = 2, Statistics = 3 };

constexpr QSize WindowSize(1360, 850);
// Where the cursor of the charts stands, metres from the line: where riders brake.
constexpr double CursorPlace = 350;
constexpr double ApartTime = 63; // seconds
constexpr int LastSector = 3;
// What is left around a text that is cut out, pixels.
constexpr int Around = 28;

void setSplitter(Stage &stage, int number, const QList<int> &sizes)
{
    stage.part<QSplitter>(qPrintable(QStringLiteral("splitter%1").arg(number))).setSizes(sizes);
    stage.settle();
}

QPixmap partPicture(Stage &stage, const char *name)
{
    return stage.part<QWidget>(name).grab();
}

void takeWindow(Stage &stage, const Take &take)
{
    // The charts appear with the first lap, and take room from the map.
    stage.show(QStringLiteral("2026-04-18 10h12"));
    setSplitter(stage, 3, {270, 1090});
    setSplitter(stage, 0, {600, 480});
    setSplitter(stage, 1, {400, 420});
    stage.show(QStringLiteral("2026-07-12 09h27"));
    take(QStringLiteral("window"), stage.window().grab());
    stage.object<LapCharts>().state().pin(CursorPlace);
    stage.settle();
    take(QStringLiteral("charts"), partPicture(stage, "bottomWidget"));
}

// With a lap thrown out.
void takeLaps(Stage &stage, const Take &take)
{
    setSplitter(stage, 3, {0, 1360});
    setSplitter(stage, 0, {1360, 0});
    setSplitter(stage, 1, {420, 400});
    stage.show(QStringLiteral("2026-04-18 14h05"));
    take(QStringLiteral("laps"), partPicture(stage, "lapsPane"));
    QMenu menu;
    stage.object<LapsView>().fillMenu(menu);
    take(QStringLiteral("lap-menu"), Stage::picture(menu));
}

void takeMap(Stage &stage, const Take &take)
{
    setSplitter(stage, 0, {300, 800});
    setSplitter(stage, 1, {560, 260});
    stage.show(QStringLiteral("2026-07-12 15h50"));
    take(QStringLiteral("map"), stage.object<MapViewController>().view()->grab());
}

void takeComparison(Stage &stage, const Take &take)
{
    setSplitter(stage, 0, {620, 480});
    setSplitter(stage, 1, {300, 520});
    stage.show(QStringLiteral("2026-07-12 09h27"));
    stage.selectLap(3);
    stage.press(Qt::Key_C);
    stage.selectLap(9);
    stage.object<LapCharts>().state().pin(CursorPlace);
    stage.settle();
    take(QStringLiteral("comparison"), partPicture(stage, "bottomWidget"));
    // After the same time, late in the lap, the riders are apart far enough for both to be seen.
    auto &byTime = stage.part<QCheckBox>("cb_compareTime");
    byTime.setChecked(true);
    setSplitter(stage, 0, {300, 790});
    setSplitter(stage, 1, {440, 380});
    stage.object<LapCharts>().state().showSector(LastSector);
    stage.object<LapCharts>().state().pin(ApartTime);
    stage.settle();
    take(QStringLiteral("comparison-map"), stage.object<MapViewController>().view()->grab());
    byTime.setChecked(false);
}

void takeInformation(Stage &stage, const Take &take)
{
    stage.show(QStringLiteral("2026-04-18 14h05"));
    auto &tabs = stage.part<QTabWidget>("tabWidget");
    tabs.setCurrentIndex(1);
    stage.settle();
    take(QStringLiteral("information"), tabs.grab());
    tabs.setCurrentIndex(0);
}

void takeNoMap(Stage &stage, const Take &take)
{
    setSplitter(stage, 0, {700, 390});
    stage.window().openFile(stage.session(QStringLiteral("2026-06-06")));
    stage.settle();
    // The folder that a rider has, instead of that of the demo library.
    auto &state = stage.part<QLabel>("lb_state");
    QString text = state.text();
    state.setText(text.replace(stage.home(), QStringLiteral("/home/laura/.local/share")));
    stage.settle();
    const QRect words = state.fontMetrics()
                            .boundingRect(state.rect(), state.alignment() | Qt::TextWordWrap, text)
                            .translated(state.pos());
    const QRect all = words | stage.part<QPushButton>("pb_newMap").geometry();
    take(QStringLiteral("no-map"),
         state.parentWidget()->grab(all.marginsAdded({Around, Around, Around, Around})));
}

void openIdealTime(Stage &stage)
{
    QList<Session *> sessions;
    for (const char *begin :
         {"2026-07-11 10h02", "2026-07-11 13h45", "2026-07-12 09h27", "2026-07-12 15h50"})
        sessions.append(
            stage.window().findSessionByPath(stage.session(QString::fromLatin1(begin))));
    stage.window().openIdealTime(sessions);
}

void takeDialogs(Stage &stage, const Take &take)
{
    const auto visit = [&](const char *name, const std::function<void()> &open) {
        const bool isSeen = stage.visit(open, [&](QWidget &dialog) {
            stage.settle();
            take(QString::fromLatin1(name), Stage::picture(dialog));
        });
        if (!isSeen)
            qFatal("No window opened: %s", name);
    };
    visit("ideal-time", [&] { openIdealTime(stage); });
    stage.show(QStringLiteral("2026-07-12 09h27"));
    visit("settings", [&] { stage.menu(Settings).trigger(); });
    visit("maps", [&] { stage.menu(Maps).trigger(); });
    visit("map-editor", [&] { stage.object<MapMaker>().newMap(); });
    visit("statistics", [&] { stage.menu(Statistics).trigger(); });
}

} // namespace

void takePictures(Stage &stage, const Take &take)
{
    stage.window().resize(WindowSize);
    stage.window().show();
    stage.settle();
    takeWindow(stage, take);
    takeLaps(stage, take);
    takeMap(stage, take);
    takeComparison(stage, take);
    takeInformation(stage, take);
    takeNoMap(stage, take);
    takeDialogs(stage, take);
}

} // namespace zuno
