// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/editor/mapeditor.h>

#include <algorithm>

#include <QAction>
#include <QIcon>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QShortcut>

#include <maps/page/mapviewcontroller.h>
#include <track/mapname.h>

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

// A text box keeps the keys of undo to itself even when it has nothing to undo.
bool isUndoKey(const QEvent &event)
{
    const auto &key = static_cast<const QKeyEvent &>(event);
    return key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
}

} // namespace

MapEditor::MapEditor(Content content, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                          | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint)
    , m_ui(std::make_unique<Ui::MapEditor>())
    , m_content(std::move(content))
    , m_edit(m_content.draft)
    , m_laps(this)
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
    m_ui->sb_gate->setRange(MapEdit::SmallestGate, MapEdit::LargestGate);
    m_ui->tv_laps->setModel(&m_laps);
    m_ui->tv_laps->verticalHeader()->hide();
    m_ui->tw_points->verticalHeader()->hide();
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
    createKeys(*m_ui->tw_points);
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
    add(Qt::Key_Right, [this] { nudge(SmallStep); });
    add(Qt::Key_Left, [this] { nudge(-SmallStep); });
    add(Qt::SHIFT | Qt::Key_Right, [this] { nudge(LargeStep); });
    add(Qt::SHIFT | Qt::Key_Left, [this] { nudge(-LargeStep); });
    add(Qt::Key_Down, [this] { select(std::min(m_selected + 1, m_edit.pointCount() - 1)); });
    add(Qt::Key_Up, [this] { select(std::max(m_selected - 1, MapEdit::Start)); });
    add(Qt::Key_Delete, [this] { removePoint(); });
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
    connect(m_ui->sb_gate, &QDoubleSpinBox::valueChanged, this, [this](double metres) {
        joinChanges(GateChange);
        m_edit.setGateSize(metres);
    });
    connect(m_ui->tw_points, &QTableWidget::currentCellChanged, this, [this](int row) {
        if (row >= 0)
            select(row - 1);
    });
    connect(m_ui->pb_add, &QPushButton::clicked, this, &MapEditor::addPoint);
    connect(m_ui->pb_remove, &QPushButton::clicked, this, &MapEditor::removePoint);
    const auto selectWarned = [this](const QListWidgetItem *item) {
        if (item != nullptr)
            select(item->data(Qt::UserRole).toInt());
    };
    connect(m_ui->lw_warnings, &QListWidget::itemClicked, this, selectWarned);
    connect(m_ui->lw_warnings, &QListWidget::currentItemChanged, this, selectWarned);
    connect(m_ui->pb_save, &QPushButton::clicked, this, &MapEditor::save);
    connect(m_ui->pb_cancel, &QPushButton::clicked, this, &MapEditor::reject);
}

void MapEditor::connectMap()
{
    connect(m_map, &MapViewController::pointMoved, this, &MapEditor::onDragged);
    connect(m_map, &MapViewController::gateResized, this, &MapEditor::onGateResized);
    connect(m_map, &MapViewController::pointSelected, this, &MapEditor::select);
    connect(m_map, &MapViewController::trackClicked, this, &MapEditor::onTrackClicked);
}

MapDraft MapEditor::draft() const
{
    MapDraft draft = m_edit.draft();
    draft.name = mapPath(m_ui->cb_folder->currentText(), m_ui->le_name->text());
    return draft;
}

bool MapEditor::isChanged() const
{
    return draft() != m_content.draft;
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
        QMessageBox box(QMessageBox::Question, windowTitle(),
                        tr("The map has been changed. Do you want to save it?"),
                        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
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
