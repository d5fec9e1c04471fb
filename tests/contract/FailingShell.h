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
    /** The call with this number, counted from 0, fails from now on; none with -1. Forgets the calls so far. */
    void start(int failing);
    const std::vector<std::string>& calls() const { return m_calls; }
    /** The name of the call that has failed; empty when none has. */
    const std::string& failed() const { return m_failed; }

    /** Whether the call, which begins, is to fail. */
    bool isHit(const std::string& name);

    int liveObjects = 0;
    int liveStrings = 0;
    int apartments = 0;

private:
    std::vector<std::string> m_calls;
    std::string m_failed;
    int m_failing = -1;
};

/**
 * Passes every call on to another Shell, except one, which fails with E_FAIL and, but for CoInitializeEx, has no
 * effect. The dialogs, items and arrays that it gives out do the same, and so do the dialogs that a sink is told of.
 */
class FailingShell final : public ui::Shell
{
public:
    /** Runs a dialog of the other Shell in place of its Show. */
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
