// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A rewrite of anything that decodes decodes again to the same samples, lists and texts, what
// stands behind the information stays, and rewriting twice changes nothing.

#include <fuzzer/FuzzedDataProvider.h>

#include <QDataStream>
#include <QIODevice>

#include <session/sessionfile.h>
#include <session/sessionrewrite.h>

#include "check.h"

using namespace zuno;
using namespace zuno::fuzz;

namespace {

QString path()
{
    return QStringLiteral("Fuzz.ra1");
}

// Samples and lists bit for bit: a value that is not a number is the same, too.
QByteArray bits(const Session &session)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    for (const PointAcquisition &point : session.samples()) {
        out << point.acquisitionNumber << point.dataTimeStamp << point.dataCoordX
            << point.dataCoordY << point.dataSpeed << point.dataAngle << point.dataAccelXPH
            << point.dataAccelYPH << quint64(point.suspension1().readings.size())
            << quint64(point.suspension2().readings.size());
    }
    const ReadingLists &lists = session.readingLists();
    for (const auto *list : {&lists.list1, &lists.list2}) {
        out << quint64(list->size());
        for (const Reading &reading : *list)
            out << reading.number << reading.value;
    }
    return bytes;
}

void edit(FuzzedDataProvider &source, Session &session)
{
    const auto text = [&source] {
        return storableText(QString::fromLatin1(source.ConsumeRandomLengthString(300)));
    };
    const auto fields = source.ConsumeIntegral<quint8>();
    if ((fields & 1) != 0)
        session.setCircuitName(text());
    if ((fields & 2) != 0)
        session.setNotes(text());
    if ((fields & 4) != 0) {
        session.setTemperature(source.ConsumeIntegral<qint32>());
        session.setInvalidLaps({source.ConsumeIntegral<quint8>(), 3});
        session.setNewSession(source.ConsumeIntegral<quint8>());
    }
    // As a session with laps does.
    SessionInformation information = session.information();
    if ((fields & 8) != 0)
        information.bestLapText = StoredText(QStringLiteral("01:02.003"));
    session.setInformation(information);
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): the fuzzer calls it so
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // The file's own last bytes say what is edited, so that a session file is a seed as it is.
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const size_t tail = std::min<size_t>(size, 24);
    FuzzedDataProvider source(data + (size - tail), tail);
    const OpenedSession opened = decodeSession(bytes, path());
    if (!opened.session) {
        check(rewritten(bytes, Session(path())).isEmpty(), "what does not decode is left alone");
        return 0;
    }
    Session &session = *opened.session;
    edit(source, session);
    const QByteArray after = rewritten(bytes, session);
    // Cut short before its information, or a name of one character: the format takes its length
    // for the flag of lists.
    const bool hasLists = session.recording().listsFlag == 1;
    if (after.isEmpty() || (!hasLists && session.information().circuitName.encoded().at(0) == '\1'))
        return 0;
    // Texts that look like the beginning of a second recording are taken for one.
    const auto isMagic = [](const StoredText &text) { return text.text() == u"RA1"; };
    if (isMagic(session.information().circuitName) || isMagic(session.information().event))
        return 0;
    const OpenedSession again = decodeSession(after, path());
    check(again.session != nullptr, "a rewritten file decodes");
    check(bits(session) == bits(*again.session), "same samples and lists");
    check(session.newSession() == again.session->newSession(), "same flag");
    check(informationBlock(session) == informationBlock(*again.session), "same information");
    check(again.session->recording().block == InformationBlock::Whole, "the information is whole");
    check(rewritten(after, *again.session) == after, "rewriting twice changes nothing");
    return 0;
}
