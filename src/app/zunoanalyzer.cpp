// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/zunoanalyzer.h>

#include "ui_zunoanalyzer.h"

#include <algorithm>

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QProcess>
#include <QTreeView>

#include <app/aboutwidget.h>
#include <app/comparing.h>
#include <app/configurationwidget.h>
#include <app/demosessions.h>
#include <app/emptypage.h>
#include <app/help.h>
#include <app/keysheet.h>
#include <app/mapscene.h>
#include <app/themebutton.h>
#include <app/windowlayout.h>
#include <base/units.h>
#include <library/exportdialogs.h>
#include <library/libraryfolder.h>
#include <library/librarypane.h>
#include <library/librarytree.h>
#include <library/passprogress.h>
#include <library/recordingimport.h>
#include <library/sessionimport.h>
#include <library/unsavedchanges.h>
#include <maps/detection/mapdetection.h>
#include <maps/dialog/mapswidget.h>
#include <maps/editor/mapmaker.h>
#include <maps/page/mappane.h>
#include <maps/page/mapviewcontroller.h>
#include <session/sessionfile.h>
#include <stats/sessioninfos.h>
#include <stats/sessionsstats.h>
#include <theme/shownunits.h>
#include <theme/themes.h>
#include <track/map.h>
#include <views/charts/lapcharts.h>
#include <views/comparison/comparisonbar.h>
#include <views/corners/wherepane.h>
#include <views/idealtime/idealtimedialog.h>
#include <views/laps/lapspane.h>
#include <views/laps/lapsview.h>
#include <views/laps/sessionsummary.h>
#include <widgets/plaintexts.h>

namespace zuno {

namespace {

constexpr int MessageTime = 10000;

} // namespace

ZunoAnalyzer::ZunoAnalyzer(const QString &language, QWidget *parent)
    : QMainWindow(parent)
    , m_ui(std::make_unique<Ui::ZunoAnalyzer>())
    , m_settings(Settings::defaultRoot())
    , m_languagesFolder(QCoreApplication::applicationDirPath() + u"/languages/")
    , m_display({m_library, m_maps.library(), m_settings, m_writer})
    , m_upgrade({m_library, m_settings})
{
    // Before anything that has a text or shows a number.
    loadLanguage(language.isNull() ? m_settings.value(Setting::Language).toString() : language);
    ShownUnits::instance().choose(Units::of(m_settings));
    m_ui->setupUi(this);
    m_files = new LibraryPane(m_library, m_settings, this);
    m_files->view()->installEventFilter(this);
    m_laps = new LapsPane(m_selection, m_settings, this);
    m_map = new MapPane(this);
    connect(m_laps, &LapsPane::folderWanted, this, &ZunoAnalyzer::chooseFolder);
    m_empty = new EmptyPage(this);
    m_empty->hide();
    createActions();
    m_infos = new SessionInfos(m_writer, m_language, this);
    m_charts = new LapCharts(m_selection, m_settings, this);
    connectParts();
    showNothing();
    openMapsFolder();
    arrangePanes();
    openAcquisitionFolder();
    m_settings.writeDisplayDefaults();
    if (!m_settings.isStored(Setting::ShowLapType))
        tellOfNoRoom();
    m_laps->table().applyColumns();
}

ZunoAnalyzer::~ZunoAnalyzer()
{
    // The views go before what they show.
    delete m_files;
    delete m_comparing;
    delete m_charts;
    delete m_laps;
}

// Not for a while only: whatever the rider does now may be lost.
void ZunoAnalyzer::tellOfNoRoom()
{
    statusBar()->showMessage(tr("Nothing can be stored in %1: the disk is full, or the folder "
                                "cannot be written to.")
                                 .arg(QFileInfo(m_settings.logPath()).path()));
}

void ZunoAnalyzer::createActions()
{
    const auto add = [this](const QString &text, const QKeySequence &shortcut, auto run) {
        QAction *action = menuBar()->addAction(text);
        action->setShortcut(shortcut);
        // A menu bar shows no tool tips; the status bar tells the keys instead.
        const QString keys = shortcut.toString(QKeySequence::NativeText);
        action->setToolTip(QStringLiteral("%1 (%2)").arg(text.trimmed(), keys));
        action->setStatusTip(action->toolTip());
        connect(action, &QAction::triggered, this, run);
    };
    add(tr("   Import   "), QKeySequence(Qt::CTRL | Qt::Key_I), &ZunoAnalyzer::importSession);
    add(tr("   Settings   "), QKeySequence(Qt::CTRL | Qt::Key_Comma), &ZunoAnalyzer::openSettings);
    add(tr("   Maps   "), QKeySequence(Qt::CTRL | Qt::Key_M), &ZunoAnalyzer::openMaps);
    add(tr("   Statistics   "), QKeySequence(Qt::CTRL | Qt::Key_T), &ZunoAnalyzer::openStatistics);
    add(tr("   Help   "), QKeySequence(Qt::Key_F1), &ZunoAnalyzer::openHelp);
    add(QStringLiteral("   ?   "), QKeySequence(Qt::SHIFT | Qt::Key_F1), &ZunoAnalyzer::openAbout);
    menuBar()->setCornerWidget(new ThemeButton(m_settings, menuBar()));
    auto *const keys = new QAction(tr("All keys"), this);
    keys->setObjectName(QStringLiteral("action_keys"));
    keys->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Slash), QKeySequence(Qt::Key_Question)});
    connect(keys, &QAction::triggered, this, [this] { KeySheet(keysOf(*this), this).exec(); });
    addAction(keys);
    auto *tree = new QAction(tr("List of sessions"), this);
    tree->setShortcut(Qt::Key_F9);
    addAction(tree);
    connect(tree, &QAction::triggered, this, [this] { m_layout->toggleTree(); });
}

