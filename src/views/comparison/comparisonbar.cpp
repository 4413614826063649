// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/comparison/comparisonbar.h>

#include "ui_comparisonbar.h"

#include <QFileInfo>
#include <QFontInfo>
#include <QMenu>
#include <QPainter>

#include <base/units.h>
#include <theme/themes.h>
#include <views/comparison/comparison.h>
#include <views/comparison/referencemenu.h>
#include <views/laps/lapselection.h>
#include <views/laps/sessionsummary.h>

namespace zuno {

namespace {

// Below this width the words of the buttons give way.
constexpr int WideBar = 900;

constexpr QSize SampleSize(24, 12);

// Of the text about the reference, pixels; a longer one is cut and stands in the tool tip.
constexpr int ReferenceWidth = 190;

// A piece of the line that the lap at that place is drawn with.
QPixmap lineSample(std::size_t place, qreal scale)
{
    QPixmap picture(SampleSize * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    constexpr double Width = 2.4;
    QPen pen(theme().lap(place), Width);
    const std::span<const double> dash = lapDash(place);
    QList<double> pattern;
    for (const double length : dash)
        pattern.append(length / Width);
    if (!pattern.isEmpty())
        pen.setDashPattern(pattern);
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    const double middle = SampleSize.height() / 2.0;
    painter.drawLine(QPointF(0.0, middle), QPointF(SampleSize.width(), middle));
    return picture;
}

void setSize(QWidget &widget, double factor, bool bold)
{
    QFont font = widget.font();
    font.setPixelSize(qRound(QFontInfo(font).pixelSize() * factor));
    font.setBold(bold);
    widget.setFont(font);
}

void setColour(QLabel &label, Colour colour)
{
    label.setStyleSheet(QStringLiteral("color: %1").arg(theme().colour(colour).name()));
}

QString baseName(const SessionLap &lap)
{
    return QFileInfo(lap.fileName()).completeBaseName();
}

} // namespace

ComparisonBar::ComparisonBar(Comparison &comparison, LapSelection &selection, QWidget *parent)
    : QFrame(parent)
    , m_ui(std::make_unique<Ui::ComparisonBar>())
    , m_comparison(comparison)
    , m_selection(selection)
    , m_menu(new ReferenceMenu(comparison, this))
{
    m_ui->setupUi(this);
    prepareTexts();
    connectParts();
    show();
}

ComparisonBar::~ComparisonBar() = default;

// Widths that do not depend on what is shown: nothing moves when another lap is selected.
void ComparisonBar::prepareTexts()
{
    for (QLabel *label : {m_ui->lb_selectedLap, m_ui->lb_referenceLap})
        setSize(*label, 1.0, true);
    for (QLabel *label : {m_ui->lb_selectedTime, m_ui->lb_referenceTime})
        setSize(*label, 1.23, true);
    for (QLabel *label : {m_ui->lb_selectedFile, m_ui->lb_referenceKind})
        setSize(*label, 0.85, false);
    setSize(*m_ui->lb_difference, 1.54, true);
    const auto reserve = [](QLabel &label, const QString &longest) {
        constexpr int Air = 2;
        const QFontMetrics metrics(label.font());
        label.setMinimumSize(metrics.horizontalAdvance(longest), metrics.height() + Air);
    };
    reserve(*m_ui->lb_selectedLap, tr("Lap %1").arg(88));
    reserve(*m_ui->lb_referenceLap, QStringLiteral("\u2605 ") + tr("Lap %1").arg(88));
    for (QLabel *label : {m_ui->lb_selectedTime, m_ui->lb_referenceTime})
        reserve(*label, QStringLiteral("00:00.000"));
    reserve(*m_ui->lb_difference, QStringLiteral("+00.000 s"));
    m_ui->pb_reference->setMenu(m_menu);
    m_ui->pb_addLap->setMenu(new QMenu(m_ui->pb_addLap));
    setFixedHeight(sizeHint().height());
}

void ComparisonBar::connectParts()
{
    connect(m_menu, &ReferenceMenu::otherFileWanted, this, &ComparisonBar::otherFileWanted);
    connect(m_ui->pb_addLap->menu(), &QMenu::aboutToShow, this, &ComparisonBar::fillLapMenu);
    connect(m_ui->pb_swap, &QToolButton::clicked, &m_comparison, &Comparison::swap);
    connect(m_ui->pb_clear, &QToolButton::clicked, &m_comparison, &Comparison::clear);
    connect(&m_comparison, &Comparison::changed, this, &ComparisonBar::show);
    connect(&Themes::instance(), &Themes::changed, this, &ComparisonBar::show);
}

void ComparisonBar::openMenu()
{
    m_ui->pb_reference->showMenu();
}

void ComparisonBar::show()
{
    showSelected();
    showReference();
    showDifference();
    showChips();
}

void ComparisonBar::showSelected()
{
    const SessionLap lap = m_selection.current();
    m_ui->lb_selectedSample->setPixmap(lap ? lineSample(0, devicePixelRatioF()) : QPixmap());
    m_ui->lb_selectedLap->setText(lap ? tr("Lap %1").arg(lap->lapNumber()) : QString());
    m_ui->lb_selectedTime->setText(lap && lap->isComplete() ? lap->timeText() : QString());
    m_ui->lb_selectedFile->setText(lap ? baseName(lap)
                                       : tr("Nothing to compare yet: there are no laps."));
}

// What the reference is; with a warning in front when it is not there.
QString ComparisonBar::referenceText() const
{
    if (m_comparison.lack() == Comparison::Lack::Searching)
        return tr("Looking for the best lap...");
    if (const QString problem = m_comparison.problem(); !problem.isEmpty())
        return QStringLiteral("\u26a0 ") + problem;
    switch (m_comparison.choice().kind) {
    case ReferenceKind::BestOfSession:
        return tr("Best of session");
    case ReferenceKind::BestEver:
        return tr("Best ever here");
    case ReferenceKind::BestOnVehicle:
        return tr("Best ever here, same motorcycle");
    case ReferenceKind::ChosenLap:
        return baseName(m_selection.reference()) + u", " + tr("chosen by hand");
    case ReferenceKind::None:
        break;
    }
    return tr("No reference on this circuit yet");
}

void ComparisonBar::showReference()
{
    const SessionLap lap = m_selection.reference();
    const bool isShown = lap && m_selection.currentLap() != nullptr;
    m_ui->lb_referenceSample->setPixmap(isShown ? lineSample(1, devicePixelRatioF()) : QPixmap());
    m_ui->lb_referenceLap->setText(
        isShown ? QStringLiteral("\u2605 ") + tr("Lap %1").arg(lap->lapNumber()) : QString());
    m_ui->lb_referenceTime->setText(isShown ? lap->timeText() : QString());
    const QString text = m_selection.currentLap() != nullptr ? referenceText() : QString();
    m_ui->lb_referenceKind->setText(
        m_ui->lb_referenceKind->fontMetrics().elidedText(text, Qt::ElideRight, ReferenceWidth));
    m_ui->lb_firstLapSelected->setText(isShown ? SessionSummary::firstLapText(lap) : QString());
    const QString tip = isShown ? text + u'\n' + m_ui->lb_firstLapSelected->text() : text;
    // As rich text, so that names of files are none.
    const QString shown = QStringLiteral("<qt>%1</qt>")
                              .arg(tip.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>")));
    for (QWidget *widget : {static_cast<QWidget *>(m_ui->lb_referenceKind),
                            static_cast<QWidget *>(m_ui->lb_referenceLap),
                            static_cast<QWidget *>(m_ui->lb_referenceTime)})
        widget->setToolTip(shown);
    m_ui->pb_reference->setEnabled(m_selection.current().map() != nullptr);
    m_ui->pb_clear->setEnabled(isShown);
}

void ComparisonBar::showDifference()
{
    const SessionLap lap = m_selection.current();
    const SessionLap reference = m_selection.compared();
    m_ui->pb_swap->setEnabled(static_cast<bool>(reference));
    QLabel &figure = *m_ui->lb_difference;
    figure.clear();
    m_ui->lb_differenceWord->clear();
    if (!reference) {
        if (lap && lap == m_selection.reference())
            m_ui->lb_differenceWord->setText(tr("reference"));
        return;
    }
    if (!lap->isComplete() || !reference->isComplete())
        return;
    const double seconds = (lap->lapTime() - reference->lapTime()) / 1000.0;
    figure.setText(tr("%1 s", "seconds").arg(shownNumber(seconds, 3, true)));
    setColour(figure, seconds == 0.0 ? Colour::Text : seconds > 0.0 ? Colour::Loss : Colour::Gain);
    m_ui->lb_differenceWord->setText(seconds == 0.0  ? tr("as fast")
                                     : seconds > 0.0 ? tr("slower")
                                                     : tr("faster"));
}

void ComparisonBar::showChips()
{
    // The one that was clicked is still at work.
    const QList<QToolButton *> old = m_ui->chips->findChildren<QToolButton *>();
    for (QToolButton *chip : old) {
        chip->hide();
        chip->setParent(nullptr);
        chip->deleteLater();
    }
    std::size_t place = 2;
    for (const SessionLap &lap : m_selection.others()) {
        auto *chip = new QToolButton(m_ui->chips);
        chip->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        chip->setIconSize(SampleSize);
        chip->setIcon(lineSample(place++, devicePixelRatioF()));
        chip->setText(tr("Lap %1").arg(lap->lapNumber()) + QStringLiteral("  \u2715"));
        chip->setToolTip(tr("Takes lap %1 away").arg(lap->lapNumber()));
        chip->setAccessibleName(chip->toolTip());
        connect(chip, &QToolButton::clicked, this, [this, lap] { m_selection.removeOther(lap); });
        m_ui->chipsLayout->addWidget(chip);
    }
    m_ui->pb_addLap->setEnabled(m_selection.currentLap() != nullptr);
}

void ComparisonBar::fillLapMenu()
{
    QMenu &menu = *m_ui->pb_addLap->menu();
    menu.clear();
    Session *session = m_selection.session();
    for (int i = 0; session != nullptr && i < static_cast<int>(session->laps().size()); ++i) {
        const Lap &lap = *session->laps()[static_cast<std::size_t>(i)];
        if (!lap.isComplete() || &lap == m_selection.currentLap()
            || &lap == m_selection.reference().lap)
            continue;
        QAction *entry = menu.addAction(tr("Lap %1").arg(lap.lapNumber()) + QStringLiteral("   ")
                                        + lap.timeText());
        entry->setCheckable(true);
        entry->setChecked(m_selection.isOther(session, i));
        connect(entry, &QAction::triggered, this, [this, session, i] {
            if (!m_selection.toggleOther(session, i))
                Q_EMIT refused(tr("Six laps are drawn at most; take one away first."));
        });
    }
}

void ComparisonBar::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    const bool hasWords = width() >= WideBar;
    m_ui->pb_swap->setText(QStringLiteral("\u21c4") + (hasWords ? u' ' + tr("Swap") : QString()));
    m_ui->pb_clear->setText(QStringLiteral("\u2715") + (hasWords ? u' ' + tr("Clear") : QString()));
}

} // namespace zuno
