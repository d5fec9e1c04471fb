#pragma once

#include "ui/qt/dialogs/shell/Shell.h"

namespace morvane::ui {

/**
 * The Shell on platforms that have none: its dialog is QFileDialog behind the published interfaces.
 *
 * Paths given to it may use either separator; what it returns is in the platform's native form. Apartments are only
 * counted. Strings come from the C library's heap and go back to it.
 *
 * The dialog honours FOS_PICKFOLDERS, FOS_ALLOWMULTISELECT, FOS_FILEMUSTEXIST, FOS_PATHMUSTEXIST, FOS_OVERWRITEPROMPT
 * and FOS_FORCESHOWHIDDEN; the other options are stored and read back. Its controls are push buttons, check buttons and
 * the drop-down of the accept button; the other kinds of control are answered with E_NOTIMPL.
 */
class MORVANE_UI_EXPORT WidgetShell final : public Shell
{
public:
    /** Which dialog appears when it carries no custom controls. With controls it is always Qt's own. */
    enum class Appearance
    {
        DesktopWherePossible, ///< the desktop's own dialog when Qt has one for it
        AlwaysWidgets         ///< Qt's widgets, alike everywhere
    };

    explicit WidgetShell(Appearance appearance = Appearance::DesktopWherePossible);
    ~WidgetShell() override;

    HRESULT coInitializeEx(void* reserved, DWORD flags) override;
    void coUninitialize() override;
    HRESULT coCreateInstance(REFCLSID clsid, IUnknown* outer, DWORD context, REFIID iid, void** object) override;
    void coTaskMemFree(void* memory) override;
    HRESULT createItemFromParsingName(PCWSTR path, IBindCtx* context, REFIID iid, void** object) override;
    HRESULT qiSearch(void* that, const QITAB* table, REFIID iid, void** object) override;

private:
    Appearance m_appearance;
};

} // namespace morvane::ui
