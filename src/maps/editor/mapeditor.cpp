// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/editor/mapeditor.h>

#include <QAction>
#include <QIcon>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>

#include <maps/editor/outlinechoice.h>
#include <maps/page/mapviewcontroller.h>
#include <track/map.h>
#include <track/mapname.h>
#include <widgets/plaintexts.h>

#include "ui_mapeditor.h"

namespace zuno {

namespace {

// Metres that an arrow key moves a point, alone and with Shift.
constexpr double SmallStep = 1.0;
constexpr double LargeStep = 10.0;

// Pixels: large enough to drag points with, small enough for a small screen.
constexpr QSize WishedSize {1500, 950};
constexpr QSize LeastSize {970, 620};
constexpr int SideWidth = 440;
// Room for four sections where there is room.
constexpr int WideWindow = 1200;
constexpr int WideSideWidth = 510;
// In a low window the lists of points and warnings scroll.
constexpr int LowWindow = 850;

// A text box keeps the keys of undo to itself even when it has nothing to undo.
bool isUndoKey(const QEvent &event)
{
    const auto &key = static_cast<const QKeyEvent &>(event);
    return key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
}

// A map without a session still shows where it lies.
Points pointsOf(const QList<QGeoCoordinate> &outline)
{
    Points points;
    for (const QGeoCoordinate &place : outline) {
        PointAcquisition point;
        point.dataCoordX = place.longitude();
        point.dataCoordY = place.latitude();
        points.push_back(point);
    }
    return points;
}

} // namespace

MapEditor::MapEditor(Content content, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                          | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint)
    , m_ui(std::make_unique<Ui::MapEditor>())
    , m_content(std::move(content))
    , m_edit(m_content.draft, m_content.corners)
    , m_gestures(m_edit)
{
    m_ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":/Resources/Logos/logo.ico")));
    setSizeGripEnabled(true);
    m_ui->splitter->setStretchFactor(0, 1);
    m_ui->sidePane->setMinimumWidth(SideWidth);
    setMinimumSize(LeastSize);
    resize(WishedSize.boundedTo(screen()->availableSize() * 0.95));
    const int side = width() < WideWindow ? SideWidth : WideSideWidth;
    m_ui->splitter->setSizes({width() - side, side});
    m_map = new MapViewController(this);
    m_map->init(this, m_ui->mapLayout);
    m_checkSoon.setSingleShot(true);
    m_checkSoon.setInterval(0);
    fillForm();
    createActions();
    connectForm();
    connectMap();
    showSession(m_content.session);
    m_ui->le_name->setFocus();
    m_ui->le_name->selectAll();
}

MapEditor::~MapEditor() = default;

void MapEditor::fillForm()
{
    m_ui->lb_note->setText(m_content.note);
    m_ui->lb_note->setVisible(!m_content.note.isEmpty());
    m_ui->le_name->setText(nameOfMap(m_content.draft.name));
    m_ui->cb_folder->addItem(QString());
    m_ui->cb_folder->addItems(m_content.folders);
    m_ui->cb_folder->setCurrentText(folderOfMap(m_content.draft.name));
    m_ui->cb_folder->lineEdit()->setPlaceholderText(tr("none"));
    m_ui->cb_session->addItems(m_content.sessions);
    m_ui->cb_session->setCurrentIndex(m_content.session);
    m_ui->cornersPane->refuse(m_content.cornersRefused);
    m_ui->sb_gate->setRange(MapEdit::SmallestGate, MapEdit::LargestGate);
    m_outlines = std::make_unique<OutlineChoice>(*m_ui->cb_outline, m_edit, m_samples);
}

