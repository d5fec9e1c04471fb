// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The questions of the save flow with the program's own texts, or in another language.

#include "ui/qt/dialogs/DefaultSaveFileMessageHandler.h"
#include "ui/qt/dialogs/SaveFileDialog.h"

#include <QApplication>
#include <QFileInfo>
#include <QWidget>

//! [handler]
class ProtocolMessages : public morvane::DefaultSaveFileMessageHandler
{
public:
    // Called first for each name that the user accepts.
    std::string filenameToCheck(const std::string& filename) override
    {
        m_name = QFileInfo(QString::fromStdString(filename)).fileName().toStdString();
        return DefaultSaveFileMessageHandler::filenameToCheck(filename);
    }
    std::string okToOverwriteMessage() override
    {
        return "The protocol “" + m_name + "” was signed. Write a new one in its place?";
    }
    // Functions that are not overridden return the default texts.

private:
    std::string m_name;
};
//! [handler]

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle("Protocol");
    window.resize(320, 90);
    window.show();

    //! [flow]
    SaveFileDialog dialog(&window, "Save protocol", "", "protocol", "Text (*.txt)", "",
        std::make_unique<ProtocolMessages>()); // the dialog takes ownership
    if (dialog.launch()) {
        window.setWindowTitle(QString::fromStdString(dialog.selectedFilename()));
    }
    //! [flow]
    return QApplication::exec();
}
