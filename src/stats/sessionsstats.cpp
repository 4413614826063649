// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <stats/sessionsstats.h>

#include <algorithm>
#include <array>

#include <QHelpEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTextDocument>
#include <QToolTip>

#include <session/session.h>
#include <stats/sessionfilter.h>
#include <stats/sessionsstatstablemodel.h>
#include <widgets/plaintexts.h>

#include "ui_sessionsstats.h"

namespace zuno {

namespace {

struct Filter
{
    CheckableComboBox *Ui::SessionsStats::*box;
    SessionFilter::Field field;
};

constexpr std::array Filters {
    Filter {&Ui::SessionsStats::cb_date, SessionFilter::Field::Date},
    Filter {&Ui::SessionsStats::cb_track, SessionFilter::Field::Track},
    Filter {&Ui::SessionsStats::cb_vehicle, SessionFilter::Field::Vehicle},
    Filter {&Ui::SessionsStats::cb_driver, SessionFilter::Field::Driver},
    Filter {&Ui::SessionsStats::cb_event, SessionFilter::Field::Event},
    Filter {&Ui::SessionsStats::cb_weather, SessionFilter::Field::Condition},
};

// Filling the filters anew at every key would be felt while typing.
constexpr int RefreshTime = 200;
// Above and below the text of a row together, pixels.
constexpr int RowPadding = 8;
// Left and right of the text of a cell together, pixels.
constexpr int CellPadding = 8;
// Widths of a column at most unless the rider widens it, in characters. The notes stand last and
// get what the others leave.
constexpr int ColumnWidth = 36;
constexpr int NotesWidth = 22;

/// Shows a text on one line, cut where it is too long, and whole in a tool tip: notes have many
/// lines.
class OneLineDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QString displayText(const QVariant &value, const QLocale &locale) const override
    {
        QString text = QStyledItemDelegate::displayText(value, locale);
        std::replace_if(
            text.begin(), text.end(),
            [](QChar character) { return character.isSpace() || !character.isPrint(); }, u' ');
        return text;
    }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override
    {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        const bool isNotes = index.column() == SessionsStatsTableModel::Notes;
        const int characters = isNotes ? NotesWidth : ColumnWidth;
        const int widest = characters * option.fontMetrics.averageCharWidth();
        return {std::min(size.width() + CellPadding, widest), size.height()};
    }

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override
    {
        if (event->type() != QEvent::ToolTip)
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        const QString text = index.data().toString();
        const int needed = QStyledItemDelegate::sizeHint(option, index).width();
        const bool isWhole = needed <= option.rect.width() && !text.contains(u'\n');
        QToolTip::showText(event->globalPos(), isWhole ? QString() : plainToolTip(text), view,
                           option.rect);
        return true;
    }
};

} // namespace

SessionsStats::SessionsStats(const QList<Session *> &sessions, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                          | Qt::WindowCloseButtonHint)
    , m_ui(std::make_unique<Ui::SessionsStats>())
    , m_model(new SessionsStatsTableModel({}, this))
    , m_sorted(new SessionsSortModel(*m_model, this))
{
    m_ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":/Resources/Logos/logo.ico")));
    setUpTable();
    setUpFilters();
    connect(m_ui->pb_reset, &QPushButton::clicked, this, &SessionsStats::resetFilters);
    connect(m_ui->pb_close, &QPushButton::clicked, this, &QDialog::close);
    m_refreshTime.setSingleShot(true);
    m_refreshTime.setInterval(RefreshTime);
    connect(&m_refreshTime, &QTimer::timeout, this, &SessionsStats::refresh);
    takeSessions(sessions);
    fillFilters();
    resetFilters();
    fitColumns();
    fitWindow();
    setModal(true);
}

SessionsStats::~SessionsStats() = default;

void SessionsStats::setUpTable()
{
    QTableView &table = *m_ui->tw_stats;
    table.setModel(m_sorted);
    table.setItemDelegate(new OneLineDelegate(this));
    table.verticalHeader()->hide();
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + RowPadding);
    QHeaderView &header = *table.horizontalHeader();
    header.setHighlightSections(false);
    header.setStretchLastSection(true);
    // In the order of the list until the rider wants another one.
    header.setSortIndicator(-1, Qt::AscendingOrder);
    table.setSortingEnabled(true);
    table.installEventFilter(this);
    connect(&table, &QTableView::doubleClicked, this, &SessionsStats::onGoToSession);
}

