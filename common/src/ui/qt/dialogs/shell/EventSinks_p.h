#pragma once

#include "ui/qt/dialogs/shell/ComPtr.h"

#include <functional>
#include <map>

namespace morvane::ui {

/**
 * The advised event sinks of one dialog, in the order of their cookies. Sinks may be advised and unadvised during a
 * notification: one that was unadvised is not called any more, a new one is called from the next notification on.
 */
class EventSinks
{
public:
    HRESULT advise(IFileDialogEvents* sink, DWORD* cookie);
    HRESULT unadvise(DWORD cookie);

    /**
     * Calls every sink until one answers neither S_OK nor E_NOTIMPL.
     * @return that answer, S_OK when there was none
     */
    HRESULT notify(const std::function<HRESULT(IFileDialogEvents&)>& call);
    /** The same for the sinks that have the interface for controls. */
    HRESULT notifyControls(const std::function<HRESULT(IFileDialogControlEvents&)>& call);

private:
    std::map<DWORD, ComPtr<IFileDialogEvents>> m_sinks;
    DWORD m_lastCookie = 0;
};

} // namespace morvane::ui
