// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The library must reach the host's own settings store, not the default one.
#include "EngineHost.h"

#include "property/Property.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    QExtendedFileDialog dialog(window, "Open", "", "", "", QFileDialog::AcceptOpen);
    dialog.setGeometryPersistenceKey("engine");
    dialog.show();
    morvane::Property<int> count(1);
    count.setValue(2);
    return engineSettings()["engine"].isEmpty() ? 1 : 0;
}
