// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <stats/sessionsstatstablemodel.h>

#include <algorithm>
#include <array>
#include <optional>

#include <QDateTime>

#include <session/session.h>
#include <stats/sessionfilter.h>
#include <theme/shownunits.h>

namespace zuno {

namespace {

QString dateText(const Session &session)
{
    return session.recording().date + QStringLiteral(" - ") + session.recording().time;
}

// None when nobody has noted one: 20 degrees are what a session starts with.
std::optional<qint32> temperatureOf(const Session &session)
{
    const qint32 degrees = session.temperature();
    if (degrees == SessionInformation::UnknownTemperature || !session.information().isTouched())
        return {};
    return degrees;
}

QString temperatureText(const Session &session)
{
    const auto degrees = temperatureOf(session);
    if (!degrees)
        return {};
    // As it is typed; what differs from that says so.
    return units().temperatureUnit == Units::Temperature::Celsius
               ? QString::number(*degrees)
               : units().temperatureText(*degrees);
}

/// What a cell is sorted by; none for a cell that is no value.
using Value = std::optional<qint64>;

constexpr qint64 Minute = 60;
constexpr qint64 Thousand = 1000;

/// The whole numbers of a text between any of @p separators; none when there is something else.
/// By hand, because sorting a long list reads thousands of them.
std::optional<QList<int>> numbersIn(QStringView text, QStringView separators)
{
    constexpr int MaximumDigits = 9;
    QList<int> numbers;
    int digits = 0;
    for (const QChar character : text) {
        if (separators.contains(character)) {
            digits = 0;
            continue;
        }
        if (character < u'0' || character > u'9' || ++digits > MaximumDigits)
            return std::nullopt;
        if (digits == 1)
            numbers.append(0);
        numbers.last() = numbers.last() * 10 + character.unicode() - u'0';
    }
    return numbers;
}

/// Milliseconds of "mm:ss.zzz" or "hh::mm:ss.zzz".
Value lapTimeOf(const QString &text)
{
    const auto numbers = numbersIn(text, u":.");
    if (!numbers || numbers->size() < 3 || numbers->size() > 4)
        return std::nullopt;
    qint64 seconds = 0;
    for (qsizetype i = 0; i + 1 < numbers->size(); ++i)
        seconds = seconds * Minute + numbers->at(i);
    return seconds * Thousand + numbers->last();
}

Value timeOrNone(qint64 milliseconds)
{
    return milliseconds < 0 ? Value() : milliseconds;
}

Value bestLapOf(const Session &session)
{
    if (session.laps().empty())
        return lapTimeOf(session.information().bestLapText.text());
    const auto best = static_cast<std::size_t>(session.results().bestLap);
    return timeOrNone(session.laps()[best]->lapTime());
}

Value idealTimeOf(const Session &session)
{
    if (session.laps().empty())
        return lapTimeOf(session.idealTimeText());
    return timeOrNone(session.results().idealTime);
}

/// Day before month, as the loggers write, or a year of four digits first.
QDate dateOf(const QString &text)
{
    constexpr int Century = 2000;
    constexpr int FirstLongYear = 100;
    const auto numbers = numbersIn(text, u"/-. ");
    if (!numbers || numbers->size() != 3)
        return {};
    if (numbers->first() >= FirstLongYear)
        return {numbers->at(0), numbers->at(1), numbers->at(2)};
    const int year = numbers->at(2);
    return {year < FirstLongYear ? Century + year : year, numbers->at(1), numbers->at(0)};
}

/// A time that cannot be read is taken for midnight: the day still counts.
QTime clockTimeOf(const QString &text)
{
    const auto numbers = numbersIn(text, u":.");
    const QTime midnight(0, 0);
    if (!numbers || numbers->size() < 2 || numbers->size() > 4)
        return midnight;
    const QTime time(numbers->at(0), numbers->at(1), numbers->value(2), numbers->value(3));
    return time.isValid() ? time : midnight;
}

Value dateAndTimeOf(const Session &session)
{
    const Recording &recording = session.recording();
    constexpr qint64 Day = 24 * Minute * Minute * Thousand;
    const QDate date = dateOf(recording.date);
    if (!date.isValid())
        return std::nullopt;
    return date.toJulianDay() * Day + clockTimeOf(recording.time).msecsSinceStartOfDay();
}

Value temperatureValue(const Session &session)
{
    const auto degrees = temperatureOf(session);
    return degrees ? Value(*degrees) : Value();
}

/// What a column shows of a session, and by what it is sorted; in the order of
/// SessionsStatsTableModel::Column.
struct ColumnEntry
{
    /// Still to be translated.
    const char *header = nullptr;
    QString (*text)(const Session &session) = nullptr;
    /// nullptr for a column that is sorted by its texts.
    Value (*value)(const Session &session) = nullptr;
};

constexpr std::array Table {
    ColumnEntry {QT_TRANSLATE_NOOP("zuno::SessionsStatsTableModel", "Date"), dateText,
                 dateAndTimeOf},
    ColumnEntry {QT_TRANSLATE_NOOP("zuno::SessionsStatsTableModel", "Track"),
                 [](const Session &session) { return session.circuitName(); }},
    ColumnEntry {QT_TRANSLATE_NOOP("zuno::SessionsStatsTableModel", "Best Lap"),
                 [](const Session &session) { return session.bestLapText(); }, bestLapOf},
    ColumnEntry {QT_TRANSLATE_NOOP("zuno::SessionsStatsTableModel", "Ideal Time"),
                 [](const Session &session) { return session.idealTimeText(); }, idealTimeOf},
    ColumnEntry {QT_TRANSLATE_NOOP("zuno::SessionsStatsTableModel", "Vehicle"),
                 [](const Session &session) { return session.vehicle(); }},
    ColumnEntry {QT_TRANSLATE_NOOP("zuno::SessionsStatsTableModel", "Driver"),
                 [](const Session &session) { return session.driver(); }},
    ColumnEntry {QT_TRANSLATE_NOOP("zuno::SessionsStatsTableModel", "Event"),
                 [](const Session &session) { return session.eventName(); }},
    ColumnEntry {QT_TRANSLATE_NOOP("zuno::SessionsStatsTableModel", "Track condition"),
                 [](const Session &session) {
                     return SessionFilter::valueOf(session, SessionFilter::Field::Condition);
                 }},
    ColumnEntry {QT_TRANSLATE_NOOP("zuno::SessionsStatsTableModel", "Track temperature"),
                 temperatureText, temperatureValue},
    ColumnEntry {QT_TRANSLATE_NOOP("zuno::SessionsStatsTableModel", "Tires"),
                 [](const Session &session) { return session.tyres(); }},
    ColumnEntry {QT_TRANSLATE_NOOP("zuno::SessionsStatsTableModel", "Notes"),
                 [](const Session &session) { return session.notes(); }},
};
static_assert(Table.size() == SessionsStatsTableModel::ColumnCount);

const ColumnEntry &entryOf(int column)
{
    return Table[static_cast<std::size_t>(column)];
}

} // namespace

SessionsStatsTableModel::SessionsStatsTableModel(const QList<Session *> &sessions, QObject *parent)
    : QAbstractTableModel(parent)
    , m_sessions(sessions)
{
}

void SessionsStatsTableModel::show(const QList<Session *> &sessions, const SessionFilter &filter)
{
    QList<Session *> accepted;
    std::copy_if(sessions.begin(), sessions.end(), std::back_inserter(accepted),
                 [&filter](const Session *session) { return filter.accepts(*session); });
    if (std::ranges::equal(accepted, m_sessions)) {
        if (!accepted.isEmpty())
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
        return;
    }
    removeRows(0, rowCount());
    if (accepted.isEmpty())
        return;
    beginInsertRows({}, 0, static_cast<int>(accepted.size()) - 1);
    m_sessions = accepted;
    endInsertRows();
}

void SessionsStatsTableModel::forget(const Session *session)
{
    for (int row = rowCount() - 1; row >= 0; --row) {
        if (m_sessions[row] != session)
            continue;
        // Views may still ask for a row that is about to be removed.
        m_sessions[row] = nullptr;
        removeRows(row, 1);
    }
}

Session *SessionsStatsTableModel::session(int row) const
{
    return m_sessions.value(row);
}

int SessionsStatsTableModel::rowOf(const Session *session) const
{
    const auto found = std::find(m_sessions.begin(), m_sessions.end(), session);
    return found != m_sessions.end() ? static_cast<int>(found - m_sessions.begin()) : -1;
}

int SessionsStatsTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_sessions.size());
}

int SessionsStatsTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant SessionsStatsTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignCenter);
    const Session *const session = m_sessions[index.row()];
    if (role != Qt::DisplayRole || session == nullptr)
        return {};
    return entryOf(index.column()).text(*session);
}

QVariant SessionsStatsTableModel::headerData(int section, Qt::Orientation orientation,
                                             int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0
        || section >= ColumnCount)
        return {};
    return tr(entryOf(section).header);
}

bool SessionsStatsTableModel::insertRows(int row, int count, const QModelIndex &parent)
{
    if (parent.isValid() || row < 0 || row > rowCount() || count < 1)
        return false;
    beginInsertRows({}, row, row + count - 1);
    m_sessions.insert(row, count, nullptr);
    endInsertRows();
    return true;
}

bool SessionsStatsTableModel::removeRows(int row, int count, const QModelIndex &parent)
{
    if (parent.isValid() || row < 0 || count < 1 || count > rowCount() - row)
        return false;
    beginRemoveRows({}, row, row + count - 1);
    m_sessions.remove(row, count);
    endRemoveRows();
    return true;
}

SessionsSortModel::SessionsSortModel(SessionsStatsTableModel &model, QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_model(model)
{
    setSortCaseSensitivity(Qt::CaseInsensitive);
    setSourceModel(&model);
}

bool SessionsSortModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const Session *const a = m_model.session(left.row());
    const Session *const b = m_model.session(right.row());
    const auto valueOf = entryOf(left.column()).value;
    if (a == nullptr || b == nullptr || valueOf == nullptr)
        return QSortFilterProxyModel::lessThan(left, right);
    const Value valueA = valueOf(*a);
    const Value valueB = valueOf(*b);
    if (valueA && valueB)
        return *valueA < *valueB;
    // A descending order asks the other way round.
    if (valueA || valueB)
        return valueA.has_value() == (sortOrder() == Qt::AscendingOrder);
    return QSortFilterProxyModel::lessThan(left, right);
}

} // namespace zuno
