// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QString>

#include <library/acquisitionlibrary.h>

class QWidget;

namespace zuno {

class InformationWriter;

/// What the rider has said about sessions and could not be written: the disk is full, the card is
/// protected, the file is gone. Asks before it is lost.
class UnsavedChanges final : public QObject
{
    Q_OBJECT

public:
    UnsavedChanges(AcquisitionLibrary &library, InformationWriter &writer,
                   QObject *parent = nullptr);

    /// Tries once more to write everything and, where that fails, asks the rider what to do; the
    /// questions stand before @p window. False when the program is to stay open.
    [[nodiscard]] bool mayClose(QWidget *window);
    /// Saves what is unsaved to the folder @p folder, under new names: copies of the recordings
    /// with what was said about them, or, where the recording is gone, a text file. Returns the
    /// names of those for which that failed, too.
    [[nodiscard]] QStringList saveTo(const QString &folder);

private:
    enum class Answer { TryAgain, SaveElsewhere, Discard, Stay };

    void writeAll();
    [[nodiscard]] Answer ask(QWidget *window, const QStringList &names) const;
    void saveElsewhere(QWidget *window);

    AcquisitionLibrary &m_library;
    InformationWriter &m_writer;
};

} // namespace zuno
