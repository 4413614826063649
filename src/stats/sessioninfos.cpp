// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <stats/sessioninfos.h>

#include "ui_sessioninfos.h"

#include <array>

#include <QBoxLayout>
#include <QEvent>
#include <QScopedValueRollback>

#include <library/informationwriter.h>
#include <session/idealtimetext.h>
#include <session/session.h>
#include <stats/informationnotice.h>
#include <theme/shownunits.h>
#include <track/map.h>
#include <widgets/makerlinks.h>
#include <widgets/plaintexts.h>

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

SessionInfos::SessionInfos(InformationWriter &writer, const QString &language, QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::SessionInfos>())
    , m_writer(writer)
    , m_notice(new InformationNotice(this))
{
    m_ui->setupUi(this);
    m_ui->webSite->setText(webSiteLink(language));
    m_ui->mail->setText(mailLink());
    if (auto *column = qobject_cast<QBoxLayout *>(layout()))
        column->insertWidget(0, m_notice);
    connect(m_notice, &InformationNotice::putBackRequested, this, &SessionInfos::putBack);
    connect(m_notice, &InformationNotice::dismissed, this, [this] {
        m_offers.remove(m_session != nullptr ? m_session->filePath() : QString());
        showNotice();
    });
    connect(&m_writer, &InformationWriter::replaced, this, &SessionInfos::onReplaced);
    m_hintTime.setSingleShot(true);
    m_hintTime.setInterval(HintTime);
    connect(&m_hintTime, &QTimer::timeout, m_ui->lb_hint, &QLabel::clear);
    connectEdits();
    showSession(nullptr);
}

// A field that loses the keys saves, so that happens while everything still stands.
SessionInfos::~SessionInfos()
{
    hide();
}

void SessionInfos::connectEdits()
{
    for (QLineEdit *edit : {m_ui->le_event, m_ui->le_driver, m_ui->le_vehicle, m_ui->le_tires}) {
        connect(edit, &QLineEdit::editingFinished, this, &SessionInfos::save);
        m_storable.watch(edit);
        // After it was made storable.
        connect(edit, &QLineEdit::textEdited, this, &SessionInfos::onTyped);
    }
    m_storable.watch(m_ui->cb_weather->lineEdit());
    connect(m_ui->cb_weather->lineEdit(), &QLineEdit::editingFinished, this, &SessionInfos::save);
    // It would put "Dry" for a "D", and into the file with it.
    m_ui->cb_weather->setCompleter(nullptr);
    connect(m_ui->cb_weather, &QComboBox::editTextChanged, this, &SessionInfos::onTyped);
    connect(m_ui->sb_trackTemp, &QSpinBox::editingFinished, this, &SessionInfos::save);
    connect(m_ui->sb_trackTemp, &QSpinBox::valueChanged, this, &SessionInfos::onTyped);
    connect(m_ui->sb_trackTemp, &QSpinBox::valueChanged, m_ui->l_degrees, [this](int degrees) {
        m_ui->l_degrees->setVisible(degrees != SessionInformation::UnknownTemperature);
    });
    connect(m_ui->te_infos, &QTextEdit::textChanged, this, &SessionInfos::onNotesChanged);
    connect(&ShownUnits::instance(), &ShownUnits::changed, this, &SessionInfos::showUnit);
    showUnit();
    connect(&m_storable, &StorableEdits::replaced, this, &SessionInfos::showHint);
    m_ui->te_infos->installEventFilter(this);
    const std::array<QWidget *, 2> turned {m_ui->cb_weather, m_ui->sb_trackTemp};
    for (QWidget *edit : turned) {
        edit->setFocusPolicy(Qt::StrongFocus);
        edit->installEventFilter(this);
    }
}

void SessionInfos::showSession(Session *session)
{
    const bool isOther = session == nullptr || session != m_session;
    if (isOther)
        commit();
    m_session = session;
    if (isOther) {
        m_filled = texts();
        showHint({});
    }
    fillEdits();
    fillLabels();
    showNotice();
}

