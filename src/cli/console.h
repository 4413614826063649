// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <optional>
#include <utility>

#include <QByteArray>
#include <QCommandLineParser>
#include <QList>
#include <QString>
#include <QStringList>

namespace zuno::cli {

/// Writes @p bytes to standard output as they are; what could not be written, isOutputWhole()
/// tells.
void printOut(const QByteArray &bytes);
/// Whether all that was printed so far has been taken: a full disk and a closed pipe take nothing.
[[nodiscard]] bool isOutputWhole();
/// Writes a line to standard error, after the tool's name.
void printError(const QString &message);
/// The same, with the file that the message is about.
void printFileError(const QString &file, const QString &message);

/// What was printed, to be printed again.
struct Printed
{
    QByteArray out;
    QByteArray errors;
};
void printAgain(const Printed &printed);

/// While it lives, what its thread prints is kept instead.
class Capture
{
public:
    Capture();
    ~Capture();
    Capture(const Capture &) = delete;
    Capture &operator=(const Capture &) = delete;

    [[nodiscard]] Printed take() { return std::exchange(m_printed, {}); }

private:
    Printed m_printed;
};

/// The command line of one command: its options, its help and its file.
class CommandLine
{
public:
    static constexpr qsizetype AnyNumber = 1000000;

    /// @p arguments begin with the command's name.
    CommandLine(const QStringList &arguments, const QString &description);

    void addFlag(const QString &name, const QString &description);
    void addValue(const QStringList &names, const QString &valueName, const QString &description);
    /// Names what the positional arguments are.
    void addArgument(const QString &name, const QString &description);

    /// Parses. An exit status when there is nothing left to do: after --help, or after a wrong
    /// use that has been reported. @p most is the greatest number of positional arguments.
    [[nodiscard]] std::optional<int> parse(qsizetype least, qsizetype most);

    [[nodiscard]] bool isSet(const QString &name) const { return m_parser.isSet(name); }
    [[nodiscard]] QString value(const QString &name) const { return m_parser.value(name); }
    /// The values of @p name as numbers from 1 on; none (and reported) when one is no such number.
    [[nodiscard]] std::optional<QList<int>> numbers(const QString &name) const;
    /// Positional argument @p i.
    [[nodiscard]] QString argument(qsizetype i) const;
    [[nodiscard]] QStringList arguments() const;

private:
    QStringList m_arguments;
    QCommandLineParser m_parser;
};

/// A table for people: columns as wide as their widest cell, all but the first aligned right.
class TextTable
{
public:
    explicit TextTable(QStringList header) : m_rows {std::move(header)} {}
    void add(QStringList row) { m_rows.append(std::move(row)); }
    [[nodiscard]] QByteArray text() const;

private:
    QList<QStringList> m_rows;
};

/// Lines of a name and a value for people.
class TextList
{
public:
    void add(const QString &name, const QString &value) { m_rows.append({name, value}); }
    [[nodiscard]] QByteArray text() const;

private:
    QList<QStringList> m_rows;
};

} // namespace zuno::cli
