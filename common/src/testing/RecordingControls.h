// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "testing/RecordingShell.h"

namespace morvane::test {

/**
 * The custom controls of a RecordingDialog. The object shares the identity and the reference count of the dialog.
 *
 * Labels are the exact texts that the host passed, including mnemonics: "&Help".
 *
 * @snippet testing/RecordingShellTest.cpp controls
 */
class RecordingControls : public IFileDialogCustomize
{
public:
    /** @cond created by the dialog */
    explicit RecordingControls(RecordingShell& shell);
    virtual ~RecordingControls();
    /** @endcond */

    // These functions are not recorded.
    /** The button or check box with this label; empty if there is none. */
    std::optional<DWORD> idOf(const QString& label) const;
    /** The item with this label and the control that contains it (control first); empty if there is none. */
    std::optional<std::pair<DWORD, DWORD>> itemOf(const QString& label) const;
    /** The bits of CDCONTROLSTATEF of a control or an item; -1 if it does not exist. */
    int state(DWORD control) const;
    /** @copydoc state() */
    int itemState(DWORD control, DWORD item) const;
    /** Whether the control is a check box; false also if it does not exist. */
    bool isCheckBox(DWORD control) const;
    /** Whether the check box is checked; false also if it does not exist or is not a check box. */
    bool isChecked(DWORD control) const;

    // What the dialog does for the user.
    /** Toggles a check box, which must exist, and returns its new state. */
    bool toggle(DWORD control);
    /** Selects an item of the control's menu. Control and item must exist. */
    void pick(DWORD control, DWORD item);
    /** Clears every selection made with pick(). */
    void forgetPick();

    /** @cond called by the library */
    HRESULT STDMETHODCALLTYPE EnableOpenDropDown(DWORD control) override;
    HRESULT STDMETHODCALLTYPE AddMenu(DWORD control, LPCWSTR label) override;
    HRESULT STDMETHODCALLTYPE AddPushButton(DWORD control, LPCWSTR label) override;
    HRESULT STDMETHODCALLTYPE AddComboBox(DWORD control) override;
    HRESULT STDMETHODCALLTYPE AddRadioButtonList(DWORD control) override;
    HRESULT STDMETHODCALLTYPE AddCheckButton(DWORD control, LPCWSTR label, BOOL checked) override;
    HRESULT STDMETHODCALLTYPE AddEditBox(DWORD control, LPCWSTR text) override;
    HRESULT STDMETHODCALLTYPE AddSeparator(DWORD control) override;
    HRESULT STDMETHODCALLTYPE AddText(DWORD control, LPCWSTR text) override;
    HRESULT STDMETHODCALLTYPE SetControlLabel(DWORD control, LPCWSTR label) override;
    HRESULT STDMETHODCALLTYPE GetControlState(DWORD control, CDCONTROLSTATEF* state) override;
    HRESULT STDMETHODCALLTYPE SetControlState(DWORD control, CDCONTROLSTATEF state) override;
    HRESULT STDMETHODCALLTYPE GetEditBoxText(DWORD control, WCHAR** text) override;
    HRESULT STDMETHODCALLTYPE SetEditBoxText(DWORD control, LPCWSTR text) override;
    HRESULT STDMETHODCALLTYPE GetCheckButtonState(DWORD control, BOOL* checked) override;
    HRESULT STDMETHODCALLTYPE SetCheckButtonState(DWORD control, BOOL checked) override;
    HRESULT STDMETHODCALLTYPE AddControlItem(DWORD control, DWORD item, LPCWSTR label) override;
    HRESULT STDMETHODCALLTYPE RemoveControlItem(DWORD control, DWORD item) override;
    HRESULT STDMETHODCALLTYPE RemoveAllControlItems(DWORD control) override;
    HRESULT STDMETHODCALLTYPE GetControlItemState(DWORD control, DWORD item, CDCONTROLSTATEF* state) override;
    HRESULT STDMETHODCALLTYPE SetControlItemState(DWORD control, DWORD item, CDCONTROLSTATEF state) override;
    HRESULT STDMETHODCALLTYPE GetSelectedControlItem(DWORD control, DWORD* item) override;
    HRESULT STDMETHODCALLTYPE SetSelectedControlItem(DWORD control, DWORD item) override;
    HRESULT STDMETHODCALLTYPE StartVisualGroup(DWORD control, LPCWSTR label) override;
    HRESULT STDMETHODCALLTYPE EndVisualGroup() override;
    HRESULT STDMETHODCALLTYPE MakeProminent(DWORD control) override;
    HRESULT STDMETHODCALLTYPE SetControlItemText(DWORD control, DWORD item, LPCWSTR label) override;
    /** @endcond */

private:
    struct Item
    {
        DWORD id;
        QString label;
        CDCONTROLSTATEF state;
    };
    struct Recorded
    {
        QString label{};
        CDCONTROLSTATEF state = CDCS_ENABLEDVISIBLE;
        bool checkButton = false;
        bool dropDown = false;
        bool checked = false;
        std::vector<Item> items{};
        std::optional<DWORD> picked{};
    };

    std::optional<HRESULT> record(const char* method, const std::string& arguments = std::string());
    HRESULT add(DWORD id, const Recorded& control);
    Recorded* find(DWORD id);
    Item* findItem(DWORD id, DWORD item);

    RecordingShell& m_shell;
    std::map<DWORD, Recorded> m_controls;
};

} // namespace morvane::test
