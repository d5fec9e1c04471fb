// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// One function adds the same options to every file dialog: here to the save flow, which remembers its folder.

#include "property/Property.h"
#include "ui/qt/dialogs/FileDialogCustomization.h"
#include "ui/qt/dialogs/SaveFileDialog.h"

#include <QApplication>
#include <QFile>
#include <QPushButton>

namespace {

//! [options]
struct ReportOptions
{
    boost::shared_ptr<morvane::Property<std::string>> comment = boost::make_shared<morvane::Property<std::string>>();
    boost::shared_ptr<morvane::Property<bool>> compress = boost::make_shared<morvane::Property<bool>>(true);

    // For a native dialog and for Qt's, for opening and for saving.
    void addTo(morvane::ui::FileDialogCustomization& dialog) const
    {
        dialog.addCustomLineEdit("&Comment:", comment);
        dialog.addCustomCheckBox("C&ompress", compress);
        dialog.setMemoryKey("report");
    }
};
//! [options]

void save(QWidget& window, const ReportOptions& options)
{
    //! [flow]
    SaveFileDialog dialog(&window, "Save report", "", "report", "Text (*.txt)", "");
    options.addTo(*dialog.customization());
    if (!dialog.launch()) {
        return;
    }
    //! [flow]
    QFile file(QString::fromStdString(dialog.selectedFilename()));
    const QByteArray text = "# " + QByteArray::fromStdString(options.comment->value()) + "\nT1 reads 21.5\n";
    if (file.open(QIODevice::WriteOnly)) {
        file.write(options.compress->value() ? qCompress(text) : text);
    }
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QPushButton window("&Save report…");
    const ReportOptions options; // kept for the next dialog
    QObject::connect(&window, &QPushButton::clicked, &window, [&] { save(window, options); });
    window.resize(320, 60);
    window.show();
    return application.exec();
}
