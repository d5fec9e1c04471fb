// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

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
 * Represents one control of the native dialog. Passes its visibility and its enabled state on to that control.
 *
 * Qt reports changes of the visibility only for a widget that is shown. So this widget is shown from the start, with
 * Qt::WA_DontShowOnScreen.
 */
class ControlStandIn : public QWidget
{
public:
    /**
     * @param dialog    not owned; with null, nothing is passed on
     * @param controlId identifier of the control; for an item of the accept menu, that of the menu
     * @param itemId    identifier of the item; 0 for a button or check box
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
