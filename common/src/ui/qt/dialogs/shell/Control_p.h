// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace morvane::ui {

/** One item of the accept button's drop-down, of a combo box or of a list of radio buttons. */
struct ControlItem
{
    DWORD id;
    QString label;
    CDCONTROLSTATEF state = CDCS_ENABLEDVISIBLE;

    bool operator==(const ControlItem& other) const
    {
        return id == other.id && label == other.label && state == other.state;
    }
};

/** One custom control of the dialog, shown or not. */
struct Control
{
    enum class Kind
    {
        PushButton,
        CheckButton,
        AcceptDropDown,
        ComboBox,
        RadioButtonList,
        EditBox,
        Text,
        Separator,
        VisualGroup
    };

    DWORD id;
    Kind kind;
    QString label; ///< of an edit box: the text in it
    CDCONTROLSTATEF state = CDCS_ENABLEDVISIBLE;
    bool checked = false;
    bool prominent = false;
    std::vector<ControlItem> items{};
    std::optional<DWORD> selectedItem{};
    std::optional<DWORD> group{}; ///< the visual group that contains the control

    /** The item that a click on the accept button chooses: the first visible and enabled one. Null if there is none. */
    const ControlItem* firstChoice() const;
    bool isEnabled() const { return (state & CDCS_ENABLED) != 0; }
    bool isVisible() const { return (state & CDCS_VISIBLE) != 0; }
    bool hasItems() const { return kind == Kind::AcceptDropDown || isList(); }
    /** Whether the control shows a list in which one item is selected. */
    bool isList() const { return kind == Kind::ComboBox || kind == Kind::RadioButtonList; }
    /** Whether a text before the control is its label. */
    bool takesLabel() const { return isList() || kind == Kind::EditBox; }
};

/** Called when the user uses a control, and for the accept button. */
struct ControlActions
{
    std::function<void(DWORD control)> clicked;
    std::function<void(DWORD control, bool checked)> toggled;
    /** The user has picked an item of the accept button's drop-down. Returns whether the dialog has ended. */
    std::function<bool(DWORD control, DWORD item)> itemPicked;
    std::function<void(DWORD control)> activating; ///< the drop-down is about to open
    /** The user has selected another item of a combo box or of a list of radio buttons. */
    std::function<void(DWORD control, DWORD item)> itemSelected;
    std::function<void(DWORD control, const QString& text)> edited; ///< the text of an edit box has changed
    /** The text that the accept button has to show; empty: its own. */
    std::function<void(const QString& text)> optionTextChanged;
};

} // namespace morvane::ui
