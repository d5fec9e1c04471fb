// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "testing/RecordingControls.h"

#include "testing/RecordingDialog.h"
#include "testing/RecordingItems_p.h"
#include "ui/qt/dialogs/shell/ComSupport_p.h"
#include "ui/qt/dialogs/shell/ShellText_p.h"

#include <algorithm>

namespace morvane::test {

namespace {

std::string text(DWORD control)
{
    return std::to_string(control);
}

std::string text(DWORD control, DWORD other)
{
    return std::to_string(control) + ", " + std::to_string(other);
}

std::string text(DWORD control, LPCWSTR label)
{
    return std::to_string(control) + ", " + quoted(label);
}

} // namespace

RecordingControls::RecordingControls(RecordingShell& shell) : m_shell(shell) {}

RecordingControls::~RecordingControls() = default;

bool RecordingControls::toggle(DWORD control)
{
    Recorded& check = m_controls.at(control);
    check.checked = !check.checked;
    return check.checked;
}

void RecordingControls::pick(DWORD control, DWORD item)
{
    m_controls.at(control).picked = item;
}

void RecordingControls::forgetPick()
{
    for (auto& entry : m_controls) {
        entry.second.picked.reset();
    }
}

int RecordingControls::state(DWORD control) const
{
    const auto found = m_controls.find(control);
    return found == m_controls.end() ? -1 : static_cast<int>(found->second.state);
}

int RecordingControls::itemState(DWORD control, DWORD item) const
{
    const auto* const found = const_cast<RecordingControls*>(this)->findItem(control, item);
    return found ? static_cast<int>(found->state) : -1;
}

bool RecordingControls::isCheckBox(DWORD control) const
{
    const auto found = m_controls.find(control);
    return found != m_controls.end() && found->second.checkButton;
}

bool RecordingControls::isChecked(DWORD control) const
{
    const auto found = m_controls.find(control);
    return found != m_controls.end() && found->second.checked;
}

std::optional<DWORD> RecordingControls::idOf(const QString& label) const
{
    for (const auto& [id, control] : m_controls) {
        if (!control.dropDown && control.label == label) {
            return id;
        }
    }
    return std::nullopt;
}

std::optional<std::pair<DWORD, DWORD>> RecordingControls::itemOf(const QString& label) const
{
    for (const auto& [id, control] : m_controls) {
        for (const Item& item : control.items) {
            if (item.label == label) {
                return std::make_pair(id, item.id);
            }
        }
    }
    return std::nullopt;
}

std::optional<HRESULT> RecordingControls::record(const char* method, const std::string& arguments)
{
    return m_shell.record(std::string("IFileDialogCustomize::") + method, arguments);
}

HRESULT RecordingControls::add(DWORD id, const Recorded& control)
{
    return m_controls.emplace(id, control).second ? S_OK : E_INVALIDARG;
}

RecordingControls::Recorded* RecordingControls::find(DWORD id)
{
    const auto found = m_controls.find(id);
    return found == m_controls.end() ? nullptr : &found->second;
}

RecordingControls::Item* RecordingControls::findItem(DWORD id, DWORD item)
{
    Recorded* const control = find(id);
    if (!control) {
        return nullptr;
    }
    const auto found = std::find_if(
        control->items.begin(), control->items.end(), [item](const Item& entry) { return entry.id == item; });
    return found == control->items.end() ? nullptr : &*found;
}

HRESULT RecordingControls::EnableOpenDropDown(DWORD control)
{
    if (const auto failure = record("EnableOpenDropDown", text(control))) {
        return *failure;
    }
    const bool present =
        std::any_of(m_controls.begin(), m_controls.end(), [](const auto& entry) { return entry.second.dropDown; });
    Recorded dropDown;
    dropDown.dropDown = true;
    return present ? E_UNEXPECTED : add(control, dropDown);
}

HRESULT RecordingControls::AddPushButton(DWORD control, LPCWSTR label)
{
    const auto failure = record("AddPushButton", text(control, label));
    Recorded button;
    button.label = ui::toQString(label);
    return failure ? *failure : add(control, button);
}

HRESULT RecordingControls::AddCheckButton(DWORD control, LPCWSTR label, BOOL checked)
{
    const auto failure = record("AddCheckButton", text(control, label) + ", " + std::to_string(checked));
    Recorded check;
    check.label = ui::toQString(label);
    check.checkButton = true;
    check.checked = checked != FALSE;
    return failure ? *failure : add(control, check);
}

HRESULT RecordingControls::GetControlState(DWORD control, CDCONTROLSTATEF* state)
{
    const auto failure = record("GetControlState", text(control));
    const Recorded* const found = find(control);
    if (failure || !found || !state) {
        return failure.value_or(E_INVALIDARG);
    }
    *state = found->state;
    return S_OK;
}

HRESULT RecordingControls::SetControlState(DWORD control, CDCONTROLSTATEF state)
{
    const auto failure = record("SetControlState", text(control, static_cast<DWORD>(state)));
    Recorded* const found = find(control);
    if (failure || !found) {
        return failure.value_or(E_INVALIDARG);
    }
    found->state = state;
    return S_OK;
}

HRESULT RecordingControls::GetCheckButtonState(DWORD control, BOOL* checked)
{
    const auto failure = record("GetCheckButtonState", text(control));
    const Recorded* const found = find(control);
    if (failure || !found || !found->checkButton || !checked) {
        return failure.value_or(E_INVALIDARG);
    }
    *checked = found->checked ? TRUE : FALSE;
    return S_OK;
}

HRESULT RecordingControls::SetCheckButtonState(DWORD control, BOOL checked)
{
    const auto failure = record("SetCheckButtonState", text(control) + ", " + std::to_string(checked));
    Recorded* const found = find(control);
    if (failure || !found || !found->checkButton) {
        return failure.value_or(E_INVALIDARG);
    }
    found->checked = checked != FALSE;
    return S_OK;
}

HRESULT RecordingControls::AddControlItem(DWORD control, DWORD item, LPCWSTR label)
{
    const auto failure = record("AddControlItem", text(control, item) + ", " + quoted(label));
    Recorded* const found = find(control);
    if (failure || !found || !found->dropDown || findItem(control, item)) {
        return failure.value_or(E_INVALIDARG);
    }
    found->items.push_back({item, ui::toQString(label), CDCS_ENABLEDVISIBLE});
    return S_OK;
}

HRESULT RecordingControls::RemoveControlItem(DWORD control, DWORD item)
{
    const auto failure = record("RemoveControlItem", text(control, item));
    Recorded* const found = find(control);
    if (failure || !findItem(control, item)) {
        return failure.value_or(E_INVALIDARG);
    }
    found->items.erase(
        std::find_if(found->items.begin(), found->items.end(), [item](const Item& entry) { return entry.id == item; }));
    if (found->picked == item) {
        found->picked.reset();
    }
    return S_OK;
}

HRESULT RecordingControls::RemoveAllControlItems(DWORD control)
{
    const auto failure = record("RemoveAllControlItems", text(control));
    Recorded* const found = find(control);
    if (failure || !found || !found->dropDown) {
        return failure.value_or(E_INVALIDARG);
    }
    found->items.clear();
    found->picked.reset();
    return S_OK;
}

HRESULT RecordingControls::GetControlItemState(DWORD control, DWORD item, CDCONTROLSTATEF* state)
{
    const auto failure = record("GetControlItemState", text(control, item));
    const auto* const found = findItem(control, item);
    if (failure || !found || !state) {
        return failure.value_or(E_INVALIDARG);
    }
    *state = found->state;
    return S_OK;
}

HRESULT RecordingControls::SetControlItemState(DWORD control, DWORD item, CDCONTROLSTATEF state)
{
    const auto failure =
        record("SetControlItemState", text(control, item) + ", " + std::to_string(static_cast<DWORD>(state)));
    auto* const found = findItem(control, item);
    if (failure || !found) {
        return failure.value_or(E_INVALIDARG);
    }
    found->state = state;
    return S_OK;
}

HRESULT RecordingControls::GetSelectedControlItem(DWORD control, DWORD* item)
{
    const auto failure = record("GetSelectedControlItem", text(control));
    const Recorded* const found = find(control);
    if (failure || !found || !found->dropDown || !item) {
        return failure.value_or(E_INVALIDARG);
    }
    const auto first = std::find_if(
        found->items.begin(), found->items.end(), [](const Item& entry) { return entry.state == CDCS_ENABLEDVISIBLE; });
    if (m_shell.script.selectedItem || found->picked) {
        *item = m_shell.script.selectedItem ? *m_shell.script.selectedItem : *found->picked;
        return S_OK;
    }
    if (first == found->items.end()) {
        return E_FAIL;
    }
    *item = first->id;
    return S_OK;
}

HRESULT RecordingControls::SetSelectedControlItem(DWORD control, DWORD item)
{
    const auto failure = record("SetSelectedControlItem", text(control, item));
    if (failure || !findItem(control, item)) {
        return failure.value_or(E_INVALIDARG);
    }
    find(control)->picked = item;
    return S_OK;
}

HRESULT RecordingControls::MakeProminent(DWORD control)
{
    const auto failure = record("MakeProminent", text(control));
    const Recorded* const found = find(control);
    return failure ? *failure : found && !found->dropDown ? S_OK : E_INVALIDARG;
}

HRESULT RecordingControls::SetControlLabel(DWORD control, LPCWSTR label)
{
    const auto failure = record("SetControlLabel", text(control, label));
    Recorded* const found = find(control);
    if (failure || !found || found->dropDown) {
        return failure.value_or(E_INVALIDARG);
    }
    found->label = ui::toQString(label);
    return S_OK;
}

HRESULT RecordingControls::SetControlItemText(DWORD control, DWORD item, LPCWSTR label)
{
    const auto failure = record("SetControlItemText", text(control, item) + ", " + quoted(label));
    Item* const found = findItem(control, item);
    if (failure || !found) {
        return failure.value_or(E_INVALIDARG);
    }
    found->label = ui::toQString(label);
    return S_OK;
}

HRESULT RecordingControls::AddMenu(DWORD control, LPCWSTR label)
{
    return record("AddMenu", text(control, label)).value_or(E_NOTIMPL);
}

HRESULT RecordingControls::AddComboBox(DWORD control)
{
    return record("AddComboBox", text(control)).value_or(E_NOTIMPL);
}

HRESULT RecordingControls::AddRadioButtonList(DWORD control)
{
    return record("AddRadioButtonList", text(control)).value_or(E_NOTIMPL);
}

HRESULT RecordingControls::AddEditBox(DWORD control, LPCWSTR label)
{
    return record("AddEditBox", text(control, label)).value_or(E_NOTIMPL);
}

HRESULT RecordingControls::AddSeparator(DWORD control)
{
    return record("AddSeparator", text(control)).value_or(E_NOTIMPL);
}

HRESULT RecordingControls::AddText(DWORD control, LPCWSTR label)
{
    return record("AddText", text(control, label)).value_or(E_NOTIMPL);
}

HRESULT RecordingControls::GetEditBoxText(DWORD control, WCHAR** text)
{
    return ui::withoutResult(text, record("GetEditBoxText", std::to_string(control)).value_or(E_NOTIMPL));
}

HRESULT RecordingControls::SetEditBoxText(DWORD control, LPCWSTR label)
{
    return record("SetEditBoxText", text(control, label)).value_or(E_NOTIMPL);
}

HRESULT RecordingControls::StartVisualGroup(DWORD control, LPCWSTR label)
{
    return record("StartVisualGroup", text(control, label)).value_or(E_NOTIMPL);
}

HRESULT RecordingControls::EndVisualGroup()
{
    return record("EndVisualGroup").value_or(E_NOTIMPL);
}

} // namespace morvane::test