void ZunoAnalyzer::arrangePanes()
{
    m_ui->splitter0->addWidget(m_laps);
    m_ui->splitter0->addWidget(m_map);
    m_ui->tab4Layout->insertWidget(0, m_comparing->bar());
    m_ui->splitter4->addWidget(m_comparing->where());
    m_ui->splitter4->addWidget(m_charts);
    m_ui->splitter4->setStretchFactor(1, 1);
    m_ui->tabWidget->setTabText(0, tr("Maps and Laps  "));
    m_ui->tabWidget->addTab(m_infos, tr(" Session infos  "));
    m_ui->tabWidget->setCurrentIndex(0);
    m_lapsPage = m_ui->tabWidget->widget(0);
    connect(m_empty, &EmptyPage::importWanted, this, &ZunoAnalyzer::importSession);
    connect(m_empty, &EmptyPage::demoWanted, this, &ZunoAnalyzer::loadDemo);
    connect(m_files, &LibraryPane::demoRemovalWanted, this, &ZunoAnalyzer::removeDemo);
    connect(m_ui->tabWidget, &QTabWidget::currentChanged, m_infos, &SessionInfos::onTabChanged);
    m_ui->splitter3->insertWidget(0, m_files);
    m_ui->splitter3->setStretchFactor(1, 1);
    setTabOrder(m_files->view(), m_ui->tabWidget);
    m_layout = new WindowLayout(
        {*m_ui->splitter3, *m_ui->splitter1, *m_ui->splitter0, *m_ui->splitter4, *m_ui->treeRail},
        m_settings, this);
    connect(m_layout, &WindowLayout::moved, this, &ZunoAnalyzer::saveSplitterStates);
}

