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
 * The widgets of the custom controls in one dialog made of widgets: a row below the file types, the prominent push
 * button below the dialog's own buttons, and the menu on the accept button, which then shows the text of the menu's
 * first item. A child of the dialog.
 */
class ControlStrip : public QObject
{
public:
    ControlStrip(FileDialogWindow& dialog, ControlActions actions);
    ~ControlStrip() override;

    /** Makes the widgets match @p controls. May be called from a signal of one of them. */
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
