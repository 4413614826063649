// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QStringList>

class QWidget;

namespace zuno {

/// Takes recordings and folders that are dropped anywhere on a window, its text fields included,
/// which would show the files' names otherwise. Whatever else is dragged goes its usual way.
class SessionDrop final : public QObject
{
    Q_OBJECT

public:
    explicit SessionDrop(QWidget *window);

Q_SIGNALS:
    /// Files and folders, one of them at least a folder or a recording, of other loggers, too.
    void dropped(const QStringList &paths);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *m_window;
    QStringList m_dragged;
};

} // namespace zuno
