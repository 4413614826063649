// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <stats/sessioninfos.h>

#include <array>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QTabWidget>
#include <QTextEdit>

#include <app/informationwriter.h>
#include <maps/map.h>
#include <session/session.h>

namespace zuno {

namespace {

// The tab that the page is; leaving it saves.
constexpr int InfosTab = 1;

QString withoutOuterBlanks(QString text)
{
    while (text.startsWith(u' '))
        text.remove(0, 1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

} // namespace

SessionInfos::SessionInfos(const Form &form, InformationWriter &writer, QObject *parent)
    : QObject(parent)
    , m_form(form)
    , m_writer(writer)
{
    showSession(nullptr);
    for (QLineEdit *edit : {m_form.event, m_form.driver, m_form.vehicle, m_form.tyres})
        connect(edit, &QLineEdit::editingFinished, this, &SessionInfos::save);
    connect(m_form.condition, &QComboBox::editTextChanged, this, &SessionInfos::save);
    connect(m_form.temperature, &QSpinBox::editingFinished, this, &SessionInfos::save);
    connect(m_form.notes, &QTextEdit::textChanged, this, &SessionInfos::save);
    connect(m_form.tabs, &QTabWidget::currentChanged, this, [this](int index) {
        if (index != InfosTab)
            save();
    });
}

void SessionInfos::showSession(Session *session)
{
    m_session = session;
    fillEdits();
    fillLabels();
    setEnabled(session != nullptr);
}

void SessionInfos::fillEdits()
{
    // The whole filling is guarded: the combo box, too, tells when its text is set.
    const QScopedValueRollback filling(m_isFilling, true);
    const bool has = !m_session.isNull();
    m_form.event->setText(has ? m_session->eventName() : QString());
    m_form.driver->setText(has ? m_session->driver() : QString());
    m_form.vehicle->setText(has ? m_session->vehicle() : QString());
    m_form.tyres->setText(has ? m_session->tyres() : QString());
    m_form.condition->setCurrentText(has ? m_session->condition() : QString());
    m_form.temperature->setValue(has ? m_session->temperature() : 0);
    m_form.notes->setPlainText(has ? m_session->notes() : QString());
    noteTexts();
}

void SessionInfos::noteTexts()
{
    m_filled = {{m_form.event, m_form.event->text()},
                {m_form.driver, m_form.driver->text()},
                {m_form.vehicle, m_form.vehicle->text()},
                {m_form.tyres, m_form.tyres->text()},
                {m_form.condition, m_form.condition->currentText()},
                {m_form.notes, m_form.notes->toPlainText()}};
}

void SessionInfos::fillLabels()
{
    const Session *session = m_session;
    const Map *map = session != nullptr ? session->map() : nullptr;
    m_form.date->setText(
        session != nullptr ? QString(session->recording().date + u" - " + session->recording().time)
                           : QString());
    m_form.circuit->setText(map != nullptr       ? map->displayName()
                            : session != nullptr ? session->circuitName()
                                                 : QString());
    m_form.bestLap->setText(session != nullptr ? session->bestLapText() : QString());
    m_form.idealTime->setText(session != nullptr ? session->idealTimeText() : QString());
}

void SessionInfos::setEnabled(bool enabled)
{
    const std::array<QWidget *, 7> edits {m_form.event, m_form.driver,    m_form.vehicle,
                                          m_form.tyres, m_form.condition, m_form.temperature,
                                          m_form.notes};
    for (QWidget *edit : edits)
        edit->setEnabled(enabled);
}

// The file counts characters but stores bytes, so only texts that survive that go in; a text that
// the rider has not touched stays as the file has it.
std::optional<QString> SessionInfos::typed(const QWidget *edit, const QString &text) const
{
    return text == m_filled.value(edit) ? std::nullopt : std::optional(text);
}

void SessionInfos::save()
{
    if (m_session.isNull() || m_isFilling)
        return;
    Session &session = *m_session;
    if (const auto text = typed(m_form.event, m_form.event->text()))
        session.setEventName(storableText(withoutOuterBlanks(*text)));
    if (const auto text = typed(m_form.driver, m_form.driver->text()))
        session.setDriver(storableText(*text));
    if (const auto text = typed(m_form.vehicle, m_form.vehicle->text()))
        session.setVehicle(storableText(*text));
    if (const auto text = typed(m_form.condition, m_form.condition->currentText()))
        session.setCondition(storableText(*text));
    // Emptied tyres or notes keep what is stored.
    if (const auto text = typed(m_form.tyres, m_form.tyres->text()); text && !text->isEmpty())
        session.setTyres(storableText(*text));
    if (const auto text = typed(m_form.notes, m_form.notes->toPlainText());
        text && !text->isEmpty())
        session.setNotes(storableText(*text));
    session.setTemperature(m_form.temperature->value());
    // A text that is changed back is typed again.
    noteTexts();
    m_writer.write(*m_session);
}

} // namespace zuno
