// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QDialog>
#include <QLabel>
#include <QList>
#include <QPointer>
#include <QString>

#include <track/map.h>

class QStaticText;

namespace zuno {

class Session;

namespace Ui {
class MapsWidget;
}

/// A plain text that breaks inside a word where it has to: a session's file name may be longer
/// than any line and hold no blank.
class WrappedLabel final : public QLabel
{
public:
    using QLabel::QLabel;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QStaticText wrapped(int width) const;
};

/// The rider's choice of a map for the displayed session.
///
/// The dialog changes neither session nor maps: it emits what is wished, and shows the session's
/// map anew when the session says that it has another.
class MapsWidget final : public QDialog
{
    Q_OBJECT

public:
    /// @p session may be none.
    MapsWidget(const QList<const Map *> &maps, Session *session, QWidget *parent = nullptr);
    ~MapsWidget() override;

    /// Shows other maps and another session; for whoever replaces them while the dialog is open.
    void setMaps(const QList<const Map *> &maps, Session *session);

Q_SIGNALS:
    /// The second argument says how the map was found; 1 stands for the rider's own choice.
    void mapChanged(const QList<const zuno::Map *> &maps, int mode);
    void newMap();
    void autoFindMap();
    void autoDetectMap();
    void reloadMaps();
    /// What is wished for the map of that name.
    void editMap(const QString &name);
    void renameMap(const QString &name);
    void deleteMap(const QString &name);

private:
    void connectMapButtons();
    void enableMapButtons();
    void showSession();
    void selectSessionMap();
    void chooseMap(const QString &name);

    std::unique_ptr<Ui::MapsWidget> m_ui;
    QList<const Map *> m_maps;
    QPointer<Session> m_session;
};

} // namespace zuno
