#pragma once

#include "host/InstanceOverride.h"
#include "ui/qt/dialogs/shell/ShellInterfaces.h"
#include "ui/qt/MorvaneUiExport.h"

namespace morvane::ui {

/**
 * The free functions of COM and the Shell that the file dialog needs, so that they can be served on every platform.
 *
 * Each operation has the parameters and results of the published function that it is named after. GUI thread only.
 * Strings and objects that come from one Shell go back to that same Shell.
 *
 * Hosts meet it in tests only, where a RecordingShell takes its place:
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

    /** Joins the thread to an apartment. S_FALSE, a success, when it is already in one of that kind. */
    virtual HRESULT coInitializeEx(void* reserved, DWORD flags) = 0;
    /** Leaves the apartment; once for each coInitializeEx() that has succeeded. */
    virtual void coUninitialize() = 0;
    /** Makes a dialog: @p clsid is CLSID_FileOpenDialog or CLSID_FileSaveDialog. A failure leaves null in @p object. */
    virtual HRESULT coCreateInstance(REFCLSID clsid, IUnknown* outer, DWORD context, REFIID iid, void** object) = 0;
    /** Frees a string that the Shell has returned; null is allowed. */
    virtual void coTaskMemFree(void* memory) = 0;
    /** The item for an existing path. A failure leaves null in @p object. */
    virtual HRESULT createItemFromParsingName(PCWSTR path, IBindCtx* context, REFIID iid, void** object) = 0;
    /**
     * Finds the interface @p iid of the object @p that in @p table, whose last row is empty, and adds a reference. The
     * first row also answers for IUnknown. E_NOINTERFACE, with null in @p object, when the table does not list it.
     */
    virtual HRESULT qiSearch(void* that, const QITAB* table, REFIID iid, void** object) = 0;

    /** The replacement, or else the operating system's Shell on Windows and WidgetShell elsewhere. */
    static Shell& instance();
    /**
     * Makes @p replacement what instance() returns; null brings the default back. Prefer ShellOverride.
     * @return the previous replacement, null when there was none. Ownership stays with the caller.
     */
    static Shell* setInstance(Shell* replacement);
};

/**
 * Puts another Shell in the place of the process's own for as long as the guard lives. The replacement is not owned and
 * must outlive the guard and every object that it made. Guards nest.
 *
 * @snippet 27-test-your-dialogs/main.cpp shell
 */
class MORVANE_UI_EXPORT ShellOverride
{
public:
    /** @param replacement what Shell::instance() returns from here on */
    explicit ShellOverride(Shell& replacement);
    ~ShellOverride();
    ShellOverride(const ShellOverride&) = delete;
    ShellOverride& operator=(const ShellOverride&) = delete;

private:
    InstanceOverride<Shell> m_override;
};

/** The row for @p Interface, a base of @p Object, in a table for Shell::qiSearch(). */
template <typename Interface, typename Object>
QITAB interfaceRow()
{
    // Any address will do for the distance, except null, which a conversion keeps null.
    alignas(Object) static char storage[sizeof(Object)];
    auto* const object = reinterpret_cast<Object*>(storage);
    auto* const base = reinterpret_cast<char*>(static_cast<Interface*>(object));
    QITAB row{};
    row.piid = &iidOf<Interface>();
    row.dwOffset = static_cast<decltype(row.dwOffset)>(base - storage);
    return row;
}

} // namespace morvane::ui
