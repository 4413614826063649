// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/sessiondrop.h>

#include <algorithm>

#include <QCoreApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include <library/acquisitionlibrary.h>
#include <library/sessionimport.h>

namespace zuno {

namespace {

bool isImportable(const QString &path)
{
    return path.endsWith(AcquisitionLibrary::Suffix, Qt::CaseInsensitive) || QFileInfo(path).isDir()
           || SessionImport::isOthers(path);
}

/// The files that are dragged; none when there is nothing to import among them.
QStringList draggedFiles(const QMimeData &data)
{
    QStringList paths;
    const QList<QUrl> urls = data.urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return std::any_of(paths.cbegin(), paths.cend(), isImportable) ? paths : QStringList();
}

bool isDrag(const QEvent &event)
{
    return event.type() == QEvent::DragEnter || event.type() == QEvent::DragMove
           || event.type() == QEvent::Drop;
}

} // namespace

SessionDrop::SessionDrop(QWidget *window) : QObject(window), m_window(window)
{
    window->setAcceptDrops(true);
    // Each widget of the window that takes drops gets the drag itself, and views make such widgets
    // later on.
    QCoreApplication::instance()->installEventFilter(this);
}

bool SessionDrop::eventFilter(QObject *watched, QEvent *event)
{
    if (!isDrag(*event))
        return false;
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (widget == nullptr || widget->window() != m_window)
        return false;
    auto &drop = *static_cast<QDropEvent *>(event);
    // Files are looked into, which is too much for each move.
    if (event->type() != QEvent::DragMove)
        m_dragged = draggedFiles(*drop.mimeData());
    const QStringList paths = m_dragged;
    if (paths.isEmpty())
        return false;
    // A file manager removes what was moved, so it is a copy or nothing.
    drop.setDropAction(Qt::CopyAction);
    drop.setAccepted(drop.dropAction() == Qt::CopyAction);
    if (drop.isAccepted() && event->type() == QEvent::Drop)
        Q_EMIT dropped(paths);
    return true;
}

} // namespace zuno
