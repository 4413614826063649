// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/sessionimport.h>

#include <algorithm>
#include <array>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSaveFile>
#include <QStatusBar>

#include <base/settings.h>
#include <formats/rideexport.h>
#include <formats/ridereader.h>
#include <library/acquisitionlibrary.h>
#include <library/libraryfolder.h>
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

constexpr qint64 PieceSize = 1 << 16; // bytes

// The result takes longer to read than other messages.
constexpr int MessageTime = 20000; // ms

// What other loggers call their files; whatever holds a recording is taken under any name.
constexpr std::array OtherEndings {"vbo", "csv",  "rcz", "xrk", "log",
                                   "sa",  "nmea", "gpx", "txt", "dovex"};

bool holdsOthersRecording(const QString &path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly)
           && findRideReader(file.peek(HeadSize)) != nullptr;
}

bool isSessionName(const QString &name)
{
    return name.endsWith(AcquisitionLibrary::Suffix, Qt::CaseInsensitive);
}

/// Whether @p path goes on where @p present ends: a copy that was broken off, or taken while the
/// logger was still writing. Nothing of it is lost when it is replaced.
bool isBeginningOf(const QString &present, const QString &path)
{
    QFile shorter(present);
    QFile longer(path);
    if (!shorter.open(QIODevice::ReadOnly) || !longer.open(QIODevice::ReadOnly)
        || shorter.size() >= longer.size())
        return false;
    while (!shorter.atEnd()) {
        const QByteArray piece = shorter.read(PieceSize);
        if (piece.isEmpty() || longer.read(piece.size()) != piece)
            return false;
    }
    return true;
}

bool isGrownCopy(const QString &present, const QString &path)
{
    const OpenedSession before = openSession(present);
    const OpenedSession now = openSession(path);
    if (!before.session || !now.session)
        return false;
    const Recording &old = before.session->recording();
    return old.wholeSampleCount > 0 && old.wholeSampleCount < old.sampleCount
           && old.wholeSampleCount < now.session->recording().wholeSampleCount
           && beginsWithSamplesOf(path, present);
}

/// Whether @p present has all that was recorded in @p path. The information is left out: it is the
/// rider's, and changes.
bool isAlreadyIn(const QString &present, const QString &path, const Recording &recording)
{
    const OpenedSession opened = openSession(present);
    if (!opened.session || !beginsWithSamplesOf(present, path))
        return false;
    const Recording &there = opened.session->recording();
    const bool isCutShort = recording.wholeSampleCount < recording.sampleCount;
    return isCutShort || (recording.date == there.date && recording.time == there.time);
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

/// Replaces @p target in one step.
bool copyOver(const QString &path, const QString &target)
{
    QFile source(path);
    QSaveFile copy(target);
    if (!source.open(QIODevice::ReadOnly) || !copy.open(QIODevice::WriteOnly))
        return false;
    while (!source.atEnd()) {
        const QByteArray piece = source.read(PieceSize);
        if (piece.isEmpty() || copy.write(piece) != piece.size())
            return false;
    }
    // Qt 6.4 does not look whether there was room for the last of it when it commits.
    return copy.flush() && copy.commit();
}

} // namespace

QString ImportResult::summary() const
{
    if (!problem.isEmpty())
        return problem;
    const auto count = [](auto number) { return QLocale().toString(number); };
    QStringList parts {tr("Imported: %1").arg(count(imported)),
                       tr("already there: %1").arg(count(present)),
                       tr("no session files: %1").arg(count(foreign.size()))};
    if (!renamed.isEmpty())
        parts.append(tr("under another name: %1").arg(count(renamed.size())));
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
    list(tr("Under another name, as another session has theirs:"), renamed);
    list(tr("Could not be copied:"), failed);
    return text;
}

