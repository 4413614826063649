// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/dialog/mapswidget.h>

#include <algorithm>

#include <QAbstractItemView>
#include <QIcon>
#include <QPainter>
#include <QStaticText>
#include <QTextDocument>
#include <QTextOption>

#include <session/session.h>
#include <widgets/plaintexts.h>

#include "ui_mapswidget.h"

namespace zuno {

namespace {

constexpr int ChosenByRider = 1;

// Widths in characters.
constexpr int LabelMinimum = 20;
constexpr int LabelMaximum = 60;
constexpr int NameMinimum = 24;
constexpr int NameMaximum = 60;

} // namespace

QSize WrappedLabel::sizeHint() const
{
    const int natural = fontMetrics().horizontalAdvance(text()) + 1;
    const int width = std::min(natural, LabelMaximum * fontMetrics().horizontalAdvance(u'X'));
    return {width, heightForWidth(width)};
}

QSize WrappedLabel::minimumSizeHint() const
{
    return {LabelMinimum * fontMetrics().averageCharWidth(), fontMetrics().height()};
}

int WrappedLabel::heightForWidth(int width) const
{
    return qCeil(wrapped(width).size().height());
}

void WrappedLabel::paintEvent([[maybe_unused]] QPaintEvent *event)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawStaticText(contentsRect().topLeft(), wrapped(contentsRect().width()));
}

QStaticText WrappedLabel::wrapped(int width) const
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(layoutDirection());
    QStaticText text(this->text());
    text.setTextFormat(Qt::PlainText);
    text.setTextOption(option);
    text.setTextWidth(width);
    text.prepare({}, font());
    return text;
}

MapsWidget::MapsWidget(const QList<const Map *> &maps, Session *session, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                          | Qt::WindowCloseButtonHint)
    , m_ui(std::make_unique<Ui::MapsWidget>())
{
    m_ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":/Resources/Logos/logo.ico")));
    // Both ends of a name tell maps apart: the folder and the circuit.
    m_ui->cb_otherMap->view()->setTextElideMode(Qt::ElideMiddle);
    // A name that is too long for the box is whole in its tool tip.
    connect(m_ui->cb_otherMap, &QComboBox::currentTextChanged, this,
            [this](const QString &name) { m_ui->cb_otherMap->setToolTip(plainToolTip(name)); });
    connect(m_ui->cb_otherMap, &QComboBox::textActivated, this, &MapsWidget::chooseMap);
    connect(m_ui->pb_autoDetectMap, &QPushButton::clicked, this, &MapsWidget::autoFindMap);
    connect(m_ui->pb_ok, &QPushButton::clicked, this, &QDialog::accept);
    connectMapButtons();
    setMaps(maps, session);
}

MapsWidget::~MapsWidget() = default;

void MapsWidget::connectMapButtons()
{
    connect(m_ui->pb_newMap, &QPushButton::clicked, this, &MapsWidget::newMap);
    connect(m_ui->pb_reloadMaps, &QPushButton::clicked, this, &MapsWidget::reloadMaps);
    const auto connectWish = [this](QPushButton *button, auto wish) {
        connect(button, &QPushButton::clicked, this, [this, wish] {
            Q_EMIT(this->*wish)(m_ui->cb_otherMap->currentText());
        });
    };
    connectWish(m_ui->pb_editMap, &MapsWidget::editMap);
    connectWish(m_ui->pb_renameMap, &MapsWidget::renameMap);
    connectWish(m_ui->pb_deleteMap, &MapsWidget::deleteMap);
    connect(m_ui->cb_otherMap, &QComboBox::activated, this, &MapsWidget::enableMapButtons);
}

// Not while the box is filled anew: a button that is disabled for a moment loses the focus, and
// the next one in line would have the enter key.
void MapsWidget::enableMapButtons()
{
    const bool hasMap = !m_ui->cb_otherMap->currentText().isEmpty();
    for (QPushButton *button : {m_ui->pb_editMap, m_ui->pb_renameMap, m_ui->pb_deleteMap})
        button->setEnabled(hasMap);
}

void MapsWidget::setMaps(const QList<const Map *> &maps, Session *session)
{
    if (m_session != nullptr)
        disconnect(m_session, nullptr, this, nullptr);
    m_maps = maps;
    m_session = session;
    if (session != nullptr)
        connect(session, &Session::mapInfoChanged, this, &MapsWidget::selectSessionMap);

    QStringList names {QString()};
    qsizetype longest = NameMinimum;
    for (const Map *map : maps) {
        names.append(map->name());
        longest = std::max(longest, map->name().size());
    }
    m_ui->cb_otherMap->clear();
    m_ui->cb_otherMap->addItems(names);
    m_ui->cb_otherMap->setMinimumContentsLength(
        static_cast<int>(std::min<qsizetype>(longest, NameMaximum)));
    showSession();
}

void MapsWidget::showSession()
{
    m_ui->lb_session->setText(
        m_session != nullptr ? tr("Choose other Map for session : %1").arg(m_session->fileName())
                             : tr("No session loaded"));
    m_ui->pb_autoDetectMap->setEnabled(m_session != nullptr);
    m_ui->pb_newMap->setEnabled(m_session != nullptr);
    selectSessionMap();
}

void MapsWidget::selectSessionMap()
{
    int index = 0;
    if (m_session != nullptr) {
        // A session whose map is none of the list shows the first map.
        const qsizetype position = std::max<qsizetype>(m_maps.lastIndexOf(m_session->map()), 0);
        index = std::min(static_cast<int>(position) + 1, m_ui->cb_otherMap->count() - 1);
    }
    m_ui->cb_otherMap->setCurrentIndex(index);
    enableMapButtons();
}

void MapsWidget::chooseMap(const QString &name)
{
    if (name.isEmpty())
        return;
    const auto found = std::find_if(m_maps.crbegin(), m_maps.crend(),
                                    [&name](const Map *map) { return map->name() == name; });
    if (found != m_maps.crend())
        Q_EMIT mapChanged({*found}, ChosenByRider);
}

} // namespace zuno
