// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cli/commands.h>
#include <cli/console.h>
#include <cli/input.h>
#include <cli/output.h>
#include <maps/check/mapcheck.h>
#include <maps/proposal/mapproposal.h>

namespace zuno::cli {

namespace {

QString reasonText(NoProposal reason)
{
    switch (reason) {
    case NoProposal::NoPositions:
        return QStringLiteral("gives no map: hardly a sample has a position");
    case NoProposal::NoMovement:
        return QStringLiteral("gives no map: the recorder stood about");
    case NoProposal::NoLap:
        return QStringLiteral("gives no map: the ride never comes back to where it was, in the "
                              "same direction, so there is no lap to be found");
    case NoProposal::None:
        break;
    }
    return {};
}

QByteArray asList(const MapProposal &proposal, const MapCheck &check)
{
    const auto metres = [](double length, int decimals) {
        return QStringLiteral("%1 m").arg(length, 0, 'f', decimals);
    };
    TextList list;
    list.add(QStringLiteral("Laps"), QString::number(proposal.laps.size()));
    list.add(QStringLiteral("Length"), metres(check.length, 1));
    list.add(QStringLiteral("Gate size"), metres(proposal.draft.gateSize, 1));
    list.add(QStringLiteral("Start"), placeText(proposal.draft.start));
    for (qsizetype i = 0; i < proposal.draft.timingPoints.size(); ++i)
        list.add(QStringLiteral("Time %1").arg(i), placeText(proposal.draft.timingPoints[i]));
    for (const MapWarning &warning : check.warnings)
        list.add(QStringLiteral("Warning"), warningText(warning));
    return list.text();
}

} // namespace

int mapNew(const QStringList &arguments)
{
    CommandLine line(
        arguments, QStringLiteral("Makes a map of the circuit that a session was ridden on: finds "
                                  "the laps, and proposes the line, the outline and the timing "
                                  "points."));
    line.addArgument(QStringLiteral("FILE"), QStringLiteral("A session file (.ra1)."));
    line.addValue({QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("MAP"),
                  QStringLiteral("The map file to write; required."));
    addForceOption(line);
    if (const auto status = line.parse(1, 1))
        return *status;
    const QString output = line.value(QStringLiteral("output"));
    if (output.isEmpty()) {
        printError(QStringLiteral("map new: no map file given to write, with -o"));
        return WrongUse;
    }
    if (!mayWriteReported(output, FileKind::Map, line))
        return FileFailed;
    const std::unique_ptr<Session> session = readReported(line.argument(0));
    if (!session)
        return FileFailed;
    session->smooth();
    const MapProposal proposal = proposeMap(session->wholeSamples());
    if (proposal.reason != NoProposal::None) {
        printFileError(line.argument(0), reasonText(proposal.reason));
        return FileFailed;
    }
    const QString error = writeMapFile(proposal.draft, output);
    if (!error.isEmpty()) {
        printFileError(output, error);
        return FileFailed;
    }
    printOut(asList(proposal, checkMap(session->wholeSamples(), proposal.draft)));
    return Success;
}

} // namespace zuno::cli
