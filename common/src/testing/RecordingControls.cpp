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

void RecordingControls::type(DWORD control, const QString& text)
{
    m_controls.at(control).label = text;
}

void RecordingControls::forgetPick()
{
    for (auto& entry : m_controls) {
        if (entry.second.kind == Kind::DropDown) {
            entry.second.picked.reset();
        }
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
    const Recorded* const found = find(control);
    return found && found->kind == Kind::CheckButton;
}

bool RecordingControls::isChecked(DWORD control) const
{
    const Recorded* const found = find(control);
    return found && found->checked;
}

std::optional<DWORD> RecordingControls::idOf(const QString& label) const
{
    for (const auto& [id, control] : m_controls) {
        if ((control.kind == Kind::PushButton || control.kind == Kind::CheckButton) && control.label == label) {
            return id;
        }
    }
    return std::nullopt;
}

std::optional<DWORD> RecordingControls::listOf(const QString& label) const
{
    return labelled(label, Kind::List);
}

std::optional<DWORD> RecordingControls::editBoxOf(const QString& label) const
{
    return labelled(label, Kind::EditBox);
}

std::optional<DWORD> RecordingControls::labelled(const QString& label, Kind kind) const
{
    for (const auto& entry : m_controls) {
        if (entry.second.kind == kind && labelOf(entry.first) == label) {
            return entry.first;
        }
    }
    return std::nullopt;
}

QString RecordingControls::labelOf(DWORD id) const
{
    const Recorded& control = m_controls.at(id);
    const Recorded* const before = control.before ? find(*control.before) : nullptr;
    if (before && before->kind == Kind::Text && before->group == control.group) {
        return before->label;
    }
    const auto members = std::count_if(m_controls.begin(), m_controls.end(),
        [&control](const auto& entry) { return entry.second.group == control.group; });
    return control.group && members == 1 ? textOf(*control.group) : QString();
}

std::vector<std::pair<DWORD, QString>> RecordingControls::itemsOf(DWORD control) const
{
    std::vector<std::pair<DWORD, QString>> items;
    if (const Recorded* const found = find(control)) {
        for (const Item& item : found->items) {
            items.emplace_back(item.id, item.label);
        }
    }
    return items;
}

std::optional<DWORD> RecordingControls::selectedIn(DWORD control) const
{
    const Recorded* const found = find(control);
    return found ? found->picked : std::nullopt;
}

QString RecordingControls::textOf(DWORD control) const
{
    const Recorded* const found = find(control);
    return found ? found->label : QString();
}

std::optional<std::pair<DWORD, DWORD>> RecordingControls::itemOf(const QString& label) const
{
    for (const auto& [id, control] : m_controls) {
        for (const Item& item : control.items) {
            if (control.kind == Kind::DropDown && item.label == label) {
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

HRESULT RecordingControls::add(DWORD id, Kind kind, LPCWSTR label)
{
    Recorded control;
    control.kind = kind;
    control.label = ui::toQString(label);
    control.group = m_openGroup;
    control.before = m_last;
    if (!m_controls.emplace(id, control).second) {
        return E_INVALIDARG;
    }
    m_last = id;
    return S_OK;
}

RecordingControls::Recorded* RecordingControls::find(DWORD id)
{
    const auto found = m_controls.find(id);
    return found == m_controls.end() ? nullptr : &found->second;
}

const RecordingControls::Recorded* RecordingControls::find(DWORD id) const
{
    const auto found = m_controls.find(id);
    return found == m_controls.end() ? nullptr : &found->second;
}

RecordingControls::Recorded* RecordingControls::find(DWORD id, Kind kind)
{
    Recorded* const found = find(id);
    return found && found->kind == kind ? found : nullptr;
}

RecordingControls::Recorded* RecordingControls::findWithItems(DWORD id)
{
    Recorded* const found = find(id, Kind::DropDown);
    return found ? found : find(id, Kind::List);
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
    const bool present = std::any_of(
        m_controls.begin(), m_controls.end(), [](const auto& entry) { return entry.second.kind == Kind::DropDown; });
    return present ? E_UNEXPECTED : add(control, Kind::DropDown);
}

HRESULT RecordingControls::AddPushButton(DWORD control, LPCWSTR label)
{
    const auto failure = record("AddPushButton", text(control, label));
    return failure ? *failure : add(control, Kind::PushButton, label);
}

HRESULT RecordingControls::AddCheckButton(DWORD control, LPCWSTR label, BOOL checked)
{
    const auto failure = record("AddCheckButton", text(control, label) + ", " + std::to_string(checked));
    const HRESULT result = failure ? *failure : add(control, Kind::CheckButton, label);
    if (SUCCEEDED(result)) {
        find(control)->checked = checked != FALSE;
    }
    return result;
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
    if (failure || !found || found->kind != Kind::CheckButton || !checked) {
        return failure.value_or(E_INVALIDARG);
    }
    *checked = found->checked ? TRUE : FALSE;
    return S_OK;
}

HRESULT RecordingControls::SetCheckButtonState(DWORD control, BOOL checked)
{
    const auto failure = record("SetCheckButtonState", text(control) + ", " + std::to_string(checked));
    Recorded* const found = find(control);
    if (failure || !found || found->kind != Kind::CheckButton) {
        return failure.value_or(E_INVALIDARG);
    }
    found->checked = checked != FALSE;
    return S_OK;
}

HRESULT RecordingControls::AddControlItem(DWORD control, DWORD item, LPCWSTR label)
{
    const auto failure = record("AddControlItem", text(control, item) + ", " + quoted(label));
    Recorded* const found = findWithItems(control);
    if (failure || !found || findItem(control, item)) {
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
    Recorded* const found = findWithItems(control);
    if (failure || !found) {
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
    const Recorded* const found = findWithItems(control);
    if (failure || !found || !item) {
        return failure.value_or(E_INVALIDARG);
    }
    const bool isMenu = found->kind == Kind::DropDown;
    const auto scripted = isMenu ? m_shell.script.selectedItem : std::nullopt;
    if (scripted || found->picked) {
        *item = scripted ? *scripted : *found->picked;
        return S_OK;
    }
    const auto first = std::find_if(
        found->items.begin(), found->items.end(), [](const Item& entry) { return entry.state == CDCS_ENABLEDVISIBLE; });
    if (!isMenu || first == found->items.end()) {
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
    return failure ? *failure : found && found->kind != Kind::DropDown ? S_OK : E_INVALIDARG;
}

HRESULT RecordingControls::SetControlLabel(DWORD control, LPCWSTR label)
{
    const auto failure = record("SetControlLabel", text(control, label));
    Recorded* const found = find(control);
    const bool hasLabel = found && (found->kind == Kind::PushButton || found->kind == Kind::CheckButton ||
                                       found->kind == Kind::Text || found->kind == Kind::Group);
    if (failure || !hasLabel) {
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
    const auto failure = record("AddComboBox", text(control));
    return failure ? *failure : add(control, Kind::List);
}

HRESULT RecordingControls::AddRadioButtonList(DWORD control)
{
    const auto failure = record("AddRadioButtonList", text(control));
    return failure ? *failure : add(control, Kind::List);
}

HRESULT RecordingControls::AddEditBox(DWORD control, LPCWSTR label)
{
    const auto failure = record("AddEditBox", text(control, label));
    return failure ? *failure : add(control, Kind::EditBox, label);
}

HRESULT RecordingControls::AddSeparator(DWORD control)
{
    const auto failure = record("AddSeparator", text(control));
    return failure ? *failure : add(control, Kind::Separator);
}

HRESULT RecordingControls::AddText(DWORD control, LPCWSTR label)
{
    const auto failure = record("AddText", text(control, label));
    return failure ? *failure : add(control, Kind::Text, label);
}

HRESULT RecordingControls::GetEditBoxText(DWORD control, WCHAR** text)
{
    const auto failure = record("GetEditBoxText", std::to_string(control));
    const Recorded* const found = find(control, Kind::EditBox);
    if (failure || !found || !text) {
        return ui::withoutResult(text, failure.value_or(E_INVALIDARG));
    }
    return m_shell.copyString(found->label, text);
}

HRESULT RecordingControls::SetEditBoxText(DWORD control, LPCWSTR label)
{
    const auto failure = record("SetEditBoxText", text(control, label));
    Recorded* const found = find(control, Kind::EditBox);
    if (failure || !found) {
        return failure.value_or(E_INVALIDARG);
    }
    found->label = ui::toQString(label);
    return S_OK;
}

HRESULT RecordingControls::StartVisualGroup(DWORD control, LPCWSTR label)
{
    const auto failure = record("StartVisualGroup", text(control, label));
    if (failure || m_openGroup) {
        return failure.value_or(E_UNEXPECTED);
    }
    const HRESULT result = add(control, Kind::Group, label);
    if (SUCCEEDED(result)) {
        m_openGroup = control;
    }
    return result;
}

HRESULT RecordingControls::EndVisualGroup()
{
    const auto failure = record("EndVisualGroup");
    const bool wasOpen = m_openGroup.has_value();
    if (failure || !wasOpen) {
        return failure.value_or(E_UNEXPECTED);
    }
    m_openGroup.reset();
    return S_OK;
}

} // namespace morvane::test