void SessionInfos::fillEdits()
{
    // The whole filling is guarded: the combo box, too, tells when its text is set.
    const QScopedValueRollback filling(m_isFilling, true);
    const SessionInformation information = m_session ? m_session->information() : nothing();
    fill(m_ui->le_event, information.event.text());
    fill(m_ui->le_driver, information.driver.text());
    fill(m_ui->le_vehicle, information.vehicle.text());
    fill(m_ui->le_tires, information.tyres.text());
    fill(m_ui->cb_weather, information.condition.text());
    fill(m_ui->te_infos, information.notes.text());
    fillTemperature(information.temperature);
    showCount();
}

template<typename Edit>
void SessionInfos::fill(Edit *edit, const QString &text)
{
    edit->setEnabled(canStore());
    // The event is stored without the blank that was just typed.
    const bool isBeingTyped = edit->hasFocus() && withoutOuterBlanks(textOf(edit)) == text;
    if (isTyped(edit) || isBeingTyped)
        return;
    // Setting the same text would take away the cursor's place and what can be undone.
    if (textOf(edit) != text || !edit->hasFocus())
        setTextOf(edit, text);
    m_filled[edit] = textOf(edit);
}

void SessionInfos::fillTemperature(int degrees)
{
    m_ui->sb_trackTemp->setEnabled(canStore());
    if (isTyped(m_ui->sb_trackTemp))
        return;
    m_ui->sb_trackTemp->setValue(degrees);
    m_filled[m_ui->sb_trackTemp] = m_ui->sb_trackTemp->text();
}

void SessionInfos::showUnit()
{
    const bool isCelsius = units().temperatureUnit == Units::Temperature::Celsius;
    m_ui->l_degrees->setText(isCelsius ? tr("degres") : units().temperatureName());
    // The same value reads otherwise now, and nobody has typed it.
    m_filled[m_ui->sb_trackTemp] = m_ui->sb_trackTemp->text();
}

QHash<const QWidget *, QString> SessionInfos::texts() const
{
    return {
        {m_ui->le_event, textOf(m_ui->le_event)},        {m_ui->le_driver, textOf(m_ui->le_driver)},
        {m_ui->le_vehicle, textOf(m_ui->le_vehicle)},    {m_ui->le_tires, textOf(m_ui->le_tires)},
        {m_ui->cb_weather, textOf(m_ui->cb_weather)},    {m_ui->te_infos, textOf(m_ui->te_infos)},
        {m_ui->sb_trackTemp, m_ui->sb_trackTemp->text()}};
}

bool SessionInfos::isTyped(const QWidget *edit) const
{
    return texts().value(edit) != m_filled.value(edit);
}

void SessionInfos::fillLabels()
{
    const Session *session = m_session;
    const Map *map = session != nullptr ? session->map() : nullptr;
    m_ui->lb_date->setText(session != nullptr ? dateText(session->recording()) : QString());
    m_ui->lb_circuit->setText(map != nullptr       ? map->displayName()
                              : session != nullptr ? session->circuitName()
                                                   : QString());
    m_ui->lb_bestLap->setText(session != nullptr ? session->bestLapText() : QString());
    m_ui->lb_idealTime_2->setText(session != nullptr ? session->idealTimeText() : QString());
    m_ui->lb_idealTime_2->setToolTip(session != nullptr ? plainToolTip(missingSectionText(*session))
                                                        : QString());
}

void SessionInfos::showHint(const QString &hint)
{
    m_ui->lb_hint->setText(hint);
    m_ui->lb_hint->setToolTip(plainToolTip(hint));
    m_hintTime.start();
}

void SessionInfos::onNotesChanged()
{
    // What was typed is told again when it is made storable.
    if (!m_isFilling && m_storable.makeStorable(m_ui->te_infos))
        return;
    showCount();
    onTyped();
}

void SessionInfos::showCount()
{
    //: Below the notes: how many characters they have, and may have.
    const QString count = tr("%1 / %2").arg(textOf(m_ui->te_infos).size()).arg(MaximumTextLength);
    m_ui->lb_notesCount->setText(m_session.isNull() ? QString() : count);
}

void SessionInfos::onTabChanged(int index)
{
    if (index != InfosTab)
        save();
}

bool SessionInfos::canStore() const
{
    return !m_session.isNull() && m_session->recording().isRewritable();
}

