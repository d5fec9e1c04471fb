// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/Control_p.h"
#include "ui/qt/dialogs/shell/ControlScroller_p.h"
#include "ui/qt/dialogs/shell/ControlWidget_p.h"

#include <QObject>
#include <QPointer>

#include <map>
#include <memory>

class QAbstractButton;
class QDialogButtonBox;
class QFileDialog;
class QWidget;

namespace morvane::ui {

class AcceptMenu;
class ControlFlow;

/**
 * The widgets of the custom controls in a dialog made of widgets. They are below the file types, in the order in which
 * they were added, in as many lines as they need. A text directly before a list or an edit box is its label; so is the
 * heading of a group that has only this control. Other groups have a frame.
 *
 * Prominent push buttons are below the dialog's own buttons. The accept button has the menu, and shows the text of the
 * menu's first item. This object is a child of the dialog.
 */
class ControlStrip : public QObject
{
public:
    ControlStrip(QFileDialog& dialog, ControlActions actions);
    ~ControlStrip() override;

    /** Updates the widgets for @p controls. A slot for a signal of such a widget may call this. */
    void update(const std::vector<Control>& controls);

    /** Makes the dialog higher by what the controls need beyond their first line, if the screen has room. */
    void makeRoom();

private:
    struct Labels; // which controls are labels of others

    ControlWidget& widgetFor(const Control& control, const Labels& labels);
    ControlFlow& flowFor(const Control& control, const Labels& labels);
    void place(const Control& control, const Labels& labels, ControlWidget& widget);
    void hide(const Control& control);
    void updateAcceptMenu(const Control& control);

    QFileDialog& m_dialog;
    const ControlActions m_actions;
    QDialogButtonBox* m_buttonBox;
    QWidget* m_row;
    ControlFlow* m_flow;
    QPointer<ControlScroller> m_scroller;
    std::map<DWORD, std::unique_ptr<ControlWidget>> m_widgets;
    AcceptMenu* m_acceptMenu = nullptr;
};

} // namespace morvane::ui
