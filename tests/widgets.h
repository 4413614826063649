// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAction>
#include <QMenu>
#include <QTest>
#include <QWidget>

namespace zuno::test {

/// The part of that name, which must be there.
template<typename Widget>
Widget &child(const QWidget &parent, const char *name)
{
    auto *found = parent.findChild<Widget *>(QString::fromLatin1(name));
    if (found == nullptr)
        qFatal("no %s", name);
    return *found;
}

/// Shows a window of its own and waits until it has the keys.
[[nodiscard]] inline bool showActive(QWidget &window)
{
    window.show();
    window.activateWindow();
    return QTest::qWaitForWindowActive(&window);
}

/// The texts of the menu's entries; those that cannot be used in brackets.
[[nodiscard]] inline QString menuText(const QMenu &menu)
{
    QStringList texts;
    for (const QAction *action : menu.actions())
        texts.append(action->isEnabled() ? action->text() : u'(' + action->text() + u')');
    return texts.join(u'|');
}

} // namespace zuno::test
