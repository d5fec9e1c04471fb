// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/ShellInterfaces.h"

#include <QWidget>

#include <functional>
#include <optional>

namespace morvane::ui {

enum class ControlKind : int
{
    PushButton = 0,
    CheckBox = 1,
    AcceptMenuItem = 2,
    /** Any other control: a list, an edit box, a text, a group or a separator. */
    Other = 3,
    /** An entry of a list. */
    ListEntry = 4
};

/** Returns the interface for the dialog's controls. Empty if there is no dialog or it does not have the interface. */
using ControlsSource = std::function<ComPtr<IFileDialogCustomize>()>;

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
     * @param controlId identifier of the control; for an item or an entry, that of the menu or list
     * @param itemId    identifier of the item or entry; 0 for a whole control
     */
    ControlStandIn(ControlsSource source, ControlKind kind, unsigned int controlId, unsigned int itemId);
    ~ControlStandIn() override;

    unsigned int controlId() const { return m_controlId; }
    unsigned int itemId() const { return m_itemId; }
    /** The control that is the label of this one changes with it. */
    void setLabel(std::optional<unsigned int> controlId) { m_labelId = controlId; }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    bool isItem() const { return m_kind == ControlKind::AcceptMenuItem || m_kind == ControlKind::ListEntry; }
    void setStateFlag(CDCONTROLSTATEF flag, bool on);
    CDCONTROLSTATEF ownState() const;
    CDCONTROLSTATEF nativeState(IFileDialogCustomize& customize) const;

    ControlsSource m_source;
    ControlKind m_kind;
    unsigned int m_controlId;
    unsigned int m_itemId;
    std::optional<unsigned int> m_labelId;
};

} // namespace morvane::ui
