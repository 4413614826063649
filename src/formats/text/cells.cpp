// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/text/cells.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace zuno {

namespace {

constexpr double LargestValue = 1e15;

// Where the cell that begins at @p begin ends; it may be in quotes.
qsizetype endOfCell(QByteArrayView line, qsizetype begin, char separator)
{
    if (begin >= line.size() || line[begin] != '"') {
        const qsizetype end = line.indexOf(separator, begin);
        return end < 0 ? line.size() : end;
    }
    qsizetype i = begin + 1;
    while (i < line.size()) {
        if (line[i] == '"') {
            if (i + 1 >= line.size() || line[i + 1] != '"')
                break;
            ++i;
        }
        ++i;
    }
    const qsizetype end = i < line.size() ? line.indexOf(separator, i) : line.size();
    return end < 0 ? line.size() : end;
}

QByteArrayView withoutQuotes(QByteArrayView cell)
{
    const QByteArrayView trimmed = cell.trimmed();
    if (trimmed.size() >= 2 && trimmed.front() == '"' && trimmed.back() == '"')
        return trimmed.sliced(1, trimmed.size() - 2);
    return cell;
}

void splitAtBlanks(QByteArrayView line, Cells &cells)
{
    qsizetype i = 0;
    while (i < line.size()) {
        while (i < line.size() && line[i] == ' ')
            ++i;
        const qsizetype begin = i;
        while (i < line.size() && line[i] != ' ')
            ++i;
        if (i > begin)
            cells.push_back(line.sliced(begin, i - begin));
    }
}

double numberWithComma(QByteArrayView cell)
{
    std::array<char, 64> copy {};
    if (cell.size() > std::ssize(copy))
        return NoValue;
    const auto end = std::replace_copy(cell.begin(), cell.end(), copy.begin(), ',', '.');
    const QByteArrayView text(copy.data(), std::distance(copy.begin(), end));
    return text.count('.') == 1 ? toNumber(text) : NoValue;
}

} // namespace

void splitCells(QByteArrayView line, char separator, Cells &cells)
{
    cells.clear();
    if (separator == ' ') {
        splitAtBlanks(line, cells);
        return;
    }
    qsizetype begin = 0;
    while (begin <= line.size()) {
        const qsizetype end = endOfCell(line, begin, separator);
        cells.push_back(withoutQuotes(line.sliced(begin, end - begin)));
        begin = end + 1;
    }
}

QByteArrayView upTo(QByteArrayView text, char end)
{
    const qsizetype at = text.indexOf(end);
    return at < 0 ? text : text.first(at);
}

QString cellText(QByteArrayView cell)
{
    QString text = QString::fromUtf8(cell).trimmed();
    if (text.size() >= 2 && text.startsWith(u'"') && text.endsWith(u'"'))
        text = text.sliced(1, text.size() - 2);
    return text.replace(QStringLiteral("\"\""), QStringLiteral("\"")).trimmed();
}

double toNumber(QByteArrayView cell)
{
    const char *at = cell.begin();
    const char *end = cell.end();
    while (at != end && (*at == ' ' || *at == '\t'))
        ++at;
    if (at != end && *at == '+')
        ++at;
    // "inf" and "nan" are read as numbers otherwise.
    if (at == end || (*at != '-' && *at != '.' && (*at < '0' || *at > '9')))
        return NoValue;
    double value = 0;
    const auto [rest, error] = std::from_chars(at, end, value);
    if (error != std::errc() || !(std::abs(value) < LargestValue))
        return NoValue;
    if (rest != end && *rest == ',')
        return numberWithComma(QByteArrayView(at, end));
    const bool isWhole = rest == end || *rest == ' ' || *rest == '\t' || *rest == '\r';
    return isWhole ? value : NoValue;
}

char guessSeparator(const std::vector<QByteArray> &lines)
{
    char best = ',';
    std::size_t most = 1;
    Cells cells;
    for (const char separator : {';', '\t', '|', ','}) {
        std::size_t least = std::numeric_limits<std::size_t>::max();
        for (const QByteArray &line : lines) {
            splitCells(line, separator, cells);
            least = std::min(least, cells.size());
        }
        if (!lines.empty() && least > most) {
            most = least;
            best = separator;
        }
    }
    return best;
}

} // namespace zuno