void ZunoAnalyzer::connectParts()
{
    const LibraryTree *tree = &m_files->tree();
    connect(tree, &LibraryTree::rowsInserted, this, &ZunoAnalyzer::onAddNewFiles);
    connect(tree, &LibraryTree::currentChanged, this, &ZunoAnalyzer::onSessionDisplayedChange);
    connect(tree, &LibraryTree::fileChanged, this, &ZunoAnalyzer::onFileChanged);
    connect(tree, &LibraryTree::idealTimeRequested, this, &ZunoAnalyzer::openIdealTime);
    connect(tree, &LibraryTree::folderChanged, this, &ZunoAnalyzer::onFolderChanged);
    connect(&m_library, &AcquisitionLibrary::noticed, this, &ZunoAnalyzer::tell);
    connect(&m_library, &AcquisitionLibrary::loadingAdvanced, this, &ZunoAnalyzer::showLoading);
    connect(tree, &LibraryTree::failed, this, &ZunoAnalyzer::tell);
    connect(&m_writer, &InformationWriter::failed, this, &ZunoAnalyzer::tell);
    connect(&m_writer, &InformationWriter::joined, this,
            [this](const Session *, const QString &message) { tell(message); });
    connect(&m_library, &AcquisitionLibrary::sessionsChanged, tree,
            &LibraryTree::updateViewedStates);
    connect(&m_library, &AcquisitionLibrary::sessionsChanged, this, [this] {
        if (m_display.session() == nullptr)
            showState(emptyState());
    });
    connect(&m_library, &AcquisitionLibrary::sessionAboutToBeRemoved, &m_selection,
            &LapSelection::forget);
    connect(&m_display, &SessionDisplay::mapApplied, this, &ZunoAnalyzer::showSession);
    connect(&m_display, &SessionDisplay::cleared, this, &ZunoAnalyzer::showNothing);
    connect(&m_display, &SessionDisplay::viewedStateChanged, tree,
            &LibraryTree::updateViewedStates);
    connect(&m_upgrade, &UpgradePass::finished, tree, &LibraryTree::updateViewedStates);
    connect(&m_display, &SessionDisplay::notASession, this, [this](const QString &path) {
        const QString text = openSession(path).error == SessionFileError::TooLarge
                                 ? tr("\"%1\" is too large to be shown: a session has 1 GB and 20 "
                                      "million samples at most.")
                                 : tr("\"%1\" holds no session that can be shown: it is damaged, "
                                      "empty, or was written by something else.");
        showState(text.arg(QFileInfo(path).fileName()));
    });
    connect(&m_display, &SessionDisplay::vanished, this, [this](const QString &path) {
        tell(tr("\"%1\" is no longer there: it was deleted or moved.")
                 .arg(QFileInfo(path).fileName()));
    });
    connect(&m_laps->table(), &LapsView::validityChanged, this, &ZunoAnalyzer::onValidityChanged);
    connect(&m_laps->table(), &LapsView::refused, this, &ZunoAnalyzer::tell);
    m_comparing = new Comparing(
        {m_selection, m_settings, *m_laps, *m_charts, *m_map},
        [this] {
            return ReferenceSources {m_library.sessions(), m_maps.library(), m_settings};
        },
        this);
    connect(m_comparing, &Comparing::noticed, this, &ZunoAnalyzer::tell);
    connect(&m_comparing->comparison(), &Comparison::lapWanted, this, &ZunoAnalyzer::goToLap);
    auto *exports = new ExportDialogs(this);
    connect(tree, &LibraryTree::exportSessionRequested, exports, &ExportDialogs::exportSession);
    connect(tree, &LibraryTree::exportDataRequested, exports, &ExportDialogs::exportSessionData);
    connect(&m_laps->table(), &LapsView::exportRequested, exports, &ExportDialogs::exportLap);
    connect(tree, &LibraryTree::exportRidesRequested, exports, &ExportDialogs::exportRides);
    connect(exports, &ExportDialogs::done, this, &ZunoAnalyzer::tell);
    m_import = new SessionImport(m_library, m_settings, this);
    connect(m_import, &SessionImport::finished, this, [this](const ImportResult &result) {
        result.showIn(*statusBar());
        if (m_library.find(result.path) != nullptr)
            m_files->tree().select(result.path);
    });
    new RecordingImport({*m_import, m_maps.library(), m_settings}, this);
    connect(&m_maps, &MapFolder::changed, this, &ZunoAnalyzer::reloadMaps);
    m_mapMaker = new MapMaker({m_library, m_maps.library(), m_display, m_settings}, this);
    connect(m_mapMaker, &MapMaker::mapsChanged, this, &ZunoAnalyzer::reloadMaps);
    connect(m_laps, &LapsPane::newMapRequested, m_mapMaker, &MapMaker::newMap);
    connect(m_map, &MapPane::newMapRequested, m_mapMaker, &MapMaker::newMap);
    connect(&m_map->view(), &MapViewController::mapReady, this, &ZunoAnalyzer::onMapReady);
    connect(&m_selection, &LapSelection::shownChanged, this, &ZunoAnalyzer::showLapOnMap);
    connectViews();
}

