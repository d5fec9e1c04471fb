#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"

#include <QWidget>

namespace morvane::ui {

enum class ControlKind : int
{
    PushButton = 0,
    CheckBox = 1,
    AcceptMenuItem = 2
};

/**
 * Stands for one control of the native dialog and passes on whether it is visible and enabled.
 *
 * Qt reports visibility changes only of a widget that counts as shown, so it is shown from the start, on no screen.
 */
class ControlStandIn : public QWidget
{
public:
    /**
     * @param dialog    not owned; null passes nothing on
     * @param controlId of an item of the accept menu: the identifier of the menu
     * @param itemId    0 for a button or check box
     */
    ControlStandIn(IFileDialog* dialog, ControlKind kind, unsigned int controlId, unsigned int itemId);
    ~ControlStandIn() override;

    unsigned int itemId() const { return m_itemId; }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void setStateFlag(CDCONTROLSTATEF flag, bool on);
    CDCONTROLSTATEF nativeState(IFileDialogCustomize& customize) const;

    IFileDialog* m_dialog = nullptr;
    ControlKind m_kind;
    unsigned int m_controlId;
    unsigned int m_itemId;
};

} // namespace morvane::ui
