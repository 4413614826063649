// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <cstdlib>

#include <QCommandLineParser>
#include <QHashSeed>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QScreen>

#include <app/application.h>
#include <app/darkstyle.h>
#include <app/desktoptheme.h>
#include <app/ending.h>
#include <app/logfile.h>
#include <app/update/updateapp.h>
#include <app/zunoanalyzer.h>
#include <base/settings.h>
#include <maps/page/pagesettings.h>
#include <theme/themes.h>

namespace {

struct Arguments
{
    QString language;
    QString file;
};

/// What the program was started with. Ends the program after --help and after what nobody knows.
Arguments readArguments()
{
    // It speaks before any language is loaded, as do all programs of a command line.
    const QCommandLineOption language(
        QStringLiteral("language"),
        QStringLiteral("Speak that language (en, fr, de, it or es) instead of that of the "
                       "settings, for this run."),
        QStringLiteral("language"));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows where time is won and lost on a race track."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption(language);
    parser.addPositionalArgument(QStringLiteral("file"),
                                 QStringLiteral("A session file (*.ra1): one of the library is "
                                                "selected, any other is offered for import."),
                                 QStringLiteral("[file]"));
    parser.process(*QCoreApplication::instance());
    return {parser.value(language), parser.positionalArguments().value(0)};
}

/// The map's page needs OpenGL, and would end the program without it. Then the processor draws it.
void drawWithoutOpenGl()
{
    QOpenGLContext context;
    QOffscreenSurface surface;
    surface.create();
    if (!context.create() || !context.makeCurrent(&surface))
        qputenv("QT_QUICK_BACKEND", "software");
}

/// Whether the program is asked for its words only. It answers where there is no display, too.
bool wantsText(int argc, char *argv[])
{
    static constexpr std::array Options {"-h", "--help", "--help-all", "-v", "--version"};
    return std::any_of(argv + 1, argv + argc, [](const char *word) {
        return std::any_of(Options.begin(), Options.end(),
                           [word](const char *option) { return qstrcmp(word, option) == 0; });
    });
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationVersion(QStringLiteral(ZUNO_VERSION));
    if (wantsText(argc, argv)) {
        const QCoreApplication application(argc, argv);
        readArguments();
        return EXIT_SUCCESS;
    }
    zuno::startLog();
    zuno::hideInLog(zuno::mapServiceKey());
    // With a seed Qt hashes short texts in a way that slows all numbers down (processorstate.h),
    // also between the events. The seed is there against names that were chosen to fall into one
    // place of a table: here that takes as many files in the rider's own library, which whoever
    // puts them there could fill with anything else. What comes over the network is signed, and
    // few.
    QHashSeed::setDeterministicGlobalSeed();
    const zuno::Application application(argc, argv);
    // By this name a desktop finds the window's icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("com.example.ZunoAnalyzer"));
    const Arguments arguments = readArguments();
    drawWithoutOpenGl();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    const zuno::Settings settings(zuno::Settings::defaultRoot());
    zuno::Themes::instance().choose(
        zuno::Themes::choiceOf(settings.value(zuno::Setting::Theme).toString()));
    zuno::DarkStyle::install();
    const zuno::DesktopTheme desktop;
    zuno::ZunoAnalyzer window(arguments.language);
    const zuno::Ending ending;
    QObject::connect(&ending, &zuno::Ending::imminent, &window, &zuno::ZunoAnalyzer::commit);
    zuno::UpdateApp updates(
        zuno::UpdateSetup::configured(settings, QCoreApplication::applicationDirPath()), &window);
    QObject::connect(&updates, &zuno::UpdateApp::failed, &window, &zuno::ZunoAnalyzer::tell);
    updates.checkForUpdates();
    // Where no window manager maximises it, the window fills the screen all the same.
    window.resize(window.screen()->availableSize());
    window.showMaximized();
    if (!arguments.file.isEmpty())
        QMetaObject::invokeMethod(
            &window, [&window, file = arguments.file] { window.openFile(file); },
            Qt::QueuedConnection);
    return zuno::Application::exec();
}
