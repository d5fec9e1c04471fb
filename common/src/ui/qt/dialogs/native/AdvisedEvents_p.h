// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/native/NativeDialogEvents_p.h"
#include "ui/qt/dialogs/shell/ComObject_p.h"
#include "ui/qt/dialogs/shell/ComPtr.h"

namespace morvane::ui {

/** Creates an event handler and advises it. The destructor detaches the observer and unadvises the handler. */
class AdvisedEvents
{
public:
    AdvisedEvents(Shell& shell, IFileDialog& dialog, NativeDialogObserver& observer);
    ~AdvisedEvents();
    AdvisedEvents(const AdvisedEvents&) = delete;
    AdvisedEvents& operator=(const AdvisedEvents&) = delete;

private:
    IFileDialog& m_dialog;
    ComPtr<ComObject<NativeDialogEvents>> m_handler;
    DWORD m_cookie = 0;
};

} // namespace morvane::ui
