// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/recordingimport.h>

#include <library/importdialog.h>
#include <library/sessionimport.h>

namespace zuno {

RecordingImport::RecordingImport(const Parts &parts, QWidget *window)
    : QObject(window)
    , m_parts(parts)
    , m_window(window)
{
    connect(&parts.import, &SessionImport::othersFound, this, &RecordingImport::offer);
    // The sessions stand in the dialog's folder until they are imported.
    connect(&parts.import, &SessionImport::finished, this, [this] {
        if (m_isImporting)
            close();
    });
}

RecordingImport::~RecordingImport()
{
    delete m_dialog;
}

void RecordingImport::offer(const QStringList &paths)
{
    if (m_isImporting)
        close();
    if (m_dialog == nullptr) {
        m_dialog = new ImportDialog(m_parts.maps, m_parts.settings, m_window);
        connect(m_dialog, &QDialog::accepted, this, &RecordingImport::importChosen);
        connect(m_dialog, &QDialog::rejected, this, &RecordingImport::close);
        m_dialog->open();
    }
    m_dialog->add(paths);
}

void RecordingImport::importChosen()
{
    m_isImporting = true;
    m_parts.import.start(m_dialog->chosen());
}

void RecordingImport::close()
{
    m_isImporting = false;
    if (m_dialog != nullptr)
        m_dialog->deleteLater();
    m_dialog = nullptr;
}

} // namespace zuno
