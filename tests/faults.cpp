// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What scripts/faults.sh needs of the program: an import, an export and a change of settings to be
// killed at, each as the program does it, and the window with a folder in which somebody rages.
//   zuno_faults import ROOT FILE
//   zuno_faults settings ROOT NUMBER
//   zuno_faults export TARGET lap|session|copy FILE
//   zuno_faults storm ROOT SECONDS

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <thread>

#include <QApplication>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QTimer>
#include <QTreeView>

#include <app/acquisitionlibrary.h>
#include <app/exportdialogs.h>
#include <app/sessionimport.h>
#include <app/settings.h>
#include <app/zunoanalyzer.h>
#include <session/lap.h>
#include <session/sessionfile.h>

using namespace zuno;
using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace {

int storeSettings(const Settings &settings, const QString &number)
{
    settings.setValues(
        {{Setting::LastFileSelected, number}, {Setting::ShowLapType, number == u"1"}});
    return 0;
}

int importFile(const Settings &settings, const QString &file)
{
    AcquisitionLibrary library;
    QWidget window;
    auto *import = new SessionImport(library, settings, &window);
    QObject::connect(import, &SessionImport::finished, [](const ImportResult &result) {
        QCoreApplication::exit(result.imported == 1 ? 0 : 1);
    });
    import->start({file});
    return QApplication::exec();
}

/// Answers the dialog that asks for the file's name.
void nameTarget(const QString &target)
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [target] {
        if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
            dialog->selectFile(target);
            QMetaObject::invokeMethod(dialog, "accept");
        }
    });
    timer->start(1);
}

int exportTo(const QString &target, const QString &what, const QString &path)
{
    const OpenedSession opened = openSession(path);
    if (!opened.session)
        return 2;
    QWidget window;
    ExportDialogs exports(&window);
    nameTarget(target);
    if (what == u"copy") {
        exports.exportSession(opened.session.get());
    } else if (what == u"session") {
        exports.exportSessionData(opened.session.get());
    } else {
        Lap lap(*opened.session);
        lap.setPoints(opened.session->samples());
        exports.exportLap(&lap);
    }
    return QFile::exists(target) ? 0 : 1;
}

/// Creates, rewrites, replaces, renames and removes recordings in a folder, and moves the folder
/// itself, as fast as the disk lets it. Returns how many changes there were.
int rage(const std::stop_token &stop, const fs::path &folder, const std::string &recording)
{
    std::mt19937 random(7);
    std::error_code none;
    const fs::path away = folder.string() + " away";
    const auto write = [](const fs::path &path, std::string_view bytes) {
        std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
    };
    int changes = 0;
    for (; !stop.stop_requested(); ++changes) {
        const auto any = [&] { return folder / (std::to_string(random() % 40) + "storm.ra1"); };
        const fs::path one = any();
        const auto kind = random() % 1000;
        if (kind < 5) {
            fs::rename(folder, away, none);
            fs::rename(away, folder, none);
        } else if (kind < 200) {
            fs::remove(one, none);
        } else if (kind < 400) {
            fs::rename(one, any(), none);
        } else if (kind < 600) {
            write(away, recording);
            fs::rename(away, one, none);
        } else {
            write(one, recording.substr(0, random() % recording.size()));
            write(one, recording);
        }
    }
    return changes;
}

double residentMegabytes()
{
    QFile file(u"/proc/self/statm"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toDouble() * 0.004096
                                          : 0.0;
}

bool isInStep(const ZunoAnalyzer &window, const QString &folder)
{
    QStringList names;
    QDirIterator files(folder, {u"*.ra1"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        names.append(QFileInfo(files.next()).fileName());
    names.sort();
    return window.viewedStateMap().keys() == names;
}

/// Lets the window live for so long; its longest pause in milliseconds.
qint64 live(
    qint64 milliseconds, const std::function<bool()> &isOver = [] { return false; })
{
    QElapsedTimer all;
    QElapsedTimer turn;
    qint64 longest = 0;
    all.start();
    while (!all.hasExpired(milliseconds) && !isOver()) {
        turn.start();
        QApplication::processEvents(QEventLoop::AllEvents, 5);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        longest = std::max(longest, turn.elapsed());
    }
    return longest;
}

int rideOutStorm(const Settings &settings, int seconds)
{
    settings.setValue(Setting::V1400, true);
    const QString folder = settings.acquisitionFolder();
    const QString raging = folder + u"/Storm"_s;
    QDir().mkpath(raging);
    QDirIterator first(folder, {u"*.ra1"_s}, QDir::Files, QDirIterator::Subdirectories);
    const QString path = first.next();
    QFile ride(path);
    if (!ride.open(QIODevice::ReadOnly))
        return 2;
    const std::string recording = ride.readAll().toStdString();
    ride.close();

    ZunoAnalyzer window;
    window.show();
    window.openFile(path);
    live(500);
    window.findChild<QTreeView *>(u"tw_arbo"_s)->expandAll();
    live(500);
    int changes = 0;
    std::jthread storm([&](const std::stop_token &stop) {
        changes = rage(stop, fs::path(raging.toStdString()), recording);
    });
    qint64 pause = live(seconds * 250);
    const double before = residentMegabytes();
    pause = std::max(pause, live(seconds * 750));
    const double grown = residentMegabytes() - before;
    storm.request_stop();
    storm.join();
    QElapsedTimer calm;
    calm.start();
    live(10000, [&] { return isInStep(window, folder); });
    const bool inStep = isInStep(window, folder);
    std::printf("%d changes a second, longest pause %lld ms, %.1f MB more, %s step after %lld ms\n",
                changes / seconds, static_cast<long long>(pause), grown, inStep ? "in" : "NOT in",
                static_cast<long long>(calm.elapsed()));
    return inStep && pause < 2000 && grown < 30 ? 0 : 1;
}

} // namespace

int main(int count, char **words)
{
    const bool isStorm = count > 1 && std::string_view(words[1]) == "storm";
    if (isStorm)
        qputenv("XDG_DATA_HOME", words[2]);
    const QApplication application(count, words);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.size() < 3)
        return 2;
    const Settings settings(arguments[1]);
    if (arguments[0] == u"settings")
        return storeSettings(settings, arguments[2]);
    if (arguments[0] == u"storm")
        return rideOutStorm(settings, arguments[2].toInt());
    if (arguments[0] == u"export")
        return exportTo(arguments[1], arguments[2], arguments.value(3));
    return importFile(settings, arguments[2]);
}
