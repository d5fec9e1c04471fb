// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"
#include "ui/qt/MorvaneUiExport.h"

#include <memory>

namespace morvane::ui {

/**
 * The free functions of COM and the Shell that the file dialog needs. Each platform has an implementation.
 *
 * Each operation has the parameters and results of the published function with the same name. GUI thread only. Strings
 * and objects that one Shell returned must be returned to the same Shell.
 *
 * Hosts use it only in tests, where a RecordingShell replaces it:
 *
 * @snippet 27-test-your-dialogs/main.cpp shell
 */
class MORVANE_UI_EXPORT Shell
{
public:
    Shell();
    virtual ~Shell();
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;

    /** Joins the thread to an apartment. Returns S_FALSE, a success, if it is already in an apartment of that kind. */
    virtual HRESULT coInitializeEx(void* reserved, DWORD flags) = 0;
    /** Leaves the apartment. Call it once for each coInitializeEx() that succeeded. */
    virtual void coUninitialize() = 0;
    /**
     * Creates a dialog: @p clsid is CLSID_FileOpenDialog or CLSID_FileSaveDialog. A failure stores null in @p object.
     */
    virtual HRESULT coCreateInstance(REFCLSID clsid, IUnknown* outer, DWORD context, REFIID iid, void** object) = 0;
    /** Frees a string that the Shell returned; null is allowed. */
    virtual void coTaskMemFree(void* memory) = 0;
    /** Creates the item for an existing path. A failure stores null in @p object. */
    virtual HRESULT createItemFromParsingName(PCWSTR path, IBindCtx* context, REFIID iid, void** object) = 0;
    /**
     * Finds the interface @p iid of the object @p that in @p table, whose last row is empty, and adds a reference. The
     * first row is also used for IUnknown. Returns E_NOINTERFACE, with null in @p object, if the table does not list
     * the interface.
     */
    virtual HRESULT qiSearch(void* that, const QITAB* table, REFIID iid, void** object) = 0;

    /** Returns the replacement. Without one: the operating system's Shell on Windows, WidgetShell elsewhere. */
    static Shell& instance();
    /**
     * Makes @p replacement the object that instance() returns. Null restores the default. Prefer ShellOverride.
     * @return the previous replacement; null if there was none. The caller keeps the ownership of both.
     */
    static Shell* setInstance(Shell* replacement);
};

/**
 * Replaces the process's Shell as long as the guard exists. The guard does not own the replacement. The replacement
 * must outlive the guard and every object that it created, except the dialog of a SaveFileWinDialog, which lives until
 * the process ends. Guards can be nested.
 *
 * @snippet 27-test-your-dialogs/main.cpp shell
 */
class MORVANE_UI_EXPORT ShellOverride
{
public:
    /** @param replacement the object that Shell::instance() returns from now on */
    explicit ShellOverride(Shell& replacement);
    ~ShellOverride();
    ShellOverride(const ShellOverride&) = delete;
    ShellOverride& operator=(const ShellOverride&) = delete;

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

/** Returns the row for @p Interface, a base class of @p Object, in a table for Shell::qiSearch(). */
template <typename Interface, typename Object>
QITAB interfaceRow()
{
    // Any address except null gives the offset. The conversion of a null pointer would stay null.
    alignas(Object) static char storage[sizeof(Object)];
    auto* const object = reinterpret_cast<Object*>(storage);
    auto* const base = reinterpret_cast<char*>(static_cast<Interface*>(object));
    QITAB row{};
    row.piid = &iidOf<Interface>();
    row.dwOffset = static_cast<decltype(row.dwOffset)>(base - storage);
    return row;
}

} // namespace morvane::ui
