// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/importdialog.h>

#include <algorithm>

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <base/settings.h>
#include <library/columndialog.h>
#include <library/importtable.h>

namespace zuno {

namespace {

constexpr int Width = 130; // characters
constexpr int Height = 26; // lines

} // namespace

ImportDialog::ImportDialog(const MapLibrary &maps, const Settings &settings, QWidget *parent)
    : QDialog(parent)
    , m_maps(maps)
    , m_columns(settings)
    , m_reader(settings.acquisitionFolder())
    , m_table(new ImportTable)
    , m_state(new QLabel)
    , m_progress(new QProgressBar)
{
    setObjectName(QStringLiteral("ImportDialog"));
    setWindowTitle(tr("Import"));
    setWindowIcon(QIcon(QStringLiteral(":/Resources/Logos/logo.ico")));
    setWindowModality(Qt::WindowModal);
    auto *introduction
        = new QLabel(tr("Sessions are made of these recordings; the files themselves "
                        "stay as they are."));
    introduction->setTextFormat(Qt::PlainText);
    introduction->setWordWrap(true);
    m_state->setTextFormat(Qt::PlainText);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(introduction);
    layout->addWidget(m_table);
    layout->addWidget(makeFoot());
    resize(Width * fontMetrics().averageCharWidth(), Height * fontMetrics().lineSpacing());
    connect(&m_reader, &ImportReader::finished, this, &ImportDialog::take);
    connect(&m_reader, &ImportReader::progressed, this, &ImportDialog::showProgress);
    connect(m_table, &QTreeWidget::itemChanged, this, &ImportDialog::refresh);
    connect(m_table, &QTreeWidget::currentItemChanged, this, &ImportDialog::refresh);
    refresh();
}

QWidget *ImportDialog::makeFoot()
{
    auto *foot = new QWidget;
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_import = buttons->addButton(tr("Import"), QDialogButtonBox::AcceptRole);
    m_match = buttons->addButton(tr("Columns..."), QDialogButtonBox::ActionRole);
    m_import->setObjectName(QStringLiteral("pb_import"));
    m_match->setObjectName(QStringLiteral("pb_columns"));
    m_match->setToolTip(tr("Says what the columns of the selected table hold"));
    m_state->setObjectName(QStringLiteral("lb_importState"));
    m_state->setTextFormat(Qt::PlainText);
    auto *layout = new QHBoxLayout(foot);
    layout->setContentsMargins({});
    layout->addWidget(m_state, 1);
    layout->addWidget(m_progress);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(this, &QDialog::rejected, &m_reader, &ImportReader::cancel);
    connect(m_match, &QPushButton::clicked, this, &ImportDialog::matchColumns);
    return foot;
}

void ImportDialog::add(const QStringList &paths)
{
    for (const QString &path : paths) {
        ++m_files;
        read(path);
    }
}

void ImportDialog::read(const QString &path)
{
    const bool isFirst = !m_reader.isBusy();
    m_reader.read(path, m_columns.all());
    refresh();
    // A large file is looked for in the library before anything can be told of it.
    if (isFirst)
        showProgress(path, 0);
}

void ImportDialog::take(const QString &path, const ImportOutcome &outcome)
{
    ++m_done;
    m_table->showOutcome(path, outcome, m_maps);
    refresh();
}

void ImportDialog::showProgress(const QString &path, int percent)
{
    m_state->setText(tr("Reading %1").arg(QFileInfo(path).fileName()));
    m_progress->setValue((100 * m_done + percent) / std::max(m_files, 1));
}

void ImportDialog::refresh()
{
    const bool isBusy = m_reader.isBusy();
    const qsizetype count = chosen().size();
    m_progress->setVisible(isBusy);
    if (isBusy) {
        m_progress->setValue(100 * m_done / std::max(m_files, 1));
    } else {
        m_state->setText(count == 1
                             ? tr("1 session will be imported.")
                             : tr("%1 sessions will be imported.").arg(QLocale().toString(count)));
    }
    m_import->setEnabled(!isBusy && count > 0);
    m_match->setEnabled(!isBusy && !m_table->currentTable().isEmpty());
}

QStringList ImportDialog::chosen() const
{
    return m_table->chosen();
}

void ImportDialog::matchColumns()
{
    const QString path = m_table->currentTable();
    if (path.isEmpty())
        return;
    ColumnDialog dialog(path, m_columns, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_columns.remember(dialog.key(), dialog.mapping());
    --m_done;
    read(path);
}

} // namespace zuno
