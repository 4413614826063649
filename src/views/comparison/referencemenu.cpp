// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/comparison/referencemenu.h>

#include <QActionGroup>
#include <QFileInfo>

#include <base/laptimes.h>
#include <views/comparison/comparison.h>
#include <views/laps/lapselection.h>

namespace zuno {

ReferenceMenu::ReferenceMenu(Comparison &comparison, QWidget *parent)
    : QMenu(parent)
    , m_comparison(comparison)
{
    connect(this, &QMenu::aboutToShow, this, &ReferenceMenu::fill);
}

QAction *ReferenceMenu::add(QActionGroup &group, const QString &text, bool isChosen,
                            const std::function<void()> &choose)
{
    auto *action = new QAction(text, &group);
    action->setCheckable(true);
    action->setChecked(isChosen);
    connect(action, &QAction::triggered, this, choose);
    addAction(action);
    return action;
}

void ReferenceMenu::fill()
{
    clear();
    for (QActionGroup *old : findChildren<QActionGroup *>())
        old->deleteLater();
    auto *group = new QActionGroup(this);
    addBest(*group);
    addLaps(*group);
    addSeparator();
    QAction *none = add(*group, tr("Clear: no comparison"), m_comparison.isOff(),
                        [this] { m_comparison.clear(); });
    none->setShortcut(QKeySequence(Qt::SHIFT | Qt::Key_R));
    setEnabled(m_comparison.selection().current().map() != nullptr);
}

// The box says of whom the best lap ever is meant.
void ReferenceMenu::addBest(QActionGroup &group)
{
    const ReferenceKind kind = m_comparison.choice().kind;
    const Session *session = m_comparison.selection().session();
    const bool hasVehicle = session != nullptr && !session->vehicle().simplified().isEmpty();
    const bool isOnVehicle = kind == ReferenceKind::BestOnVehicle;
    add(group, tr("Best of session"), kind == ReferenceKind::BestOfSession,
        [this] { m_comparison.choose({ReferenceKind::BestOfSession}); });
    add(group, tr("Best ever here"), kind == ReferenceKind::BestEver || isOnVehicle,
        [this] { m_comparison.choose({ReferenceKind::BestEver}); });
    QAction *same = addAction(tr("only the same motorcycle"));
    same->setCheckable(true);
    same->setChecked(isOnVehicle);
    same->setEnabled(hasVehicle);
    connect(same, &QAction::triggered, this, [this](bool only) {
        m_comparison.choose({only ? ReferenceKind::BestOnVehicle : ReferenceKind::BestEver});
    });
}

void ReferenceMenu::addLaps(QActionGroup &group)
{
    const SessionLap lap = m_comparison.selection().current();
    const bool isThis = m_comparison.choice().kind == ReferenceKind::ChosenLap && lap
                        && lap == m_comparison.selection().reference();
    QAction *chosen = add(group,
                          lap ? tr("This lap: %1, %2").arg(lap->lapNumber()).arg(lap->timeText())
                              : tr("This lap"),
                          isThis, [this, lap] { m_comparison.chooseLap(lap); });
    chosen->setShortcut(Qt::Key_C);
    chosen->setEnabled(static_cast<bool>(lap));
    addSeparator();
    connect(addAction(tr("Lap of another file...")), &QAction::triggered, this,
            &ReferenceMenu::otherFileWanted);
    addRecent(group);
}

void ReferenceMenu::addRecent(QActionGroup &group)
{
    const QList<ReferenceChoice> recent = m_comparison.recent();
    if (recent.isEmpty()) {
        addAction(tr("Recent: none on this circuit"))->setEnabled(false);
        return;
    }
    for (const ReferenceChoice &choice : recent) {
        // Ampersands of file names are no keys.
        const QString file
            = QFileInfo(choice.filePath).completeBaseName().replace(u'&', QStringLiteral("&&"));
        add(group, tr("Lap %1 of %2").arg(QString::number(choice.lap), file),
            choice == m_comparison.choice(), [this, choice] { m_comparison.choose(choice); });
    }
}

} // namespace zuno
