// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The save flow with the native dialog and your own check box in it.

#include "property/Property.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/SaveFileWinDialog.h"

#include <QApplication>
#include <QWidget>

//! [derived]
class ArchiveDialog : public SaveFileWinDialog
{
public:
    ArchiveDialog(QWidget& window, const boost::shared_ptr<morvane::Property<bool>>& withRawData)
        : SaveFileWinDialog(&window, "Archive", "", "run-17", "Archive (*.zip)", "")
    {
        dialog()->addCustomCheckBox("Include the raw data", withRawData);
    }
};
//! [derived]

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.resize(320, 90);
    window.show();

    const auto withRawData = boost::make_shared<morvane::Property<bool>>(false);
    ArchiveDialog dialog(window, withRawData);
    if (dialog.launch()) {
        window.setWindowTitle(withRawData->value() ? "With raw data" : "Without raw data");
    }
    return QApplication::exec();
}
