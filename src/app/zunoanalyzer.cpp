// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/zunoanalyzer.h>

#include "ui_zunoanalyzer.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMessageBox>
#include <QSplitter>

#include <app/aboutwidget.h>
#include <app/chartwidgets.h>
#include <app/configurationwidget.h>
#include <app/help.h>
#include <app/makerlinks.h>
#include <library/exportdialogs.h>
#include <library/librarytree.h>
#include <library/sessionimport.h>
#include <library/upgradepass.h>
#include <maps/dialog/mapswidget.h>
#include <maps/editor/mapmaker.h>
#include <maps/page/mapviewcontroller.h>
#include <stats/sessioninfos.h>
#include <stats/sessionsstats.h>
#include <track/map.h>
#include <views/idealtime/idealtimedialog.h>
#include <views/laps/lapsview.h>
#include <views/laps/sessionsummary.h>

namespace zuno {

namespace {

constexpr QStringView VerticalHandle = u"QSplitter::handle { image: url(:/Resources/split_v.png); }"
                                       "QSplitter::handle:vertical { height: 8px;}";
constexpr QStringView HorizontalHandle
    = u"QSplitter::handle { image: url(:/Resources/split_h.png); }"
      "QSplitter::handle:vertical { height: 8px;}QSplitter::handle:horizontal{ height: 8px; }";
constexpr QStringView TabHandle
    = u"QSplitter::handle { image: url(:/Resources/split_v.png); }"
      "QSplitter::handle:vertical { height: 8px;}QSplitter::handle:horizontal{ height: 8px; }";

constexpr std::array SplitterSettings {Setting::Splitter0Sizes, Setting::Splitter1Sizes,
                                       Setting::Splitter2Sizes, Setting::Splitter3Sizes};

constexpr int MessageTime = 10000;

} // namespace

ZunoAnalyzer::ZunoAnalyzer(const QString &language, QWidget *parent)
    : QMainWindow(parent)
    , m_ui(std::make_unique<Ui::ZunoAnalyzer>())
    , m_settings(Settings::defaultRoot())
    , m_languagesFolder(QCoreApplication::applicationDirPath() + u"/languages/")
    , m_display({m_library, m_maps.library(), m_settings, m_writer})
{
    // Before anything that has a text or shows a number.
    loadLanguage(language.isNull() ? m_settings.value(Setting::Language).toString() : language);
    m_ui->setupUi(this);
    m_lapsView = new LapsView(*m_ui->tw_tours, m_selection, m_settings);
    m_tree = new LibraryTree(*m_ui->tw_arbo, m_library, m_settings);
    m_ui->tw_arbo->installEventFilter(this);
    m_summary = std::make_unique<SessionSummary>(
        SessionSummary::Widgets {m_ui->lb_mapSelected, m_ui->lb_mapLength, m_ui->lb_errorMap,
                                 m_ui->pb_newMapHere, m_ui->lb_idealTime, m_ui->lb_traveledDistance,
                                 m_ui->lb_firstLapSelected, m_ui->tableWidget, m_ui->tw_tours});
    m_mapView = new MapViewController(this);
    m_mapView->init(this, m_ui->webview_layout);
    createActions();
    createInfosPage();
    m_charts = new LapCharts(chartWidgets(*m_ui), m_selection, m_settings, this);
    connectParts();
    showNothing();
    m_summary->showFirstLap(m_selection.first());
    openMapsFolder();
    createSplitters();
    openAcquisitionFolder();
    m_settings.writeDisplayDefaults();
    m_lapsView->applyColumns();
}

ZunoAnalyzer::~ZunoAnalyzer()
{
    // The views go before what they show.
    delete m_tree;
    delete m_charts;
    delete m_lapsView;
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
}

void ZunoAnalyzer::createInfosPage()
{
    m_infos = new SessionInfos(
        {m_ui->le_event, m_ui->le_driver, m_ui->le_vehicle, m_ui->le_tires, m_ui->cb_weather,
         m_ui->sb_trackTemp, m_ui->l_degrees, m_ui->te_infos, m_ui->lb_notesCount, m_ui->lb_hint,
         m_ui->lb_date, m_ui->lb_circuit, m_ui->lb_bestLap, m_ui->lb_idealTime_2, m_ui->tabWidget},
        m_writer, this);
    m_ui->webSite->setText(webSiteLink(m_language));
    m_ui->mail->setText(mailLink());
}

void ZunoAnalyzer::createSplitters()
{
    const auto make
        = [](Qt::Orientation orientation, QStringView style, const QList<QWidget *> &contents) {
              auto *splitter = new QSplitter(orientation);
              for (QWidget *widget : contents)
                  splitter->addWidget(widget);
              splitter->setStyleSheet(style.toString());
              return splitter;
          };
    QTabWidget *tabs = m_ui->tabWidget;
    m_splitters[0] = make(Qt::Horizontal, VerticalHandle, {m_ui->lapsPane, m_ui->googleWidget});
    m_splitters[0]->setStretchFactor(0, 1);
    m_splitters[1] = make(Qt::Vertical, HorizontalHandle, {m_splitters[0], m_ui->bottomWidget});
    tabs->clear();
    tabs->addTab(m_splitters[1], tr("Maps and Laps  "));
    tabs->addTab(m_ui->infos, tr(" Session infos  "));
    tabs->setCurrentIndex(0);
    m_splitters[2] = make(Qt::Horizontal, TabHandle, {tabs});
    m_splitters[3] = make(Qt::Horizontal, VerticalHandle, {m_ui->treePane, m_splitters[2]});
    m_splitters[3]->setStretchFactor(1, 1);
    for (std::size_t i = 0; i < m_splitters.size(); ++i) {
        m_splitters[i]->setObjectName(QStringLiteral("splitter%1").arg(i));
        m_splitters[i]->restoreState(m_settings.value(SplitterSettings[i]).toByteArray());
        connect(m_splitters[i], &QSplitter::splitterMoved, this, &ZunoAnalyzer::saveSplitterStates);
    }
    setCentralWidget(m_splitters[3]);
}

void ZunoAnalyzer::connectParts()
{
    connect(m_tree, &LibraryTree::currentChanged, this, &ZunoAnalyzer::onSessionDisplayedChange);
    connect(m_tree, &LibraryTree::fileChanged, this, &ZunoAnalyzer::onFileChanged);
    connect(m_tree, &LibraryTree::idealTimeRequested, this, &ZunoAnalyzer::openIdealTime);
    connect(m_tree, &LibraryTree::failed, this, &ZunoAnalyzer::tell);
    connect(&m_writer, &InformationWriter::failed, this, &ZunoAnalyzer::tell);
    connect(&m_writer, &InformationWriter::joined, this,
            [this](const Session *, const QString &message) { tell(message); });
    connect(&m_library, &AcquisitionLibrary::sessionsChanged, m_tree,
            &LibraryTree::updateViewedStates);
    connect(&m_library, &AcquisitionLibrary::sessionsChanged, this, [this] {
        if (m_display.session() == nullptr)
            showState(emptyState());
    });
    connect(&m_library, &AcquisitionLibrary::sessionAboutToBeRemoved, &m_selection,
            &LapSelection::forget);
    connect(&m_display, &SessionDisplay::mapApplied, this, &ZunoAnalyzer::showSession);
    connect(&m_display, &SessionDisplay::cleared, this, &ZunoAnalyzer::showNothing);
    connect(&m_display, &SessionDisplay::viewedStateChanged, m_tree,
            &LibraryTree::updateViewedStates);
    connect(&m_display, &SessionDisplay::notASession, this, [this](const QString &path) {
        showState(tr("\"%1\" holds no session that can be shown: it is damaged, empty, or was "
                     "written by something else.")
                      .arg(QFileInfo(path).fileName()));
    });
    connect(&m_display, &SessionDisplay::vanished, this, [this](const QString &path) {
        tell(tr("\"%1\" is no longer there: it was deleted or moved.")
                 .arg(QFileInfo(path).fileName()));
    });
    connect(m_lapsView, &LapsView::validityChanged, this, &ZunoAnalyzer::onValidityChanged);
    connect(m_lapsView, &LapsView::refused, this, &ZunoAnalyzer::tell);
    connect(&m_selection, &LapSelection::firstLapChanged, this,
            [this] { m_summary->showFirstLap(m_selection.first()); });
    connect(&m_selection, &LapSelection::firstLapChanged, &m_display,
            [this] { m_display.setCompared(m_selection.firstSession()); });
    auto *exports = new ExportDialogs(this);
    connect(m_tree, &LibraryTree::exportSessionRequested, exports, &ExportDialogs::exportSession);
    connect(m_tree, &LibraryTree::exportDataRequested, exports, &ExportDialogs::exportSessionData);
    connect(m_lapsView, &LapsView::exportRequested, exports, &ExportDialogs::exportLap);
    connect(exports, &ExportDialogs::done, this, &ZunoAnalyzer::tell);
    m_import = new SessionImport(m_library, m_settings, this);
    connect(m_import, &SessionImport::finished, this,
            [this](const ImportResult &result) { result.showIn(*statusBar()); });
    connect(&m_selection, &LapSelection::comparisonRequested, this, &ZunoAnalyzer::showComparison);
    connect(&m_maps, &MapFolder::changed, this, &ZunoAnalyzer::loadMaps);
    m_mapMaker = new MapMaker({m_library, m_maps.library(), m_display, m_settings}, this);
    connect(m_mapMaker, &MapMaker::mapsChanged, this, &ZunoAnalyzer::loadMaps);
    for (const QPushButton *button : {m_ui->pb_newMap, m_ui->pb_newMapHere})
        connect(button, &QPushButton::clicked, m_mapMaker, &MapMaker::newMap);
    connect(m_mapView, &MapViewController::mapReady, this, &ZunoAnalyzer::onMapReady);
    connect(&m_selection, &LapSelection::currentLapChanged, this, &ZunoAnalyzer::showLapOnMap);
    connect(&m_selection, &LapSelection::comparisonRequested, m_mapView,
            &MapViewController::drawTwoLaps);
    connectCharts(*m_charts, *m_lapsView, *m_mapView);
}

void ZunoAnalyzer::openMapsFolder()
{
    const QString folder = m_settings.mapsFolder();
    if (m_maps.open(folder))
        m_settings.setValue(Setting::MapFiles, folder);
}

void ZunoAnalyzer::openAcquisitionFolder()
{
    const QString folder = m_settings.acquisitionFolder();
    if (!QDir(folder).exists())
        QDir().mkdir(folder);
    loadAcquisitionsFolder(folder);
    m_settings.setValue(Setting::AcquisitionFolder, folder);
}

void ZunoAnalyzer::loadAcquisitionsFolder(const QString &folder)
{
    m_library.load(folder);
    m_tree->setFolder(folder);
    UpgradePass upgrade({m_library, *m_tree, m_display, m_writer, m_settings});
    // The tree lists files that were selected before their folder was loaded in the order of their
    // selection, so it starts anew.
    m_isUpgrading = true;
    const bool hasRun = upgrade.runOnce();
    m_isUpgrading = false;
    if (hasRun) {
        m_tree->setFolder(folder);
        if (m_display.session() != nullptr)
            showSession(m_display.session());
    }
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
    if (m_tree->isCurrentFile())
        m_display.display(m_tree->currentPath());
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
    m_mapView->initOnlineMap(m_library.sessions(), static_cast<int>(m_display.index()));
    m_mapView->setOptions(m_settings.path(SettingsFile::Analyzer));
    showLapOnMap();
}

void ZunoAnalyzer::showLapOnMap()
{
    if (const SessionLap lap = m_selection.current())
        m_mapView->drawLap(lap);
    else
        m_mapView->clearLaps();
}

void ZunoAnalyzer::loadMaps()
{
    const QString folder = m_settings.acquisitionFolder();
    // The sessions point at the maps, so they go first and come back without one.
    m_library.reload(folder);
    m_maps.load();
    onSessionDisplayedChange();
    if (m_display.session() == nullptr)
        showNothing();
    Q_EMIT mapsLoaded();
}

void ZunoAnalyzer::saveSplitterStates()
{
    QList<std::pair<Setting, QVariant>> states;
    for (std::size_t i = 0; i < m_splitters.size(); ++i)
        states.append({SplitterSettings[i], m_splitters[i]->saveState()});
    m_settings.setValues(states);
    m_charts->layOut();
}

void ZunoAnalyzer::importSession()
{
    const Session *session = m_display.session();
    const QStringList files = QFileDialog::getOpenFileNames(
        this, tr("Select one or more session files to import"),
        session != nullptr ? session->filePath() : QString(), tr("RA1 Files (*.ra1)"));
    if (!files.isEmpty())
        m_import->start(files);
}

void ZunoAnalyzer::openFile(const QString &path)
{
    const QString clean = QFileInfo(path).absoluteFilePath();
    if (m_library.find(clean) != nullptr) {
        m_tree->select(clean);
        return;
    }
    const QString name = QFileInfo(clean).fileName();
    // Displaying a file writes to it, so only files of the library are displayed.
    const auto answer = QMessageBox::question(
        this, windowTitle(),
        tr("\"%1\" is not in your library. Do you want to import it?").arg(name));
    if (answer != QMessageBox::Yes)
        return;
    const QString imported = m_import->importedPath(name);
    connect(
        m_import, &SessionImport::finished, this,
        [this, imported](const ImportResult &result) {
            if (result.taken.isEmpty() && m_library.find(imported) != nullptr)
                m_tree->select(imported);
        },
        Qt::SingleShotConnection);
    m_import->start({clean});
}

void ZunoAnalyzer::openSettings()
{
    ConfigurationWidget dialog(m_settings, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    dialog.storeValues();
    m_lapsView->applyColumns();
    m_mapView->setOptions(m_settings.path(SettingsFile::Analyzer));
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
    connect(&dialog, &MapsWidget::reloadMaps, this, &ZunoAnalyzer::loadMaps);
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
        connect(m_lapsView, &LapsView::validityChanged, m_statistics, &SessionsStats::refreshSoon);
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
    m_tree->select(sess->filePath());
}

void ZunoAnalyzer::openIdealTime(const QList<Session *> &sessions)
{
    IdealTimeDialog dialog({m_maps.library(), m_settings}, sessions, this);
    connect(&dialog, &IdealTimeDialog::lapRequested, this, &ZunoAnalyzer::goToLap);
    dialog.exec();
}

void ZunoAnalyzer::goToLap(const QString &filePath, int lapNumber)
{
    m_tree->select(filePath);
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
    if (watched == m_ui->tw_arbo && event->type() == QEvent::KeyPress
        && m_tree->handleKey(*static_cast<QKeyEvent *>(event)))
        return true;
    return QMainWindow::eventFilter(watched, event);
}

void ZunoAnalyzer::showSession(Session *session)
{
    // The pass displays every session; the last one is shown when it is over.
    if (m_isUpgrading)
        return;
    m_mapView->centerMap(session->map());
    m_selection.setSession(session);
    m_lapsView->showLaps();
    m_summary->showSession(session);
    m_infos->showSession(session);
    m_summary->showFirstLap(m_selection.first());
    const bool hasLaps = !session->laps().empty();
    if (hasLaps)
        m_ui->lapsStack->setCurrentWidget(m_ui->lapsPage);
    else
        showState(emptyState());
}

void ZunoAnalyzer::showState(const QString &text)
{
    m_ui->lb_state->setText(text);
    const Session *session = m_display.session();
    m_ui->pb_newMap->setVisible(session != nullptr && session->sampleCount() > 0);
    m_ui->lapsStack->setCurrentWidget(m_ui->statePage);
}

void ZunoAnalyzer::showNothing()
{
    m_selection.setSession(nullptr);
    m_lapsView->showLaps();
    m_summary->showSession(nullptr);
    m_infos->showSession(nullptr);
    showState(emptyState());
}

QString ZunoAnalyzer::emptyState() const
{
    if (!QDir(m_settings.acquisitionFolder()).exists()) {
        return tr("The folder of your sessions is not there any more: it was moved, or its drive "
                  "was "
                  "taken out.\n\n%1")
            .arg(QDir::toNativeSeparators(m_settings.acquisitionFolder()));
    }
    if (m_library.size() == 0) {
        return tr("There are no sessions yet.\n\nDrop the session files (.ra1) of your logger "
                  "here, choose them with \"Import\" (Ctrl+I), or copy them to\n%1")
            .arg(QDir::toNativeSeparators(m_settings.acquisitionFolder()));
    }
    if (m_display.session() == nullptr)
        return tr("Select a session in the list on the left to see its laps.");
    return SessionSummary::laplessText(*m_display.session(), m_settings.mapsFolder());
}

void ZunoAnalyzer::showComparison(const SessionLap &first, const SessionLap &second)
{
    const double seconds
        = (static_cast<double>(second->lapTime()) - static_cast<double>(first->lapTime())) / 1000.0;
    tell(tr("Lap %1 (%2) against lap %3 (%4): %5 s")
             .arg(QString::number(second->lapNumber()), second->timeText(),
                  QString::number(first->lapNumber()), first->timeText(),
                  (seconds > 0 ? QStringLiteral("+") : QString())
                      + QLocale().toString(seconds, 'f', 3)));
}

void ZunoAnalyzer::onValidityChanged(Session *session)
{
    m_summary->showSession(session);
    m_infos->showSession(session);
    m_writer.write(*session, InformationWriter::Cause::Edited);
}

void ZunoAnalyzer::tell(const QString &message)
{
    statusBar()->showMessage(message, MessageTime);
}

} // namespace zuno
