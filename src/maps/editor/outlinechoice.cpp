// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/editor/outlinechoice.h>

#include <QComboBox>

#include <base/laptimes.h>
#include <maps/editor/mapedit.h>
#include <maps/editor/metrestext.h>

namespace zuno {

OutlineChoice::OutlineChoice(QComboBox &box, MapEdit &edit, const Points &samples)
    : m_box(box)
    , m_edit(edit)
    , m_samples(samples)
{
}

void OutlineChoice::offerLaps()
{
    m_proposal = m_samples.empty() ? MapProposal() : proposeMap(m_samples);
    m_entries = {{&m_edit.path(), 0}};
    m_before = m_edit.draft().outline;
    m_box.clear();
    m_box.addItem(tr("As it is"));
    // Without numbers: the laps of the table are counted from the line, which may be elsewhere.
    for (const FoundLap &lap : m_proposal.laps) {
        const QString text = timeText(qRound64(lap.time)) + u", " + metresText(lap.length);
        m_box.addItem(text);
    }
    m_box.setEnabled(m_box.count() > 1);
}

void OutlineChoice::choose(int index)
{
    if (index <= 0) {
        m_edit.setOutline(m_before);
    } else {
        const FoundLap &lap = m_proposal.laps[static_cast<std::size_t>(index - 1)];
        m_edit.setOutline(outlineOf(m_samples, lap, m_proposal.draft.start));
    }
    m_entries.insert(&m_edit.path(), index);
}

void OutlineChoice::show()
{
    m_box.setCurrentIndex(m_entries.value(&m_edit.path(), 0));
}

} // namespace zuno
