// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "soak/DialogAnswer.h"
#include "soak/Platform.h"
#include "ui/qt/dialogs/shell/Shell.h"
#include "windows/NativeDialog.h"

#include <QWidget>

#include <shobjidl.h>

namespace morvane::test {

namespace {

/** Long enough for Qt to use a window timer; for shorter intervals, it uses threads and events of the system. */
constexpr int pollMs = 20;
constexpr DWORD buttonId = 1;
constexpr DWORD menuId = 2;
constexpr DWORD entryId = 3;

/** The calls that the library makes too, but by hand. */
class SystemDialog
{
public:
    SystemDialog(const CLSID& kind, bool controls)
    {
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
        CoCreateInstance(kind, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog, reinterpret_cast<void**>(&m_dialog));
        if (!m_dialog) {
            qFatal("the system has no file dialog");
        }
        if (controls) {
            addControls();
        }
        m_dialog->SetTitle(L"System");
        const COMDLG_FILTERSPEC types[] = {{L"Data", L"*.dat"}, {L"All", L"*"}};
        m_dialog->SetFileTypes(2, types);
    }
    ~SystemDialog()
    {
        CoUninitialize();
        m_dialog->Release();
    }
    SystemDialog(const SystemDialog&) = delete;
    SystemDialog& operator=(const SystemDialog&) = delete;

    void cancel(const QWidget& parent)
    {
        const DialogAnswer answer(&cancelNativeDialog, pollMs);
        m_dialog->Show(reinterpret_cast<HWND>(parent.winId()));
    }

    void accept(const QWidget& parent)
    {
        m_dialog->SetFileName(L"report");
        const DialogAnswer answer(&acceptNativeDialog, pollMs);
        m_dialog->Show(reinterpret_cast<HWND>(parent.winId()));
        readResult();
    }

private:
    void addControls()
    {
        IFileDialogCustomize* customize = nullptr;
        m_dialog->QueryInterface(IID_IFileDialogCustomize, reinterpret_cast<void**>(&customize));
        customize->EnableOpenDropDown(menuId);
        customize->AddPushButton(buttonId, L"Button");
        customize->AddControlItem(menuId, entryId, L"Option");
        customize->Release();
    }

    void readResult()
    {
        IShellItem* item = nullptr;
        if (FAILED(m_dialog->GetResult(&item))) {
            qFatal("the system's dialog has no result");
        }
        LPWSTR path = nullptr;
        item->GetDisplayName(SIGDN_FILESYSPATH, &path);
        CoTaskMemFree(path);
        item->Release();
    }

    IFileDialog* m_dialog = nullptr;
};

std::function<void(QWidget&)> cancelNew(const CLSID& kind, bool controls)
{
    return [&kind, controls](const QWidget& parent) { SystemDialog(kind, controls).cancel(parent); };
}

} // namespace

std::unique_ptr<ui::Shell> nativeShell()
{
    return nullptr;
}

bool cancelNativeDialog()
{
    const HWND window = NativeDialog::waitForWindow(0);
    if (window) {
        NativeDialog(window).cancel();
    }
    return window != nullptr;
}

bool acceptNativeDialog()
{
    const HWND window = NativeDialog::waitForWindow(0);
    if (window) {
        NativeDialog(window).accept();
    }
    return window != nullptr;
}

int nativeDialogInterval()
{
    return pollMs;
}

std::vector<Subject> systemSubjects()
{
    return {
        {"system-open", cancelNew(CLSID_FileOpenDialog, false), nullptr, true},
        {"system-open-controls", cancelNew(CLSID_FileOpenDialog, true), nullptr, true},
        {"system-save-controls", cancelNew(CLSID_FileSaveDialog, true), nullptr, true},
        {"system-save-accept", [](const QWidget& parent) { SystemDialog(CLSID_FileSaveDialog, false).accept(parent); },
            nullptr, true},
        {"system-save-again",
            [dialog = std::make_shared<SystemDialog>(CLSID_FileSaveDialog, false)](
                const QWidget& parent) { dialog->cancel(parent); },
            nullptr, true},
    };
}

} // namespace morvane::test
