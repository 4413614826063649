// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What scripts/faults.sh kills: an import and a change of settings, each as the program does it.
//   zuno_faults import ROOT FILE
//   zuno_faults settings ROOT NUMBER

#include <QApplication>
#include <QWidget>

#include <app/acquisitionlibrary.h>
#include <app/sessionimport.h>
#include <app/settings.h>

using namespace zuno;

int main(int count, char **words)
{
    const QApplication application(count, words);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.size() != 3)
        return 2;
    const Settings settings(arguments[1]);
    if (arguments[0] == u"settings") {
        settings.setValues({{Setting::LastFileSelected, arguments[2]},
                            {Setting::ShowLapType, arguments[2] == u"1"}});
        return 0;
    }
    AcquisitionLibrary library;
    QWidget window;
    auto *import = new SessionImport(library, settings, &window);
    QObject::connect(import, &SessionImport::finished, [](const ImportResult &result) {
        QCoreApplication::exit(result.imported == 1 ? 0 : 1);
    });
    import->start({arguments[2]});
    return QApplication::exec();
}
