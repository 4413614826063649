// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cli/commands.h>
#include <cli/console.h>
#include <cli/input.h>
#include <cli/output.h>

#include <algorithm>
#include <array>

#include <session/sessionrewrite.h>

namespace zuno::cli {

namespace {

struct TextKey
{
    const char16_t *name;
    void (Session::*set)(const QString &);
};

constexpr std::array TextKeys {
    TextKey {u"circuit", &Session::setCircuitName}, TextKey {u"event", &Session::setEventName},
    TextKey {u"driver", &Session::setDriver},       TextKey {u"vehicle", &Session::setVehicle},
    TextKey {u"condition", &Session::setCondition}, TextKey {u"tyres", &Session::setTyres},
    TextKey {u"notes", &Session::setNotes},
};

std::optional<quint8> toByte(const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || number < 0 || number > 255)
        return std::nullopt;
    return static_cast<quint8>(number);
}

std::optional<QList<quint8>> toBytes(const QString &text)
{
    QList<quint8> numbers;
    const QStringList parts = text.split(u',', Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const auto number = toByte(part);
        if (!number || numbers.size() == 255)
            return std::nullopt;
        numbers.append(*number);
    }
    return numbers;
}

bool setNumber(Session &session, const QString &key, const QString &value)
{
    const auto number = toByte(value);
    if (number && key == u"temperature")
        session.setTemperature(*number);
    else if (number && *number <= 1 && key == u"newSession")
        session.setNewSession(*number);
    else
        return false;
    return true;
}

bool setText(Session &session, const QString &key, const QString &value)
{
    const auto found = std::find_if(TextKeys.begin(), TextKeys.end(), [&key](const TextKey &k) {
        return key == QString::fromUtf16(k.name);
    });
    if (found == TextKeys.end())
        return false;
    (session.*found->set)(storableText(value));
    return true;
}

bool setInvalid(Session &session, const QString &value)
{
    const auto numbers = toBytes(value);
    if (numbers)
        session.setInvalidLaps(*numbers);
    return numbers.has_value();
}

// One "key=value"; false when it is none or the value does not fit.
bool assign(Session &session, const QString &assignment)
{
    const qsizetype equals = assignment.indexOf(u'=');
    if (equals < 0)
        return false;
    const QString key = assignment.left(equals);
    const QString value = assignment.mid(equals + 1);
    if (key == u"invalid")
        return setInvalid(session, value);
    return setText(session, key, value) || setNumber(session, key, value);
}

QString failure(const RewriteResult &result)
{
    switch (result.outcome) {
    case RewriteOutcome::NotRewritable:
        return QStringLiteral("has a format that is not known, is damaged, or ends before its "
                              "information; it was left alone");
    case RewriteOutcome::BeingWritten:
        return QStringLiteral("was written by somebody else just then; it was left alone");
    case RewriteOutcome::OtherRecording:
        return QStringLiteral("holds another recording now; it was left alone");
    case RewriteOutcome::Unreadable:
        return QStringLiteral("cannot be read: ") + result.reason;
    default:
        return QStringLiteral("was not written: ") + result.reason;
    }
}

} // namespace

int set(const QStringList &arguments)
{
    CommandLine line(
        arguments,
        QStringLiteral("Changes the information in a session file. Keys: circuit, event, driver, "
                       "vehicle, condition, tyres, notes (texts; letters outside ASCII are "
                       "replaced), temperature (0 to 255), newSession (0 or 1), invalid (numbers "
                       "of laps, as in 2,3)."));
    line.addArgument(QStringLiteral("FILE"), QStringLiteral("A session file (.ra1)."));
    line.addArgument(QStringLiteral("key=value"),
                     QStringLiteral("What to change; can be repeated."));
    line.addValue({QStringLiteral("o")}, QStringLiteral("OUT"),
                  QStringLiteral("Writes to OUT instead of FILE."));
    addForceOption(line);
    constexpr qsizetype Any = 1000000;
    if (const auto status = line.parse(1, Any))
        return *status;
    const QString output = line.value(QStringLiteral("o"));
    if (!output.isEmpty() && !mayWriteReported(output, FileKind::Session, line))
        return FileFailed;
    const std::unique_ptr<Session> session = openReported(line.argument(0));
    if (!session)
        return FileFailed;
    const QStringList assignments = line.arguments().mid(1);
    for (const QString &assignment : assignments) {
        if (!assign(*session, assignment)) {
            printError(QStringLiteral("set: \"%1\" cannot be set; see \"zuno set --help\"")
                           .arg(assignment));
            return WrongUse;
        }
    }
    const RewriteResult result = line.isSet(QStringLiteral("o"))
                                     ? rewriteSessionFileTo(*session, output)
                                     : rewriteSessionFile(*session);
    if (result.ok())
        return Success;
    printFileError(line.argument(0), failure(result));
    return FileFailed;
}

} // namespace zuno::cli
