// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "property/PropertyAbstract.h"
#include "ui/qt/dialogs/native/ControlStandIn_p.h"
#include "ui/qt/dialogs/shell/ComPtr.h"

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace morvane::ui {

/**
 * The host's own controls in the native dialog: push buttons, check boxes and the menu of the accept button.
 *
 * All controls and menu items get their identifiers from one counter. A control that the Shell refuses gets one, too.
 */
class NativeControls
{
public:
    /** @param dialog the owner's pointer, which may be set later; while it is null, no Shell gets the controls */
    explicit NativeControls(const ComPtr<IFileDialog>& dialog);
    ~NativeControls();
    NativeControls(const NativeControls&) = delete;
    NativeControls& operator=(const NativeControls&) = delete;

    /** Gives the accept button its menu. Call this before options are added. */
    void addAcceptMenu();
    // This object owns the stand-ins that these functions return.
    QWidget* addButton(const std::string& text, boost::function<void()> action, bool prominent);
    QWidget* addCheckBox(const std::string& text, boost::shared_ptr<PropertyAbstract<bool>> checked);
    QWidget* addAcceptOption(const std::string& text, int value);
    /** Removes the options from the menu and destroys their stand-ins. */
    void clearAcceptOptions();

    /** The value that readSelectedAcceptOption() has read last; 255 until it has read one. */
    int selectedAcceptOption() const { return m_selectedAcceptOption; }
    void readSelectedAcceptOption();

    /** Calls the action of the button; unknown identifiers are ignored. */
    void buttonClicked(DWORD control);
    /** Sets the property of the check box; unknown identifiers are ignored. */
    void checkButtonToggled(DWORD control, BOOL checked);

private:
    unsigned int add(ControlKind kind, const std::string& text, bool prominent, bool checked);
    HRESULT request(IFileDialogCustomize& customize, ControlKind kind, DWORD id, const std::string& text, bool checked);

    // Members are destroyed in reverse order. Hosts rely on this order.
    const ComPtr<IFileDialog>& m_dialog;
    unsigned int m_nextId = 0;
    unsigned int m_acceptMenuId = 0;
    std::map<unsigned int, boost::function<void()>> m_buttonActions;
    std::map<unsigned int, boost::shared_ptr<PropertyAbstract<bool>>> m_checkBoxProperties;
    std::map<unsigned int, int> m_acceptOptionValues;
    std::vector<std::unique_ptr<ControlStandIn>> m_standIns;
    std::vector<std::unique_ptr<ControlStandIn>> m_optionStandIns;
    int m_selectedAcceptOption = 255;
};

} // namespace morvane::ui
