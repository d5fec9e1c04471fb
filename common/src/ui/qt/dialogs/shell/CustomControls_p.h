// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ComSupport_p.h"
#include "ui/qt/dialogs/shell/Control_p.h"
#include "ui/qt/dialogs/shell/ControlStrip_p.h"
#include "ui/qt/dialogs/shell/ShellInterfaces.h"

#include <QPointer>

#include <vector>

namespace morvane::ui {

class FileDialogWindow;

/**
 * The controls that an application adds to the dialog. They are kept from run to run, and shown in the window of each
 * run. This is a part of the dialog object, see ComPart.
 *
 * Supports push buttons, check buttons and the accept button's drop-down with its items. The operations for other kinds
 * of control (menus, combo boxes, radio lists, edit boxes, separators, texts, visual groups) return E_NOTIMPL.
 */
class CustomControls : public IFileDialogCustomize
{
public:
    explicit CustomControls(ControlActions actions);
    virtual ~CustomControls();

    bool isEmpty() const { return m_controls.empty(); }
    /** Shows the controls in @p window until it is destroyed, and forgets which drop-down item was picked before. */
    void showIn(FileDialogWindow& window);
    /** Updates the widgets after the dialog's own texts have changed. */
    void refresh();

    HRESULT STDMETHODCALLTYPE EnableOpenDropDown(DWORD control) override;
    HRESULT STDMETHODCALLTYPE AddMenu(DWORD, LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AddPushButton(DWORD control, LPCWSTR label) override;
    HRESULT STDMETHODCALLTYPE AddComboBox(DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AddRadioButtonList(DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AddCheckButton(DWORD control, LPCWSTR label, BOOL checked) override;
    HRESULT STDMETHODCALLTYPE AddEditBox(DWORD, LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AddSeparator(DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AddText(DWORD, LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetControlLabel(DWORD control, LPCWSTR label) override;
    HRESULT STDMETHODCALLTYPE GetControlState(DWORD control, CDCONTROLSTATEF* state) override;
    HRESULT STDMETHODCALLTYPE SetControlState(DWORD control, CDCONTROLSTATEF state) override;
    HRESULT STDMETHODCALLTYPE GetEditBoxText(DWORD, WCHAR** text) override { return withoutResult(text); }
    HRESULT STDMETHODCALLTYPE SetEditBoxText(DWORD, LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetCheckButtonState(DWORD control, BOOL* checked) override;
    HRESULT STDMETHODCALLTYPE SetCheckButtonState(DWORD control, BOOL checked) override;
    HRESULT STDMETHODCALLTYPE AddControlItem(DWORD control, DWORD item, LPCWSTR label) override;
    HRESULT STDMETHODCALLTYPE RemoveControlItem(DWORD control, DWORD item) override;
    HRESULT STDMETHODCALLTYPE RemoveAllControlItems(DWORD control) override;
    HRESULT STDMETHODCALLTYPE GetControlItemState(DWORD control, DWORD item, CDCONTROLSTATEF* state) override;
    HRESULT STDMETHODCALLTYPE SetControlItemState(DWORD control, DWORD item, CDCONTROLSTATEF state) override;
    HRESULT STDMETHODCALLTYPE GetSelectedControlItem(DWORD control, DWORD* item) override;
    HRESULT STDMETHODCALLTYPE SetSelectedControlItem(DWORD control, DWORD item) override;
    HRESULT STDMETHODCALLTYPE StartVisualGroup(DWORD, LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EndVisualGroup() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE MakeProminent(DWORD control) override;
    HRESULT STDMETHODCALLTYPE SetControlItemText(DWORD control, DWORD item, LPCWSTR label) override;

private:
    HRESULT add(Control control);
    Control* find(DWORD id);
    ControlItem* findItem(DWORD control, DWORD item);
    Control* findDropDown(DWORD id);
    void onToggled(DWORD id, bool checked);
    bool onItemPicked(DWORD id, DWORD item);
    HRESULT updated();

    const ControlActions m_actions;
    std::vector<Control> m_controls;
    QPointer<ControlStrip> m_strip;
};

} // namespace morvane::ui
