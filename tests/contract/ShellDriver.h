// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/Shell.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>

namespace morvane::test {

/** The user in front of one open dialog. */
class ShellUser
{
public:
    virtual ~ShellUser() = default;
    virtual void pressAccept() = 0;
    virtual void pressCancel() = 0;
    virtual void typeName(const QString& name) = 0;
    /** Picks from the list of types; counted from 1. */
    virtual void pickType(unsigned position) = 0;
    virtual void enterFolder(const QString& folder) = 0;
    /** Clicks on a file in the list. */
    virtual void selectFile(const QString& path) = 0;
    virtual void clickButton(DWORD control, const QString& label) = 0;
    virtual void toggleCheck(DWORD control, const QString& label) = 0;
    virtual void pickAcceptItem(DWORD control, DWORD item, const QString& label) = 0;
    /** Chooses from a combo box; @p position counts the entries from 0. */
    virtual void chooseEntry(DWORD control, DWORD item, int position) = 0;
    /** Chooses a radio button by its label. */
    virtual void chooseRadio(DWORD control, DWORD item, const QString& label) = 0;
    /** Replaces the text in an edit box; returns when the Shell has it. */
    virtual void typeText(DWORD control, const QString& text) = 0;
    /** The folders in the list of places, in order. */
    virtual QStringList places() const = 0;
    /** Presses accept and answers the question whether a file may be replaced. */
    virtual void pressAcceptAndAnswer(bool replace) = 0;
};

/** One implementation of the Shell and the way to play its user; all that differs between them is here. */
class ShellDriver
{
public:
    virtual ~ShellDriver() = default;
    virtual ui::Shell& shell() = 0;
    /** Runs the dialog while @p play acts on it, once it is open. */
    virtual HRESULT show(IFileDialog& dialog, const std::function<void(ShellUser&)>& play) = 0;
    /** Why this implementation does not pass the test of this name; null when it must pass. Never set for our own
     * Shells. */
    virtual const char* differenceIn(const std::string&) const { return nullptr; }
    /** The number of objects and strings that are still alive; 0 if the Shell does not count them. */
    virtual int leaks() const { return 0; }
};

/** A driver that the tests run with. */
struct NamedShellDriver
{
    const char* name; ///< the last part of the test names
    std::unique_ptr<ShellDriver> (*make)();
};

void PrintTo(const NamedShellDriver& driver, std::ostream* out);

std::unique_ptr<ShellDriver> makeWidgetShellDriver();
std::unique_ptr<ShellDriver> makeRecordingShellDriver();
std::unique_ptr<ShellDriver> makeWindowsShellDriver();

} // namespace morvane::test
