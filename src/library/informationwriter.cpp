// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/informationwriter.h>

#include <chrono>
#include <utility>

#include <QFileInfo>

namespace zuno {

namespace {

constexpr qint64 StillShown = 5000; // ms

// Less than two seconds, so that the file stands before they are over.
constexpr std::chrono::milliseconds LongestTyping {1500};
constexpr std::chrono::milliseconds Rest {2000};
// Timers need not be more exact.
constexpr std::chrono::milliseconds Late {10};

QString reasonOf(const Session &session, const RewriteResult &result)
{
    const QFileInfo file(session.filePath());
    // The system's words name the whole path again, which the status bar has no room for.
    if (file.exists() && !file.isWritable())
        return InformationWriter::tr("the file is write-protected");
    switch (result.outcome) {
    case RewriteOutcome::NotRewritable:
        if (session.recording().block == InformationBlock::OtherFormat)
            return InformationWriter::tr("its format is not known");
        return InformationWriter::tr("the file is damaged, or ends too early");
    case RewriteOutcome::OtherRecording:
        return InformationWriter::tr("the file holds another recording now");
    default:
        return result.reason;
    }
}

QString messageOf(const Session &session, const RewriteResult &result)
{
    const QString text
        = result.replaced.fields.isEmpty()
              ? InformationWriter::tr(
                  "%1 was changed by another program meanwhile; its changes were kept.")
              : InformationWriter::tr("%1 was changed by another program meanwhile. Where you both "
                                      "typed, your text stands; the page \"Session infos\" offers "
                                      "the other one.");
    return text.arg(session.fileName());
}

} // namespace

InformationWriter::InformationWriter(QObject *parent) : QObject(parent)
{
    m_typing.setSingleShot(true);
    m_rest.setSingleShot(true);
    connect(&m_typing, &QTimer::timeout, this, &InformationWriter::flush);
    connect(&m_rest, &QTimer::timeout, this, &InformationWriter::writeRested);
}

RewriteResult InformationWriter::write(Session &session, Cause cause)
{
    forget(session);
    const bool isEdited = cause == Cause::Edited || session.isUnsaved();
    session.setUnsaved(isEdited);
    RewriteResult result;
    if (isForeign(session.filePath()))
        result = {RewriteOutcome::WriteFailed, tr("the file is not in your library"), false, {}};
    else
        result = rewriteSessionFile(session, isEdited ? Occasion::Edited : Occasion::FirstDisplay);
    handle(session, result, cause);
    return result;
}

// A link in the library leads to it.
bool InformationWriter::isForeign(const QString &path) const
{
    return !m_library.path().isEmpty() && QFileInfo::exists(path) && !m_library.holds(path);
}

void InformationWriter::handle(Session &session, const RewriteResult &result, Cause cause)
{
    if (result.ok()) {
        session.setUnsaved(false);
        m_told.clear();
        Q_EMIT written(session);
    } else if (result.outcome == RewriteOutcome::BeingWritten) {
        session.isUnsaved() ? writeSoon(session) : writeWhenRested(session);
    } else if (result.outcome != RewriteOutcome::LeftOut) {
        tell(tr("%1 was not changed: %2. Changes are kept until the program ends.")
                 .arg(session.fileName(), reasonOf(session, result)),
             cause);
    }
    if (result.wasChanged)
        Q_EMIT joined(&session, messageOf(session, result));
    if (!result.replaced.fields.isEmpty())
        Q_EMIT replaced(&session, result.replaced);
}

void InformationWriter::writeSoon(Session &session)
{
    session.setUnsaved(true);
    if (!m_typed.contains(&session))
        m_typed.append(&session);
    // Not started anew: who never stops typing is written, too.
    if (!m_typing.isActive())
        m_typing.start(LongestTyping);
}

void InformationWriter::flush()
{
    m_typing.stop();
    const QList<QPointer<Session>> typed = std::exchange(m_typed, {});
    for (const QPointer<Session> &session : typed) {
        if (session != nullptr)
            write(*session, Cause::Edited);
    }
}

void InformationWriter::writeWhenRested(Session &session)
{
    forget(session);
    m_resting.append({&session, FileStamp::of(session.filePath()), QDeadlineTimer(Rest)});
    if (!m_rest.isActive())
        m_rest.start(Rest);
}

void InformationWriter::writeRested()
{
    const QList<Resting> all = std::exchange(m_resting, {});
    for (const Resting &one : all) {
        if (one.session == nullptr)
            continue;
        if (!one.due.hasExpired())
            m_resting.append(one);
        else if (FileStamp::of(one.session->filePath()) == one.stamp)
            write(*one.session);
        else
            writeWhenRested(*one.session);
    }
    if (!m_resting.isEmpty() && !m_rest.isActive())
        m_rest.start(std::chrono::milliseconds(m_resting.first().due.remainingTime()) + Late);
}

void InformationWriter::forget(const Session &session)
{
    m_typed.removeIf([&session](const QPointer<Session> &typed) { return typed == &session; });
    m_resting.removeIf([&session](const Resting &resting) { return resting.session == &session; });
}

// A text is written every other moment while it is typed, and the status bar still shows what was
// told a moment ago.
void InformationWriter::tell(const QString &message, Cause cause)
{
    const bool isNews = m_told != message || m_sinceTold.hasExpired(StillShown);
    if (!m_told.isEmpty() && !(cause == Cause::Edited && isNews))
        return;
    m_told = message;
    m_sinceTold.start();
    Q_EMIT failed(message);
}

} // namespace zuno
