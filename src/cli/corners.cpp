// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/jsonwriter.h>
#include <cli/commands.h>
#include <cli/console.h>
#include <cli/cornersjson.h>
#include <cli/input.h>
#include <cli/insighttext.h>

namespace zuno::cli {

namespace {

// A circuit and the name of its map.
struct NamedCircuit
{
    QString map;
    CircuitCorners circuit;
};

bool isMapFile(const QString &path)
{
    return readMapFile(path, {}) != nullptr;
}

// The circuit of a map file, or of a session as it is displayed; none, and reported, without one.
std::optional<NamedCircuit> circuitReported(const CommandLine &line)
{
    const QString path = line.argument(0);
    if (isMapFile(path)) {
        const std::unique_ptr<Map> map = mapReported(path, {});
        return map ? std::optional(
                   NamedCircuit {map->name(), findCorners(*map, editsReported(path))})
                   : std::nullopt;
    }
    const DisplayedSession displayed = displayReported(path, line);
    if (!displayed.session)
        return {};
    const Session &session = *displayed.session;
    SessionInsight insight;
    insight.lack = InsightLack::NoCorners;
    if (session.map() != nullptr)
        insight = insightOf(*session.map(), editsReported(displayed.mapPath()),
                            session.wholeSamples(), session.laps());
    if (insight.lack != InsightLack::None) {
        printFileError(path, lackText(insight.lack));
        return {};
    }
    return NamedCircuit {session.map()->name(), insight.circuit};
}

} // namespace

int corners(const QStringList &arguments)
{
    CommandLine line(arguments,
                     QStringLiteral("The corners of a circuit, from its outline alone; those of a "
                                    "session's circuit only if its laps fit them."));
    line.addArgument(QStringLiteral("FILE"),
                     QStringLiteral("A map file, or a session file (.ra1)."));
    addMapOptions(line);
    line.addFlag(QStringLiteral("json"), QStringLiteral("Writes JSON instead of tables."));
    if (const auto status = line.parse(1, 1))
        return *status;
    const std::optional<NamedCircuit> found = circuitReported(line);
    if (!found)
        return FileFailed;
    if (!line.isSet(QStringLiteral("json"))) {
        printOut(cornersText(found->circuit));
        return Success;
    }
    JsonWriter json(JsonWriter::Numbers::RoundTrip);
    json.beginObject();
    json.member("map", found->map);
    writeCircuit(json, found->circuit);
    json.endObject();
    printOut(json.text() + '\n');
    return Success;
}

} // namespace zuno::cli
