#include "ui/qt/dialogs/native/ControlStandIn_p.h"

#include <QEvent>

using morvane::ui::ComPtr;

ExtendedWinFileDialog::Impl::FakeWidget::FakeWidget(
    IFileDialog* dialog, ControlKind kind, unsigned int controlId, unsigned int itemId)
    : m_kind(static_cast<int>(kind)), m_controlId(controlId), m_itemId(itemId)
{
    setAttribute(Qt::WA_DontShowOnScreen);
    setAttribute(Qt::WA_QuitOnClose, false);
    QWidget::show();
    m_dialog = dialog; // only now, since the native control is visible already
}

ExtendedWinFileDialog::Impl::FakeWidget::~FakeWidget() = default;

void ExtendedWinFileDialog::Impl::FakeWidget::showEvent(QShowEvent*)
{
    setStateFlag(CDCS_VISIBLE, true);
}

void ExtendedWinFileDialog::Impl::FakeWidget::hideEvent(QHideEvent*)
{
    setStateFlag(CDCS_VISIBLE, false);
}

void ExtendedWinFileDialog::Impl::FakeWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange) {
        setStateFlag(CDCS_ENABLED, isEnabled());
    }
}

void ExtendedWinFileDialog::Impl::FakeWidget::setStateFlag(CDCONTROLSTATEF flag, bool on)
{
    if (!m_dialog) {
        return;
    }
    ComPtr<IFileDialogCustomize> customize;
    m_dialog->QueryInterface(morvane::ui::iidOf<IFileDialogCustomize>(), customize.putVoid());
    if (!customize) {
        return;
    }
    const auto old = static_cast<DWORD>(nativeState(*customize));
    const auto mask = static_cast<DWORD>(flag);
    const auto state = static_cast<CDCONTROLSTATEF>(on ? old | mask : old & ~mask);
    if (m_kind == static_cast<int>(ControlKind::AcceptMenuItem)) {
        customize->SetControlItemState(m_controlId, m_itemId, state);
    } else {
        customize->SetControlState(m_controlId, state);
    }
}

CDCONTROLSTATEF ExtendedWinFileDialog::Impl::FakeWidget::nativeState(IFileDialogCustomize& customize) const
{
    // What this widget knows stays when the call fails, which is not looked at.
    const DWORD enabled = isEnabled() ? static_cast<DWORD>(CDCS_ENABLED) : 0;
    const DWORD visible = isVisible() ? static_cast<DWORD>(CDCS_VISIBLE) : 0;
    auto state = static_cast<CDCONTROLSTATEF>(enabled | visible);
    if (m_kind == static_cast<int>(ControlKind::AcceptMenuItem)) {
        customize.GetControlItemState(m_controlId, m_itemId, &state);
    } else {
        customize.GetControlState(m_controlId, &state);
    }
    return state;
}
