// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/Shell.h"

#include <functional>
#include <string>
#include <vector>

namespace morvane::test {

/** Counts the calls that go to a Shell and its objects, and chooses the one that fails. */
class ShellFaults
{
public:
    /**
     * Forgets the calls so far, and makes one call fail: that of this name before which there were @p before others of
     * the same name. An empty name for none.
     */
    void start(const std::string& failing, int before);
    const std::vector<std::string>& calls() const { return m_calls; }
    /** The name of the call that has failed; empty when none has. */
    const std::string& failed() const { return m_failed; }

    /** Records the call that begins now; whether it is to fail. */
    bool isHit(const std::string& name);

    int liveObjects = 0;
    int liveStrings = 0;
    int apartments = 0;

private:
    std::vector<std::string> m_calls;
    std::string m_failed;
    std::string m_failing;
    int m_before = 0;
};

/**
 * Passes every call on to another Shell, except for one call, which fails with E_FAIL. The failed call has no effect,
 * unless it is CoInitializeEx. The dialogs, items and arrays of this Shell do the same, and so do the dialogs that a
 * sink is given.
 */
class FailingShell final : public ui::Shell
{
public:
    /** Is called in place of Show of a dialog of the other Shell, and runs that dialog. */
    using Show = std::function<HRESULT(IFileDialog& dialog)>;

    explicit FailingShell(ui::Shell& target, Show show);

    ShellFaults faults;

    HRESULT coInitializeEx(void* reserved, DWORD flags) override;
    void coUninitialize() override;
    HRESULT coCreateInstance(REFCLSID clsid, IUnknown* outer, DWORD context, REFIID iid, void** object) override;
    void coTaskMemFree(void* memory) override;
    HRESULT createItemFromParsingName(PCWSTR path, IBindCtx* context, REFIID iid, void** object) override;
    HRESULT qiSearch(void* that, const QITAB* table, REFIID iid, void** object) override;

private:
    ui::Shell& m_target;
    Show m_show;
};

} // namespace morvane::test
