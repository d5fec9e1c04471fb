// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace morvane::test {

/** Polls until @p condition holds; false when it does not within @p seconds. */
bool waitUntil(const std::function<bool()>& condition, int seconds = 10);

/**
 * A common item dialog as seen from outside: windows, their texts and states, and messages to them. Unless a function
 * says otherwise, call it from another thread than that of the dialog. After the end of the dialog, the functions
 * return empty values.
 */
class NativeDialog
{
public:
    /** Ids of the controls that every such dialog has. */
    enum Control
    {
        Accept = IDOK,
        Cancel = IDCANCEL,
        AcceptArrow = 1024,
        Types = 1136,
        Name = 1152
    };

    /** The id of the control that was added as the @p index th, counted from 0. */
    static int customControl(int index);

    /** The dialog of this process that has a name field and is ready for input; waits for it. Null when none opens. */
    static HWND waitForWindow(int seconds);

    explicit NativeDialog(HWND window);

    HWND window() const;
    bool isOpen() const;
    std::wstring title() const;

    std::wstring name() const;
    void setName(const std::wstring& name) const;
    /** Presses the accept button. */
    void accept() const;
    /** Types the name, then presses the accept button. A folder's name makes the dialog enter it. */
    void accept(const std::wstring& name) const;
    void cancel() const;

    std::vector<std::wstring> types() const;
    /** Counted from 0; -1 for none. */
    int typeIndex() const;
    void chooseType(int index) const;

    /** How many files and folders the list shows; it is filled a moment after the dialog or a folder opens. */
    int listedFiles() const;

    /** Selects the entry of the list as a click on it would. False when it is not listed. Only for the dialog's thread.
     */
    bool selectFile(const std::wstring& name) const;

    /** Whether the list shows an entry of this name. */
    bool lists(const std::wstring& name) const;

    /**
     * Clicks with the mouse, by events in the system's input queue: on a control, or on an entry of the list, with the
     * key Control held down or not. False when the entry is not listed.
     */
    void clickOn(int control) const;
    bool clickFile(const std::wstring& name, bool withControl = false) const;

    bool exists(int control) const;
    std::wstring text(int control) const;
    void press(int control) const;
    /** Presses it and returns when all effects are done. Only for the thread of the dialog. */
    void click(int control) const;
    /** The id of the button or check box with this text; 0 when there is none. */
    int controlWithText(const std::wstring& text) const;
    bool isChecked(int control) const;
    bool isEnabled(int control) const;
    bool isVisible(int control) const;

    /**
     * Chooses an entry, counted from 0, of the combo box that was added first, as a user does.
     * False when there is none. Only for the dialog's thread.
     */
    bool chooseFromCustomList(int position) const;
    /** Sets the text in the edit box that was added first. False when there is none. Only for the dialog's thread. */
    bool setCustomText(const std::wstring& text) const;

    /** The shown entry of the combo box that was added first. */
    std::wstring customListText() const;

    /** Opens the menu of the accept button and selects the entry @p index, counted from 0. False when no menu opens. */
    bool chooseAcceptOption(int index) const;
    /** Waits for a menu of this process and selects the entry with this text. False when there is none. */
    static bool takeMenuEntry(const std::wstring& text);

    /** Waits for a message box of the dialog, such as the overwrite question. */
    bool waitForQuestion(int seconds = 10) const;
    bool hasQuestion() const;
    std::wstring questionTitle() const;
    /** The words in the message box. */
    std::wstring questionText() const;
    /** Presses IDYES, IDNO, IDOK, ... in the message box. */
    void answer(int button) const;

private:
    HWND list() const;
    HWND customControlOfClass(const wchar_t* name) const;
    /** Counted from 0; -1 when it is not listed. */
    int positionOf(const std::wstring& name) const;
    HWND find(int control) const;
    HWND question() const;

    HWND m_window;
};

} // namespace morvane::test
