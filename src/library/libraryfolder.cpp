// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/libraryfolder.h>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <type_traits>
#include <vector>

#include <QDir>
#include <QFile>
#include <QStringDecoder>

#include <base/settings.h>
#include <library/sessionname.h>

namespace zuno {

namespace {

// A link to half of a disk must not keep the program busy for minutes.
constexpr qsizetype MostFolders = 20000;

constexpr auto AnyEntry = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

QString canonicalOf(const QString &path)
{
    return QFileInfo(path).canonicalFilePath();
}

bool isBelow(const QString &path, const QString &folder)
{
    return !folder.isEmpty() && path != folder && isAtOrBelow(path, folder);
}

bool isText(const std::string &name)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(QByteArrayView(name.data(), static_cast<qsizetype>(name.size())));
    return !decoder.hasError() && !text.isEmpty();
}

QString readable(const std::string &name)
{
    QString text = QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return !c.isPrint(); }, u'_');
    return text;
}

std::vector<std::filesystem::path> unreadableEntries(const QString &folder)
{
    namespace fs = std::filesystem;
    std::error_code failed;
    std::vector<fs::path> found;
    // Elsewhere every name is a text.
    if constexpr (!std::is_same_v<fs::path::value_type, char>)
        return found;
    for (fs::directory_iterator it(QFile::encodeName(folder).toStdString(), failed), end;
         !failed && it != end; it.increment(failed)) {
        if (!isText(it->path().filename().string()))
            found.push_back(it->path());
    }
    return found;
}

QString freePath(const QString &folder, const QString &name)
{
    for (int number = 1;; ++number) {
        QString path = numberedPath(folder, name, number);
        if (!QFileInfo::exists(path) && !QFileInfo(path).isSymLink())
            return path;
    }
}

// A file is given its new name before it loses the old one, so that none is ever written over.
bool moveTo(const std::filesystem::path &from, const QString &to)
{
    namespace fs = std::filesystem;
    std::error_code failed;
    const fs::path target = QFile::encodeName(to).toStdString();
    if (fs::is_regular_file(fs::symlink_status(from, failed))) {
        fs::create_hard_link(from, target, failed);
        return !failed && fs::remove(from, failed);
    }
    fs::rename(from, target, failed);
    return !failed;
}

} // namespace

bool isAtOrBelow(const QString &path, const QString &folder)
{
    return path == folder || path.startsWith(folder.endsWith(u'/') ? folder : folder + u'/');
}

QString numberedPath(const QString &folder, const QString &name, int number)
{
    if (number < 2)
        return folder + u'/' + name;
    const qsizetype dot = name.lastIndexOf(u'.');
    const qsizetype end = dot > 0 ? dot : name.size();
    return folder + u'/' + name.first(end) + QStringLiteral(" (%1)").arg(number) + name.mid(end);
}

QStringList unreadableNames(const QString &folder)
{
    QStringList names;
    const auto found = unreadableEntries(folder);
    for (const std::filesystem::path &path : found)
        names.append(readable(path.filename().string()));
    return names;
}

QStringList makeNamesReadable(const QString &folder)
{
    QStringList renamed;
    const auto found = unreadableEntries(folder);
    for (const std::filesystem::path &path : found) {
        const QString to = freePath(folder, readable(path.filename().string()));
        if (moveTo(path, to))
            renamed.append(to);
    }
    return renamed;
}

LibraryFolder::LibraryFolder(const QString &path)
    : m_path(path.isEmpty() ? QString() : QDir::cleanPath(path))
{
}

LibraryFolder::LibraryFolder(const QString &path, const Settings &settings) : LibraryFolder(path)
{
    m_settings = &settings;
}

bool LibraryFolder::isStandard() const
{
    return m_settings != nullptr
           && m_path == QDir::cleanPath(m_settings->standardAcquisitionFolder());
}

bool LibraryFolder::wasUsed() const
{
    return m_settings != nullptr
           && isBelow(m_settings->value(Setting::LastFileSelected).toString(), m_path);
}

QString LibraryFolder::canonical() const
{
    return canonicalOf(m_path);
}

LibraryFolder::State LibraryFolder::state() const
{
    if (!QDir::isAbsolutePath(m_path) || QDir(m_path).isRoot())
        return State::NoPath;
    if (!QFileInfo(m_path).isDir())
        return State::Missing;
    if (QDir(canonical()).isRoot())
        return State::NoPath;
    // No drive belongs where the program keeps its own things.
    return QDir(m_path).isEmpty(AnyEntry) && !isStandard() && wasUsed() ? State::Emptied
                                                                        : State::Ready;
}

QString LibraryFolder::problem() const
{
    const QString path = QDir::toNativeSeparators(m_path);
    const QString waiting = u"\n\n" + tr("As soon as it is back, your sessions are shown again.");
    switch (state()) {
    case State::Ready:
        break;
    case State::NoPath:
        return tr("\"%1\" cannot be the folder of your sessions: that takes the whole path of a "
                  "folder of its own.")
            .arg(path);
    case State::Missing:
        return tr("The folder of your sessions is not there any more: it was moved, or its drive "
                  "was taken out.\n\n%1")
                   .arg(path)
               + waiting;
    case State::Emptied:
        return tr("There is nothing left in the folder of your sessions: it was emptied, or its "
                  "drive was taken out.\n\n%1")
                   .arg(path)
               + waiting;
    }
    return {};
}

void LibraryFolder::makeFirst() const
{
    const QString above = QFileInfo(m_path).path();
    if (state() == State::Missing && !wasUsed() && (isStandard() || !QDir(above).isEmpty(AnyEntry)))
        QDir().mkdir(m_path);
}

bool LibraryFolder::holds(const QString &path) const
{
    return isBelow(canonicalOf(path), canonical());
}

bool LibraryFolder::mayChange(const QString &path) const
{
    return isReady() && mayMakeIn(QFileInfo(QDir::cleanPath(path)).absolutePath());
}

bool LibraryFolder::mayMakeIn(const QString &folder) const
{
    const QString root = canonical();
    return isReady() && !root.isEmpty() && isAtOrBelow(canonicalOf(folder), root);
}

bool LibraryFolder::isLoggers(const QString &path)
{
    return isLoggersName(QFileInfo(path).fileName());
}

bool LibraryFolder::isEntered(const QFileInfo &folder) const
{
    const QString root = canonical();
    const QString target = folder.canonicalFilePath();
    if (root.isEmpty() || target.isEmpty() || !isAtOrBelow(folder.filePath(), m_path))
        return false;
    const QString straight = root + folder.filePath().mid(m_path.size());
    if (target == straight)
        return true;
    // The link itself has to stand where its path says, and must lead out of the library.
    const QString above = QFileInfo(folder.filePath()).path();
    const bool isFirstLink = canonicalOf(above) == root + above.mid(m_path.size());
    if (folder.isSymLink())
        return isFirstLink && !isAtOrBelow(target, root) && !isAtOrBelow(root, target);
    return !isAtOrBelow(target, root) && isEntered(QFileInfo(above));
}

QStringList LibraryFolder::foldersFrom(const QString &folder) const
{
    QStringList folders;
    if (!isEntered(QFileInfo(folder)))
        return folders;
    folders.append(folder);
    for (qsizetype next = 0; next < folders.size() && folders.size() < MostFolders; ++next) {
        const QFileInfoList entries
            = QDir(folders[next]).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        for (const QFileInfo &entry : entries) {
            if (!entry.isSymLink() || isEntered(entry))
                folders.append(entry.filePath());
        }
    }
    return folders;
}

} // namespace zuno