void SessionInfos::onTyped()
{
    if (m_isFilling || !canStore() || !store())
        return;
    m_writer.writeSoon(*m_session);
    Q_EMIT saved();
}

void SessionInfos::save()
{
    if (m_isFilling || !canStore())
        return;
    const SessionInformation before = m_session->information();
    storeEvent();
    const bool isEdited = store() || !(m_session->information() == before);
    m_writer.write(*m_session, isEdited || m_session->isUnsaved()
                                   ? InformationWriter::Cause::Edited
                                   : InformationWriter::Cause::Shown);
    Q_EMIT saved();
}

void SessionInfos::commit()
{
    onTyped();
    m_writer.flush();
}

// True when something was typed that the session does not know yet.
bool SessionInfos::store()
{
    const SessionInformation before = m_session->information();
    storeTexts();
    m_session->setTemperature(m_ui->sb_trackTemp->value());
    // A text that is changed back is typed again.
    m_filled = texts();
    return !(m_session->information() == before);
}

// The only text that is stored without its outer blanks, even when the file has had them before.
void SessionInfos::storeEvent()
{
    const QString event = withoutOuterBlanks(textOf(m_ui->le_event));
    const QString storable = storableText(event);
    // A text of the file that cannot be stored again stays until the rider changes it.
    if (isTyped(m_ui->le_event) || storable == event)
        m_session->setEventName(storable);
    if (textOf(m_ui->le_event) != m_session->eventName())
        m_ui->le_event->setText(m_session->eventName());
}

// A text that the rider has not touched stays as the file has it, letters and line ends included.
void SessionInfos::storeTexts()
{
    Session &session = *m_session;
    if (isTyped(m_ui->le_driver))
        session.setDriver(storableText(textOf(m_ui->le_driver)));
    if (isTyped(m_ui->le_vehicle))
        session.setVehicle(storableText(textOf(m_ui->le_vehicle)));
    if (isTyped(m_ui->cb_weather))
        session.setCondition(storableText(textOf(m_ui->cb_weather)));
    if (isTyped(m_ui->le_event))
        session.setEventName(storableText(withoutOuterBlanks(textOf(m_ui->le_event))));
    if (isTyped(m_ui->le_tires))
        session.setTyres(storableText(textOf(m_ui->le_tires)));
    if (isTyped(m_ui->te_infos))
        session.setNotes(storableText(textOf(m_ui->te_infos)));
}

void SessionInfos::onReplaced(Session *session, const ReplacedTyping &typing)
{
    m_offers.insert(session->filePath(), typing);
    if (session == m_session)
        showNotice();
}

void SessionInfos::putBack()
{
    if (!canStore())
        return;
    SessionInformation information = m_session->information();
    m_offers.take(m_session->filePath()).putBack(information);
    m_session->setInformation(information);
    m_filled = texts();
    fillEdits();
    showNotice();
    m_writer.write(*m_session, InformationWriter::Cause::Edited);
    Q_EMIT saved();
}

void SessionInfos::showNotice()
{
    const ReplacedTyping offer
        = m_offers.value(m_session != nullptr ? m_session->filePath() : QString());
    if (m_session != nullptr && !canStore()) {
        m_notice->tell(m_session->recording().block == InformationBlock::OtherFormat
                           ? tr("This file has a format that this version does not know (%1). It "
                                "is shown, but nothing can be stored in it.")
                                 .arg(QString::fromLatin1(m_session->recording().version))
                           : tr("This file is damaged, or not complete yet. It is shown, but "
                                "nothing can be stored in it."));
    } else if (!offer.fields.isEmpty()) {
        QStringList texts;
        for (const TypedField field : offer.fields)
            texts.append(u'"' + textOf(field, offer.theirs) + u'"');
        m_notice->offer(tr("Another program typed here at the same time, and your text has taken "
                           "its place: %1")
                            .arg(texts.join(QStringLiteral(", "))));
    } else {
        m_notice->tell({});
    }
}

// Whoever only scrolls by must not change the file.
bool SessionInfos::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut && watched == m_ui->te_infos)
        save();
    if (watched == m_ui->te_infos)
        return QObject::eventFilter(watched, event);
    if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}

} // namespace zuno
