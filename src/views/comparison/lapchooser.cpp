// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/comparison/lapchooser.h>

#include <algorithm>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <base/settings.h>
#include <track/map.h>
#include <views/comparison/comparison.h>
#include <views/laps/lapselection.h>

namespace zuno {

namespace {

constexpr int PathRole = Qt::UserRole;

} // namespace

LapChooser::LapChooser(const Comparison &comparison, QWidget *parent)
    : QDialog(parent)
    , m_comparison(comparison)
    , m_tree(new QTreeWidget(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setWindowTitle(tr("Lap of another file"));
    resize(600, 400);
    m_tree->setHeaderLabels({tr("Session"), tr("Driver"), tr("Time")});
    m_tree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_tree->header()->setStretchLastSection(false);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_tree);
    layout->addWidget(m_buttons);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_tree, &QTreeWidget::itemExpanded, this, &LapChooser::addLaps);
    connect(m_tree, &QTreeWidget::itemSelectionChanged, this, &LapChooser::showChosen);
    connect(m_tree, &QTreeWidget::itemDoubleClicked, this, [this] {
        if (chosen())
            accept();
    });
    addSessions();
    showChosen();
}

void LapChooser::addSessions()
{
    const Map *map = m_comparison.selection().current().map();
    if (map == nullptr)
        return;
    for (const Session *session : m_comparison.sources().sessions) {
        const bool isHere = session->map() != nullptr
                                ? session->map() == map
                                : session->circuitName() == map->displayName();
        if (!isHere)
            continue;
        auto *item = new QTreeWidgetItem(
            m_tree, {session->fileName(), session->driver(), session->bestLapText()});
        item->setData(0, PathRole, session->filePath());
        item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    }
}

void LapChooser::addLaps(QTreeWidgetItem *session)
{
    const QString path = session->data(0, PathRole).toString();
    if (session->childCount() > 0 || path.isEmpty())
        return;
    const ReferenceSources sources = m_comparison.sources();
    const auto known = std::ranges::find(sources.sessions, path, &Session::filePath);
    if (known == sources.sessions.end())
        return;
    const QString choice = (*known)->map() != nullptr
                               ? (*known)->map()->name()
                               : sources.settings.mapChoice((*known)->fileName());
    SessionInformation information = (*known)->information();
    information.invalidLaps = (*known)->invalidLaps();
    const std::shared_ptr<const Session> copy
        = cutCopy(path, information, choice, sources, m_comparison.selection().current().map());
    if (copy != nullptr) {
        for (const auto &lap : copy->laps()) {
            if (!lap->isComplete())
                continue;
            auto *item = new QTreeWidgetItem(
                session, {tr("Lap %1").arg(lap->lapNumber()), QString(), lap->timeText()});
            m_laps.insert(item, chosenLap(*copy, lap->lapNumber()));
        }
    }
    if (session->childCount() == 0)
        (new QTreeWidgetItem(session, {tr("No lap of this circuit")}))->setDisabled(true);
}

std::optional<ReferenceChoice> LapChooser::chosen() const
{
    const auto found = m_laps.constFind(m_tree->currentItem());
    return found != m_laps.cend() ? std::optional(*found) : std::nullopt;
}

void LapChooser::showChosen()
{
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(chosen().has_value());
}

} // namespace zuno