void SessionsStats::setUpFilters()
{
    for (const Filter &filter : Filters) {
        connect(m_ui.get()->*filter.box, &CheckableComboBox::checkedChanged, this,
                &SessionsStats::applyFilters);
    }
}

void SessionsStats::setSessions(const QList<Session *> &sessions)
{
    const bool wasEmpty = m_model->rowCount() == 0;
    takeSessions(sessions);
    refresh();
    // Columns that show something keep the widths that the rider gave them.
    if (wasEmpty)
        fitColumns();
}

void SessionsStats::takeSessions(const QList<Session *> &sessions)
{
    for (const Session *session : std::as_const(m_sessions))
        disconnect(session, &QObject::destroyed, this, nullptr);
    m_sessions = sessions;
    m_sessions.removeAll(nullptr);
    for (const Session *session : std::as_const(m_sessions))
        connect(session, &QObject::destroyed, this, [this, session] { forget(session); });
}

void SessionsStats::forget(const Session *session)
{
    m_sessions.removeIf([session](const Session *other) { return other == session; });
    m_model->forget(session);
    showCount();
}

void SessionsStats::fillFilters()
{
    for (const Filter &filter : Filters)
        (m_ui.get()->*filter.box)->setValues(SessionFilter::valuesOf(m_sessions, filter.field));
}

void SessionsStats::resetFilters()
{
    for (const Filter &filter : Filters) {
        CheckableComboBox *const box = m_ui.get()->*filter.box;
        const QSignalBlocker blocker(box);
        box->checkAll();
    }
    applyFilters();
}

void SessionsStats::applyFilters()
{
    SessionFilter filter;
    for (const auto &[box, field] : Filters) {
        const CheckableComboBox &values = *(m_ui.get()->*box);
        // Not the entries for all values: the rider may have described a session since they were
        // collected.
        if (values.isAllChecked())
            filter.setCondition(field, SessionFilter::valuesOf(m_sessions, field),
                                SessionFilter::Emptiness::Any);
        else
            filter.setCondition(field, values.checkedValues(), SessionFilter::Emptiness::Listed);
    }
    const Session *const current = currentSession();
    m_model->show(m_sessions, filter);
    selectSession(current);
    showCount();
}

void SessionsStats::refresh()
{
    fillFilters();
    applyFilters();
}

void SessionsStats::showCount()
{
    m_ui->lb_count->setText(
        tr("Sessions : %1 of %2").arg(m_model->rowCount()).arg(m_sessions.size()));
}

void SessionsStats::fitColumns()
{
    // Before the window is shown, the header does not know its padding yet and would cut its texts.
    m_ui->tw_stats->horizontalHeader()->ensurePolished();
    m_ui->tw_stats->resizeColumnsToContents();
}

// As wide as the table where the screen is.
void SessionsStats::fitWindow()
{
    constexpr int BesideWindow = 40;
    const QTableView &table = *m_ui->tw_stats;
    const QMargins margins = layout()->contentsMargins();
    const int wanted = table.horizontalHeader()->length() + (2 * table.frameWidth())
                       + table.verticalScrollBar()->sizeHint().width() + margins.left()
                       + margins.right();
    const int widest = screen()->availableGeometry().width() - BesideWindow;
    resize(std::max(width(), std::min(wanted, widest)), height());
}

Session *SessionsStats::currentSession() const
{
    const QModelIndex index = m_ui->tw_stats->currentIndex();
    return index.isValid() ? m_model->session(m_sorted->mapToSource(index).row()) : nullptr;
}

void SessionsStats::selectSession(const Session *session)
{
    const int row = session != nullptr ? m_model->rowOf(session) : -1;
    if (row < 0 || session == currentSession())
        return;
    m_ui->tw_stats->setCurrentIndex(m_sorted->mapFromSource(m_model->index(row, 0)));
}

void SessionsStats::onGoToSession(const QModelIndex &index)
{
    if (index.model() != m_sorted)
        return;
    if (Session *const session = m_model->session(m_sorted->mapToSource(index).row()))
        Q_EMIT goToSession(session);
}

// Whoever shows the window again sets the list anew.
void SessionsStats::refreshSoon()
{
    if (isVisible())
        m_refreshTime.start();
}

// While another window was in front, the rider may have described a session or thrown out a lap.
void SessionsStats::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        refresh();
}

// The table leaves Enter to the dialog.
bool SessionsStats::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_ui->tw_stats && event->type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            onGoToSession(m_ui->tw_stats->currentIndex());
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace zuno
