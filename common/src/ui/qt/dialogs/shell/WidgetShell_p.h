// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/Shell.h"

namespace morvane::ui {

/**
 * The Shell for platforms that have none. Its dialog is a QFileDialog behind the published interfaces.
 *
 * Paths in parameters may have both kinds of separators. Paths in results have the platform's native form. Of an
 * apartment, only the kind and the number of initializations are kept. Strings are on the C library's heap.
 *
 * The dialog uses the options FOS_PICKFOLDERS, FOS_ALLOWMULTISELECT, FOS_FILEMUSTEXIST, FOS_PATHMUSTEXIST,
 * FOS_NOVALIDATE, FOS_OVERWRITEPROMPT and FOS_FORCESHOWHIDDEN. Other options are only stored. Its controls are push
 * buttons, check buttons and the drop-down of the accept button. The operations for other controls return E_NOTIMPL.
 */
class MORVANE_UI_EXPORT WidgetShell final : public Shell
{
public:
    /**
     * Which dialog is shown. A dialog with custom controls is always Qt's own. So is one with a file type whose
     * description is empty, not simplified, or equal to that of another type.
     */
    enum class Appearance
    {
        DesktopWherePossible, ///< the desktop's own dialog if Qt supports it
        AlwaysWidgets         ///< Qt's widgets on all desktops
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