// Laps table, charts and map follow each other: a sector that is clicked in the table, the cursor
// of the charts, a place that is clicked on the map.
void ZunoAnalyzer::connectViews()
{
    const LapsView *table = &m_laps->table();
    const MapViewController *map = &m_map->view();
    const ChartState *state = &m_charts->state();
    connect(table, &LapsView::sectorChosen, state, &ChartState::showSector);
    new MapScene(m_charts->state(), *m_map, m_charts);
    connect(map, &MapViewController::samplePicked, state, &ChartState::pinSample);
    connect(state, &ChartState::stretchShown, map, &MapViewController::showStretch);
    connect(m_charts, &LapCharts::cursorMoved, map, &MapViewController::drawCursor);
    connect(m_charts, &LapCharts::secondCursorMoved, map, &MapViewController::drawSecondCursor);
}

void ZunoAnalyzer::openMapsFolder()
{
    const QString folder = m_settings.mapsFolder();
    loadMaps(folder);
    if (QDir(folder).exists())
        m_settings.setValue(Setting::MapFiles, folder);
}

void ZunoAnalyzer::openAcquisitionFolder()
{
    const QString folder = m_settings.acquisitionFolder();
    LibraryFolder(folder, m_settings).makeFirst();
    loadAcquisitionsFolder(folder);
    m_settings.setValue(Setting::AcquisitionFolder, folder);
}

void ZunoAnalyzer::chooseFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Folder of your sessions"));
    if (folder.isEmpty())
        return;
    m_settings.setValue(Setting::AcquisitionFolder, folder);
    openSessionsFolder(folder);
}

void ZunoAnalyzer::openSessionsFolder(const QString &folder)
{
    // What was selected in a folder that was lost is no sign that this one was emptied.
    m_settings.setValue(Setting::LastFileSelected, QString());
    m_library.reload(folder);
    loadAcquisitionsFolder(folder);
}

void ZunoAnalyzer::onFolderChanged()
{
    if (m_files->tree().isShown())
        loadAcquisitionsFolder(QString(m_files->tree().folder()));
    else if (m_display.session() == nullptr)
        showNothing();
}

void ZunoAnalyzer::loadAcquisitionsFolder(const QString &folder)
{
    m_writer.setLibrary(LibraryFolder(folder, m_settings));
    m_library.loadSoon(folder, m_settings.value(Setting::LastFileSelected).toString());
    m_files->tree().setFolder(folder);
    if (!m_files->tree().isShown()) {
        showNothing();
        return;
    }
    if (m_upgrade.start(LibraryFolder(folder, m_settings)) && m_upgrade.isRunning())
        statusBar()->addPermanentWidget(new PassProgress(m_upgrade, m_library.size()));
    if (m_display.session() == nullptr)
        showNothing();
}

void ZunoAnalyzer::loadLanguage(const QString &language)
{
    m_language = language;
    QLocale::setDefault(QLocale(language));
    switchTranslator(m_translator,
                     m_languagesFolder + QStringLiteral("zunoanalyzer_%1.qm").arg(language));
    switchTranslator(m_qtTranslator, QCoreApplication::applicationDirPath() + u"/translations/"
                                         + QStringLiteral("qt_%1.qm").arg(language));
}

void ZunoAnalyzer::switchTranslator(QTranslator &translator, const QString &file)
{
    QCoreApplication::removeTranslator(&translator);
    if (translator.load(file))
        QCoreApplication::installTranslator(&translator);
}

Session *ZunoAnalyzer::findSessionByPath(const QString &path)
{
    return m_display.findSessionByPath(path);
}

QMap<QString, bool> ZunoAnalyzer::viewedStateMap() const
{
    return m_library.viewedStateMap();
}

void ZunoAnalyzer::onSessionDisplayedChange()
{
    // A folder is no session; what is displayed stays.
    if (m_files->tree().isCurrentFile())
        m_display.display(m_files->tree().currentPath());
}

// Somebody else has replaced a session file, or goes on writing it.
void ZunoAnalyzer::onFileChanged(const QString &path)
{
    const Session *displayed = m_display.session();
    const bool isDisplayed = displayed != nullptr && displayed->filePath() == path;
    if (m_library.refresh(path) && isDisplayed)
        m_display.display(path);
}

void ZunoAnalyzer::onMapChanged(const QList<const Map *> &candidates, int mode)
{
    m_display.onMapChanged(candidates, mode);
}

