// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "testing/RecordingShell.h"

namespace morvane::test {

/**
 * The custom controls of a RecordingDialog. The object shares the identity and the reference count of the dialog.
 *
 * Labels are the exact texts that the host passed, including mnemonics: "&Help". The label of a list or an edit box is
 * the text directly before it, or the heading of the group that has only this control.
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
    /** The combo box or list of radio buttons with this label; empty if there is none. */
    std::optional<DWORD> listOf(const QString& label) const;
    /** The edit box with this label; empty if there is none. */
    std::optional<DWORD> editBoxOf(const QString& label) const;
    /** The items of a list, in order, as pairs of identifier and label; empty if the control has none. */
    std::vector<std::pair<DWORD, QString>> itemsOf(DWORD control) const;
    /** The item that is selected in a list; empty if none is. */
    std::optional<DWORD> selectedIn(DWORD control) const;
    /** What stands in an edit box, a text, or the heading of a group; empty also if the control does not exist. */
    QString textOf(DWORD control) const;
    /** The item of the accept button's menu with this label and the control that contains it (control first); empty if
     * there is none. */
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
    /** Selects an item of a menu or of a list. Control and item must exist. */
    void pick(DWORD control, DWORD item);
    /** Replaces the text in an edit box, which must exist. */
    void type(DWORD control, const QString& text);
    /** Clears every selection made with pick() in a menu. */
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
    enum class Kind
    {
        PushButton,
        CheckButton,
        DropDown,
        List,
        EditBox,
        Text,
        Separator,
        Group
    };
    struct Recorded
    {
        Kind kind = Kind::PushButton;
        QString label{}; // of an edit box: the text in it
        CDCONTROLSTATEF state = CDCS_ENABLEDVISIBLE;
        std::optional<DWORD> group{};
        std::optional<DWORD> before{}; // the control that was added before it
        bool checked = false;
        std::vector<Item> items{};
        std::optional<DWORD> picked{};
    };

    std::optional<HRESULT> record(const char* method, const std::string& arguments = std::string());
    HRESULT add(DWORD id, Kind kind, LPCWSTR label = nullptr);
    Recorded* find(DWORD id);
    const Recorded* find(DWORD id) const;
    Recorded* find(DWORD id, Kind kind);
    Recorded* findWithItems(DWORD id);
    Item* findItem(DWORD id, DWORD item);
    QString labelOf(DWORD id) const;
    std::optional<DWORD> labelled(const QString& label, Kind kind) const;

    RecordingShell& m_shell;
    std::optional<DWORD> m_last; // the control that was added last
    std::optional<DWORD> m_openGroup;
    std::map<DWORD, Recorded> m_controls;
};

} // namespace morvane::test
