// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "property/Property.h"
#include "soak/DialogAnswer.h"
#include "soak/Platform.h"
#include "soak/Subject.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/FileDialogCustomization.h"
#include "ui/qt/dialogs/LaunchFileDialog.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"
#include "ui/qt/dialogs/SaveFileDialog.h"

#include <QFileDialog>
#include <QWidget>

#include <boost/make_shared.hpp>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace morvane::test {

namespace {

using namespace morvane::ui;

/** Selects the native dialog or the Qt dialog, and cancels the next one that opens. */
class CancelSoon
{
public:
    explicit CancelSoon(bool native)
        : m_answer(native ? &cancelNativeDialog : &DialogAnswer::cancelQtDialog, native ? nativeDialogInterval() : 0)
    {
        ExtendedFileDialog::setUseNativeFileDialog(native);
    }

private:
    DialogAnswer m_answer;
};

void launch(bool native)
{
    std::vector<std::string> files;
    int filter = 0;
    const CancelSoon cancel(native);
    LaunchFileDialog(files, filter, "Open", {"Data (*.dat)", "All (*)"}, {}, false, true, 1);
}

void cancelQtDialog(QWidget& parent)
{
    QExtendedFileDialog dialog(parent, "Open", "", "Data (*.dat)", "topic", QFileDialog::AcceptOpen);
    const CancelSoon cancel(false);
    dialog.exec();
}

void cancelWithControls(QWidget& parent, QFileDialog::AcceptMode mode)
{
    ExtendedWinFileDialog dialog(parent, "Native", "", "Data (*.dat);;All (*)", "topic", mode, true);
    dialog.addCustomButton("Button", [] {});
    dialog.addAcceptButtonOption("Option", 1);
    const CancelSoon cancel(true);
    dialog.exec();
}

/** One control of each kind, which the host changes while the dialog is open. */
template <typename Dialog>
void cancelCustomized(Dialog& dialog, const std::function<bool()>& cancel, int intervalMs)
{
    const auto chosen = boost::make_shared<Property<int>>(0);
    const auto text = boost::make_shared<Property<std::string>>("text");
    FileDialogCustomization& controls = *dialog.customization();
    controls.addCustomButton("Button", [] {});
    controls.addCustomCheckBox("Check box", boost::make_shared<Property<bool>>(true));
    QWidget* const list = controls.addCustomComboBox("List:", {"One", "Two", "Three"}, chosen);
    controls.customEntry(list, 2)->setEnabled(false);
    controls.beginCustomGroup("Group");
    controls.addCustomRadioButtons("Unit:", {"mm", "m"}, chosen);
    controls.addCustomLineEdit("Comment:", text);
    controls.endCustomGroup();
    controls.addCustomSeparator();
    controls.addCustomText("Words");
    controls.setAcceptanceCheck([](const QStringList&) { return ValidationResult(); });
    const auto changeAndCancel = [&] {
        chosen->setValue(1);
        text->setValue("other");
        return cancel();
    };
    const DialogAnswer answer(changeAndCancel, intervalMs);
    dialog.exec();
}

void customizeQtDialog(QWidget& parent)
{
    QExtendedFileDialog dialog(parent, "Open", "", "Data (*.dat)", "", QFileDialog::AcceptOpen);
    cancelCustomized(dialog, &DialogAnswer::cancelQtDialog, 0);
}

void customizeNativeDialog(QWidget& parent)
{
    ExtendedWinFileDialog dialog(parent, "Open", "", "Data (*.dat)", "", QFileDialog::AcceptOpen, false);
    cancelCustomized(dialog, &cancelNativeDialog, nativeDialogInterval());
}

void acceptName(QWidget& parent)
{
    ExtendedWinFileDialog dialog(parent, "Save", "", "Data (*.dat);;All (*)", "", QFileDialog::AcceptSave, false);
    dialog.selectFile(QStringLiteral("report"));
    const DialogAnswer accept(&acceptNativeDialog, nativeDialogInterval());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().size() != 1) {
        qFatal("the dialog did not take the name");
    }
}

void cancelAndKeep(QWidget&)
{
    static auto* const kept = new std::vector<ExtendedWinFileDialog*>;
    QWidget parent;
    kept->push_back(
        new ExtendedWinFileDialog(parent, "Save", "", "Data (*.dat);;All (*)", "", QFileDialog::AcceptSave, false));
    kept->back()->selectFile(QStringLiteral("report"));
    const CancelSoon cancel(true);
    kept->back()->exec();
}

void cancelSaveFlow(bool native)
{
    QWidget parent;
    ExtendedFileDialog::setUseNativeFileDialog(native);
    SaveFileDialog dialog(&parent, "Save", "", "report", std::string("Data (*.dat);;All (*)"), "");
    const CancelSoon cancel(native);
    dialog.launch();
}

std::function<void(QWidget&)> cancelSameSaveFlow()
{
    return [dialog = std::shared_ptr<SaveFileDialog>()](QWidget& parent) mutable {
        if (!dialog) {
            ExtendedFileDialog::setUseNativeFileDialog(true);
            dialog = std::make_shared<SaveFileDialog>(
                &parent, "Save", "", "report", std::string("Data (*.dat);;All (*)"), "");
        }
        const CancelSoon cancel(true);
        dialog->launch();
    };
}

} // namespace

std::vector<Subject> dialogSubjects()
{
    return {
        {"QExtendedFileDialog", &cancelQtDialog},
        {"ExtendedWinFileDialog-open", [](QWidget& parent) { cancelWithControls(parent, QFileDialog::AcceptOpen); },
            "system-open-controls"},
        {"ExtendedWinFileDialog-save", [](QWidget& parent) { cancelWithControls(parent, QFileDialog::AcceptSave); },
            "system-save-controls"},
        {"QExtendedFileDialog, customized", &customizeQtDialog},
        {"ExtendedWinFileDialog, customized", &customizeNativeDialog, "system-open-controls"},
        {"ExtendedWinFileDialog-accept", &acceptName, "system-save-accept"},
        {"LaunchFileDialog-qt", [](QWidget&) { launch(false); }},
        {"LaunchFileDialog-native", [](QWidget&) { launch(true); }, "system-open"},
        {"SaveFileDialog-qt", [](QWidget&) { cancelSaveFlow(false); }},
        {"SaveFileDialog-native", cancelSameSaveFlow(), "system-save-again"},
        // The save flow keeps its native dialog on purpose, so it may grow by this much each time, but no more.
        {"ExtendedWinFileDialog-kept", &cancelAndKeep, nullptr, true},
        {"SaveFileDialog-native-new", [](QWidget&) { cancelSaveFlow(true); }, "ExtendedWinFileDialog-kept"},
    };
}

} // namespace morvane::test
