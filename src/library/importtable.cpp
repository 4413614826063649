// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/importtable.h>

#include <algorithm>

#include <QFileInfo>
#include <QHeaderView>
#include <QLocale>
#include <QStyle>

#include <formats/import/ridenotes.h>
#include <maps/detection/mapdetection.h>
#include <session/laps/lap.h>
#include <session/session.h>
#include <session/sessionfile.h>
#include <track/map.h>
#include <track/mapfile.h>
#include <widgets/plaintexts.h>

namespace zuno {

namespace {

enum Role { OriginalRole = Qt::UserRole, SessionRole, TableRole };

constexpr int RemarksWidth = 34; // characters

/// What a session would show when it is opened.
struct Expected
{
    QString circuit;
    qint64 laps = 0;
    bool hasMap = false;
};

Expected expect(const QString &path, const MapLibrary &maps)
{
    const OpenedSession opened = openSession(path);
    if (!opened.session)
        return {};
    Session &session = *opened.session;
    session.smooth();
    chooseMapByLength(session, candidatesOf(session, maps, {}).maps);
    if (session.map() == nullptr)
        return {};
    const auto laps = std::count_if(session.laps().begin(), session.laps().end(),
                                    [](const auto &lap) { return lap->isComplete(); });
    return {session.map()->displayName(), laps, true};
}

QString durationText(double seconds)
{
    const auto whole = static_cast<qint64>(seconds);
    const auto digits
        = [](qint64 number) { return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')); };
    return QStringLiteral("%1:%2:%3")
        .arg(QString::number(whole / 3600), digits(whole / 60 % 60), digits(whole % 60));
}

} // namespace

ImportTable::ImportTable(QWidget *parent) : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("tw_import"));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setHeaderLabels({tr("File"), tr("Kind"), tr("Date"), tr("Circuit"), tr("Duration"), tr("Rate"),
                     tr("Laps"), tr("Remarks")});
    header()->setStretchLastSection(true);
}

int ImportTable::removeLines(const QString &path)
{
    int row = topLevelItemCount();
    for (int i = topLevelItemCount() - 1; i >= 0; --i) {
        if (topLevelItem(i)->data(File, OriginalRole).toString() != path)
            continue;
        delete takeTopLevelItem(i);
        row = i;
    }
    return row;
}

QTreeWidgetItem *ImportTable::addLine(int row, const QString &path, const ImportOutcome &outcome)
{
    auto *item = new QTreeWidgetItem;
    item->setText(File, QFileInfo(path).fileName());
    item->setToolTip(File, plainToolTip(path));
    item->setData(File, OriginalRole, path);
    item->setData(File, TableRole, outcome.isTable);
    if (outcome.reader != nullptr)
        item->setText(Kind, QString::fromLatin1(outcome.reader->name));
    for (const int column : {Duration, Rate, Laps})
        item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    insertTopLevelItem(row, item);
    return item;
}

void ImportTable::describe(QTreeWidgetItem &item, const ImportedSession &session,
                           const ImportOutcome &outcome, const MapLibrary &maps) const
{
    const QLocale locale;
    const Expected expected = expect(session.path, maps);
    item.setData(File, SessionRole, session.path);
    item.setCheckState(File, Qt::Checked);
    item.setText(Date, locale.toString(session.begin, QLocale::ShortFormat));
    item.setText(Circuit, expected.hasMap ? expected.circuit : outcome.facts.circuit);
    item.setText(Duration, durationText(session.seconds));
    item.setText(Rate, tr("%1 Hz").arg(
                           locale.toString(measuredRate(outcome.facts, session.report), 'f', 0)));
    item.setText(Laps, expected.hasMap ? locale.toString(expected.laps) : QStringLiteral("-"));
    QStringList remarks = ridesOddities(outcome.facts, session.report);
    if (!expected.hasMap)
        remarks.append(tr("no map of this circuit"));
    item.setText(Remarks, remarks.join(QStringLiteral("; ")));
    item.setToolTip(Remarks, plainToolTip(remarks.join(u'\n')));
}

void ImportTable::showOutcome(const QString &path, const ImportOutcome &outcome,
                              const MapLibrary &maps)
{
    int row = removeLines(path);
    QTreeWidgetItem *first = nullptr;
    for (const ImportedSession &session : outcome.sessions) {
        QTreeWidgetItem *item = addLine(row++, path, outcome);
        describe(*item, session, outcome, maps);
        first = first != nullptr ? first : item;
    }
    if (outcome.sessions.empty()) {
        first = addLine(row, path, outcome);
        QString reason = outcome.error;
        if (!outcome.presentAs.isEmpty())
            reason = tr("was imported before, as \"%1\"")
                         .arg(QFileInfo(outcome.presentAs).completeBaseName());
        else if (outcome.isTable)
            reason = tr("%1; say what its columns are").arg(reason);
        first->setText(Remarks, reason);
        first->setToolTip(Remarks, plainToolTip(reason));
        first->setIcon(File, style()->standardIcon(QStyle::SP_MessageBoxWarning));
    }
    if (currentItem() == nullptr || (outcome.isTable && outcome.sessions.empty()))
        setCurrentItem(first);
    for (int column = 0; column < Remarks; ++column)
        resizeColumnToContents(column);
    setColumnWidth(Remarks, std::max(sizeHintForColumn(Remarks),
                                     RemarksWidth * fontMetrics().averageCharWidth()));
}

QStringList ImportTable::chosen() const
{
    QStringList paths;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const QTreeWidgetItem *item = topLevelItem(i);
        const QString path = item->data(File, SessionRole).toString();
        if (!path.isEmpty() && item->checkState(File) == Qt::Checked)
            paths.append(path);
    }
    return paths;
}

QString ImportTable::currentTable() const
{
    const QTreeWidgetItem *item = currentItem();
    return item != nullptr && item->data(File, TableRole).toBool()
               ? item->data(File, OriginalRole).toString()
               : QString();
}

} // namespace zuno