void MapEditor::createActions()
{
    QAction *undo = m_edit.history().createUndoAction(this, tr("Undo"));
    undo->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Z)});
    QAction *redo = m_edit.history().createRedoAction(this, tr("Redo"));
    redo->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    addActions({undo, redo});
    m_ui->tb_undo->setDefaultAction(undo);
    m_ui->tb_redo->setDefaultAction(redo);
    // The actions name the step; the buttons have no room for that.
    const auto label = [](QToolButton *button, const QString &text) {
        button->setText(text);
        QObject::connect(button->defaultAction(), &QAction::changed, button,
                         [button, text] { button->setText(text); });
    };
    label(m_ui->tb_undo, tr("Undo"));
    label(m_ui->tb_redo, tr("Redo"));
    createKeys(m_ui->pointsPane->list());
    createKeys(*m_ui->mapPane);
    for (QWidget *box : {static_cast<QWidget *>(m_ui->le_name),
                         static_cast<QWidget *>(m_ui->cb_folder->lineEdit()),
                         static_cast<QWidget *>(m_ui->sb_gate)})
        box->installEventFilter(this);
}

void MapEditor::createKeys(QWidget &area)
{
    const auto add = [this, &area](const QKeySequence &key, auto run) {
        auto *shortcut = new QShortcut(key, &area);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, run);
    };
    add(Qt::Key_Right, [this] { m_gestures.nudge(SmallStep); });
    add(Qt::Key_Left, [this] { m_gestures.nudge(-SmallStep); });
    add(Qt::SHIFT | Qt::Key_Right, [this] { m_gestures.nudge(LargeStep); });
    add(Qt::SHIFT | Qt::Key_Left, [this] { m_gestures.nudge(-LargeStep); });
    add(Qt::Key_Down, [this] { m_gestures.selectNext(1); });
    add(Qt::Key_Up, [this] { m_gestures.selectNext(-1); });
    add(Qt::Key_Delete, [this] { m_gestures.removePoint(); });
    // The page of the map would keep it.
    add(Qt::Key_Escape, [this] { reject(); });
}

void MapEditor::connectForm()
{
    connect(&m_edit, &MapEdit::changed, this, &MapEditor::showEdit);
    connect(&m_checkSoon, &QTimer::timeout, this, &MapEditor::showCheck);
    connect(m_ui->le_name, &QLineEdit::textChanged, this, &MapEditor::showNameFault);
    connect(m_ui->cb_folder, &QComboBox::editTextChanged, this, &MapEditor::showNameFault);
    connect(m_ui->cb_session, &QComboBox::activated, this, &MapEditor::showSession);
    connect(m_ui->cb_outline, &QComboBox::activated, this, &MapEditor::chooseOutline);
    connect(m_ui->sb_gate, &QDoubleSpinBox::valueChanged, &m_gestures, &MapGestures::setGateSize);
    connect(m_ui->pointsPane, &MapPointsPane::pointSelected, &m_gestures, &MapGestures::select);
    connect(m_ui->pointsPane, &MapPointsPane::addRequested, &m_gestures, &MapGestures::addPoint);
    connect(m_ui->pointsPane, &MapPointsPane::removeRequested, &m_gestures,
            &MapGestures::removePoint);
    connect(m_ui->cornersPane, &CornersPane::editRequested, &m_edit, &MapEdit::editCorner);
    connect(m_ui->cornersPane, &CornersPane::resetRequested, &m_edit, &MapEdit::forgetCornerEdits);
    connect(m_ui->cornersPane, &CornersPane::cornerSelected, this, &MapEditor::showCorner);
    connect(m_ui->checkPane, &MapCheckPane::pointSelected, &m_gestures, &MapGestures::select);
    connect(m_ui->checkPane, &MapCheckPane::warningsChanged, this, &MapEditor::showOnMap);
    connect(&m_gestures, &MapGestures::pointsTouched, this, &MapEditor::showPoints);
    connect(&m_gestures, &MapGestures::pointsTouched, this, &MapEditor::showOnMap);
    connect(&m_gestures, &MapGestures::refused, this, &MapEditor::tellFull);
    connect(m_ui->pb_save, &QPushButton::clicked, this, &MapEditor::save);
    connect(m_ui->pb_cancel, &QPushButton::clicked, this, &MapEditor::reject);
}

void MapEditor::connectMap()
{
    connect(m_map, &MapViewController::pointMoved, &m_gestures, &MapGestures::drag);
    connect(m_map, &MapViewController::gateResized, &m_gestures, &MapGestures::dragGate);
    connect(m_map, &MapViewController::pointSelected, &m_gestures, &MapGestures::select);
    connect(m_map, &MapViewController::trackClicked, &m_gestures, &MapGestures::addPointAt);
}

