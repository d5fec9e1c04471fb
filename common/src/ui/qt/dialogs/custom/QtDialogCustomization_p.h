// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/native/CustomizationTarget_p.h"
#include "ui/qt/dialogs/native/NativeControls_p.h"
#include "ui/qt/dialogs/shell/ComObject_p.h"
#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/CustomControls_p.h"
#include "ui/qt/dialogs/shell/DialogMemory_p.h"
#include "ui/qt/dialogs/shell/SidebarPlaces_p.h"

#include <QFileDialog>
#include <QPointer>

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace morvane::ui {

/**
 * What a host has added to Qt's file dialog. The controls are those of the WidgetShell. It may outlive the dialog while
 * one of its functions runs.
 */
class QtDialogCustomization final : public CustomizationTarget,
                                    public std::enable_shared_from_this<QtDialogCustomization>
{
public:
    /** @param setGeometryKey sets the settings key under which the dialog keeps its geometry */
    QtDialogCustomization(QFileDialog& dialog, std::function<void(const std::string&)> setGeometryKey);
    ~QtDialogCustomization() override;
    QtDialogCustomization(const QtDialogCustomization&) = delete;
    QtDialogCustomization& operator=(const QtDialogCustomization&) = delete;

    /** The dialog is being destroyed. */
    void leaveDialog();
    /**
     * The dialog is about to be shown, for the first time or again.
     * @param hasKeptSize whether the dialog has the size of an earlier dialog
     */
    void beginRun(bool hasKeptSize);
    /** The dialog was closed. May be called again. */
    void endRun(bool accepted);
    /** Throws the exception of an action or an observer, if there was one in the last run. */
    void rethrow();
    /** Tells the user the reason if the choice is refused. The dialog may be destroyed meanwhile. */
    bool mayAccept(const QStringList& paths);

    NativeControls& controls() override { return m_controls; }
    void setAcceptanceCheck(AcceptanceCheck check) override { m_check = std::move(check); }
    void setAcceptButtonText(const std::string& text) override;
    void setFileNameLabel(const std::string& label) override;
    void addPlace(const std::string& folder, bool atTop) override;
    void setMemoryKey(const std::string& key) override;
    void clearMemory() override { m_memory.clear(); }

private:
    class Widgets;

    ControlActions actions();
    void guarded(const std::function<void()>& call);
    bool refuse(const std::string& reason);

    QPointer<QFileDialog> m_dialog;
    const std::function<void(const std::string&)> m_setGeometryKey;
    ComPtr<ComObject<Widgets>> m_widgets;
    NativeControls m_controls;
    AcceptanceCheck m_check;
    DialogMemory m_memory;
    SidebarPlaces m_places;
    bool m_isRunning = false;
    bool m_isFirstRun = true;
    std::exception_ptr m_thrown;
};

} // namespace morvane::ui
