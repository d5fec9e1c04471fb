// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ComPtr.h"

#include <functional>
#include <map>
#include <utility>
#include <vector>

namespace morvane::ui {

/**
 * The advised event sinks of one dialog, in the order of their cookies. Sinks may be advised and unadvised during a
 * notification. An unadvised sink is not called any more. A new sink is called from the next notification on.
 */
class EventSinks
{
public:
    HRESULT advise(IFileDialogEvents* sink, DWORD* cookie);
    HRESULT unadvise(DWORD cookie);

    /**
     * Calls the sinks until one of them returns neither S_OK nor E_NOTIMPL.
     * @return the result of that sink, or S_OK if there was none
     */
    HRESULT notify(const std::function<HRESULT(IFileDialogEvents&)>& call);
    /** Does the same for the sinks that have the interface for controls. */
    HRESULT notifyControls(const std::function<HRESULT(IFileDialogControlEvents&)>& call);

private:
    std::map<DWORD, ComPtr<IFileDialogEvents>> m_sinks;
    DWORD m_lastCookie = 0;
};

inline HRESULT EventSinks::advise(IFileDialogEvents* sink, DWORD* cookie)
{
    if (!sink || !cookie) {
        return E_INVALIDARG;
    }
    *cookie = ++m_lastCookie;
    m_sinks.emplace(m_lastCookie, ComPtr<IFileDialogEvents>::share(sink));
    return S_OK;
}

inline HRESULT EventSinks::unadvise(DWORD cookie)
{
    const auto found = m_sinks.find(cookie);
    if (found == m_sinks.end()) {
        return E_INVALIDARG;
    }
    // The sink is released after it was removed from the map, because its last release may call this object.
    const ComPtr<IFileDialogEvents> sink = std::move(found->second);
    m_sinks.erase(found);
    return S_OK;
}

inline HRESULT EventSinks::notify(const std::function<HRESULT(IFileDialogEvents&)>& call)
{
    std::vector<DWORD> cookies;
    for (const auto& entry : m_sinks) {
        cookies.push_back(entry.first);
    }
    for (const DWORD cookie : cookies) {
        const auto found = m_sinks.find(cookie);
        if (found == m_sinks.end()) {
            continue;
        }
        const auto sink = ComPtr<IFileDialogEvents>::share(found->second.get());
        const HRESULT result = call(*sink);
        if (result != S_OK && result != E_NOTIMPL) {
            return result;
        }
    }
    return S_OK;
}

inline HRESULT EventSinks::notifyControls(const std::function<HRESULT(IFileDialogControlEvents&)>& call)
{
    return notify([&call](IFileDialogEvents& sink) {
        ComPtr<IFileDialogControlEvents> controls;
        if (FAILED(sink.QueryInterface(IID_IFileDialogControlEvents, controls.putVoid()))) {
            controls.detach();
            return S_OK;
        }
        return call(*controls);
    });
}

} // namespace morvane::ui
