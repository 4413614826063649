// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QMainWindow>
#include <QModelIndex>
#include <QTranslator>

#include <base/settings.h>
#include <library/acquisitionlibrary.h>
#include <library/informationwriter.h>
#include <library/mapfolder.h>
#include <library/sessiondisplay.h>
#include <library/upgradepass.h>
#include <views/laps/lapselection.h>

namespace zuno {

class Comparing;
class EmptyPage;
class LapCharts;
class LapsPane;
class LibraryPane;
class MapMaker;
class MapPane;
class SessionImport;
class SessionInfos;
class SessionsStats;
class WindowLayout;

namespace Ui {
class ZunoAnalyzer;
}

/// The main window: creates the parts of the program and connects them. What they do is theirs;
/// the slots here only forward.
class ZunoAnalyzer final : public QMainWindow
{
    Q_OBJECT

public:
    /// Speaks @p language, a locale's name; if that is null, the language of the settings.
    explicit ZunoAnalyzer(const QString &language = {}, QWidget *parent = nullptr);
    ~ZunoAnalyzer() override;

    /// Loads every session of @p folder, shows the file tree, and starts the upgrade pass once.
    void loadAcquisitionsFolder(const QString &folder);
    /// Loads the interface's texts and the number format of @p language, a locale's name.
    void loadLanguage(const QString &language);
    /// The session with that file path, which becomes the displayed one; nullptr without one.
    Session *findSessionByPath(const QString &path);
    [[nodiscard]] QMap<QString, bool> viewedStateMap() const;
    /// Selects a session file of the library; one from elsewhere is offered for import.
    void openFile(const QString &path);

public Q_SLOTS:
    void onSessionDisplayedChange();
    void onMapChanged(const QList<const zuno::Map *> &candidates, int mode);
    void detectMap();
    /// The map page listens: gives it the map, the options and the lap to draw.
    void onMapReady();
    /// Files have appeared in the tree's folder @p parent.
    void onAddNewFiles(const QModelIndex &parent, int first, int last);
    /// Lets go of every map and loads those of @p folder; sessions have none then.
    void loadMaps(const QString &folder);
    /// Loads the maps of the settings' folder again and displays the current session anew.
    void reloadMaps();
    /// Gives a session that map of the candidates whose length is nearest to its second lap's.
    void chooseMapByLength(zuno::Session *session, const QList<const zuno::Map *> &candidates);
    void saveSplitterStates();
    void importSession();
    void openSettings();
    void openMaps();
    void openStatistics();
    void goToSession(zuno::Session *sess);
    void openIdealTime(const QList<zuno::Session *> &sessions);
    void goToLap(const QString &filePath, int lapNumber);
    void openHelp();
    void openAbout();
    /// Writes what the rider has typed, the line included that is being typed.
    void commit();
    /// Shows a message in the status bar for a while.
    void tell(const QString &message);

Q_SIGNALS:
    /// Other maps are loaded, and sessions stand on them.
    void mapsLoaded();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void switchTranslator(QTranslator &translator, const QString &file);
    void tellOfNoRoom();
    void createActions();
    void arrangePanes();
    void connectParts();
    void connectViews();
    void openMapsFolder();
    void openAcquisitionFolder();
    void chooseFolder();
    void openSessionsFolder(const QString &folder);
    void offerRestart();
    void showEmptyPage(bool isShown);
    void loadDemo();
    void removeDemo();
    void onFolderChanged();
    void showSession(Session *session);
    void showState(const QString &text);
    void showNothing();
    void showLoading(qsizetype read, qsizetype all);
    void showLapOnMap();
    [[nodiscard]] QString emptyState() const;
    void onFileChanged(const QString &path);
    void showComparison(const SessionLap &lap, const SessionLap &reference);
    void onValidityChanged(Session *session);

    std::unique_ptr<Ui::ZunoAnalyzer> m_ui;
    Settings m_settings;
    QString m_languagesFolder;
    QString m_language;
    QTranslator m_translator;
    QTranslator m_qtTranslator;
    MapFolder m_maps;
    AcquisitionLibrary m_library;
    InformationWriter m_writer;
    LapSelection m_selection;
    SessionDisplay m_display;
    UpgradePass m_upgrade;
    LapsPane *m_laps = nullptr;
    EmptyPage *m_empty = nullptr;
    /// What stands in the first tab once there are sessions.
    QWidget *m_lapsPage = nullptr;
    LapCharts *m_charts = nullptr;
    Comparing *m_comparing = nullptr;
    LibraryPane *m_files = nullptr;
    MapMaker *m_mapMaker = nullptr;
    MapPane *m_map = nullptr;
    SessionInfos *m_infos = nullptr;
    SessionsStats *m_statistics = nullptr;
    SessionImport *m_import = nullptr;
    WindowLayout *m_layout = nullptr;
};

} // namespace zuno
