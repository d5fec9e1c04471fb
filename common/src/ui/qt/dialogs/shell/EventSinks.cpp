#include "ui/qt/dialogs/shell/EventSinks_p.h"

#include <vector>

namespace morvane::ui {

HRESULT EventSinks::advise(IFileDialogEvents* sink, DWORD* cookie)
{
    if (!sink || !cookie) {
        return E_INVALIDARG;
    }
    *cookie = ++m_lastCookie;
    m_sinks.emplace(m_lastCookie, ComPtr<IFileDialogEvents>::share(sink));
    return S_OK;
}

HRESULT EventSinks::unadvise(DWORD cookie)
{
    const auto found = m_sinks.find(cookie);
    if (found == m_sinks.end()) {
        return E_INVALIDARG;
    }
    // Released only after it has left the map: its last release may call back.
    const ComPtr<IFileDialogEvents> sink = std::move(found->second);
    m_sinks.erase(found);
    return S_OK;
}

HRESULT EventSinks::notify(const std::function<HRESULT(IFileDialogEvents&)>& call)
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

HRESULT EventSinks::notifyControls(const std::function<HRESULT(IFileDialogControlEvents&)>& call)
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
