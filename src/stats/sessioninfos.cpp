// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <stats/sessioninfos.h>

#include <array>

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QTabWidget>
#include <QTextEdit>

#include <library/informationwriter.h>
#include <session/idealtimetext.h>
#include <session/session.h>
#include <track/map.h>

namespace zuno {

namespace {

// The tab that the page is; leaving it saves.
constexpr int InfosTab = 1;
// Long enough to be read after the eyes have left the keyboard.
constexpr int HintTime = 10000;

QString withoutOuterBlanks(QString text)
{
    while (text.startsWith(u' '))
        text.remove(0, 1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

QString textOf(const QLineEdit *edit)
{
    return edit->text();
}

QString textOf(const QComboBox *edit)
{
    return edit->currentText();
}

QString textOf(const QTextEdit *edit)
{
    return edit->toPlainText();
}

void setTextOf(QLineEdit *edit, const QString &text)
{
    edit->setText(text);
}

// The keys that choose another entry start from the one shown.
void setTextOf(QComboBox *edit, const QString &text)
{
    edit->setCurrentIndex(edit->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    edit->setEditText(text);
}

void setTextOf(QTextEdit *edit, const QString &text)
{
    edit->setPlainText(text);
}

/// What the page shows without a session.
SessionInformation nothing()
{
    SessionInformation information;
    information.condition.set({});
    information.temperature = 0;
    return information;
}

QString dateText(const Recording &recording)
{
    const bool hasBoth = !recording.date.isEmpty() && !recording.time.isEmpty();
    return recording.date + (hasBoth ? QStringLiteral(" - ") : QString()) + recording.time;
}

} // namespace

SessionInfos::SessionInfos(const Form &form, InformationWriter &writer, QObject *parent)
    : QObject(parent)
    , m_form(form)
    , m_writer(writer)
{
    m_hintTime.setSingleShot(true);
    m_hintTime.setInterval(HintTime);
    connect(&m_hintTime, &QTimer::timeout, m_form.hint, &QLabel::clear);
    connectEdits();
    showSession(nullptr);
}

void SessionInfos::connectEdits()
{
    for (QLineEdit *edit : {m_form.event, m_form.driver, m_form.vehicle, m_form.tyres}) {
        connect(edit, &QLineEdit::editingFinished, this, &SessionInfos::save);
        m_storable.watch(edit);
    }
    m_storable.watch(m_form.condition->lineEdit());
    // It would put "Dry" for a "D", and into the file with it.
    m_form.condition->setCompleter(nullptr);
    connect(m_form.condition, &QComboBox::editTextChanged, this, &SessionInfos::save);
    connect(m_form.temperature, &QSpinBox::editingFinished, this, &SessionInfos::save);
    connect(m_form.temperature, &QSpinBox::valueChanged, m_form.degrees, [this](int degrees) {
        m_form.degrees->setVisible(degrees != SessionInformation::UnknownTemperature);
    });
    connect(m_form.notes, &QTextEdit::textChanged, this, &SessionInfos::onNotesChanged);
    connect(m_form.tabs, &QTabWidget::currentChanged, this, &SessionInfos::onTabChanged);
    connect(&m_storable, &StorableEdits::replaced, this, &SessionInfos::showHint);
    const std::array<QWidget *, 2> turned {m_form.condition, m_form.temperature};
    for (QWidget *edit : turned) {
        edit->setFocusPolicy(Qt::StrongFocus);
        edit->installEventFilter(this);
    }
}

void SessionInfos::showSession(Session *session)
{
    const bool isOther = session == nullptr || session != m_session;
    m_session = session;
    if (isOther) {
        m_filled = texts();
        showHint({});
    }
    fillEdits();
    fillLabels();
}

void SessionInfos::fillEdits()
{
    // The whole filling is guarded: the combo box, too, tells when its text is set.
    const QScopedValueRollback filling(m_isFilling, true);
    const SessionInformation information = m_session ? m_session->information() : nothing();
    fill(m_form.event, information.event.text());
    fill(m_form.driver, information.driver.text());
    fill(m_form.vehicle, information.vehicle.text());
    fill(m_form.tyres, information.tyres.text());
    fill(m_form.condition, information.condition.text());
    fill(m_form.notes, information.notes.text());
    fillTemperature(information.temperature);
    showCount();
}

template<typename Edit>
void SessionInfos::fill(Edit *edit, const QString &text)
{
    edit->setEnabled(!m_session.isNull());
    if (isTyped(edit))
        return;
    // Setting the same text would take away the cursor's place and what can be undone.
    if (textOf(edit) != text || !edit->hasFocus())
        setTextOf(edit, text);
    m_filled[edit] = textOf(edit);
}

void SessionInfos::fillTemperature(int degrees)
{
    m_form.temperature->setEnabled(!m_session.isNull());
    if (isTyped(m_form.temperature))
        return;
    m_form.temperature->setValue(degrees);
    m_filled[m_form.temperature] = m_form.temperature->text();
}

QHash<const QWidget *, QString> SessionInfos::texts() const
{
    return {{m_form.event, textOf(m_form.event)},
            {m_form.driver, textOf(m_form.driver)},
            {m_form.vehicle, textOf(m_form.vehicle)},
            {m_form.tyres, textOf(m_form.tyres)},
            {m_form.condition, textOf(m_form.condition)},
            {m_form.notes, textOf(m_form.notes)},
            {m_form.temperature, m_form.temperature->text()}};
}

bool SessionInfos::isTyped(const QWidget *edit) const
{
    return texts().value(edit) != m_filled.value(edit);
}

void SessionInfos::fillLabels()
{
    const Session *session = m_session;
    const Map *map = session != nullptr ? session->map() : nullptr;
    m_form.date->setText(session != nullptr ? dateText(session->recording()) : QString());
    m_form.circuit->setText(map != nullptr       ? map->displayName()
                            : session != nullptr ? session->circuitName()
                                                 : QString());
    m_form.bestLap->setText(session != nullptr ? session->bestLapText() : QString());
    m_form.idealTime->setText(session != nullptr ? session->idealTimeText() : QString());
    m_form.idealTime->setToolTip(session != nullptr ? missingSectionText(*session) : QString());
}

void SessionInfos::showHint(const QString &hint)
{
    m_form.hint->setText(hint);
    m_form.hint->setToolTip(hint);
    m_hintTime.start();
}

void SessionInfos::onNotesChanged()
{
    // What was typed is told again when it is made storable.
    if (!m_isFilling && m_storable.makeStorable(m_form.notes))
        return;
    showCount();
    save();
}

void SessionInfos::showCount()
{
    //: Below the notes: how many characters they have, and may have.
    const QString count = tr("%1 / %2").arg(textOf(m_form.notes).size()).arg(MaximumTextLength);
    m_form.notesCount->setText(m_session.isNull() ? QString() : count);
}

void SessionInfos::onTabChanged(int index)
{
    if (index != InfosTab)
        save();
}

void SessionInfos::save()
{
    if (m_session.isNull() || m_isFilling)
        return;
    storeEvent();
    storeTexts();
    m_session->setTemperature(m_form.temperature->value());
    // A text that is changed back is typed again.
    m_filled = texts();
    m_writer.write(*m_session, InformationWriter::Cause::Edited);
    Q_EMIT saved();
}

// The only text that is stored without its outer blanks, even when the file has had them before.
void SessionInfos::storeEvent()
{
    const QString event = withoutOuterBlanks(textOf(m_form.event));
    const QString storable = storableText(event);
    // A text of the file that cannot be stored again stays until the rider changes it.
    if (isTyped(m_form.event) || storable == event)
        m_session->setEventName(storable);
    if (textOf(m_form.event) != m_session->eventName())
        m_form.event->setText(m_session->eventName());
}

// A text that the rider has not touched stays as the file has it, letters and line ends included.
void SessionInfos::storeTexts()
{
    Session &session = *m_session;
    if (isTyped(m_form.driver))
        session.setDriver(storableText(textOf(m_form.driver)));
    if (isTyped(m_form.vehicle))
        session.setVehicle(storableText(textOf(m_form.vehicle)));
    if (isTyped(m_form.condition))
        session.setCondition(storableText(textOf(m_form.condition)));
    // Emptied tyres or notes keep what is stored.
    if (isTyped(m_form.tyres) && !textOf(m_form.tyres).isEmpty())
        session.setTyres(storableText(textOf(m_form.tyres)));
    if (isTyped(m_form.notes) && !textOf(m_form.notes).isEmpty())
        session.setNotes(storableText(textOf(m_form.notes)));
}

// Whoever only scrolls by must not change the file.
bool SessionInfos::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}

} // namespace zuno
