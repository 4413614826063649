// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/sessionimport.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStatusBar>

#include <base/settings.h>
#include <library/acquisitionlibrary.h>
#include <library/sessiondrop.h>
#include <session/sessionfile.h>
#include <widgets/downloadinprogress.h>

namespace zuno {

namespace {

// A window that only flashes up tells nothing.
constexpr qint64 ShowsProgressAfter = 500; // ms
// The window is drawn once a turn, which takes longer than most files.
constexpr qint64 TurnTime = 50; // ms
// A tool tip has no scroll bar.
constexpr qsizetype NamesListed = 15;

bool isSessionName(const QString &name)
{
    return name.endsWith(AcquisitionLibrary::Suffix, Qt::CaseInsensitive);
}

/// The information is left out: it is the rider's, and changes.
bool isSameRecording(const Recording &one, const Recording &other)
{
    return one.date == other.date && one.time == other.time
           && one.wholeSampleCount == other.wholeSampleCount;
}

/// A card's files may be write-protected, but the rider's notes go into the copy.
bool copyFile(const QString &path, const QString &target)
{
    if (!QFile::copy(path, target))
        return false;
    QFile::setPermissions(target,
                          QFile::permissions(target) | QFile::ReadOwner | QFile::WriteOwner);
    return true;
}

} // namespace

QString ImportResult::summary() const
{
    const auto count = [](auto number) { return QLocale().toString(number); };
    QStringList parts {tr("Imported: %1").arg(count(imported)),
                       tr("already there: %1").arg(count(present)),
                       tr("no session files: %1").arg(count(foreign.size()))};
    if (!taken.isEmpty())
        parts.append(tr("another session has the name: %1").arg(count(taken.size())));
    if (!failed.isEmpty())
        parts.append(tr("could not be copied: %1").arg(count(failed.size())));
    const QString text = parts.join(u", ");
    return isCancelled ? tr("Import cancelled. %1").arg(text) : text;
}

QString ImportResult::details() const
{
    QString text;
    const auto list = [&text](const QString &title, const QStringList &names) {
        if (names.isEmpty())
            return;
        QStringList lines {title.toHtmlEscaped()};
        for (const QString &name : names.first(qMin(NamesListed, names.size())))
            lines.append(u"&nbsp;&nbsp;" + name.toHtmlEscaped());
        if (names.size() > NamesListed)
            lines.append(tr("and %1 more").arg(QLocale().toString(names.size() - NamesListed)));
        text += u"<p style=\"white-space: pre\">" + lines.join(u"<br/>") + u"</p>";
    };
    list(tr("No session files:"), foreign);
    list(tr("Left out, as another session has the name:"), taken);
    list(tr("Could not be copied:"), failed);
    return text;
}

void ImportResult::showIn(QStatusBar &bar) const
{
    bar.showMessage(summary());
    bar.setToolTip(details());
    QObject::connect(
        &bar, &QStatusBar::messageChanged, &bar, [&bar] { bar.setToolTip({}); },
        Qt::SingleShotConnection);
}

SessionImport::SessionImport(AcquisitionLibrary &library, const Settings &settings, QWidget *window)
    : QObject(window)
    , m_library(library)
    , m_settings(settings)
    , m_window(window)
{
    connect(new SessionDrop(window), &SessionDrop::dropped, this, &SessionImport::start);
    connect(&m_turn, &QTimer::timeout, this, &SessionImport::step);
}

QString SessionImport::importedPath(const QString &fileName) const
{
    QString name = fileName;
    if (isSessionName(name))
        name = name.chopped(AcquisitionLibrary::Suffix.size()) + AcquisitionLibrary::Suffix;
    return QDir::cleanPath(m_settings.acquisitionFolder()) + u"/Imported Sessions/" + name;
}

void SessionImport::start(const QStringList &paths)
{
    m_waiting += paths;
    if (m_turn.isActive())
        return;
    m_result = {};
    m_done = 0;
    m_folder = QFileInfo(importedPath({})).path();
    if (!QDir(m_folder).exists())
        QDir().mkdir(m_folder);
    m_running.start();
    m_turn.start(0);
}

void SessionImport::step()
{
    QElapsedTimer turn;
    turn.start();
    while (!m_waiting.isEmpty() && !turn.hasExpired(TurnTime)) {
        const QString path = m_waiting.takeFirst();
        if (QFileInfo(path).isDir())
            takeFolder(path);
        else
            takeFile(path);
    }
    if (m_waiting.isEmpty())
        finish();
    else
        showProgress();
}

// Links are left out: they may lead in circles.
void SessionImport::takeFolder(const QString &path)
{
    QStringList found;
    const QFileInfoList entries = QDir(path).entryInfoList(
        {u'*' + AcquisitionLibrary::Suffix},
        QDir::AllDirs | QDir::Files | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name);
    for (const QFileInfo &entry : entries)
        found.append(entry.filePath());
    m_waiting = found + m_waiting;
}

void SessionImport::takeFile(const QString &path)
{
    ++m_done;
    const QString name = QFileInfo(path).fileName();
    const QString target = importedPath(name);
    if (!isSessionName(name))
        m_result.foreign.append(name);
    else if (QFileInfo::exists(target))
        compare(path, target);
    else if (!copyFile(path, target))
        m_result.failed.append(name);
    else
        load(target);
}

void SessionImport::load(const QString &target)
{
    if (m_library.add(target, "importSession") == nullptr)
        m_result.foreign.append(QFileInfo(target).fileName());
    else
        ++m_result.imported;
}

// Loggers number their files anew after a reset: a rider who read that such a file was there
// already would wipe the only one.
void SessionImport::compare(const QString &path, const QString &target)
{
    const QString name = QFileInfo(path).fileName();
    const OpenedSession source = openSession(path);
    const OpenedSession present = openSession(target);
    if (!source.session)
        m_result.foreign.append(name);
    else if (present.session
             && isSameRecording(source.session->recording(), present.session->recording()))
        ++m_result.present;
    else
        m_result.taken.append(name);
}

void SessionImport::showProgress()
{
    if (!m_running.hasExpired(ShowsProgressAfter))
        return;
    if (m_progress == nullptr) {
        m_progress = new DownloadInProgress(m_window);
        m_progress->setWindowTitle(tr("Import"));
        m_progress->setWindowModality(Qt::WindowModal);
        connect(m_progress, &DownloadInProgress::cancelUpdate, this, &SessionImport::cancel);
        m_progress->show();
    }
    const qsizetype all = m_done + m_waiting.size();
    m_progress->setLabelText(tr("Importing sessions: %1 of %2")
                                 .arg(QLocale().toString(m_done), QLocale().toString(all)));
    m_progress->setProgress(static_cast<int>(m_done * 100 / all));
}

void SessionImport::cancel()
{
    m_waiting.clear();
    m_result.isCancelled = true;
}

void SessionImport::finish()
{
    m_turn.stop();
    if (m_progress != nullptr) {
        m_progress->hide();
        m_progress->deleteLater();
        m_progress = nullptr;
    }
    Q_EMIT finished(m_result);
}

} // namespace zuno