void MapEditor::showSession(int session)
{
    m_samples = session >= 0 ? m_content.samplesOf(session) : Points();
    m_outlines->offerLaps();
    m_map->editPath(m_samples.empty() ? pointsOf(m_edit.draft().outline) : m_samples);
    showEdit();
}

void MapEditor::chooseOutline(int index)
{
    m_outlines->choose(index);
    showEdit();
}

void MapEditor::tellFull()
{
    MessageBox::run(QMessageBox::Information, this, windowTitle(),
                    tr("A map has room for %1 timing points. Remove one of them to add "
                       "another.")
                        .arg(QLocale().toString(MaximumSectors)));
}

void MapEditor::showEdit()
{
    const QSignalBlocker gateBlocker(m_ui->sb_gate);
    m_ui->sb_gate->setValue(m_edit.draft().gateSize);
    m_outlines->show();
    showPoints();
    showOnMap();
    showNameFault();
    m_checkSoon.start();
}

bool MapEditor::isLow() const
{
    return height() < LowWindow;
}

void MapEditor::showPoints()
{
    m_ui->pointsPane->showPoints(m_edit, m_gestures.selected(), isLow());
}

void MapEditor::showOnMap()
{
    QList<int> warned;
    for (const MapWarning &warning : m_ui->checkPane->warnings()) {
        for (const int point : {warning.point, warning.otherPoint}) {
            if (!warned.contains(point))
                warned.append(point);
        }
    }
    m_map->editDraft(m_edit.draft(), m_gestures.selected(), warned);
}

void MapEditor::showCorner(const QList<QGeoCoordinate> &way)
{
    m_map->showStretch(pointsOf(way));
}

void MapEditor::showCheck()
{
    m_ui->cornersPane->showCorners(m_edit);
    m_ui->checkPane->check(m_samples, m_edit.draft(), isLow());
}

MapDraft MapEditor::draft() const
{
    MapDraft draft = m_edit.draft();
    draft.name = mapPath(m_ui->cb_folder->currentText(), m_ui->le_name->text());
    return draft;
}

bool MapEditor::isChanged() const
{
    return draft() != m_content.draft || m_edit.corners() != m_content.corners;
}

bool MapEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && isUndoKey(*event)) {
        const auto *box = qobject_cast<QLineEdit *>(watched);
        const bool hasOwn = box != nullptr && (box->isUndoAvailable() || box->isRedoAvailable());
        if (!hasOwn) {
            event->ignore();
            return true;
        }
    }
    // In the box of the gate size the key means that the number is typed, not that all is done.
    const bool isEnter
        = event->type() == QEvent::KeyPress && watched == m_ui->sb_gate
          && static_cast<QKeyEvent *>(event)->matches(QKeySequence::InsertParagraphSeparator);
    if (isEnter) {
        m_ui->sb_gate->interpretText();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void MapEditor::showNameFault()
{
    const MapNameFault name = faultOfMapName(m_ui->le_name->text());
    const MapNameFault folder = faultOfMapFolder(m_ui->cb_folder->currentText());
    QString problem = describe(name != MapNameFault::None ? name : folder);
    if (problem.isEmpty() && !m_edit.draft().start.isValid())
        problem = tr("The map has no start/finish line.");
    m_ui->lb_problem->setText(problem);
    m_ui->pb_save->setEnabled(problem.isEmpty());
}

void MapEditor::save()
{
    if (m_ui->pb_save->isEnabled())
        Q_EMIT saveRequested(draft());
}

void MapEditor::reject()
{
    if (isChanged()) {
        MessageBox box(QMessageBox::Question, windowTitle(),
                       tr("The map has been changed. Do you want to save it?"), this,
                       QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
        box.button(QMessageBox::Save)->setEnabled(m_ui->pb_save->isEnabled());
        const int answer = box.exec();
        if (answer == QMessageBox::Save)
            save();
        if (answer != QMessageBox::Discard)
            return;
    }
    QDialog::reject();
}

} // namespace zuno
