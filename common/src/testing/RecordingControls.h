#pragma once

#include "testing/RecordingShell.h"

namespace morvane::test {

/**
 * The custom controls of a RecordingDialog; shares its identity and reference count.
 *
 * Labels are compared with what the host has given, mnemonics included: "&Help".
 *
 * @snippet testing/RecordingShellTest.cpp controls
 */
class RecordingControls : public IFileDialogCustomize
{
public:
    /** @cond made by the dialog */
    explicit RecordingControls(RecordingShell& shell);
    virtual ~RecordingControls();
    /** @endcond */

    // These calls are not recorded.
    /** The button or check box with this label; empty when there is none. */
    std::optional<DWORD> idOf(const QString& label) const;
    /** The control and the item with this label in it; empty when there is none. */
    std::optional<std::pair<DWORD, DWORD>> itemOf(const QString& label) const;
    /** The bits of CDCONTROLSTATEF of a control or an item; -1 when it is not there. */
    int state(DWORD control) const;
    /** @copydoc state() */
    int itemState(DWORD control, DWORD item) const;
    /** False, too, when it is not there. */
    bool isCheckBox(DWORD control) const;
    /** Whether its tick is set; false, too, when it is not there or no check box. */
    bool isChecked(DWORD control) const;

    // What the dialog does for its user.
    /** Flips a check button, which must be there; its new state. */
    bool toggle(DWORD control);
    /** Makes the item of the control's menu the chosen one. Both must be there. */
    void pick(DWORD control, DWORD item);
    /** Forgets every pick(). */
    void forgetPick();

    /** @cond what the library calls */
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
