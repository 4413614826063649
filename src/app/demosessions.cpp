// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/demosessions.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <base/wholefile.h>
#include <demo/demolibrary.h>

namespace zuno {

namespace {

constexpr QLatin1String Sessions("RemoteDevice/");

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// What the program writes into a session stands behind its samples. The first half of the file is
// samples only, and no two recordings have the same.
bool isSameRecording(const QByteArray &demo, const QByteArray &found)
{
    return demo.size() > 1 && found.startsWith(QByteArrayView(demo).first(demo.size() / 2));
}

} // namespace

QString DemoSessions::folder() const
{
    return m_settings.acquisitionFolder() + QStringLiteral("/Demo");
}

bool DemoSessions::areThere() const
{
    return QDirIterator(folder(), {QStringLiteral("*.ra1")}, QDir::Files,
                        QDirIterator::Subdirectories)
        .hasNext();
}

QString DemoSessions::target(const QString &demoFile) const
{
    return demoFile.startsWith(Sessions)
               ? folder() + u'/' + demoFile.mid(Sessions.size())
               : m_settings.mapsFolder() + u'/' + QFileInfo(demoFile).fileName();
}

QString DemoSessions::load() const
{
    const QTemporaryDir made;
    const DemoResult demo = writeDemoLibrary(made.path());
    if (!made.isValid() || !demo.ok())
        return demo.error.isEmpty() ? made.errorString() : demo.error;
    for (const QString &file : demo.mapFiles + demo.sessionFiles) {
        const QString path = target(QDir(made.path()).relativeFilePath(file));
        if (QFileInfo::exists(path))
            continue;
        QDir().mkpath(QFileInfo(path).path());
        const QString problem = writeWholeFile(path, contentsOf(file));
        if (!problem.isEmpty())
            return tr("\"%1\" could not be written: %2")
                .arg(QDir::toNativeSeparators(path), problem);
    }
    return {};
}

int DemoSessions::remove() const
{
    const QTemporaryDir made;
    const DemoResult demo = writeDemoLibrary(made.path());
    int left = 0;
    for (const QString &file : demo.mapFiles + demo.sessionFiles) {
        const QString path = target(QDir(made.path()).relativeFilePath(file));
        const QByteArray own = contentsOf(file);
        const QByteArray found = contentsOf(path);
        const bool isSession = path.startsWith(folder() + u'/');
        const bool isDemo = isSession ? isSameRecording(own, found) : own == found;
        if (isDemo && !own.isEmpty() && !QFile::remove(path))
            ++left;
        // Only what is empty goes.
        if (isSession)
            QDir().rmdir(QFileInfo(path).path());
    }
    QDir().rmdir(folder());
    return demo.ok() ? left : left + 1;
}

} // namespace zuno
