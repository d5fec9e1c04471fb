// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"

namespace morvane::ui {

/** Handles the events of a running dialog. @p dialog is the dialog that the Shell passes with the event. */
class NativeDialogObserver
{
public:
    virtual ~NativeDialogObserver() = default;

    /** The user has accepted. Returns whether the host agrees. The dialog may still refuse the choice. */
    virtual bool onAccepting(IFileDialog& dialog) = 0;
    virtual void onFolderChanged(IFileDialog& dialog) = 0;
    virtual void onTypeChanged(IFileDialog& dialog) = 0;
    virtual void onButtonClicked(DWORD control) = 0;
    virtual void onCheckButtonToggled(DWORD control, BOOL checked) = 0;
    virtual void onItemSelected(DWORD control, DWORD item) = 0;
};

} // namespace morvane::ui
