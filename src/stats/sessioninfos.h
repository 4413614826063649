// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QHash>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <session/recording/sessionmerge.h>
#include <stats/storableedit.h>

namespace zuno {

class InformationNotice;
class InformationWriter;
class Session;

namespace Ui {
class SessionInfos;
}

/// The page on which the rider describes the displayed session. What is typed goes into the
/// session at once, and into its file when the field is left or two seconds later; showing a
/// session changes nothing.
class SessionInfos final : public QWidget
{
    Q_OBJECT

public:
    /// @p language is the rider's, for the link to the maker's pages.
    SessionInfos(InformationWriter &writer, const QString &language, QWidget *parent = nullptr);
    ~SessionInfos() override;

    /// Fills the page from @p session; nullptr empties and disables it. What the rider is typing
    /// for that very session stays.
    void showSession(Session *session);
    /// Copies the page into the session and writes the session's file.
    void save();
    /// Saves when the page is left: another tab has become current, with that @p index.
    void onTabChanged(int index);
    /// Writes what was typed and waits to be written, the line included that is being typed.
    void commit();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The rider has described the session anew, whether its file could be written or not.
    void saved();

private:
    void connectEdits();
    void onNotesChanged();
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
    void showUnit();
    void fillLabels();
    void storeEvent();
    void storeTexts();
    [[nodiscard]] bool store();
    [[nodiscard]] QHash<const QWidget *, QString> texts() const;
    [[nodiscard]] bool isTyped(const QWidget *edit) const;

    std::unique_ptr<Ui::SessionInfos> m_ui;
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
