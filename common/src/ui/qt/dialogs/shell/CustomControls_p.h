// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ComSupport_p.h"
#include "ui/qt/dialogs/shell/Control_p.h"
#include "ui/qt/dialogs/shell/ControlStrip_p.h"
#include "ui/qt/dialogs/shell/ShellInterfaces.h"

#include <QPointer>

#include <deque>
#include <set>
#include <utility>
#include <vector>

namespace morvane::ui {

/**
 * The controls that an application adds to the dialog. They are kept from run to run, and shown in the window of each
 * run. This is a part of the dialog object, see ComPart.
 *
 * Supports all kinds of controls except menus; AddMenu returns E_NOTIMPL. Controls can also be added while the dialog
 * is open.
 */
class CustomControls : public IFileDialogCustomize
{
public:
    explicit CustomControls(ControlActions actions);
    virtual ~CustomControls();

    bool isEmpty() const { return m_controls.empty(); }
    /**
     * Shows the controls in @p window until it is destroyed, and forgets which drop-down item was picked before.
     * @param setOptionText called with the text that the accept button has to show; empty: its own
     * @param makesRoom     whether the window becomes higher if the controls need many lines
     */
    void showIn(QFileDialog& window, std::function<void(const QString&)> setOptionText, bool makesRoom);
    /** From now on, changes are shown only by the next showIn(), which removes the widgets of now. */
    void detach();
    /**
     * Reports the selections that were not reported yet. Qt must have returned from the widget before they are
     * reported, because the dialog may be destroyed then.
     */
    void reportSelections();
    /** Updates the widgets after the dialog's own texts have changed. */
    void refresh();

    HRESULT STDMETHODCALLTYPE EnableOpenDropDown(DWORD control) override;
    HRESULT STDMETHODCALLTYPE AddMenu(DWORD, LPCWSTR) override { return E_NOTIMPL; }
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

private:
    HRESULT add(Control control);
    Control* find(DWORD id);
    ControlItem* findItem(DWORD control, DWORD item);
    Control* findWithItems(DWORD id);
    Control* findEditBox(DWORD id);
    void onToggled(DWORD id, bool checked);
    bool onItemPicked(DWORD id, DWORD item);
    void onItemSelected(DWORD id, DWORD item);
    void onEdited(DWORD id, const QString& text);
    HRESULT updated();

    const ControlActions m_actions;
    std::vector<Control> m_controls;
    std::map<DWORD, std::size_t> m_positions; // of the controls, by identifier
    std::set<std::pair<DWORD, DWORD>> m_items;
    std::optional<DWORD> m_openGroup;
    std::deque<std::pair<DWORD, DWORD>> m_selections; // not reported yet
    QPointer<ControlStrip> m_strip;
    QPointer<ControlStrip> m_oldStrip;
};

} // namespace morvane::ui
