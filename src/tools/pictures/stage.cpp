// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <tools/pictures/stage.h>

#include <QAction>
#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QDirIterator>
#include <QEventLoop>
#include <QFile>
#include <QMenuBar>
#include <QTableView>
#include <QTimer>

#include <base/settings.h>
#include <demo/demolibrary.h>
#include <maps/page/mapviewcontroller.h>

namespace zuno {

namespace {

// So long that whatever is on its way is there, also on a busy machine.
constexpr int SettleTime = 300; // ms
constexpr int LongestWait = 20000; // ms

QWidget *openedWindow(const QWidget *main)
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && window != main && window->windowType() == Qt::Dialog)
            return window;
    }
    return nullptr;
}

} // namespace

StageHome::StageHome()
{
    const QDir folder(m_folder.path());
    const DemoResult demo = writeDemoLibrary(folder.filePath(QStringLiteral("Norvale")));
    if (!demo.ok())
        qFatal("%s", qPrintable(demo.error));
    folder.mkpath(QStringLiteral("Norvale/ZUNO Analyzer"));
    const Settings settings(m_folder.path());
    settings.writeDisplayDefaults();
    settings.setValue(Setting::V1400, true);
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder.path()));
    // The built-in map, and nobody asked for new releases.
    qputenv("ZUNO_MAP_KEY", "");
    qputenv("ZUNO_UPDATE_SERVER", "");
}

Stage::Stage(const QString &language, const QString &home)
    : m_home(home)
    , m_window(std::make_unique<ZunoAnalyzer>(language))
{
}

QString Stage::session(const QString &begin) const
{
    QDirIterator files(m_home, {begin + u"*.ra1"}, QDir::Files, QDirIterator::Subdirectories);
    return files.hasNext() ? files.next() : QString();
}

void Stage::waitForMap(const std::function<void()> &cause)
{
    QEventLoop loop;
    const auto drawn = QObject::connect(&object<MapViewController>(), &MapViewController::lapDrawn,
                                        &loop, &QEventLoop::quit);
    QTimer::singleShot(LongestWait, &loop, [&loop] { loop.exit(1); });
    cause();
    if (loop.exec() != 0)
        qFatal("The map was not drawn.");
    QObject::disconnect(drawn);
    settle();
}

void Stage::show(const QString &session)
{
    waitForMap([&] { m_window->openFile(this->session(session)); });
}

void Stage::selectLap(int number)
{
    auto &table = part<QTableView>("tw_tours");
    if (table.currentIndex().row() != number - 1)
        waitForMap([&] { table.selectRow(number - 1); });
}

void Stage::press(const QKeySequence &key)
{
    const QList<QAction *> actions = part<QTableView>("tw_tours").actions();
    for (QAction *action : actions) {
        if (action->shortcut() == key)
            action->trigger();
    }
    settle();
}

QAction &Stage::menu(int entry) const
{
    return *m_window->menuBar()->actions().at(entry);
}

void Stage::settle()
{
    QEventLoop loop;
    QTimer::singleShot(SettleTime, &loop, &QEventLoop::quit);
    loop.exec();
}

bool Stage::visit(const std::function<void()> &open, const Look &look)
{
    bool isSeen = false;
    QEventLoop loop;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        timer.stop();
        if (QWidget *opened = openedWindow(m_window.get())) {
            isSeen = true;
            look(*opened);
            opened->close();
        }
        loop.quit();
    });
    timer.start(2 * SettleTime);
    open();
    // A modal window has come and gone by now.
    if (timer.isActive())
        loop.exec();
    return isSeen;
}

QPixmap Stage::picture(QWidget &widget)
{
    widget.ensurePolished();
    if (!widget.isVisible())
        widget.resize(widget.sizeHint());
    return widget.grab();
}

} // namespace zuno
