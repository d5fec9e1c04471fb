#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"

namespace morvane::ui {

/** Reacts to the events of a running dialog. @p dialog is the one that the Shell names in the event. */
class NativeDialogObserver
{
public:
    virtual ~NativeDialogObserver() = default;

    /** The user has accepted; the dialog may still refuse. */
    virtual void onAccepting(IFileDialog& dialog) = 0;
    virtual void onFolderChanged(IFileDialog& dialog) = 0;
    virtual void onTypeChanged(IFileDialog& dialog) = 0;
    virtual void onButtonClicked(DWORD control) = 0;
    virtual void onCheckButtonToggled(DWORD control, BOOL checked) = 0;
};

} // namespace morvane::ui
