// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/page/mappane.h>

#include "ui_mappane.h"

#include <utility>

#include <QAction>
#include <QGuiApplication>
#include <QLocale>
#include <QOpenGLContext>
#include <QOpenGLWidget>
#include <QResizeEvent>
#include <QTimer>

#include <base/numbers.h>
#include <maps/page/lineswitch.h>
#include <maps/page/mapviewcontroller.h>
#include <session/session.h>
#include <theme/shownunits.h>
#include <track/map.h>

namespace zuno {

namespace {

// Elsewhere the engine draws in another way, and a window for OpenGL would crash where there is
// none.
bool hasOpenGl()
{
    const QString platform = QGuiApplication::platformName();
    QOpenGLContext context;
    return (platform == u"xcb" || platform.startsWith(u"wayland")) && context.create();
}

} // namespace

MapPane::MapPane(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::MapPane>())
    , m_view(new MapViewController(this))
    , m_line(new LineSwitch(this))
{
    m_ui->setupUi(this);
    m_ui->mapHeadLayout->addWidget(m_line);
    makeKeys();
    m_ui->webview_layout->addStrut(MapViewController::MinimumWidth);
    // Never shown. Without it the window would be taken off the screen and made anew when the view
    // comes, since the engine draws into a surface of another kind.
    if (hasOpenGl())
        (new QOpenGLWidget(this))->hide();
    else
        m_view->init(this, m_ui->webview_layout);
    m_ui->lb_errorMap->setText(
        tr("No map found, please try to select one from the Map configuraton panel"));
    connect(m_ui->pb_newMapHere, &QPushButton::clicked, this, &MapPane::newMapRequested);
}

MapPane::~MapPane() = default;

// It acts as long as the map has the keyboard.
void MapPane::makeKeys()
{
    auto *next = new QAction(tr("Next colours of the line on the map"), this);
    next->setShortcut(Qt::Key_L);
    next->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(next, &QAction::triggered, m_line, &LineSwitch::showNext);
    addAction(next);
}

void MapPane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrangeHead();
}

// What is said of the map comes first.
void MapPane::arrangeHead()
{
    constexpr int Margin = 40;
    int room = width() - Margin;
    for (const QWidget *part : std::initializer_list<QWidget *> {
             m_ui->lb_mapSelected, m_ui->lb_mapLength, m_ui->lb_errorMap, m_ui->pb_newMapHere}) {
        if (!part->isHidden())
            room -= part->sizeHint().width();
    }
    m_line->fitInto(room);
}

void MapPane::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    if (std::exchange(m_isPainted, true))
        return;
    // When all of the window is painted.
    QTimer::singleShot(0, m_view, [this] { m_view->init(this, m_ui->webview_layout); });
}

void MapPane::showSession(const Session *session)
{
    const Map *map = session != nullptr ? session->map() : nullptr;
    const bool lacksMap = session != nullptr && map == nullptr;
    m_ui->lb_mapSelected->setVisible(map != nullptr);
    m_ui->lb_mapLength->setVisible(map != nullptr);
    m_ui->lb_errorMap->setVisible(lacksMap);
    m_ui->pb_newMapHere->setVisible(lacksMap && session->sampleCount() > 0);
    if (map == nullptr) {
        arrangeHead();
        return;
    }
    m_ui->lb_mapSelected->setText(tr("Map : %1").arg(map->displayName()));
    const bool isMetric = units().distanceUnit == Units::Distance::Metres;
    m_ui->lb_mapLength->setText(
        isMetric ? tr("Map length : %1 m").arg(QLocale().toString(truncatedToInt(map->length())))
                 : tr("Map length : %1").arg(units().distanceText(map->length())));
    arrangeHead();
}

} // namespace zuno
