// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include "ui/qt/dialogs/shell/ComSupport_p.h"
#include "ui/qt/dialogs/shell/ShellText_p.h"
#include "ui/qt/dialogs/shell/WidgetFileDialog_p.h"
#include "ui/qt/dialogs/shell/WidgetShellItem_p.h"

#include <QFileInfo>

namespace morvane::ui {

namespace {

struct Apartment
{
    int joined = 0;
    bool singleThreaded = false;
};

thread_local Apartment apartment;

HRESULT handOver(ComPtr<IUnknown> made, REFIID iid, void** object)
{
    return made->QueryInterface(iid, object);
}

} // namespace

WidgetShell::WidgetShell(Appearance appearance) : m_appearance(appearance) {}

WidgetShell::~WidgetShell() = default;

HRESULT WidgetShell::coInitializeEx(void* reserved, DWORD flags)
{
    if (reserved) {
        return E_INVALIDARG;
    }
    const bool singleThreaded = (flags & COINIT_APARTMENTTHREADED) != 0;
    if (apartment.joined > 0 && apartment.singleThreaded != singleThreaded) {
        return RPC_E_CHANGED_MODE;
    }
    apartment.singleThreaded = singleThreaded;
    return apartment.joined++ == 0 ? S_OK : S_FALSE;
}

void WidgetShell::coUninitialize()
{
    if (apartment.joined > 0) {
        --apartment.joined;
    }
}

HRESULT WidgetShell::coCreateInstance(REFCLSID clsid, IUnknown* outer, DWORD, REFIID iid, void** object)
{
    if (!object) {
        return E_POINTER;
    }
    *object = nullptr;
    const bool saving = clsid == CLSID_FileSaveDialog;
    if (!saving && clsid != CLSID_FileOpenDialog) {
        return REGDB_E_CLASSNOTREG;
    }
    if (outer) {
        return CLASS_E_NOAGGREGATION;
    }
    const bool alwaysWidgets = m_appearance == Appearance::AlwaysWidgets;
    return handOver(ComPtr<IUnknown>(makeWidgetFileDialog(saving, alwaysWidgets)), iid, object);
}

void WidgetShell::coTaskMemFree(void* memory)
{
    freeTaskMemory(memory);
}

HRESULT WidgetShell::createItemFromParsingName(PCWSTR path, IBindCtx*, REFIID iid, void** object)
{
    if (!object) {
        return E_POINTER;
    }
    *object = nullptr;
    const QString name = toQString(path);
    if (name.isEmpty()) {
        return E_INVALIDARG;
    }
    const QString found = pathOfParsingName(name);
    if (!QFileInfo::exists(found)) {
        return HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND);
    }
    return handOver(ComPtr<IUnknown>(makeShellItem(found).detach()), iid, object);
}

HRESULT WidgetShell::qiSearch(void* that, const QITAB* table, REFIID iid, void** object)
{
    return searchInterfaces(that, table, iid, object);
}

} // namespace morvane::ui
