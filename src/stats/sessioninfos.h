// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <session/recording/sessionmerge.h>
#include <stats/storableedit.h>

class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QTabWidget;
class QTextEdit;

namespace zuno {

class InformationNotice;
class InformationWriter;
class Session;

/// The page on which the rider describes the displayed session. What is typed goes into the
/// session at once, and into its file when the field is left or two seconds later; showing a
/// session changes nothing.
class SessionInfos : public QObject
{
    Q_OBJECT

public:
    /// The widgets of the form that the page consists of.
    struct Form
    {
        QLineEdit *event;
        QLineEdit *driver;
        QLineEdit *vehicle;
        QLineEdit *tyres;
        QComboBox *condition;
        QSpinBox *temperature;
        QLabel *degrees;
        QTextEdit *notes;
        QLabel *notesCount;
        QLabel *hint;
        QLabel *date;
        QLabel *circuit;
        QLabel *bestLap;
        QLabel *idealTime;
        QTabWidget *tabs;
        /// What all of them stand on; has a box layout.
        QWidget *page;
    };

    SessionInfos(const Form &form, InformationWriter &writer, QObject *parent = nullptr);

    /// Fills the page from @p session; nullptr empties and disables it. What the rider is typing
    /// for that very session stays.
    void showSession(Session *session);
    /// Copies the page into the session and writes the session's file.
    void save();
    /// Writes what was typed and waits to be written, the line included that is being typed.
    void commit();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The rider has described the session anew, whether its file could be written or not.
    void saved();

private:
    void connectEdits();
    void onNotesChanged();
    void onTabChanged(int index);
    void onTyped();
    void onReplaced(Session *session, const ReplacedTyping &typing);
    void putBack();
    void showNotice();
    [[nodiscard]] bool canStore() const;
    void showHint(const QString &hint);
    void showCount();
    void fillEdits();
    template<typename Edit>
    void fill(Edit *edit, const QString &text);
    void fillTemperature(int degrees);
    void fillLabels();
    void storeEvent();
    void storeTexts();
    [[nodiscard]] bool store();
    [[nodiscard]] QHash<const QWidget *, QString> texts() const;
    [[nodiscard]] bool isTyped(const QWidget *edit) const;

    Form m_form;
    InformationWriter &m_writer;
    StorableEdits m_storable;
    QTimer m_hintTime;
    QPointer<Session> m_session;
    InformationNotice *m_notice;
    // What other programs had typed into the sessions of these files, until the rider decides.
    QHash<QString, ReplacedTyping> m_offers;
    // What the edits showed when the page was filled or last saved.
    QHash<const QWidget *, QString> m_filled;
    bool m_isFilling = false;
};

} // namespace zuno