void ZunoAnalyzer::detectMap()
{
    m_display.detectMap();
}

void ZunoAnalyzer::onMapReady()
{
    m_map->view().initOnlineMap(m_library.sessions(), static_cast<int>(m_display.index()));
    m_map->view().setOptions(m_settings.path(SettingsFile::Analyzer));
    showLapOnMap();
}

void ZunoAnalyzer::showLapOnMap()
{
    const SessionLap lap = m_selection.current();
    const SessionLap reference = m_selection.compared();
    if (!lap) {
        m_map->view().clearLaps();
    } else if (reference) {
        m_map->view().drawTwoLaps(lap, reference);
        showComparison(lap, reference);
    } else {
        m_map->view().drawLap(lap);
    }
}

void ZunoAnalyzer::onAddNewFiles(const QModelIndex &parent, int first, int last)
{
    m_files->tree().onAddNewFiles(parent, first, last);
}

void ZunoAnalyzer::chooseMapByLength(Session *session, const QList<const Map *> &candidates)
{
    if (session != nullptr)
        zuno::chooseMapByLength(*session, candidates);
}

void ZunoAnalyzer::loadMaps(const QString &folder)
{
    m_comparing->comparison().release();
    // The sessions point at the maps, so they go first and come back without one.
    if (m_library.size() > 0)
        m_library.reload(m_settings.acquisitionFolder());
    m_maps.open(folder);
}

void ZunoAnalyzer::reloadMaps()
{
    loadMaps(m_settings.mapsFolder());
    onSessionDisplayedChange();
    if (m_display.session() == nullptr)
        showNothing();
    Q_EMIT mapsLoaded();
}

void ZunoAnalyzer::saveSplitterStates()
{
    m_layout->save();
    m_charts->layOut();
}

void ZunoAnalyzer::importSession()
{
    const Session *session = m_display.session();
    const QStringList files = QFileDialog::getOpenFileNames(
        this, tr("Select one or more session files to import"),
        session != nullptr ? session->filePath() : QString(),
        tr("Recordings (%1)").arg(u"*.ra1 " + SessionImport::othersPattern()) + u";;"
            + tr("RA1 Files (*.ra1)") + u";;" + tr("All files (*)"));
    if (!files.isEmpty())
        m_import->start(files);
}

void ZunoAnalyzer::showLoading(qsizetype read, qsizetype all)
{
    if (read == all)
        statusBar()->clearMessage();
    else
        statusBar()->showMessage(tr("Reading your library: %1 of %2 recordings")
                                     .arg(QLocale().toString(read), QLocale().toString(all)));
}

void ZunoAnalyzer::openFile(const QString &path)
{
    m_library.finishLoading();
    const QString clean = QFileInfo(path).absoluteFilePath();
    if (m_library.find(clean) != nullptr) {
        m_files->tree().select(clean);
        return;
    }
    const QString name = QFileInfo(clean).fileName();
    if (!QFileInfo(clean).isFile()) {
        tell(tr("\"%1\" is not there, or is no file.").arg(name));
        return;
    }
    // What other loggers have written is shown and asked for by the import.
    if (SessionImport::isOthers(clean)) {
        m_import->start({clean});
        return;
    }
    // Displaying a file writes to it, so only files of the library are displayed.
    const auto answer
        = MessageBox::run(QMessageBox::Question, this, windowTitle(),
                          tr("\"%1\" is not in your library. Do you want to import it?").arg(name),
                          QMessageBox::Yes | QMessageBox::No);
    if (answer != QMessageBox::Yes)
        return;
    m_import->start({clean});
}

