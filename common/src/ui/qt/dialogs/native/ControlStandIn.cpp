// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/native/ControlStandIn_p.h"

#include <QEvent>

#include <utility>

namespace morvane::ui {

namespace {

CDCONTROLSTATEF changed(CDCONTROLSTATEF state, CDCONTROLSTATEF flag, bool on)
{
    const auto bits = static_cast<DWORD>(state);
    const auto mask = static_cast<DWORD>(flag);
    return static_cast<CDCONTROLSTATEF>(on ? bits | mask : bits & ~mask);
}

} // namespace

ControlStandIn::ControlStandIn(ControlsSource source, ControlKind kind, unsigned int controlId, unsigned int itemId)
    : m_kind(kind), m_controlId(controlId), m_itemId(itemId)
{
    setAttribute(Qt::WA_DontShowOnScreen);
    setAttribute(Qt::WA_QuitOnClose, false);
    setUpdatesEnabled(false); // it is never seen, so it needs no picture of its own
    resize(1, 1);
    QWidget::show();
    m_source = std::move(source); // set after show(), because the native control is already visible
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
    const auto customize = m_source ? m_source() : ComPtr<IFileDialogCustomize>();
    if (!customize) {
        return;
    }
    const CDCONTROLSTATEF state = changed(nativeState(*customize), flag, on);
    if (isItem()) {
        customize->SetControlItemState(m_controlId, m_itemId, state);
        return;
    }
    customize->SetControlState(m_controlId, state);
    if (m_labelId) {
        customize->SetControlState(*m_labelId, ownState());
    }
}

CDCONTROLSTATEF ControlStandIn::ownState() const
{
    const CDCONTROLSTATEF enabled = changed(CDCS_INACTIVE, CDCS_ENABLED, isEnabled());
    return changed(enabled, CDCS_VISIBLE, isVisible());
}

CDCONTROLSTATEF ControlStandIn::nativeState(IFileDialogCustomize& customize) const
{
    // The result of the call is not checked. If it fails, the variable keeps the state of this widget.
    CDCONTROLSTATEF state = ownState();
    if (isItem()) {
        customize.GetControlItemState(m_controlId, m_itemId, &state);
    } else {
        customize.GetControlState(m_controlId, &state);
    }
    return state;
}

} // namespace morvane::ui
