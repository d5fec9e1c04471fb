// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/Control_p.h"

#include <memory>

class QAbstractButton;
class QWidget;

namespace morvane::ui {

class ControlFlow;

/** The widgets of one custom control. They are children of the dialog; this object only keeps them up to date. */
class ControlWidget
{
public:
    virtual ~ControlWidget();
    ControlWidget(const ControlWidget&) = delete;
    ControlWidget& operator=(const ControlWidget&) = delete;

    /** The outermost widget, which has the label, too. */
    QWidget& cell() const { return m_cell; }
    /** Whether the cell is alone in its line. */
    virtual bool takesWholeLine() const { return false; }
    /** Where the controls of a group are; null if this is no group. */
    virtual ControlFlow* members() { return nullptr; }
    /** Null if this is neither a push button nor a check button. */
    virtual QAbstractButton* button() { return nullptr; }

    /** Shows the state of the control. @param label the text or the group that is the label of this control, or null */
    void update(const Control& control, const Control* label);

protected:
    explicit ControlWidget(QWidget& cell) : m_cell(cell) {}
    virtual void show(const Control& control, const Control* label) = 0;

private:
    QWidget& m_cell;
};

/**
 * Makes the widgets of a control that is not the drop-down of the accept button.
 * @param actions called for the user; must outlive the widgets
 */
std::unique_ptr<ControlWidget> makeControlWidget(
    const Control& control, const Control* label, const ControlActions& actions, QWidget& parent);

} // namespace morvane::ui
