// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What scripts/faults.sh needs of the program: an import, an export and a change of settings to be
// killed at, each as the program does it, and the window with a folder in which somebody rages.
//   zuno_faults import ROOT FILE
//   zuno_faults settings ROOT NUMBER
//   zuno_faults export TARGET lap|session|copy FILE
//   zuno_faults storm ROOT SECONDS
//   zuno_faults typing FILE FOLDER KILLS
//   zuno_faults type FILE

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <thread>

#include <QApplication>
#include <QDeadlineTimer>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QTimer>
#include <QTreeView>

#include <app/zunoanalyzer.h>
#include <base/settings.h>
#include <library/acquisitionlibrary.h>
#include <library/exportdialogs.h>
#include <library/sessionimport.h>
#include <session/laps/lap.h>
#include <session/sessionfile.h>

#include "typingkills.h"

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
    Lap lap;
    lap.setPoints(opened.session->samples());
    if (what == u"copy")
        exports.exportSession(opened.session.get());
    else if (what == u"session")
        exports.exportSessionData(opened.session.get());
    else
        exports.exportLap({opened.session.get(), &lap});
    return QFile::exists(target) ? 0 : 1;
}

/// Rewrites, replaces, renames and removes recordings in a folder, and moves the folder itself, as
/// fast as the disk lets it. Returns how many changes there were.
int rage(const std::stop_token &stop, const fs::path &folder, const std::string &recording)
{
    std::mt19937 random(7);
    std::error_code none;
    const fs::path away = folder.string() + " away";
    int changes = 0;
    for (; !stop.stop_requested(); ++changes) {
        const auto any = [&] { return folder / (std::to_string(random() % 40) + "storm.ra1"); };
        const auto kind = random() % 200;
        if (kind == 0) {
            fs::rename(folder, away, none);
            fs::rename(away, folder, none);
        } else if (kind < 40) {
            fs::remove(any(), none);
        } else if (kind < 80) {
            fs::rename(any(), any(), none);
        } else {
            std::ofstream file(any(), std::ios::binary | std::ios::trunc);
            file << recording.substr(0, random() % recording.size()) << std::flush;
            file.seekp(0) << recording;
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

QStringList recordingsBelow(const QString &folder)
{
    QStringList paths;
    QDirIterator files(folder, {u"*.ra1"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        paths.append(files.next());
    return paths;
}

bool isInStep(const ZunoAnalyzer &window, const QString &folder)
{
    QStringList names = recordingsBelow(folder);
    std::transform(names.begin(), names.end(), names.begin(),
                   [](const QString &path) { return QFileInfo(path).fileName(); });
    names.sort();
    return window.viewedStateMap().keys() == names;
}

/// Lets the window live for so long; its longest pause in milliseconds.
qint64 live(qint64 milliseconds)
{
    const QDeadlineTimer end(milliseconds);
    qint64 longest = 0;
    QElapsedTimer turn;
    while (!end.hasExpired()) {
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
    QFile ride(recordingsBelow(folder).value(0));
    if (!ride.open(QIODevice::ReadOnly))
        return 2;
    const std::string recording = ride.readAll().toStdString();
    ZunoAnalyzer window;
    window.show();
    window.openFile(ride.fileName());
    live(500);
    window.findChild<QTreeView *>(u"tw_arbo"_s)->expandAll();
    live(500);
    int changes = 0;
    std::jthread storm([&](const std::stop_token &stop) {
        changes = rage(stop, fs::path(raging.toStdString()), recording);
    });
    live(seconds * 250);
    const double before = residentMegabytes();
    const qint64 pause = live(seconds * 750);
    const double grown = residentMegabytes() - before;
    storm.request_stop();
    storm.join();
    for (int turn = 0; turn < 50 && !isInStep(window, folder); ++turn)
        live(100);
    const bool inStep = isInStep(window, folder);
    std::printf("%d changes a second, longest pause %d ms, %.1f MB more, %s step afterwards\n",
                changes / seconds, static_cast<int>(pause), grown, inStep ? "in" : "NOT in");
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
    if (arguments.size() == 2 && arguments[0] == u"type")
        return test::typeForEver(arguments[1]);
    if (arguments.size() < 3)
        return 2;
    if (arguments[0] == u"typing")
        return test::killWhileTyping(arguments[1], arguments[2], arguments.value(3).toInt());
    const Settings settings(arguments[1]);
    if (arguments[0] == u"settings")
        return storeSettings(settings, arguments[2]);
    if (arguments[0] == u"storm")
        return rideOutStorm(settings, arguments[2].toInt());
    if (arguments[0] == u"export")
        return exportTo(arguments[1], arguments[2], arguments.value(3));
    return importFile(settings, arguments[2]);
}
