// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <tools/pictures/windows.h>

#include <QAction>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTabWidget>
#include <QTreeView>

#include <base/settings.h>
#include <base/wholefile.h>
#include <formats/sessionride.h>
#include <library/columndialog.h>
#include <library/columnmemory.h>
#include <library/librarytree.h>
#include <maps/editor/mapmaker.h>
#include <session/session.h>
#include <session/sessionfile.h>
#include <tools/pictures/stage.h>
#include <widgets/downloadinprogress.h>

namespace zuno {

namespace {

// Of the menu bar.
enum Menu { Settings = 1, Maps = 2, Statistics = 3, About = 5 };

void showLaps(Stage &stage)
{
    stage.part<QTabWidget>("tabWidget").setCurrentIndex(0);
    stage.show(QStringLiteral("2026-07-12 09h27"));
}

void compareLaps(Stage &stage)
{
    stage.selectLap(3);
    stage.press(Qt::Key_C);
}

void compareWithOther(Stage &stage)
{
    stage.selectLap(4);
}

void showInformation(Stage &stage)
{
    stage.part<QTabWidget>("tabWidget").setCurrentIndex(1);
    stage.settle();
}

void showNoMap(Stage &stage)
{
    stage.part<QTabWidget>("tabWidget").setCurrentIndex(0);
    stage.window().openFile(stage.session(QStringLiteral("2026-06-06")));
    stage.settle();
}

void showLostFix(Stage &stage)
{
    stage.show(QStringLiteral("2026-05-24 09h18"));
}

struct State
{
    const char *name;
    void (*show)(Stage &stage);
};

// In this order: each begins where the one before has ended.
constexpr State States[] {
    {"laps", showLaps},
    {"first-lap", compareLaps},
    {"comparison", compareWithOther},
    {"information", showInformation},
    {"no-map", showNoMap},
    {"lost-fix", showLostFix},
};

void openIdealTime(Stage &stage)
{
    QList<Session *> sessions;
    for (const char *begin : {"2026-07-12 09h27", "2026-07-11 13h45", "2026-06-06", "2026-05-24"})
        sessions.append(
            stage.window().findSessionByPath(stage.session(QString::fromLatin1(begin))));
    stage.window().openIdealTime(sessions);
}

void openStatistics(Stage &stage)
{
    stage.menu(Statistics).trigger();
}

void openProgress(Stage &stage)
{
    auto *window = new DownloadInProgress(&stage.window());
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
}

// One that is no device's, so that it can be renamed.
void selectFolder(Stage &stage)
{
    stage.object<LibraryTree>().select(stage.object<LibraryTree>().folder()
                                       + QStringLiteral("/Imported Sessions"));
}

// A recording that is none of the library's.
void openFromCard(Stage &stage)
{
    const QString card = QDir::tempPath() + QStringLiteral("/0001.ra1");
    QDirIterator files(stage.object<LibraryTree>().folder(), {QStringLiteral("*.ra1")}, QDir::Files,
                       QDirIterator::Subdirectories);
    QFile::remove(card);
    QFile::copy(files.next(), card);
    stage.window().openFile(card);
}

// A session of the library as another program writes it; without maps of its own it is known.
QString othersFile(Stage &stage, const char *formatId)
{
    const OpenedSession opened = openSession(stage.session(QStringLiteral("2026-07-12 09h27")));
    const RideFormat *format = findRideFormat(QString::fromLatin1(formatId));
    QString path = QDir::tempPath() + QStringLiteral("/ride.") + QString::fromLatin1(formatId);
    (void)writeWholeFile(path, format->write(rideOf(*opened.session)));
    return path;
}

void openOthersFile(Stage &stage)
{
    stage.window().openFile(othersFile(stage, "vbo"));
    // Files are read on a thread of their own.
    stage.settle();
}

void openColumns(Stage &stage)
{
    const zuno::Settings settings(zuno::Settings::defaultRoot());
    auto *dialog
        = new ColumnDialog(othersFile(stage, "csv"), ColumnMemory(settings), &stage.window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

/// How to open each window that is not the main one; it is closed again by whoever looks at it.
struct Window
{
    const char *name;
    void (*open)(Stage &stage);
};

constexpr Window Windows[] {
    {"settings", [](Stage &stage) { stage.menu(Settings).trigger(); }},
    {"keys", [](Stage &stage) { stage.part<QAction>("action_keys").trigger(); }},
    {"maps", [](Stage &stage) { stage.menu(Maps).trigger(); }},
    {"statistics", openStatistics},
    {"ideal-time", openIdealTime},
    {"map-editor", [](Stage &stage) { stage.object<MapMaker>().newMap(); }},
    {"about", [](Stage &stage) { stage.menu(About).trigger(); }},
    {"progress", openProgress},
    {"rename", [](Stage &stage) { stage.object<LibraryTree>().renameCurrent(); }},
    {"delete", [](Stage &stage) { stage.object<LibraryTree>().deleteSelected(); }},
    {"new-folder",
     [](Stage &stage) {
         selectFolder(stage);
         stage.object<LibraryTree>().createFolder();
     }},
    {"import", openFromCard},
    {"import-others", openOthersFile},
    {"columns", openColumns},
};

} // namespace

void forEachWindow(Stage &stage,
                   const std::function<void(const QString &name, QWidget *window)> &look)
{
    for (const auto &[name, show] : States) {
        show(stage);
        look(QString::fromLatin1(name), &stage.window());
    }
    for (const Window &entry : Windows) {
        const QString name = QString::fromLatin1(entry.name);
        const bool isSeen = stage.visit([&] { entry.open(stage); },
                                        [&](QWidget &window) { look(name, &window); });
        if (!isSeen)
            look(name, nullptr);
    }
}

} // namespace zuno
