// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <stats/storableedit.h>

class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QTabWidget;
class QTextEdit;

namespace zuno {

class InformationWriter;
class Session;

/// The page on which the rider describes the displayed session. What is typed goes into the
/// session and its file at once; showing a session changes nothing.
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
    };

    SessionInfos(const Form &form, InformationWriter &writer, QObject *parent = nullptr);

    /// Fills the page from @p session; nullptr empties and disables it. What the rider is typing
    /// for that very session stays.
    void showSession(Session *session);
    /// Copies the page into the session and writes the session's file. Emptied tyres and notes
    /// leave what the session has.
    void save();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The rider has described the session anew, whether its file could be written or not.
    void saved();

private:
    void connectEdits();
    void onNotesChanged();
    void onTabChanged(int index);
    void showHint(const QString &hint);
    void showCount();
    void fillEdits();
    template<typename Edit>
    void fill(Edit *edit, const QString &text);
    void fillTemperature(int degrees);
    void fillLabels();
    void storeEvent();
    void storeTexts();
    [[nodiscard]] QHash<const QWidget *, QString> texts() const;
    [[nodiscard]] bool isTyped(const QWidget *edit) const;

    Form m_form;
    InformationWriter &m_writer;
    StorableEdits m_storable;
    QTimer m_hintTime;
    QPointer<Session> m_session;
    // What the edits showed when the page was filled or last saved.
    QHash<const QWidget *, QString> m_filled;
    bool m_isFilling = false;
};

} // namespace zuno
