#pragma once

#include "ui/qt/dialogs/native/NativeFileDialog_p.h"

/**
 * Stands for one control of the native dialog and passes on whether it is visible and enabled.
 *
 * Qt tells a widget of its visibility only while it counts as shown, so it is shown from the start, on no screen.
 */
class ExtendedWinFileDialog::Impl::FakeWidget : public QWidget
{
public:
    /** @param dialog borrowed; may be null, then nothing is passed on */
    FakeWidget(IFileDialog* dialog, ControlKind kind, unsigned int controlId, unsigned int itemId);
    ~FakeWidget() override;

    unsigned int itemId() const { return m_itemId; }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void setStateFlag(CDCONTROLSTATEF flag, bool on);
    CDCONTROLSTATEF nativeState(IFileDialogCustomize& customize) const;

    IFileDialog* m_dialog = nullptr;
    int m_kind;
    unsigned int m_controlId;
    unsigned int m_itemId;
};
