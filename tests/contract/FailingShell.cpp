// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "contract/FailingShell.h"

#include "contract/FailingObjects.h"

namespace morvane::test {

void ShellFaults::start(const std::string& failing, int before)
{
    m_failing = failing;
    m_before = before;
    m_calls.clear();
    m_failed.clear();
}

bool ShellFaults::isHit(const std::string& name)
{
    m_calls.push_back(name);
    if (name != m_failing || m_before-- != 0) {
        return false;
    }
    m_failed = name;
    return true;
}

FailingShell::FailingShell(ui::Shell& target, Show show) : m_target(target), m_show(std::move(show)) {}

HRESULT FailingShell::coInitializeEx(void* reserved, DWORD flags)
{
    // The thread always joins, because the library leaves the apartment even when joining seems to have failed.
    const HRESULT joined = m_target.coInitializeEx(reserved, flags);
    const HRESULT result = faults.isHit("CoInitializeEx") ? E_FAIL : joined;
    faults.apartments += SUCCEEDED(joined) ? 1 : 0;
    return result;
}

void FailingShell::coUninitialize()
{
    --faults.apartments;
    m_target.coUninitialize();
}

HRESULT FailingShell::coCreateInstance(REFCLSID clsid, IUnknown* outer, DWORD context, REFIID iid, void** object)
{
    *object = nullptr;
    if (faults.isHit("CoCreateInstance")) {
        return E_FAIL;
    }
    ui::ComPtr<IFileDialog> made;
    const HRESULT result = m_target.coCreateInstance(clsid, outer, context, IID_IFileDialog, made.putVoid());
    if (FAILED(result)) {
        return result;
    }
    const ui::ComPtr<IFileDialog> standin = makeFailingDialog(faults, m_show, std::move(made));
    return standin->QueryInterface(iid, object);
}

void FailingShell::coTaskMemFree(void* memory)
{
    faults.liveStrings -= memory ? 1 : 0;
    m_target.coTaskMemFree(memory);
}

HRESULT FailingShell::createItemFromParsingName(PCWSTR path, IBindCtx* context, REFIID iid, void** object)
{
    *object = nullptr;
    if (faults.isHit("SHCreateItemFromParsingName")) {
        return E_FAIL;
    }
    ui::ComPtr<IShellItem> item;
    const HRESULT result = m_target.createItemFromParsingName(path, context, IID_IShellItem, item.putVoid());
    if (FAILED(result)) {
        return result;
    }
    const ui::ComPtr<IShellItem> standin(new ui::ComObject<FailingItem>(faults, std::move(item)));
    return standin->QueryInterface(iid, object);
}

HRESULT FailingShell::qiSearch(void* that, const QITAB* table, REFIID iid, void** object)
{
    *object = nullptr;
    return faults.isHit("QISearch") ? E_FAIL : m_target.qiSearch(that, table, iid, object);
}

} // namespace morvane::test
