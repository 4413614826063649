// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cli/console.h>

#include <algorithm>
#include <cstdio>

#include <cli/commands.h>

namespace zuno::cli {

namespace {

// Of each thread, so that files that are worked on at the same time do not mix.
thread_local Printed *captured = nullptr;

void printErrors(const QByteArray &lines)
{
    std::fwrite(lines.constData(), 1, static_cast<std::size_t>(lines.size()), stderr);
}

} // namespace

Capture::Capture()
{
    captured = &m_printed;
}

Capture::~Capture()
{
    captured = nullptr;
}

void printAgain(const Printed &printed)
{
    printErrors(printed.errors);
    printOut(printed.out);
}

void printOut(const QByteArray &bytes)
{
    if (captured != nullptr) {
        captured->out += bytes;
        return;
    }
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

bool isOutputWhole()
{
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

void printError(const QString &message)
{
    const QByteArray line = QByteArrayLiteral("zuno: ") + message.toLocal8Bit() + '\n';
    if (captured != nullptr)
        captured->errors += line;
    else
        printErrors(line);
}

void printFileError(const QString &file, const QString &message)
{
    printError(file + QStringLiteral(": ") + message);
}

CommandLine::CommandLine(const QStringList &arguments, const QString &description)
    : m_arguments(arguments)
{
    m_parser.setApplicationDescription(description);
    m_parser.addPositionalArgument(arguments.value(0), QString(), arguments.value(0));
    m_parser.addOption(
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this help.")});
}

void CommandLine::addFlag(const QString &name, const QString &description)
{
    m_parser.addOption(QCommandLineOption(name, description));
}

void CommandLine::addValue(const QStringList &names, const QString &valueName,
                           const QString &description)
{
    m_parser.addOption(QCommandLineOption(names, description, valueName));
}

void CommandLine::addArgument(const QString &name, const QString &description)
{
    m_parser.addPositionalArgument(name, description);
}

std::optional<int> CommandLine::parse(qsizetype least, qsizetype most)
{
    const QString command = m_arguments.value(0);
    // The parser takes the program's name first, and the command as its first argument.
    if (!m_parser.parse(QStringList {QStringLiteral("zuno")} + m_arguments)) {
        printError(m_parser.errorText());
        return WrongUse;
    }
    if (m_parser.isSet(QStringLiteral("help"))) {
        printOut(m_parser.helpText().toLocal8Bit());
        return Success;
    }
    const qsizetype given = arguments().size();
    if (given >= least && given <= most)
        return std::nullopt;
    printError(QStringLiteral("%1: %2; see \"zuno %1 --help\"")
                   .arg(command, given < least ? QStringLiteral("a file or folder is missing")
                                               : QStringLiteral("too many arguments")));
    return WrongUse;
}

std::optional<QList<int>> CommandLine::numbers(const QString &name) const
{
    QList<int> numbers;
    const QStringList values = m_parser.values(name);
    for (const QString &value : values) {
        bool isNumber = false;
        const int number = value.toInt(&isNumber);
        if (!isNumber || number < 1) {
            printError(QStringLiteral("--%1: \"%2\" is no number from 1 on").arg(name, value));
            return std::nullopt;
        }
        numbers.append(number);
    }
    return numbers;
}

QString CommandLine::argument(qsizetype i) const
{
    return arguments().value(i);
}

QStringList CommandLine::arguments() const
{
    return m_parser.positionalArguments().mid(1);
}

QByteArray TextTable::text() const
{
    QList<qsizetype> widths;
    for (const QStringList &row : m_rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], row[i].size());
    }
    QString text;
    for (const QStringList &row : m_rows) {
        QString line;
        for (qsizetype i = 0; i < row.size(); ++i) {
            line += i == 0 ? row[i].leftJustified(widths[i]) : row[i].rightJustified(widths[i]);
            line += u"  ";
        }
        text += line.trimmed().isEmpty() ? QString() : line.left(line.size() - 2);
        text += u'\n';
    }
    return text.toLocal8Bit();
}

QByteArray TextList::text() const
{
    qsizetype width = 0;
    for (const QStringList &row : m_rows)
        width = std::max(width, row[0].size());
    QString text;
    for (const QStringList &row : m_rows)
        text += row[0].leftJustified(width) + u"  " + row[1] + u'\n';
    return text.toLocal8Bit();
}

} // namespace zuno::cli
