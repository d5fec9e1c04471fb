// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/Control_p.h"

#include <QObject>

#include <map>

class QAbstractButton;
class QDialogButtonBox;
class QGridLayout;
class QWidget;

namespace morvane::ui {

class AcceptMenu;
class FileDialogWindow;

/**
 * The widgets of the custom controls in a dialog made of widgets. There is a row below the file types. Prominent push
 * buttons are below the dialog's own buttons. The accept button has the menu, and shows the text of the menu's first
 * item. This object is a child of the dialog.
 */
class ControlStrip : public QObject
{
public:
    ControlStrip(FileDialogWindow& dialog, ControlActions actions);
    ~ControlStrip() override;

    /** Updates the widgets for @p controls. A slot for a signal of such a widget may call this. */
    void update(const std::vector<Control>& controls);

private:
    QAbstractButton* buttonFor(const Control& control);
    void addToRow(QAbstractButton& button);
    void place(const Control& control, QAbstractButton& button);
    void updateAcceptMenu(const Control& control);

    FileDialogWindow& m_dialog;
    const ControlActions m_actions;
    QDialogButtonBox* m_buttonBox;
    QWidget* m_row;
    QGridLayout* m_rowLayout;
    std::map<DWORD, QAbstractButton*> m_buttons;
    AcceptMenu* m_acceptMenu = nullptr;
};

} // namespace morvane::ui
