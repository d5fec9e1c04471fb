// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace morvane::ui {

/** One item of the accept button's drop-down. */
struct ControlItem
{
    DWORD id;
    QString label;
    CDCONTROLSTATEF state = CDCS_ENABLEDVISIBLE;
};

/** One custom control of the dialog, shown or not. */
struct Control
{
    enum class Kind
    {
        PushButton,
        CheckButton,
        AcceptDropDown
    };

    DWORD id;
    Kind kind;
    QString label;
    CDCONTROLSTATEF state = CDCS_ENABLEDVISIBLE;
    bool checked = false;
    bool prominent = false;
    std::vector<ControlItem> items{};
    std::optional<DWORD> selectedItem{};

    /** The item that a click on the accept button chooses: the first visible and enabled one. Null if there is none. */
    const ControlItem* firstChoice() const;
    bool isEnabled() const { return (state & CDCS_ENABLED) != 0; }
    bool isVisible() const { return (state & CDCS_VISIBLE) != 0; }
};

/** Called when the user uses a control. */
struct ControlActions
{
    std::function<void(DWORD control)> clicked;
    std::function<void(DWORD control, bool checked)> toggled;
    /** The user has picked an item of the accept button's drop-down. Returns whether the dialog has ended. */
    std::function<bool(DWORD control, DWORD item)> itemPicked;
    std::function<void(DWORD control)> activating; ///< the drop-down is about to open
};

} // namespace morvane::ui
