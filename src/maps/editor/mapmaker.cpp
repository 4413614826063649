// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/editor/mapmaker.h>

#include <algorithm>

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>

#include <base/settings.h>
#include <base/trash.h>
#include <insight/cornerfile.h>
#include <library/acquisitionlibrary.h>
#include <library/sessiondisplay.h>
#include <maps/proposal/mapproposal.h>
#include <session/sessionfile.h>
#include <track/mapfile.h>
#include <track/mapname.h>
#include <widgets/plaintexts.h>

namespace zuno {

namespace {

// Everything that has a name there, also what is no map: it would be replaced just the same.
QStringList filesBelow(const QString &folder)
{
    QStringList names;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext())
        names.append(files.next().mid(folder.size()));
    return names;
}

QStringList foldersBelow(const QString &folder)
{
    QStringList names;
    // Maps behind a link are not found, so none is put there.
    QDirIterator folders(folder, QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (folders.hasNext())
        names.append(folders.next().mid(folder.size() + 1));
    names.sort(Qt::CaseInsensitive);
    return names;
}

Points smoothedSamples(const QString &path)
{
    const OpenedSession opened = openSession(path);
    if (!opened.session)
        return {};
    opened.session->smooth();
    const std::span<const PointAcquisition> samples = opened.session->wholeSamples();
    return {samples.begin(), samples.end()};
}

// A rider's names of corners are hard to get back: to the trash where there is one.
void removeFile(const QString &path)
{
    if (QFile::exists(path) && !moveToTrash(path))
        QFile::remove(path);
}

// Why corners cannot be changed: what stands in their file would be lost.
QString refusal(CornerFile::State state)
{
    switch (state) {
    case CornerFile::State::Missing:
    case CornerFile::State::Good:
        break;
    case CornerFile::State::Damaged:
        return MapMaker::tr("The file of the map's corners cannot be read, and is left alone.");
    case CornerFile::State::Newer:
        return MapMaker::tr("A later version of the program changed the map's corners; they are "
                            "left alone.");
    }
    return {};
}

QString describe(NoProposal reason)
{
    switch (reason) {
    case NoProposal::None:
        break;
    case NoProposal::NoPositions:
        return MapMaker::tr("Hardly a sample of this session says where the motorcycle was, so no "
                            "map can be made from it.");
    case NoProposal::NoMovement:
        return MapMaker::tr("The motorcycle stood still for the whole session, so no map can be "
                            "made from it.");
    case NoProposal::NoLap:
        return MapMaker::tr("This session never comes back to where it was, in the same direction: "
                            "it holds no lap to make a map from. Take a session with one whole lap "
                            "and a bit more.");
    }
    return {};
}

} // namespace

MapMaker::MapMaker(const Parts &parts, QWidget *window)
    : QObject(window)
    , m_parts(parts)
    , m_window(window)
{
}

QWidget *MapMaker::owner() const
{
    QWidget *dialog = QApplication::activeModalWidget();
    return dialog != nullptr ? dialog : m_window;
}

QString MapMaker::path(const QString &name) const
{
    return QDir::cleanPath(m_parts.settings.mapsFolder()) + name;
}

void MapMaker::tell(const QString &problem) const
{
    MessageBox::run(QMessageBox::Warning, owner(), tr("Maps"), problem);
}

// The careful answer is the one that the enter key gives.
bool MapMaker::ask(const QString &question) const
{
    return MessageBox::run(QMessageBox::Question, owner(), tr("Maps"), question,
                           QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
           == QMessageBox::Yes;
}

// The displayed session comes first unless it was ridden on another map, then those that have been
// on this one.
MapEditor::Content MapMaker::content(const MapDraft &draft, const QString &mapName) const
{
    QList<Session *> sessions = m_parts.library.sessions();
    const Session *displayed = m_parts.display.session();
    const Map *map = displayed != nullptr ? displayed->map() : nullptr;
    const bool isElsewhere = map != nullptr && !mapName.isEmpty() && map->name() != mapName;
    const auto rank = [&](const Session *session) {
        if (session == displayed && !isElsewhere)
            return 0;
        return session->circuitName() == nameOfMap(mapName) && !mapName.isEmpty() ? 1 : 2;
    };
    std::stable_sort(sessions.begin(), sessions.end(), [&rank](const auto *a, const auto *b) {
        return std::pair(rank(a), a->fileName()) < std::pair(rank(b), b->fileName());
    });
    MapEditor::Content content;
    content.draft = draft;
    QStringList paths;
    for (const Session *session : std::as_const(sessions)) {
        paths.append(session->filePath());
        content.sessions.append(QFileInfo(session->filePath()).completeBaseName());
    }
    content.session = sessions.isEmpty() || rank(sessions.first()) > 1 ? -1 : 0;
    content.samplesOf = [paths](int session) { return smoothedSamples(paths.value(session)); };
    content.folders = foldersBelow(QDir::cleanPath(m_parts.settings.mapsFolder()));
    return content;
}

QString MapMaker::run(const MapEditor::Content &content, const QString &original,
                      const QString &source, const FileGates &gates)
{
    QString saved;
    MapEditor editor(content, owner());
    connect(&editor, &MapEditor::saveRequested, this, [&](const MapDraft &draft) {
        const CornerEdits &corners = editor.edit().corners();
        const bool isCornersOnly = original.isEmpty() && !source.isEmpty() && draft == content.draft
                                   && corners != content.corners;
        saved = isCornersOnly ? source : save(draft, original);
        if (saved.isEmpty())
            return;
        if (content.cornersRefused.isEmpty() || saved != original)
            saveCorners(corners, saved);
        editor.accept();
    });
    editor.edit().takeGates(gates.start, gates.splits);
    editor.exec();
    return saved;
}

void MapMaker::saveCorners(const CornerEdits &edits, const QString &name) const
{
    const QString file = cornerFilePath(path(name));
    if (edits.isEmpty()) {
        removeFile(file);
        return;
    }
    const QString problem = writeCornerFile(file, edits);
    if (!problem.isEmpty())
        tell(tr("The corners could not be saved: %1").arg(problem));
}

void MapMaker::newMap()
{
    Session *session = m_parts.display.session();
    if (session == nullptr)
        return;
    const QString file = session->fileName();
    const QString filePath = session->filePath();
    MapProposal proposal = proposeMap(session->wholeSamples());
    if (proposal.reason != NoProposal::None) {
        MessageBox::run(QMessageBox::Information, owner(), tr("New map"),
                        describe(proposal.reason));
        return;
    }
    const QStringList taken = filesBelow(path({}));
    const QString circuit = session->map() == nullptr ? session->circuitName() : QString();
    const QString name = freeMapName(proposedMapName(circuit, file, session->eventName()), taken);
    proposal.draft.name = mapPath({}, name);
    MapEditor::Content made = content(proposal.draft, {});
    made.note = tr("This is a proposal. Give it a name and save it, or drag its points.");
    const FileGates gates
        = gatesOn(proposal.draft, readSessionOrigin(filePath).value_or(SessionOrigin()));
    if (gates.start.isValid()) {
        made.note
            = tr("This is a proposal with the start line of the imported file; Undo takes the "
                 "line that was found in the laps. Give it a name and save it, or drag its "
                 "points.");
    }
    const QString saved = run(made, {}, {}, gates);
    if (saved.isEmpty())
        return;
    m_parts.settings.setMapChoice(file, saved);
    Q_EMIT mapsChanged();
}

void MapMaker::editMap(const QString &name)
{
    const Map *map = m_parts.maps.find(name);
    if (map == nullptr)
        return;
    const Session *session = m_parts.display.session();
    const bool isShown = session != nullptr && session->map() == map;
    const QString file = session != nullptr ? session->fileName() : QString();
    const bool isOwn = map->mapNumber() == MapDraft::OwnMapNumber;
    MapDraft draft = MapDraft::of(*map);
    QString note;
    if (!isOwn) {
        const QString copy = freeMapName(nameOfMap(name), filesBelow(path({})));
        draft.name = mapPath(folderOfMap(name), copy);
        draft.mapNumber = MapDraft::OwnMapNumber;
        note = tr("The map \"%1\" was not made with this program and stays as it is. You are "
                  "changing a copy of it.")
                   .arg(nameOfMap(name))
               + u' ' + tr("Its corners alone can be changed without a copy.");
    }
    MapEditor::Content opened = content(draft, name);
    opened.note = note;
    const CornerFile corners = readCornerFile(cornerFilePath(path(name)));
    opened.corners = corners.edits;
    opened.cornersRefused = refusal(corners.state);
    const QString saved = run(opened, isOwn ? name : QString(), name);
    if (saved.isEmpty())
        return;
    // A map of ours that got another name in the editor has moved there. The points may be others
    // as well, so the old file is kept where the rider can get it back.
    if (isOwn && saved != name && (moveToTrash(path(name)) || QFile::remove(path(name)))) {
        m_parts.settings.renameMapChoices(name, saved);
        removeFile(cornerFilePath(path(name)));
    }
    if (isShown)
        m_parts.settings.setMapChoice(file, saved);
    Q_EMIT mapsChanged();
}

QString MapMaker::save(const MapDraft &draft, const QString &original)
{
    const QString known = sameMap(draft.name, filesBelow(path({})));
    if (!known.isEmpty() && known != original) {
        if (!ask(tr("There is a map \"%1\" already. Do you want to replace it?").arg(known.mid(1))))
            return {};
    }
    MapDraft written = draft;
    if (!known.isEmpty())
        written.name = known;
    const QString problem = writeMapFile(written, path(written.name));
    if (!problem.isEmpty()) {
        tell(tr("The map could not be saved: %1").arg(problem));
        return {};
    }
    return written.name;
}

// Asks until the name is one that can be had; empty when the rider gives up.
QString MapMaker::askName(const QString &name) const
{
    // Maps from elsewhere may have another ending, or none.
    const QString file = name.section(u'/', -1);
    const QString ending = file.mid(nameOfMap(name).size());
    QInputDialog dialog(owner());
    dialog.setWindowTitle(tr("Rename map"));
    dialog.setLabelText(tr("Name :"));
    dialog.setTextValue(nameOfMap(name));
    showPlainTexts(dialog);
    while (true) {
        if (dialog.exec() != QDialog::Accepted)
            return {};
        const QString typed = dialog.textValue().trimmed();
        QString renamed = name.left(name.size() - file.size()) + typed + ending;
        const QString known = sameMap(renamed, filesBelow(path({})));
        const MapNameFault fault = faultOfMapName(typed);
        if (fault != MapNameFault::None)
            tell(zuno::describe(fault));
        else if (!known.isEmpty() && known != name)
            tell(tr("There is a map \"%1\" already.").arg(known.mid(1)));
        else
            return renamed;
    }
}

void MapMaker::renameMap(const QString &name)
{
    const QString renamed = askName(name);
    if (renamed.isEmpty() || renamed == name)
        return;
    if (!QFile::rename(path(name), path(renamed))) {
        tell(tr("The map \"%1\" could not be renamed.").arg(nameOfMap(name)));
        return;
    }
    m_parts.settings.renameMapChoices(name, renamed);
    // What lies there is of a map that is gone.
    const QString corners = cornerFilePath(path(name));
    if (QFile::exists(corners)) {
        removeFile(cornerFilePath(path(renamed)));
        if (!QFile::rename(corners, cornerFilePath(path(renamed))))
            tell(tr("The corners of the map \"%1\" could not be renamed.").arg(nameOfMap(name)));
    }
    Q_EMIT mapsChanged();
}

void MapMaker::deleteMap(const QString &name)
{
    if (!ask(tr("Do you want to delete the map \"%1\"?").arg(name.mid(1))))
        return;
    if (!moveToTrash(path(name))) {
        if (!ask(tr("The map cannot be moved to the trash. Do you want to delete it for good?")))
            return;
        if (!QFile::remove(path(name))) {
            tell(tr("The map \"%1\" could not be deleted.").arg(nameOfMap(name)));
            return;
        }
    }
    removeFile(cornerFilePath(path(name)));
    m_parts.settings.removeMapChoices(name);
    Q_EMIT mapsChanged();
}

} // namespace zuno
