// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "property/PropertyAbstract.h"
#include "ui/qt/dialogs/native/ControlBinding_p.h"
#include "ui/qt/dialogs/native/ControlStandIn_p.h"
#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/Shell.h"

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace morvane::ui {

/**
 * The host's own controls in the native dialog: push buttons, check boxes, lists, edit boxes, texts, groups, separators
 * and the menu of the accept button.
 *
 * All controls, labels, entries and menu items get their identifiers from one counter. A control that the Shell refuses
 * gets one, too.
 */
class NativeControls
{
public:
    /**
     * @param freeText frees a text that the dialog has returned
     * @param source   finds the interface for the controls; while it is empty, no Shell gets the controls
     */
    NativeControls(std::function<void(LPWSTR)> freeText, ControlsSource source);
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

    // These functions throw std::logic_error while the dialog is open, and std::length_error if a text is too long or
    // there are too many identifiers. Nothing was added then.
    QWidget* addComboBox(const std::string& label, const std::vector<std::string>& entries,
        boost::shared_ptr<PropertyAbstract<int>> chosen);
    QWidget* addRadioButtons(const std::string& label, const std::vector<std::string>& entries,
        boost::shared_ptr<PropertyAbstract<int>> chosen);
    QWidget* addLineEdit(const std::string& label, boost::shared_ptr<PropertyAbstract<std::string>> text);
    QWidget* addText(const std::string& text);
    QWidget* addSeparator();
    QWidget* beginGroup(const std::string& label);
    void endGroup();
    /** The stand-in of an entry, which is made now. Null if @p control is no list of this object or has no such entry.
     */
    QWidget* entry(const QWidget* control, int position);

    /** Whether the dialog is on the screen. */
    void setOpen(bool open) { m_isOpen = open; }

    /** The value that readSelectedAcceptOption() has read last; 255 until it has read one. */
    int selectedAcceptOption() const { return m_selectedAcceptOption; }
    void readSelectedAcceptOption();

    // Unknown identifiers are ignored.
    /** Calls the action of the button. */
    void buttonClicked(DWORD control);
    /** Sets the property of the check box. */
    void checkButtonToggled(DWORD control, BOOL checked);
    /** Sets the property of the list. */
    void itemSelected(DWORD control, DWORD item);

    bool hasTexts() const { return !m_texts.empty(); }
    /** Sets the properties of the edit boxes to what the user has typed. A text that is rejected stays. */
    void readTexts();
    /**
     * The same, but the user has finished typing: a text that is rejected is replaced by that of its property.
     * @return the reason for the first rejection; empty if there is none
     */
    std::optional<std::string> finishTexts();

private:
    struct List
    {
        unsigned int firstEntry;
        int count;
        std::unique_ptr<ControlBinding<int>> binding;
        std::map<int, std::unique_ptr<ControlStandIn>> entries{};
    };
    using AddList = HRESULT (STDMETHODCALLTYPE IFileDialogCustomize::*)(DWORD);
    struct Label;

    unsigned int add(ControlKind kind, const std::string& text, bool prominent, bool checked);
    HRESULT request(IFileDialogCustomize& customize, ControlKind kind, DWORD id, const std::string& text, bool checked);
    QWidget* addList(AddList call, const std::string& label, const std::vector<std::string>& entries,
        boost::shared_ptr<PropertyAbstract<int>> chosen);
    void expectRoom(std::size_t identifiers, const std::vector<std::string>& texts) const;
    QWidget* addStandIn(ControlKind kind, unsigned int id, std::optional<unsigned int> label = std::nullopt);
    int select(unsigned int list, int position);
    bool showChecked(unsigned int control, bool checked);
    std::string showText(unsigned int control, const std::string& text);
    std::optional<std::string> textOf(IFileDialogCustomize& customize, unsigned int control);

    // Members are destroyed in reverse order. Hosts rely on this order.
    const std::function<void(LPWSTR)> m_freeText;
    const ControlsSource m_source;
    bool m_isOpen = false;
    bool m_isInGroup = false;
    unsigned int m_nextId = 0;
    unsigned int m_acceptMenuId = 0;
    std::map<unsigned int, boost::function<void()>> m_buttonActions;
    std::map<unsigned int, std::unique_ptr<ControlBinding<bool>>> m_checkBoxes;
    std::map<unsigned int, int> m_acceptOptionValues;
    std::map<unsigned int, List> m_lists;
    std::map<unsigned int, std::unique_ptr<ControlBinding<std::string>>> m_texts;
    std::vector<std::unique_ptr<ControlStandIn>> m_standIns;
    std::vector<std::unique_ptr<ControlStandIn>> m_optionStandIns;
    int m_selectedAcceptOption = 255;
};

} // namespace morvane::ui
