// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/DialogWarning_p.h"

#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/ShellText_p.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>

namespace morvane::ui {

namespace {

#ifdef _WIN32

/** Null if the dialog is none of the system's. */
HWND systemWindowOf(IFileDialog& dialog)
{
    IOleWindow* found = nullptr;
    HWND window = nullptr;
    if (SUCCEEDED(dialog.QueryInterface(IID_IOleWindow, reinterpret_cast<void**>(&found))) && found) {
        const ComPtr<IOleWindow> owned(found);
        owned->GetWindow(&window);
    }
    return window;
}

/** Qt cannot put a message box above a window that is not Qt's. */
bool showAboveSystemDialog(IFileDialog& dialog, const QString& title, const QString& text)
{
    const HWND window = systemWindowOf(dialog);
    if (window) {
        MessageBoxW(window, toShellString(text).c_str(), toShellString(title).c_str(), MB_OK | MB_ICONWARNING);
    }
    return window != nullptr;
}

#else

bool showAboveSystemDialog(IFileDialog&, const QString&, const QString&)
{
    return false;
}

#endif

} // namespace

QString refusalText(const std::string& reason)
{
    return reason.empty() ? QCoreApplication::translate("ExtendedWinFileDialog", "This choice is not accepted.")
                          : QString::fromStdString(reason);
}

void showWarning(QWidget* above, const QString& title, const QString& text)
{
    const QPointer<QMessageBox> box(new QMessageBox(QMessageBox::Warning, title, text, QMessageBox::Ok, above));
    box->setTextFormat(Qt::PlainText);
    box->exec();
    delete box;
}

void showDialogWarning(IFileDialog& dialog, QWidget* parent, const QString& title, const QString& text)
{
    if (!showAboveSystemDialog(dialog, title, text)) {
        QWidget* const shown = QApplication::activeModalWidget();
        showWarning(shown ? shown : parent, title, text);
    }
}

} // namespace morvane::ui
