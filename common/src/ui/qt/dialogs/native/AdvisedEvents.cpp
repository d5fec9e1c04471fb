// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/native/AdvisedEvents_p.h"

namespace morvane::ui {

AdvisedEvents::AdvisedEvents(Shell& shell, IFileDialog& dialog, NativeDialogObserver& observer)
    : m_dialog(dialog), m_handler(new ComObject<NativeDialogEvents>(shell, observer))
{
    if (!m_handler.query<IFileDialogEvents>()) {
        m_handler.reset();
        return;
    }
    m_dialog.Advise(m_handler.get(), &m_cookie);
}

AdvisedEvents::~AdvisedEvents()
{
    if (m_handler) {
        m_handler->detach();
        m_dialog.Unadvise(m_cookie);
    }
}

} // namespace morvane::ui
