// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <memory>

#include <QKeySequence>
#include <QPixmap>
#include <QString>
#include <QTemporaryDir>

#include <app/zunoanalyzer.h>

class QAction;

namespace zuno {

/// A folder with the demo library, which the program takes for the rider's own while this stands.
class StageHome
{
public:
    /// Written as after a first start. What cannot be written ends the program with a message.
    StageHome();
    [[nodiscard]] QString path() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};

/// The main window at work, for whoever takes pictures of it.
class Stage
{
public:
    /// Looks at a window; it is closed afterwards.
    using Look = std::function<void(QWidget &window)>;

    Stage(const QString &language, const QString &home);

    [[nodiscard]] ZunoAnalyzer &window() { return *m_window; }
    /// The part of the main window with that name, which must be there.
    template<typename Part>
    [[nodiscard]] Part &part(const char *name) const
    {
        auto *found = m_window->findChild<Part *>(QString::fromLatin1(name));
        Q_ASSERT(found != nullptr);
        return *found;
    }
    template<typename Object>
    [[nodiscard]] Object &object() const
    {
        return *m_window->findChild<Object *>();
    }

    [[nodiscard]] const QString &home() const { return m_home; }
    /// The path of the demo session whose name begins so.
    [[nodiscard]] QString session(const QString &begin) const;
    /// Displays that session and waits until its lap is drawn.
    void show(const QString &session);
    /// Makes a lap of the displayed session the current one, and waits until it is drawn.
    void selectLap(int number);
    /// What the laps table does on that key.
    void press(const QKeySequence &key);
    /// The menu bar's entry, counted from the left.
    [[nodiscard]] QAction &menu(int entry) const;

    /// Lets the program work until nothing changes any more.
    void settle();
    /// Calls @p open, which opens a window, and @p look on it. False when none has opened.
    [[nodiscard]] bool visit(const std::function<void()> &open, const Look &look);
    /// A menu or another window that nobody has shown, as it would show.
    [[nodiscard]] static QPixmap picture(QWidget &widget);

private:
    void waitForMap(const std::function<void()> &cause);

    QString m_home;
    std::unique_ptr<ZunoAnalyzer> m_window;
};

} // namespace zuno
