// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDir>
#include <QFile>
#include <QFileSystemModel>
#include <QLabel>
#include <QStackedWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTreeView>

#include <app/zunoanalyzer.h>
#include <base/settings.h>

#include "builders.h"
#include "widgets.h"

namespace zuno::test {

using namespace Qt::StringLiterals;

/// A rider's data folder, which the program takes for its own while this stands.
class Home
{
public:
    explicit Home(const QStringList &sessions = {}, const QStringList &maps = {})
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_root.path()));
        // As the log has made it.
        QDir(m_root.path()).mkpath(u"Norvale/ZUNO Analyzer"_s);
        for (const QString &name : sessions)
            putFile(path(name), demoFile(name));
        for (const QString &name : maps)
            putFile(map(name), demoFile(name));
    }
    /// Not the first start; a session of the last one is shown again.
    void startedBefore(const QString &lastSelected = {}) const
    {
        settings.writeDisplayDefaults();
        settings.setValue(Setting::V1400, true);
        if (!lastSelected.isNull())
            settings.setValue(Setting::LastFileSelected, path(lastSelected));
    }
    [[nodiscard]] QString path(const QString &name) const
    {
        return m_root.filePath(u"Norvale/RemoteDevice/"_s + name);
    }
    [[nodiscard]] QString map(const QString &name) const
    {
        return m_root.filePath(u"Norvale/Map/"_s + name);
    }

private:
    QTemporaryDir m_root;

public:
    const Settings settings {m_root.path()};
};

/// The main window, whose parts are found by their names.
struct Window
{
    template<typename Widget>
    [[nodiscard]] Widget &part(const char *name) const
    {
        return child<Widget>(main, name);
    }
    [[nodiscard]] QString label(const char *name) const
    {
        const auto &found = part<QLabel>(name);
        return found.isVisibleTo(&main) ? found.text() : QString();
    }
    [[nodiscard]] int laps() const { return part<QTableView>("tw_tours").model()->rowCount(); }
    /// What is shown instead of laps; empty with laps.
    [[nodiscard]] QString state() const
    {
        const bool isShown
            = part<QStackedWidget>("lapsStack").currentWidget()->objectName() == u"statePage";
        return isShown ? part<QLabel>("lb_state").text() : QString();
    }
    void select(const QString &path)
    {
        auto &view = part<QTreeView>("tw_arbo");
        view.setCurrentIndex(qobject_cast<QFileSystemModel *>(view.model())->index(path));
    }
    [[nodiscard]] bool open()
    {
        main.resize(1400, 900);
        return showActive(main);
    }

    ZunoAnalyzer main;
};

} // namespace zuno::test
