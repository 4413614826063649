// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/unsavedchanges.h>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>

#include <base/wholefile.h>
#include <library/informationwriter.h>
#include <session/sessionrewrite.h>
#include <widgets/plaintexts.h>

namespace zuno {

namespace {

QString freePath(const QString &folder, const QString &name, const QString &suffix)
{
    QString path = folder + u'/' + name + suffix;
    for (int number = 2; QFileInfo::exists(path); ++number)
        path = folder + u'/' + name + QStringLiteral(" %1").arg(number) + suffix;
    return path;
}

QByteArray asText(const AcquisitionLibrary::Unsaved &unsaved)
{
    const SessionInformation &said = unsaved.information;
    const std::pair<const char *, QString> lines[] {
        {"event", said.event.text()},
        {"driver", said.driver.text()},
        {"vehicle", said.vehicle.text()},
        {"tyres", said.tyres.text()},
        {"temperature", QString::number(said.temperature)},
        {"condition", said.condition.text()},
        {"notes", said.notes.text()},
    };
    // The keys of the tool, which can put them into the recording when it is found again.
    QString text = QDir::toNativeSeparators(unsaved.path) + u'\n';
    for (const auto &[key, value] : lines)
        text += QLatin1String(key) + u'=' + value + u'\n';
    return text.toUtf8();
}

bool save(const AcquisitionLibrary::Unsaved &unsaved, const QString &folder)
{
    const QString name = QFileInfo(unsaved.path).completeBaseName();
    if (unsaved.session != nullptr) {
        const QString path = freePath(folder, name, AcquisitionLibrary::Suffix);
        if (rewriteSessionFileTo(*unsaved.session, path).ok())
            return true;
    }
    return writeWholeFile(freePath(folder, name, QStringLiteral(".txt")), asText(unsaved))
        .isEmpty();
}

} // namespace

UnsavedChanges::UnsavedChanges(AcquisitionLibrary &library, InformationWriter &writer,
                               QObject *parent)
    : QObject(parent)
    , m_library(library)
    , m_writer(writer)
{
}

bool UnsavedChanges::mayClose(QWidget *window)
{
    writeAll();
    for (;;) {
        QStringList names;
        const auto unsaved = m_library.unsaved();
        for (const AcquisitionLibrary::Unsaved &one : unsaved)
            names.append(QFileInfo(one.path).fileName());
        if (names.isEmpty())
            return true;
        switch (ask(window, names)) {
        case Answer::TryAgain:
            writeAll();
            break;
        case Answer::SaveElsewhere:
            saveElsewhere(window);
            break;
        case Answer::Discard:
            return true;
        case Answer::Stay:
            return false;
        }
    }
}

void UnsavedChanges::writeAll()
{
    m_writer.flush();
    const auto unsaved = m_library.unsaved();
    for (const AcquisitionLibrary::Unsaved &one : unsaved) {
        Session *session = one.session;
        // It may have come back without anybody having looked.
        if (session == nullptr && QFileInfo::exists(one.path))
            session = m_library.add(one.path, "onClose");
        if (session != nullptr)
            m_writer.write(*session, InformationWriter::Cause::Edited);
    }
}

UnsavedChanges::Answer UnsavedChanges::ask(QWidget *window, const QStringList &names) const
{
    constexpr qsizetype MostNames = 10;
    QString list = names.mid(0, MostNames).join(u'\n');
    if (names.size() > MostNames)
        list += QStringLiteral("\n...");
    MessageBox box(QMessageBox::Warning, tr("Unsaved changes"),
                   tr("What you have said about these sessions could not be written into their "
                      "files:\n\n%1")
                       .arg(list),
                   window);
    const QPushButton *again = box.addButton(tr("Try again"), QMessageBox::AcceptRole);
    const QPushButton *elsewhere = box.addButton(tr("Save elsewhere..."), QMessageBox::ActionRole);
    const QPushButton *discard
        = box.addButton(tr("Close without saving"), QMessageBox::DestructiveRole);
    QPushButton *stay = box.addButton(tr("Cancel"), QMessageBox::RejectRole);
    box.setDefaultButton(stay);
    box.exec();
    if (box.clickedButton() == again)
        return Answer::TryAgain;
    if (box.clickedButton() == elsewhere)
        return Answer::SaveElsewhere;
    return box.clickedButton() == discard ? Answer::Discard : Answer::Stay;
}

void UnsavedChanges::saveElsewhere(QWidget *window)
{
    const QString folder = QFileDialog::getExistingDirectory(
        window, tr("Save elsewhere"),
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    if (folder.isEmpty())
        return;
    const QStringList failed = saveTo(folder);
    if (failed.isEmpty())
        return;
    MessageBox box(QMessageBox::Warning, tr("Unsaved changes"),
                   tr("These could not be saved there, either:\n\n%1").arg(failed.join(u'\n')),
                   window, QMessageBox::Ok);
    box.exec();
}

QStringList UnsavedChanges::saveTo(const QString &folder)
{
    QStringList failed;
    const auto unsaved = m_library.unsaved();
    for (const AcquisitionLibrary::Unsaved &one : unsaved) {
        if (save(one, folder))
            m_library.forgetUnsaved(one.path);
        else
            failed.append(QFileInfo(one.path).fileName());
    }
    return failed;
}

} // namespace zuno
