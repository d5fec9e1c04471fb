// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/native/NativeControls_p.h"

#include "ui/qt/dialogs/native/NativeText_p.h"

#include <utility>

namespace morvane::ui {

NativeControls::NativeControls(const ComPtr<IFileDialog>& dialog) : m_dialog(dialog) {}

NativeControls::~NativeControls() = default;

void NativeControls::addAcceptMenu()
{
    const auto customize = m_dialog.query<IFileDialogCustomize>();
    m_acceptMenuId = m_nextId++;
    if (customize) {
        customize->EnableOpenDropDown(m_acceptMenuId);
    }
}

QWidget* NativeControls::addButton(const std::string& text, boost::function<void()> action, bool prominent)
{
    const unsigned int id = add(ControlKind::PushButton, text, prominent, false);
    m_buttonActions[id] = std::move(action);
    m_standIns.push_back(std::make_unique<ControlStandIn>(m_dialog.get(), ControlKind::PushButton, id, 0));
    return m_standIns.back().get();
}

QWidget* NativeControls::addCheckBox(const std::string& text, boost::shared_ptr<PropertyAbstract<bool>> checked)
{
    const unsigned int id = add(ControlKind::CheckBox, text, false, checked && checked->value());
    m_checkBoxProperties[id] = std::move(checked);
    m_standIns.push_back(std::make_unique<ControlStandIn>(m_dialog.get(), ControlKind::CheckBox, id, 0));
    return m_standIns.back().get();
}

QWidget* NativeControls::addAcceptOption(const std::string& text, int value)
{
    const unsigned int id = add(ControlKind::AcceptMenuItem, text, false, false);
    m_acceptOptionValues[id] = value;
    m_optionStandIns.push_back(
        std::make_unique<ControlStandIn>(m_dialog.get(), ControlKind::AcceptMenuItem, m_acceptMenuId, id));
    return m_optionStandIns.back().get();
}

void NativeControls::clearAcceptOptions()
{
    const auto customize = m_dialog.query<IFileDialogCustomize>();
    for (const auto& standIn : m_optionStandIns) {
        if (customize) {
            customize->RemoveControlItem(m_acceptMenuId, standIn->itemId());
        }
    }
    m_optionStandIns.clear();
}

unsigned int NativeControls::add(ControlKind kind, const std::string& text, bool prominent, bool checked)
{
    const auto customize = m_dialog.query<IFileDialogCustomize>();
    const unsigned int id = m_nextId++;
    if (customize && SUCCEEDED(request(*customize, kind, id, text, checked)) && prominent) {
        customize->MakeProminent(id);
    }
    return id;
}

HRESULT NativeControls::request(
    IFileDialogCustomize& customize, ControlKind kind, DWORD id, const std::string& text, bool checked)
{
    const ShellString label = shellText(text);
    switch (kind) {
    case ControlKind::PushButton:
        return customize.AddPushButton(id, label.c_str());
    case ControlKind::CheckBox:
        return customize.AddCheckButton(id, label.c_str(), checked ? TRUE : FALSE);
    case ControlKind::AcceptMenuItem:
        break;
    }
    return customize.AddControlItem(m_acceptMenuId, id, label.c_str());
}

void NativeControls::readSelectedAcceptOption()
{
    const auto customize = m_dialog.query<IFileDialogCustomize>();
    DWORD item = 0;
    if (!customize || FAILED(customize->GetSelectedControlItem(m_acceptMenuId, &item))) {
        return;
    }
    const auto found = m_acceptOptionValues.find(item);
    if (found != m_acceptOptionValues.end()) {
        m_selectedAcceptOption = found->second;
    }
}

void NativeControls::buttonClicked(DWORD control)
{
    const auto found = m_buttonActions.find(control);
    if (found != m_buttonActions.end()) {
        const boost::function<void()> action = found->second; // it may add buttons
        action();
    }
}

void NativeControls::checkButtonToggled(DWORD control, BOOL checked)
{
    const auto found = m_checkBoxProperties.find(control);
    if (found != m_checkBoxProperties.end() && found->second) {
        const auto property = found->second; // an observer may add check boxes
        property->setValue(checked == TRUE);
    }
}

} // namespace morvane::ui
