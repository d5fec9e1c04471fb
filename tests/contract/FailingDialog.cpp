// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "contract/FailingObjects.h"

namespace morvane::test {

namespace {

/** Passes events on to the library's sink, with the failing dialog in place of the Shell's dialog. */
class FailingSink : public LiveObject<IFileDialogEvents, IFileDialogControlEvents>
{
public:
    FailingSink(ShellFaults& faults, IFileDialog& dialog, IFileDialogCustomize& customize, IFileDialogEvents& target)
        : LiveObject(faults),
          m_dialog(dialog),
          m_customize(customize),
          m_target(ui::ComPtr<IFileDialogEvents>::share(&target)),
          m_controlTarget(m_target.query<IFileDialogControlEvents>())
    {
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override
    {
        const QITAB table[] = {ui::interfaceRow<IFileDialogEvents, FailingSink>(),
            m_controlTarget ? ui::interfaceRow<IFileDialogControlEvents, FailingSink>() : QITAB{}, QITAB{}};
        return ui::searchInterfaces(this, table, riid, object);
    }

    HRESULT STDMETHODCALLTYPE OnFileOk(IFileDialog*) override { return m_target->OnFileOk(&m_dialog); }
    HRESULT STDMETHODCALLTYPE OnFolderChanging(IFileDialog*, IShellItem* folder) override
    {
        return m_target->OnFolderChanging(&m_dialog, folder);
    }
    HRESULT STDMETHODCALLTYPE OnFolderChange(IFileDialog*) override { return m_target->OnFolderChange(&m_dialog); }
    HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog*) override
    {
        return m_target->OnSelectionChange(&m_dialog);
    }
    HRESULT STDMETHODCALLTYPE OnShareViolation(
        IFileDialog*, IShellItem* item, FDE_SHAREVIOLATION_RESPONSE* response) override
    {
        return m_target->OnShareViolation(&m_dialog, item, response);
    }
    HRESULT STDMETHODCALLTYPE OnTypeChange(IFileDialog*) override { return m_target->OnTypeChange(&m_dialog); }
    HRESULT STDMETHODCALLTYPE OnOverwrite(IFileDialog*, IShellItem* item, FDE_OVERWRITE_RESPONSE* response) override
    {
        return m_target->OnOverwrite(&m_dialog, item, response);
    }
    HRESULT STDMETHODCALLTYPE OnItemSelected(IFileDialogCustomize*, DWORD control, DWORD item) override
    {
        return m_controlTarget->OnItemSelected(&m_customize, control, item);
    }
    HRESULT STDMETHODCALLTYPE OnButtonClicked(IFileDialogCustomize*, DWORD control) override
    {
        return m_controlTarget->OnButtonClicked(&m_customize, control);
    }
    HRESULT STDMETHODCALLTYPE OnCheckButtonToggled(IFileDialogCustomize*, DWORD control, BOOL checked) override
    {
        return m_controlTarget->OnCheckButtonToggled(&m_customize, control, checked);
    }
    HRESULT STDMETHODCALLTYPE OnControlActivating(IFileDialogCustomize*, DWORD control) override
    {
        return m_controlTarget->OnControlActivating(&m_customize, control);
    }

private:
    IFileDialog& m_dialog;
    IFileDialogCustomize& m_customize;
    const ui::ComPtr<IFileDialogEvents> m_target;
    const ui::ComPtr<IFileDialogControlEvents> m_controlTarget;
};

/** The methods of a dialog and of its controls. Instances are made as ComObject. */
template <typename Kind>
class FailingDialog : public FailingObject<Kind>, public IFileDialogCustomize
{
public:
    FailingDialog(ShellFaults& faults, FailingShell::Show show, ui::ComPtr<Kind> dialog)
        : FailingObject<Kind>(faults, std::move(dialog)),
          m_show(std::move(show)),
          m_customize(this->m_target.template query<IFileDialogCustomize>())
    {
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override
    {
        return FailingObject<Kind>::QueryInterface(riid, object);
    }

    HRESULT STDMETHODCALLTYPE Show(HWND) override
    {
        return pass("Show", [&](Kind& dialog) { return m_show(dialog); });
    }
    HRESULT STDMETHODCALLTYPE SetFileTypes(UINT count, const COMDLG_FILTERSPEC* types) override
    {
        return pass("SetFileTypes", [&](Kind& dialog) { return dialog.SetFileTypes(count, types); });
    }
    HRESULT STDMETHODCALLTYPE SetFileTypeIndex(UINT index) override
    {
        return pass("SetFileTypeIndex", [&](Kind& dialog) { return dialog.SetFileTypeIndex(index); });
    }
    HRESULT STDMETHODCALLTYPE GetFileTypeIndex(UINT* index) override
    {
        return pass("GetFileTypeIndex", [&](Kind& dialog) { return dialog.GetFileTypeIndex(index); });
    }
    HRESULT STDMETHODCALLTYPE Advise(IFileDialogEvents* sink, DWORD* cookie) override
    {
        return pass("Advise", [&](Kind& dialog) {
            const ui::ComPtr<IFileDialogEvents> standin(
                new ui::ComObject<FailingSink>(this->m_faults, *this, *this, *sink));
            return dialog.Advise(standin.get(), cookie);
        });
    }
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override
    {
        return pass("Unadvise", [&](Kind& dialog) { return dialog.Unadvise(cookie); });
    }
    HRESULT STDMETHODCALLTYPE SetOptions(FILEOPENDIALOGOPTIONS options) override
    {
        return pass("SetOptions", [&](Kind& dialog) { return dialog.SetOptions(options); });
    }
    HRESULT STDMETHODCALLTYPE GetOptions(FILEOPENDIALOGOPTIONS* options) override
    {
        return pass("GetOptions", [&](Kind& dialog) { return dialog.GetOptions(options); });
    }
    HRESULT STDMETHODCALLTYPE SetDefaultFolder(IShellItem* folder) override
    {
        return pass(
            "SetDefaultFolder", [&](Kind& dialog) { return dialog.SetDefaultFolder(FailingItem::unwrapped(folder)); });
    }
    HRESULT STDMETHODCALLTYPE SetFolder(IShellItem* folder) override
    {
        return pass("SetFolder", [&](Kind& dialog) { return dialog.SetFolder(FailingItem::unwrapped(folder)); });
    }
    HRESULT STDMETHODCALLTYPE GetFolder(IShellItem** folder) override
    {
        return passForItem("GetFolder", folder, [&](IShellItem** made) { return this->m_target->GetFolder(made); });
    }
    HRESULT STDMETHODCALLTYPE GetCurrentSelection(IShellItem** item) override
    {
        return passForItem(
            "GetCurrentSelection", item, [&](IShellItem** made) { return this->m_target->GetCurrentSelection(made); });
    }
    HRESULT STDMETHODCALLTYPE SetFileName(LPCWSTR name) override
    {
        return pass("SetFileName", [&](Kind& dialog) { return dialog.SetFileName(name); });
    }
    HRESULT STDMETHODCALLTYPE GetFileName(LPWSTR* name) override
    {
        return this->callForText("GetFileName", name, [&] { return this->m_target->GetFileName(name); });
    }
    HRESULT STDMETHODCALLTYPE SetTitle(LPCWSTR title) override
    {
        return pass("SetTitle", [&](Kind& dialog) { return dialog.SetTitle(title); });
    }
    HRESULT STDMETHODCALLTYPE SetOkButtonLabel(LPCWSTR text) override
    {
        return pass("SetOkButtonLabel", [&](Kind& dialog) { return dialog.SetOkButtonLabel(text); });
    }
    HRESULT STDMETHODCALLTYPE SetFileNameLabel(LPCWSTR label) override
    {
        return pass("SetFileNameLabel", [&](Kind& dialog) { return dialog.SetFileNameLabel(label); });
    }
    HRESULT STDMETHODCALLTYPE GetResult(IShellItem** item) override
    {
        return passForItem("GetResult", item, [&](IShellItem** made) { return this->m_target->GetResult(made); });
    }
    HRESULT STDMETHODCALLTYPE AddPlace(IShellItem* item, FDAP where) override
    {
        return pass("AddPlace", [&](Kind& dialog) { return dialog.AddPlace(FailingItem::unwrapped(item), where); });
    }
    HRESULT STDMETHODCALLTYPE SetDefaultExtension(LPCWSTR extension) override
    {
        return pass("SetDefaultExtension", [&](Kind& dialog) { return dialog.SetDefaultExtension(extension); });
    }
    HRESULT STDMETHODCALLTYPE Close(HRESULT result) override
    {
        return pass("Close", [&](Kind& dialog) { return dialog.Close(result); });
    }
    HRESULT STDMETHODCALLTYPE SetClientGuid(REFGUID guid) override
    {
        return pass("SetClientGuid", [&](Kind& dialog) { return dialog.SetClientGuid(guid); });
    }
    HRESULT STDMETHODCALLTYPE ClearClientData() override
    {
        return pass("ClearClientData", [](Kind& dialog) { return dialog.ClearClientData(); });
    }
    HRESULT STDMETHODCALLTYPE SetFilter(IShellItemFilter* filter) override
    {
        return pass("SetFilter", [&](Kind& dialog) { return dialog.SetFilter(filter); });
    }

    HRESULT STDMETHODCALLTYPE EnableOpenDropDown(DWORD control) override
    {
        return passToControls(
            "EnableOpenDropDown", [&](auto& controls) { return controls.EnableOpenDropDown(control); });
    }
    HRESULT STDMETHODCALLTYPE AddMenu(DWORD control, LPCWSTR label) override
    {
        return passToControls("AddMenu", [&](auto& controls) { return controls.AddMenu(control, label); });
    }
    HRESULT STDMETHODCALLTYPE AddPushButton(DWORD control, LPCWSTR label) override
    {
        return passToControls("AddPushButton", [&](auto& controls) { return controls.AddPushButton(control, label); });
    }
    HRESULT STDMETHODCALLTYPE AddComboBox(DWORD control) override
    {
        return passToControls("AddComboBox", [&](auto& controls) { return controls.AddComboBox(control); });
    }
    HRESULT STDMETHODCALLTYPE AddRadioButtonList(DWORD control) override
    {
        return passToControls(
            "AddRadioButtonList", [&](auto& controls) { return controls.AddRadioButtonList(control); });
    }
    HRESULT STDMETHODCALLTYPE AddCheckButton(DWORD control, LPCWSTR label, BOOL checked) override
    {
        return passToControls(
            "AddCheckButton", [&](auto& controls) { return controls.AddCheckButton(control, label, checked); });
    }
    HRESULT STDMETHODCALLTYPE AddEditBox(DWORD control, LPCWSTR text) override
    {
        return passToControls("AddEditBox", [&](auto& controls) { return controls.AddEditBox(control, text); });
    }
    HRESULT STDMETHODCALLTYPE AddSeparator(DWORD control) override
    {
        return passToControls("AddSeparator", [&](auto& controls) { return controls.AddSeparator(control); });
    }
    HRESULT STDMETHODCALLTYPE AddText(DWORD control, LPCWSTR text) override
    {
        return passToControls("AddText", [&](auto& controls) { return controls.AddText(control, text); });
    }
    HRESULT STDMETHODCALLTYPE SetControlLabel(DWORD control, LPCWSTR label) override
    {
        return passToControls(
            "SetControlLabel", [&](auto& controls) { return controls.SetControlLabel(control, label); });
    }
    HRESULT STDMETHODCALLTYPE GetControlState(DWORD control, CDCONTROLSTATEF* state) override
    {
        return passToControls(
            "GetControlState", [&](auto& controls) { return controls.GetControlState(control, state); });
    }
    HRESULT STDMETHODCALLTYPE SetControlState(DWORD control, CDCONTROLSTATEF state) override
    {
        return passToControls(
            "SetControlState", [&](auto& controls) { return controls.SetControlState(control, state); });
    }
    HRESULT STDMETHODCALLTYPE GetEditBoxText(DWORD control, WCHAR** text) override
    {
        return this->callForText("GetEditBoxText", text, [&] { return m_customize->GetEditBoxText(control, text); });
    }
    HRESULT STDMETHODCALLTYPE SetEditBoxText(DWORD control, LPCWSTR text) override
    {
        return passToControls("SetEditBoxText", [&](auto& controls) { return controls.SetEditBoxText(control, text); });
    }
    HRESULT STDMETHODCALLTYPE GetCheckButtonState(DWORD control, BOOL* checked) override
    {
        return passToControls(
            "GetCheckButtonState", [&](auto& controls) { return controls.GetCheckButtonState(control, checked); });
    }
    HRESULT STDMETHODCALLTYPE SetCheckButtonState(DWORD control, BOOL checked) override
    {
        return passToControls(
            "SetCheckButtonState", [&](auto& controls) { return controls.SetCheckButtonState(control, checked); });
    }
    HRESULT STDMETHODCALLTYPE AddControlItem(DWORD control, DWORD item, LPCWSTR label) override
    {
        return passToControls(
            "AddControlItem", [&](auto& controls) { return controls.AddControlItem(control, item, label); });
    }
    HRESULT STDMETHODCALLTYPE RemoveControlItem(DWORD control, DWORD item) override
    {
        return passToControls(
            "RemoveControlItem", [&](auto& controls) { return controls.RemoveControlItem(control, item); });
    }
    HRESULT STDMETHODCALLTYPE RemoveAllControlItems(DWORD control) override
    {
        return passToControls(
            "RemoveAllControlItems", [&](auto& controls) { return controls.RemoveAllControlItems(control); });
    }
    HRESULT STDMETHODCALLTYPE GetControlItemState(DWORD control, DWORD item, CDCONTROLSTATEF* state) override
    {
        return passToControls(
            "GetControlItemState", [&](auto& controls) { return controls.GetControlItemState(control, item, state); });
    }
    HRESULT STDMETHODCALLTYPE SetControlItemState(DWORD control, DWORD item, CDCONTROLSTATEF state) override
    {
        return passToControls(
            "SetControlItemState", [&](auto& controls) { return controls.SetControlItemState(control, item, state); });
    }
    HRESULT STDMETHODCALLTYPE GetSelectedControlItem(DWORD control, DWORD* item) override
    {
        return passToControls(
            "GetSelectedControlItem", [&](auto& controls) { return controls.GetSelectedControlItem(control, item); });
    }
    HRESULT STDMETHODCALLTYPE SetSelectedControlItem(DWORD control, DWORD item) override
    {
        return passToControls(
            "SetSelectedControlItem", [&](auto& controls) { return controls.SetSelectedControlItem(control, item); });
    }
    HRESULT STDMETHODCALLTYPE StartVisualGroup(DWORD control, LPCWSTR label) override
    {
        return passToControls(
            "StartVisualGroup", [&](auto& controls) { return controls.StartVisualGroup(control, label); });
    }
    HRESULT STDMETHODCALLTYPE EndVisualGroup() override
    {
        return passToControls("EndVisualGroup", [](auto& controls) { return controls.EndVisualGroup(); });
    }
    HRESULT STDMETHODCALLTYPE MakeProminent(DWORD control) override
    {
        return passToControls("MakeProminent", [&](auto& controls) { return controls.MakeProminent(control); });
    }
    HRESULT STDMETHODCALLTYPE SetControlItemText(DWORD control, DWORD item, LPCWSTR label) override
    {
        return passToControls(
            "SetControlItemText", [&](auto& controls) { return controls.SetControlItemText(control, item, label); });
    }

protected:
    HRESULT find(REFIID riid, void** object) override
    {
        static const QITAB table[] = {ui::interfaceRow<Kind, FailingDialog>(),
            ui::interfaceRow<IFileDialog, FailingDialog>(), ui::interfaceRow<IModalWindow, FailingDialog>(),
            ui::interfaceRow<IFileDialogCustomize, FailingDialog>(), QITAB{}};
        return ui::searchInterfaces(this, table, riid, object);
    }

    const char* name() const override { return "IFileDialog"; }

    template <typename Function>
    HRESULT pass(const char* method, Function&& function)
    {
        return this->call(method, [&] { return function(*this->m_target); });
    }

    template <typename Function>
    HRESULT passForItem(const char* method, IShellItem** item, Function&& function)
    {
        return this->template callForObject<FailingItem>(method, item, function);
    }

private:
    template <typename Function>
    HRESULT passToControls(const char* method, Function&& function)
    {
        return this->m_faults.isHit(std::string("IFileDialogCustomize::") + method) ? E_FAIL : function(*m_customize);
    }

    const FailingShell::Show m_show;
    const ui::ComPtr<IFileDialogCustomize> m_customize;
};

class FailingOpenDialog : public FailingDialog<IFileOpenDialog>
{
public:
    using FailingDialog::FailingDialog;

    HRESULT STDMETHODCALLTYPE GetResults(IShellItemArray** items) override
    {
        return callForObject<FailingItems>(
            "GetResults", items, [&](IShellItemArray** made) { return m_target->GetResults(made); });
    }
    HRESULT STDMETHODCALLTYPE GetSelectedItems(IShellItemArray** items) override
    {
        return callForObject<FailingItems>(
            "GetSelectedItems", items, [&](IShellItemArray** made) { return m_target->GetSelectedItems(made); });
    }
};

} // namespace

ui::ComPtr<IFileDialog> makeFailingDialog(
    ShellFaults& faults, const FailingShell::Show& show, ui::ComPtr<IFileDialog> target)
{
    if (auto open = target.query<IFileOpenDialog>()) {
        return ui::ComPtr<IFileDialog>(new ui::ComObject<FailingOpenDialog>(faults, show, std::move(open)));
    }
    // The library uses only IFileDialog of a save dialog.
    return ui::ComPtr<IFileDialog>(new ui::ComObject<FailingDialog<IFileDialog>>(faults, show, std::move(target)));
}

} // namespace morvane::test
