// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QScreen>

#include <app/darkstyle.h>
#include <app/logfile.h>
#include <app/updateapp.h>
#include <app/zunoanalyzer.h>

int main(int argc, char *argv[])
{
    zuno::startLog();
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral("1.5.0.0"));
    // By this name a desktop finds the window's icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("com.example.ZunoAnalyzer"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    QApplication::setStyle(new zuno::DarkStyle);
    zuno::ZunoAnalyzer window;
    zuno::UpdateApp updates(zuno::UpdateApp::configuredServer(), &window);
    QObject::connect(&updates, &zuno::UpdateApp::failed, &window, &zuno::ZunoAnalyzer::tell);
    updates.checkForUpdates();
    // Where no window manager maximises it, the window fills the screen all the same.
    window.resize(window.screen()->availableSize());
    window.showMaximized();
    const QStringList files = QCoreApplication::arguments().mid(1);
    if (!files.isEmpty())
        QMetaObject::invokeMethod(
            &window, [&window, files] { window.openFile(files.first()); }, Qt::QueuedConnection);
    return QApplication::exec();
}
