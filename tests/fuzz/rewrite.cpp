// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A rewrite of anything that decodes decodes again to the same samples, lists and texts, and
// rewriting twice changes nothing.

#include <bit>

#include <fuzzer/FuzzedDataProvider.h>

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

// Bit for bit: a value that is not a number is the same, too.
bool areSame(double a, double b)
{
    return std::bit_cast<quint64>(a) == std::bit_cast<quint64>(b);
}

bool areSame(const PointAcquisition &a, const PointAcquisition &b)
{
    return a.acquisitionNumber == b.acquisitionNumber && a.dataTimeStamp == b.dataTimeStamp
           && areSame(a.dataCoordX, b.dataCoordX) && areSame(a.dataCoordY, b.dataCoordY)
           && areSame(a.dataSpeed, b.dataSpeed) && areSame(a.dataAngle, b.dataAngle)
           && areSame(a.dataAccelXPH, b.dataAccelXPH) && areSame(a.dataAccelYPH, b.dataAccelYPH)
           && a.suspension1().readings.size() == b.suspension1().readings.size()
           && a.suspension2().readings.size() == b.suspension2().readings.size();
}

bool areSame(const Reading &a, const Reading &b)
{
    return a.number == b.number
           && areSame(static_cast<double>(a.value), static_cast<double>(b.value));
}

template<typename List>
bool haveSame(const List &a, const List &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const auto &x, const auto &y) { return areSame(x, y); });
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
    if ((fields & 4) != 0)
        session.setDriver(text());
    if ((fields & 8) != 0)
        session.setTemperature(source.ConsumeIntegral<qint32>());
    if ((fields & 16) != 0)
        session.setInvalidLaps({source.ConsumeIntegral<quint8>(), 3});
    if ((fields & 32) != 0)
        session.setNewSession(source.ConsumeIntegral<quint8>());
    // As a session with laps does.
    SessionInformation information = session.information();
    if ((fields & 64) != 0)
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
    if (after.isEmpty() || (!hasLists && session.information().circuitName.encoded()[0] == '\1'))
        return 0;
    const OpenedSession again = decodeSession(after, path());
    check(again.session != nullptr, "a rewritten file decodes");
    check(haveSame(session.samples(), again.session->samples()), "same samples");
    check(haveSame(session.readingLists().list1, again.session->readingLists().list1), "same list");
    check(haveSame(session.readingLists().list2, again.session->readingLists().list2), "same list");
    check(session.newSession() == again.session->newSession(), "same flag");
    check(informationBlock(session) == informationBlock(*again.session), "same information");
    check(again.session->recording().hasWholeInformation, "the information is whole");
    check(rewritten(after, *again.session) == after, "rewriting twice changes nothing");
    return 0;
}
