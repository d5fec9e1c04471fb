// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/native/ControlStandIn_p.h"

#include "ui/qt/dialogs/shell/ComPtr.h"

#include <QEvent>

namespace morvane::ui {

ControlStandIn::ControlStandIn(IFileDialog* dialog, ControlKind kind, unsigned int controlId, unsigned int itemId)
    : m_kind(kind), m_controlId(controlId), m_itemId(itemId)
{
    setAttribute(Qt::WA_DontShowOnScreen);
    setAttribute(Qt::WA_QuitOnClose, false);
    QWidget::show();
    m_dialog = dialog; // set after show(), because the native control is already visible
}

ControlStandIn::~ControlStandIn() = default;

void ControlStandIn::showEvent(QShowEvent*)
{
    setStateFlag(CDCS_VISIBLE, true);
}

void ControlStandIn::hideEvent(QHideEvent*)
{
    setStateFlag(CDCS_VISIBLE, false);
}

void ControlStandIn::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange) {
        setStateFlag(CDCS_ENABLED, isEnabled());
    }
}

void ControlStandIn::setStateFlag(CDCONTROLSTATEF flag, bool on)
{
    if (!m_dialog) {
        return;
    }
    ComPtr<IFileDialogCustomize> customize;
    m_dialog->QueryInterface(iidOf<IFileDialogCustomize>(), customize.putVoid());
    if (!customize) {
        return;
    }
    const auto old = static_cast<DWORD>(nativeState(*customize));
    const auto mask = static_cast<DWORD>(flag);
    const auto state = static_cast<CDCONTROLSTATEF>(on ? old | mask : old & ~mask);
    if (m_kind == ControlKind::AcceptMenuItem) {
        customize->SetControlItemState(m_controlId, m_itemId, state);
    } else {
        customize->SetControlState(m_controlId, state);
    }
}

CDCONTROLSTATEF ControlStandIn::nativeState(IFileDialogCustomize& customize) const
{
    // The result of the call is not checked. If it fails, the variable keeps the state of this widget.
    const DWORD enabled = isEnabled() ? static_cast<DWORD>(CDCS_ENABLED) : 0;
    const DWORD visible = isVisible() ? static_cast<DWORD>(CDCS_VISIBLE) : 0;
    auto state = static_cast<CDCONTROLSTATEF>(enabled | visible);
    if (m_kind == ControlKind::AcceptMenuItem) {
        customize.GetControlItemState(m_controlId, m_itemId, &state);
    } else {
        customize.GetControlState(m_controlId, &state);
    }
    return state;
}

} // namespace morvane::ui
