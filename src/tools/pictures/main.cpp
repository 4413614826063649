// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Takes pictures of the program at work on the demo library: those of the manual, or those of all
// windows, and then looks for texts that are cut off.

#include <cstdio>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTemporaryFile>

#include <app/darkstyle.h>
#include <tools/pictures/markupnames.h>
#include <tools/pictures/pictures.h>
#include <tools/pictures/stage.h>
#include <tools/pictures/windows.h>
#include <tools/textfit/guessedtexts.h>
#include <tools/textfit/textfit.h>

namespace {

// A small laptop's, less the desktop's bars.
constexpr QSize SmallScreen(1366, 700);

// The screen that a display would have.
constexpr char Screen[] = R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": 1366,
    "height": 700, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";

struct Arguments
{
    QString language;
    QString folder;
    bool isManual = false;
    bool hasMarkup = false;
};

Arguments readArguments(const QCoreApplication &application)
{
    const QCommandLineOption language(QStringLiteral("language"),
                                      QStringLiteral("The language of the windows."),
                                      QStringLiteral("language"), QStringLiteral("en"));
    const QCommandLineOption manual(QStringLiteral("manual"),
                                    QStringLiteral("Take the pictures of the manual."));
    const QCommandLineOption windows(
        QStringLiteral("windows"),
        QStringLiteral("Look at every window; fail when a text of it is cut off."));
    const QCommandLineOption markup(
        QStringLiteral("markup"),
        QStringLiteral("With --windows: put markup into all names, and fail when it is taken for "
                       "such. Then texts may be cut off."));
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({language, manual, windows, markup});
    parser.addPositionalArgument(
        QStringLiteral("folder"),
        QStringLiteral("Where the pictures go; with --windows not needed."),
        QStringLiteral("[folder]"));
    parser.process(application);
    Arguments arguments {parser.value(language), parser.positionalArguments().value(0),
                         parser.isSet(manual), parser.isSet(markup)};
    if (parser.isSet(manual) == parser.isSet(windows)
        || (arguments.isManual && arguments.folder.isEmpty()))
        parser.showHelp(EXIT_FAILURE);
    return arguments;
}

bool save(const QPixmap &picture, const QString &folder, const QString &name)
{
    const QString path = QDir(folder).filePath(name + QStringLiteral(".png"));
    if (QDir().mkpath(folder) && picture.save(path))
        return true;
    std::fprintf(stderr, "%s could not be written.\n", qPrintable(path));
    return false;
}

bool takeManual(zuno::Stage &stage, const QString &folder)
{
    bool isSaved = true;
    zuno::takePictures(stage, [&](const QString &name, const QPixmap &picture) {
        isSaved = save(picture, folder, name) && isSaved;
    });
    return isSaved;
}

bool lookAtWindows(zuno::Stage &stage, const Arguments &arguments)
{
    int windows = 0;
    int faults = 0;
    stage.window().resize(SmallScreen);
    stage.window().show();
    zuno::forEachWindow(stage, [&](const QString &name, QWidget *window) {
        ++windows;
        QStringList texts {QStringLiteral("did not open")};
        if (window != nullptr)
            texts = arguments.hasMarkup ? zuno::guessedTexts(*window) : zuno::cutTexts(*window);
        for (const QString &text : std::as_const(texts)) {
            ++faults;
            std::printf("%s: %s: %s\n", qPrintable(arguments.language), qPrintable(name),
                        qPrintable(text));
        }
        if (window != nullptr && !arguments.folder.isEmpty()
            && !save(window->grab(), arguments.folder, name))
            ++faults;
    });
    std::printf("%s: %d windows, %d faults\n", qPrintable(arguments.language), windows, faults);
    return faults == 0;
}

} // namespace

int main(int argc, char *argv[])
{
    // The same pictures on every machine, and no display needed.
    QTemporaryFile screen;
    if (!screen.open() || screen.write(Screen) < 0 || !screen.flush())
        return EXIT_FAILURE;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(screen.fileName()));
    const QApplication application(argc, argv);
    const Arguments arguments = readArguments(application);
    QApplication::setCursorFlashTime(0);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    QCoreApplication::setApplicationVersion(QStringLiteral("1.5.0.0"));
    zuno::DarkStyle::install();
    const zuno::StageHome home;
    if (arguments.hasMarkup)
        zuno::putMarkupIntoNames(home.path());
    zuno::Stage stage(arguments.language, home.path());
    const bool isGood = arguments.isManual ? takeManual(stage, arguments.folder)
                                           : lookAtWindows(stage, arguments);
    return isGood ? EXIT_SUCCESS : EXIT_FAILURE;
}
