// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <tools/pictures/markupnames.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <session/sessionfile.h>
#include <session/sessionrewrite.h>
#include <tools/textfit/guessedtexts.h>

namespace zuno {

namespace {

QString marked(const QString &name)
{
    return name + MarkupInNames + QStringLiteral("<a href=x><img src=x>");
}

void markInformation(const QString &path)
{
    const auto session = openSession(path).session;
    if (session == nullptr)
        qFatal("%s cannot be read", qPrintable(path));
    for (const auto set : {&Session::setEventName, &Session::setDriver, &Session::setVehicle,
                           &Session::setCondition, &Session::setTyres, &Session::setNotes})
        ((*session).*set)(marked(QStringLiteral("A ")));
    if (rewriteSessionFile(*session, Occasion::Edited).outcome != RewriteOutcome::Written)
        qFatal("%s cannot be written", qPrintable(path));
}

} // namespace

void putMarkupIntoNames(const QString &root)
{
    QStringList paths;
    QDirIterator files(root, {QStringLiteral("*.ra1"), QStringLiteral("*.map")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        paths.append(files.next());
    for (const QString &path : std::as_const(paths)) {
        const QFileInfo file(path);
        if (file.suffix() == u"ra1")
            markInformation(path);
        const QString name = marked(file.completeBaseName()) + u'.' + file.suffix();
        if (!QFile::rename(path, file.dir().filePath(name)))
            qFatal("%s cannot be renamed", qPrintable(path));
    }
}

} // namespace zuno
