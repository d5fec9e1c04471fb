// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/CustomControls_p.h"

#include "ui/qt/dialogs/shell/ShellText_p.h"

#include <QFileDialog>

#include <algorithm>
#include <utility>

namespace morvane::ui {

namespace {

template <typename Range>
auto* findById(Range& range, DWORD id)
{
    const auto found = std::find_if(range.begin(), range.end(), [id](const auto& entry) { return entry.id == id; });
    return found == range.end() ? nullptr : &*found;
}

} // namespace

CustomControls::CustomControls(ControlActions actions) : m_actions(std::move(actions)) {}

CustomControls::~CustomControls() = default;

void CustomControls::showIn(QFileDialog& window, std::function<void(const QString&)> setOptionText, bool makesRoom)
{
    for (Control& control : m_controls) {
        if (control.kind == Control::Kind::AcceptDropDown) {
            control.selectedItem.reset();
        }
    }
    m_selections.clear();
    delete m_oldStrip;
    ControlActions actions = m_actions;
    actions.toggled = [this](DWORD id, bool checked) { onToggled(id, checked); };
    actions.itemPicked = [this](DWORD id, DWORD item) { return onItemPicked(id, item); };
    actions.itemSelected = [this](DWORD id, DWORD item) { onItemSelected(id, item); };
    actions.edited = [this](DWORD id, const QString& text) { onEdited(id, text); };
    actions.optionTextChanged = std::move(setOptionText);
    m_strip = new ControlStrip(window, std::move(actions));
    m_strip->update(m_controls);
    if (makesRoom) {
        m_strip->makeRoom();
    }
}

void CustomControls::refresh()
{
    if (m_strip) {
        m_strip->update(m_controls);
    }
}

void CustomControls::detach()
{
    // A widget of the strip may be calling, so the strip is not deleted here.
    m_oldStrip = m_strip;
    m_strip.clear();
}

void CustomControls::reportSelections()
{
    while (!m_selections.empty()) {
        const auto [control, item] = m_selections.front();
        m_selections.pop_front();
        m_actions.itemSelected(control, item);
    }
}

HRESULT CustomControls::EnableOpenDropDown(DWORD control)
{
    const bool present = std::any_of(m_controls.begin(), m_controls.end(),
        [](const Control& other) { return other.kind == Control::Kind::AcceptDropDown; });
    return present ? E_UNEXPECTED : add(Control{control, Control::Kind::AcceptDropDown, QString()});
}

HRESULT CustomControls::AddPushButton(DWORD control, LPCWSTR label)
{
    return add(Control{control, Control::Kind::PushButton, toQString(label)});
}

HRESULT CustomControls::AddCheckButton(DWORD control, LPCWSTR label, BOOL checked)
{
    Control check{control, Control::Kind::CheckButton, toQString(label)};
    check.checked = checked != FALSE;
    return add(std::move(check));
}

HRESULT CustomControls::AddComboBox(DWORD control)
{
    return add(Control{control, Control::Kind::ComboBox, QString()});
}

HRESULT CustomControls::AddRadioButtonList(DWORD control)
{
    return add(Control{control, Control::Kind::RadioButtonList, QString()});
}

HRESULT CustomControls::AddEditBox(DWORD control, LPCWSTR text)
{
    return add(Control{control, Control::Kind::EditBox, toQString(text)});
}

HRESULT CustomControls::AddSeparator(DWORD control)
{
    return add(Control{control, Control::Kind::Separator, QString()});
}

HRESULT CustomControls::AddText(DWORD control, LPCWSTR text)
{
    return add(Control{control, Control::Kind::Text, toQString(text)});
}

HRESULT CustomControls::StartVisualGroup(DWORD control, LPCWSTR label)
{
    if (m_openGroup) {
        return E_UNEXPECTED; // groups are not nested
    }
    const HRESULT result = add(Control{control, Control::Kind::VisualGroup, toQString(label)});
    if (SUCCEEDED(result)) {
        m_openGroup = control;
    }
    return result;
}

HRESULT CustomControls::EndVisualGroup()
{
    const bool wasOpen = m_openGroup.has_value();
    m_openGroup.reset();
    return wasOpen ? S_OK : E_UNEXPECTED;
}

HRESULT CustomControls::GetEditBoxText(DWORD control, WCHAR** text)
{
    const Control* const found = findEditBox(control);
    if (!found || !text) {
        return withoutResult(text, E_INVALIDARG);
    }
    return copyToTaskMemory(found->label, text);
}

HRESULT CustomControls::SetEditBoxText(DWORD control, LPCWSTR text)
{
    Control* const found = findEditBox(control);
    if (!found) {
        return E_INVALIDARG;
    }
    found->label = toQString(text);
    return updated();
}

HRESULT CustomControls::SetControlLabel(DWORD control, LPCWSTR label)
{
    Control* const found = find(control);
    if (!found || found->hasItems() || found->kind == Control::Kind::EditBox ||
        found->kind == Control::Kind::Separator) {
        return E_INVALIDARG;
    }
    found->label = toQString(label);
    return updated();
}

HRESULT CustomControls::GetControlState(DWORD control, CDCONTROLSTATEF* state)
{
    const Control* const found = find(control);
    if (!found || !state) {
        return E_INVALIDARG;
    }
    *state = found->state;
    return S_OK;
}

HRESULT CustomControls::SetControlState(DWORD control, CDCONTROLSTATEF state)
{
    Control* const found = find(control);
    if (!found) {
        return E_INVALIDARG;
    }
    found->state = state & CDCS_ENABLEDVISIBLE;
    return updated();
}

HRESULT CustomControls::GetCheckButtonState(DWORD control, BOOL* checked)
{
    const Control* const found = find(control);
    if (!found || found->kind != Control::Kind::CheckButton || !checked) {
        return E_INVALIDARG;
    }
    *checked = found->checked ? TRUE : FALSE;
    return S_OK;
}

HRESULT CustomControls::SetCheckButtonState(DWORD control, BOOL checked)
{
    Control* const found = find(control);
    if (!found || found->kind != Control::Kind::CheckButton) {
        return E_INVALIDARG;
    }
    found->checked = checked != FALSE;
    return updated();
}

HRESULT CustomControls::AddControlItem(DWORD control, DWORD item, LPCWSTR label)
{
    Control* const found = findWithItems(control);
    if (!found || !m_items.emplace(control, item).second) {
        return E_INVALIDARG;
    }
    found->items.push_back(ControlItem{item, toQString(label)});
    return updated();
}

HRESULT CustomControls::RemoveControlItem(DWORD control, DWORD item)
{
    Control* const found = findWithItems(control);
    if (!found || m_items.erase({control, item}) == 0) {
        return E_INVALIDARG;
    }
    found->items.erase(std::find_if(
        found->items.begin(), found->items.end(), [item](const ControlItem& entry) { return entry.id == item; }));
    if (found->selectedItem == item) {
        found->selectedItem.reset();
    }
    return updated();
}

HRESULT CustomControls::RemoveAllControlItems(DWORD control)
{
    Control* const found = findWithItems(control);
    if (!found) {
        return E_INVALIDARG;
    }
    for (const ControlItem& item : found->items) {
        m_items.erase({control, item.id});
    }
    found->items.clear();
    found->selectedItem.reset();
    return updated();
}

HRESULT CustomControls::GetControlItemState(DWORD control, DWORD item, CDCONTROLSTATEF* state)
{
    const ControlItem* const found = findItem(control, item);
    if (!found || !state) {
        return E_INVALIDARG;
    }
    *state = found->state;
    return S_OK;
}

HRESULT CustomControls::SetControlItemState(DWORD control, DWORD item, CDCONTROLSTATEF state)
{
    ControlItem* const found = findItem(control, item);
    if (!found) {
        return E_INVALIDARG;
    }
    found->state = state & CDCS_ENABLEDVISIBLE;
    return updated();
}

HRESULT CustomControls::GetSelectedControlItem(DWORD control, DWORD* item)
{
    const Control* const found = findWithItems(control);
    if (!found || !item) {
        return E_INVALIDARG;
    }
    // A list selects nothing by itself.
    const ControlItem* const first = found->isList() ? nullptr : found->firstChoice();
    if (!found->selectedItem && !first) {
        return E_FAIL;
    }
    *item = found->selectedItem ? *found->selectedItem : first->id;
    return S_OK;
}

HRESULT CustomControls::SetSelectedControlItem(DWORD control, DWORD item)
{
    if (!findItem(control, item)) {
        return E_INVALIDARG;
    }
    find(control)->selectedItem = item;
    return updated();
}

HRESULT CustomControls::MakeProminent(DWORD control)
{
    Control* const found = find(control);
    if (!found || found->kind == Control::Kind::AcceptDropDown) {
        return E_INVALIDARG;
    }
    for (Control& other : m_controls) {
        other.prominent = &other == found;
    }
    return updated();
}

HRESULT CustomControls::SetControlItemText(DWORD control, DWORD item, LPCWSTR label)
{
    ControlItem* const found = findItem(control, item);
    if (!found) {
        return E_INVALIDARG;
    }
    found->label = toQString(label);
    return updated();
}

HRESULT CustomControls::add(Control control)
{
    if (!m_positions.emplace(control.id, m_controls.size()).second) {
        return E_INVALIDARG;
    }
    control.group = m_openGroup;
    m_controls.push_back(std::move(control));
    return updated();
}

Control* CustomControls::find(DWORD id)
{
    const auto found = m_positions.find(id);
    return found == m_positions.end() ? nullptr : &m_controls[found->second];
}

ControlItem* CustomControls::findItem(DWORD control, DWORD item)
{
    Control* const found = findWithItems(control);
    return found ? findById(found->items, item) : nullptr;
}

Control* CustomControls::findWithItems(DWORD id)
{
    Control* const found = find(id);
    return found && found->hasItems() ? found : nullptr;
}

Control* CustomControls::findEditBox(DWORD id)
{
    Control* const found = find(id);
    return found && found->kind == Control::Kind::EditBox ? found : nullptr;
}

void CustomControls::onToggled(DWORD id, bool checked)
{
    find(id)->checked = checked;
    m_actions.toggled(id, checked);
}

void CustomControls::onItemSelected(DWORD id, DWORD item)
{
    Control& control = *find(id);
    if (control.selectedItem == item) {
        return;
    }
    control.selectedItem = item;
    m_selections.emplace_back(id, item);
    QMetaObject::invokeMethod(
        m_strip, [this] { reportSelections(); }, Qt::QueuedConnection);
}

void CustomControls::onEdited(DWORD id, const QString& text)
{
    find(id)->label = text;
    if (m_actions.edited) {
        m_actions.edited(id, text);
    }
}

bool CustomControls::onItemPicked(DWORD id, DWORD item)
{
    const auto before = std::exchange(find(id)->selectedItem, item);
    const bool ended = m_actions.itemPicked(id, item);
    Control* const found = find(id);
    if (!ended && found && found->selectedItem == item) {
        // The choice was refused. The next click on the button chooses the item that the button shows.
        found->selectedItem = before && findItem(id, *before) ? before : std::nullopt;
    }
    return ended;
}

HRESULT CustomControls::updated()
{
    refresh();
    return S_OK;
}

} // namespace morvane::ui
