// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>

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
        QTextEdit *notes;
        QLabel *date;
        QLabel *circuit;
        QLabel *bestLap;
        QLabel *idealTime;
        QTabWidget *tabs;
    };

    SessionInfos(const Form &form, InformationWriter &writer, QObject *parent = nullptr);

    /// Fills the page from @p session; nullptr empties and disables it.
    void showSession(Session *session);
    /// Copies the page into the session and writes the session's file.
    void save();

private:
    void fillEdits();
    void fillLabels();
    /// Remembers the texts as they stand, which are those of the session.
    void noteTexts();
    void setEnabled(bool enabled);
    /// The text of an edit when it is another than the page was filled with.
    [[nodiscard]] std::optional<QString> typed(const QWidget *edit, const QString &text) const;

    Form m_form;
    InformationWriter &m_writer;
    QPointer<Session> m_session;
    QHash<const QWidget *, QString> m_filled;
    bool m_isFilling = false;
};

} // namespace zuno