void ZunoAnalyzer::openSettings()
{
    ConfigurationWidget dialog(m_settings, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString language = m_settings.value(Setting::Language).toString();
    const QString maps = m_settings.mapsFolder();
    const QString sessions = m_settings.acquisitionFolder();
    dialog.storeValues();
    m_laps->table().applyColumns();
    m_map->view().setOptions(m_settings.path(SettingsFile::Analyzer));
    Themes::instance().choose(Themes::choiceOf(m_settings.value(Setting::Theme).toString()));
    ShownUnits::instance().choose(Units::of(m_settings));
    m_map->showSession(m_display.session());
    if (m_settings.acquisitionFolder() != sessions)
        openSessionsFolder(m_settings.acquisitionFolder());
    if (m_settings.mapsFolder() != maps)
        reloadMaps();
    if (m_settings.value(Setting::Language).toString() != language)
        offerRestart();
}

// The language is that of the whole run; texts that are shown already would stay in the other one.
void ZunoAnalyzer::offerRestart()
{
    const auto answer = MessageBox::run(
        QMessageBox::Question, this, windowTitle(),
        tr("The other language is there when the program starts again. Do you want to start it "
           "again now?"),
        QMessageBox::Yes | QMessageBox::No);
    if (answer == QMessageBox::Yes && close())
        QProcess::startDetached(QCoreApplication::applicationFilePath(), {});
}

void ZunoAnalyzer::openMaps()
{
    MapsWidget dialog(m_maps.library().maps(), m_display.session(), this);
    connect(&dialog, &MapsWidget::mapChanged, this, &ZunoAnalyzer::onMapChanged);
    connect(&dialog, &MapsWidget::autoFindMap, this, &ZunoAnalyzer::detectMap);
    connect(&dialog, &MapsWidget::newMap, m_mapMaker, &MapMaker::newMap);
    connect(&dialog, &MapsWidget::editMap, m_mapMaker, &MapMaker::editMap);
    connect(&dialog, &MapsWidget::renameMap, m_mapMaker, &MapMaker::renameMap);
    connect(&dialog, &MapsWidget::deleteMap, m_mapMaker, &MapMaker::deleteMap);
    connect(&dialog, &MapsWidget::reloadMaps, this, &ZunoAnalyzer::reloadMaps);
    connect(this, &ZunoAnalyzer::mapsLoaded, &dialog,
            [this, &dialog] { dialog.setMaps(m_maps.library().maps(), m_display.session()); });
    dialog.exec();
}

void ZunoAnalyzer::openStatistics()
{
    if (m_statistics == nullptr) {
        m_statistics = new SessionsStats(m_library.sessions(), this);
        // The rider goes back and forth between it and the laps.
        m_statistics->setModal(false);
        connect(m_statistics, &SessionsStats::goToSession, this, &ZunoAnalyzer::goToSession);
        connect(&m_library, &AcquisitionLibrary::sessionsChanged, m_statistics,
                [this] { m_statistics->setSessions(m_library.sessions()); });
        connect(m_infos, &SessionInfos::saved, m_statistics, &SessionsStats::refreshSoon);
        connect(&ShownUnits::instance(), &ShownUnits::changed, m_statistics,
                &SessionsStats::refreshSoon);
        connect(&m_laps->table(), &LapsView::validityChanged, m_statistics,
                &SessionsStats::refreshSoon);
        connect(&m_display, &SessionDisplay::mapApplied, m_statistics, &SessionsStats::refreshSoon);
    } else {
        m_statistics->setSessions(m_library.sessions());
    }
    m_statistics->show();
    m_statistics->raise();
    m_statistics->activateWindow();
}

void ZunoAnalyzer::goToSession(Session *sess)
{
    m_files->tree().select(sess->filePath());
}

void ZunoAnalyzer::openIdealTime(const QList<Session *> &sessions)
{
    IdealTimeDialog dialog({m_maps.library(), m_settings}, sessions, this);
    connect(&dialog, &IdealTimeDialog::lapRequested, this, &ZunoAnalyzer::goToLap);
    dialog.exec();
}

void ZunoAnalyzer::goToLap(const QString &filePath, int lapNumber)
{
    m_files->tree().select(filePath);
    const Session *session = m_display.session();
    if (session != nullptr && session->filePath() == filePath)
        m_selection.setCurrentLap(lapNumber - 1);
}

void ZunoAnalyzer::openHelp()
{
    const QString failure = Help::open(m_languagesFolder, m_language);
    if (!failure.isEmpty())
        tell(failure);
}

void ZunoAnalyzer::openAbout()
{
    AboutWidget(m_language, this).exec();
}

bool ZunoAnalyzer::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_files->view() && event->type() == QEvent::KeyPress
        && m_files->tree().handleKey(*static_cast<QKeyEvent *>(event)))
        return true;
    return QMainWindow::eventFilter(watched, event);
}

void ZunoAnalyzer::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    m_layout->fit(event->size());
}