void ImportResult::showIn(QStatusBar &bar) const
{
    bar.showMessage(summary(), MessageTime);
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

QString SessionImport::importedName(const QString &fileName)
{
    QString name = fileName;
    while (name.startsWith(u'.'))
        name.remove(0, 1);
    if (isSessionName(name))
        name.chop(AcquisitionLibrary::Suffix.size());
    return name + AcquisitionLibrary::Suffix;
}

bool SessionImport::isOthers(const QString &path)
{
    const QFileInfo file(path);
    const QString ending = file.suffix().toLower();
    const bool isNamedSo
        = std::any_of(OtherEndings.begin(), OtherEndings.end(), [&ending](const char *other) {
              return ending == QLatin1String(other) && ending != u"txt";
          });
    return !isSessionName(path) && file.isFile() && (isNamedSo || holdsOthersRecording(path));
}

QString SessionImport::othersPattern()
{
    QStringList patterns;
    for (const char *ending : OtherEndings)
        patterns.append(QStringLiteral("*.") + QLatin1String(ending));
    return patterns.join(u' ');
}

void SessionImport::start(const QStringList &paths)
{
    m_waiting += paths;
    if (m_turn.isActive())
        return;
    m_result = {};
    m_newest = {};
    m_others.clear();
    m_done = 0;
    if (!makeFolder()) {
        m_waiting.clear();
        m_result.problem = tr("Nothing was imported: the folder of your sessions is not there.");
    }
    m_running.start();
    m_turn.start(0);
}

bool SessionImport::makeFolder()
{
    const LibraryFolder library(m_settings.acquisitionFolder(), m_settings);
    m_folder = library.path() + u"/Imported Sessions";
    if (library.isReady() && !QDir(m_folder).exists())
        QDir().mkdir(m_folder);
    return library.mayMakeIn(m_folder);
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
    QStringList patterns = othersPattern().split(u' ');
    patterns.append(u'*' + AcquisitionLibrary::Suffix);
    const QFileInfoList entries = QDir(path).entryInfoList(
        patterns, QDir::AllDirs | QDir::Files | QDir::NoDotAndDotDot | QDir::NoSymLinks,
        QDir::Name);
    for (const QFileInfo &entry : entries) {
        // A table or a log of something else is nothing to tell of.
        if (entry.isDir() || isSessionName(entry.fileName())
            || holdsOthersRecording(entry.filePath()))
            found.append(entry.filePath());
    }
    m_waiting = found + m_waiting;
    const QStringList unreadable = unreadableNames(path);
    for (const QString &name : unreadable) {
        if (isSessionName(name))
            m_result.failed.append(name);
    }
}

void SessionImport::takeFile(const QString &path)
{
    ++m_done;
    const OpenedSession opened = openSession(path);
    if (opened.error == SessionFileError::Unreadable)
        m_result.failed.append(QFileInfo(path).fileName());
    else if (!opened.session && isOthers(path))
        m_others.append(path);
    else if (!opened.session || opened.session->sampleCount() == 0)
        m_result.foreign.append(QFileInfo(path).fileName());
    else
        takeSession(path, *opened.session);
}

// Loggers number their files anew after a reset: a rider who read that such a file was there
// already would wipe the only one.
void SessionImport::takeSession(const QString &path, const Session &session)
{
    const QString name = importedName(QFileInfo(path).fileName());
    for (int number = 1;; ++number) {
        const QString target = numberedPath(m_folder, name, number);
        const QFileInfo present(target);
        if (!present.exists() && !present.isSymLink())
            place(path, target);
        else if (isBeginningOf(target, path) || isGrownCopy(target, path))
            replace(path, target);
        else if (isAlreadyIn(target, path, session.recording()))
            ++m_result.present;
        else
            continue;
        note(target, session.recording());
        return;
    }
}

void SessionImport::note(const QString &target, const Recording &recording)
{
    const QDateTime begin = recordingBegin(recording.date, recording.time);
    if (m_library.find(target) == nullptr || (!m_result.path.isEmpty() && begin < m_newest))
        return;
    m_result.path = target;
    m_newest = begin;
}

void SessionImport::place(const QString &path, const QString &target)
{
    const QString name = QFileInfo(path).fileName();
    const QString placed = QFileInfo(target).fileName();
    if (!copyFile(path, target)) {
        m_result.failed.append(name);
    } else if (m_library.add(target, "importSession") == nullptr) {
        // It was another file a moment ago.
        QFile::remove(target);
        m_result.foreign.append(name);
    } else {
        ++m_result.imported;
        if (placed != importedName(name))
            m_result.renamed.append(QStringLiteral("%1 (%2)").arg(name, placed));
    }
}

void SessionImport::replace(const QString &path, const QString &target)
{
    if (!copyOver(path, target)) {
        m_result.failed.append(QFileInfo(path).fileName());
        return;
    }
    if (!m_library.refresh(target))
        m_library.add(target, "importSession");
    ++m_result.imported;
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
    m_others.clear();
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
    const QStringList others = std::exchange(m_others, {});
    const bool isOnlyOthers = !others.isEmpty() && m_done == others.size();
    if (!isOnlyOthers)
        Q_EMIT finished(m_result);
    if (!others.isEmpty())
        Q_EMIT othersFound(others);
}

} // namespace zuno