void ZunoAnalyzer::commit()
{
    m_infos->commit();
}

void ZunoAnalyzer::closeEvent(QCloseEvent *event)
{
    commit();
    event->setAccepted(UnsavedChanges(m_library, m_writer).mayClose(this));
}

void ZunoAnalyzer::showSession(Session *session)
{
    showEmptyPage(false);
    m_map->view().centerMap(session->map());
    m_selection.setSession(session);
    m_laps->showSession();
    m_map->showSession(session);
    m_infos->showSession(session);
    if (session->laps().empty())
        showState(emptyState());
}

void ZunoAnalyzer::showState(const QString &text)
{
    const Session *session = m_display.session();
    showEmptyPage(m_library.size() == 0 && m_files->tree().isShown());
    m_laps->showState(text, session != nullptr && session->sampleCount() > 0,
                      !m_files->tree().isShown());
}

// In the place of laps, map and charts, which have nothing to show.
void ZunoAnalyzer::showEmptyPage(bool isShown)
{
    QTabWidget *tabs = m_ui->tabWidget;
    QWidget *page = isShown ? m_empty : m_lapsPage;
    m_files->showDemo(DemoSessions(m_settings).areThere());
    if (m_lapsPage == nullptr || tabs->widget(0) == page)
        return;
    m_empty->showFolder(m_settings.acquisitionFolder());
    const QString title = tabs->tabText(0);
    const int current = tabs->currentIndex();
    tabs->removeTab(0);
    tabs->insertTab(0, page, title);
    tabs->setCurrentIndex(current);
}

void ZunoAnalyzer::loadDemo()
{
    const DemoSessions demo(m_settings);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QString problem = demo.load();
    reloadMaps();
    openSessionsFolder(m_settings.acquisitionFolder());
    QApplication::restoreOverrideCursor();
    if (!problem.isEmpty())
        tell(problem);
    // The newest of them, by its name.
    QStringList files;
    const QList<Session *> sessions = m_library.sessions();
    for (const Session *session : sessions) {
        if (session->filePath().startsWith(demo.folder() + u'/'))
            files.append(session->filePath());
    }
    if (!files.isEmpty())
        m_files->tree().select(*std::max_element(files.cbegin(), files.cend()));
}

void ZunoAnalyzer::removeDemo()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const int left = DemoSessions(m_settings).remove();
    openSessionsFolder(m_settings.acquisitionFolder());
    reloadMaps();
    QApplication::restoreOverrideCursor();
    if (left > 0)
        tell(tr("Demo files that could not be removed: %1").arg(left));
}

void ZunoAnalyzer::showNothing()
{
    m_selection.setSession(nullptr);
    m_laps->showSession();
    m_map->showSession(nullptr);
    m_infos->showSession(nullptr);
    showState(emptyState());
}

QString ZunoAnalyzer::emptyState() const
{
    if (QString problem = LibraryFolder(m_settings.acquisitionFolder(), m_settings).problem();
        !problem.isEmpty())
        return problem;
    if (m_library.size() == 0) {
        return tr("There are no sessions yet.\n\nDrop the session files (.ra1) of your logger "
                  "here, choose them with \"Import\" (Ctrl+I), or copy them to\n%1")
            .arg(QDir::toNativeSeparators(m_settings.acquisitionFolder()));
    }
    if (m_display.session() == nullptr)
        return tr("Select a session in the list on the left to see its laps.");
    return SessionSummary::laplessText(*m_display.session(), m_settings.mapsFolder());
}

void ZunoAnalyzer::showComparison(const SessionLap &lap, const SessionLap &reference)
{
    tell(tr("Lap %1 (%2) against lap %3 (%4): %5 s")
             .arg(QString::number(lap->lapNumber()), lap->timeText(),
                  QString::number(reference->lapNumber()), reference->timeText(),
                  shownNumber((lap->lapTime() - reference->lapTime()) / 1000.0, 3, true)));
}

void ZunoAnalyzer::onValidityChanged(Session *session)
{
    m_infos->showSession(session);
    m_writer.write(*session, InformationWriter::Cause::Edited);
}

void ZunoAnalyzer::tell(const QString &message)
{
    statusBar()->showMessage(message, MessageTime);
}

} // namespace zuno
