// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// What the native dialog adds to the Shell's own time: reading name filters, and telling the Shell about them.

#include "support/Ratio.h"
#include "testing/RecordingDialog.h"
#include "testing/RecordingShell.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/native/NameFilterText_p.h"
#include "ui/qt/dialogs/shell/ShellText_p.h"

#include <QWidget>

#include <algorithm>
#include <chrono>
#include <regex>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using morvane::test::RecordingDialog;
using morvane::test::RecordingShell;
using morvane::ui::ComPtr;
using morvane::ui::FileTypeText;
using morvane::ui::ShellString;
using morvane::ui::splitNameFilter;

constexpr int filterCount = 1000;

const std::vector<std::string>& filters()
{
    static const std::vector<std::string> made = [] {
        std::vector<std::string> texts;
        for (int i = 0; i < filterCount; ++i) {
            const std::string number = std::to_string(i);
            texts.push_back("Measured data " + number + " (*.dat" + number + " *.csv *.txt)");
        }
        return texts;
    }();
    return made;
}

void parseFilters(benchmark::State& state)
{
    for (auto _ : state) {
        for (const std::string& filter : filters()) {
            FileTypeText text = splitNameFilter(filter);
            benchmark::DoNotOptimize(text);
        }
    }
}

void matchFilters(benchmark::State& state)
{
    const std::regex expression("(.*) \\((.*)\\).*");
    for (auto _ : state) {
        for (const std::string& filter : filters()) {
            std::smatch match;
            FileTypeText text{"File of Type", filter};
            if (std::regex_match(filter, match, expression)) {
                text = {match[1].str(), match[2].str()};
            }
            std::replace(text.patterns.begin(), text.patterns.end(), ' ', ';');
            benchmark::DoNotOptimize(text);
        }
    }
}

/** One filter of the given length, one half of it description and one half patterns. */
std::string longFilter(std::size_t length)
{
    std::string text(length / 2, 'd');
    text += " (";
    while (text.size() + 5 < length) {
        text += "*.a ";
    }
    return text + std::string(length - text.size() - 1, 'b') + ')';
}

void parseMebibyte(benchmark::State& state)
{
    static const std::string filter = longFilter(1 << 20);
    for (auto _ : state) {
        FileTypeText text = splitNameFilter(filter);
        benchmark::DoNotOptimize(text);
    }
}

void parseSixteenthsOfMebibyte(benchmark::State& state)
{
    static const std::string filter = longFilter(1 << 16);
    for (auto _ : state) {
        for (int i = 0; i < 16; ++i) {
            FileTypeText text = splitNameFilter(filter);
            benchmark::DoNotOptimize(text);
        }
    }
}

/** Runs @p action, which shows a dialog of @p shell, and reports the time until it is shown. */
template <typename Action>
void reportTimeUntilShow(benchmark::State& state, RecordingShell& shell, Action action)
{
    Clock::time_point shown;
    shell.script.announcesOpening = false;
    shell.script.duringShow = [&shown](RecordingDialog&) { shown = Clock::now(); };
    shell.clearCalls();
    const Clock::time_point start = Clock::now();
    action();
    state.SetIterationTime(std::chrono::duration<double>(shown - start).count());
}

std::string joinedFilters()
{
    std::string joined;
    for (const std::string& filter : filters()) {
        joined += (joined.empty() ? "" : ";;") + filter;
    }
    return joined;
}

void configureThroughLibrary(benchmark::State& state)
{
    static const std::string joined = joinedFilters();
    QWidget parent;
    parent.winId();
    for (auto _ : state) {
        RecordingShell shell;
        const morvane::ui::ShellOverride override(shell);
        ExtendedWinFileDialog dialog(parent, "Open", "", joined, "", QFileDialog::AcceptOpen, false);
        reportTimeUntilShow(state, shell, [&dialog] { dialog.exec(); });
    }
}

/** A sink that ignores all events. */
class SilentSink final : public IFileDialogEvents
{
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override
    {
        *object = this;
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE OnFileOk(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnFolderChanging(IFileDialog*, IShellItem*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnFolderChange(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnShareViolation(IFileDialog*, IShellItem*, FDE_SHAREVIOLATION_RESPONSE*) override
    {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnTypeChange(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnOverwrite(IFileDialog*, IShellItem*, FDE_OVERWRITE_RESPONSE*) override { return S_OK; }
};

/** The texts as the Shell takes them, made beforehand. */
const std::vector<COMDLG_FILTERSPEC>& fileTypes()
{
    static std::vector<std::pair<ShellString, ShellString>> texts;
    static const std::vector<COMDLG_FILTERSPEC> types = [] {
        std::vector<COMDLG_FILTERSPEC> made;
        texts.reserve(filters().size());
        for (const std::string& filter : filters()) {
            const FileTypeText text = splitNameFilter(filter);
            texts.emplace_back(morvane::ui::toShellString(QString::fromStdString(text.description)),
                morvane::ui::toShellString(QString::fromStdString(text.patterns)));
            made.push_back({texts.back().first.c_str(), texts.back().second.c_str()});
        }
        return made;
    }();
    return types;
}

void configureShellAlone(benchmark::State& state)
{
    const ShellString title = morvane::ui::toShellString(QStringLiteral("Open"));
    fileTypes();
    SilentSink sink;
    for (auto _ : state) {
        RecordingShell shell;
        ComPtr<IFileDialog> dialog;
        shell.coCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog, dialog.putVoid());
        reportTimeUntilShow(state, shell, [&] {
            DWORD cookie = 0;
            FILEOPENDIALOGOPTIONS options = 0;
            shell.record("QISearch", "IFileDialogEvents");
            dialog->Advise(&sink, &cookie);
            dialog->SetTitle(title.c_str());
            dialog->GetOptions(&options);
            dialog->SetOptions(options);
            dialog->SetFileTypes(static_cast<UINT>(fileTypes().size()), fileTypes().data());
            dialog->SetFileTypeIndex(1);
            dialog->SetFileName(ShellString().c_str());
            dialog->Show(nullptr);
            dialog->Unadvise(cookie);
        });
    }
}

MORVANE_BENCHMARK(parseFilters);
MORVANE_BENCHMARK(matchFilters);
MORVANE_BENCHMARK(parseMebibyte);
MORVANE_BENCHMARK(parseSixteenthsOfMebibyte);
MORVANE_BENCHMARK(configureThroughLibrary)->UseManualTime();
MORVANE_BENCHMARK(configureShellAlone)->UseManualTime();

MORVANE_RATIO(filter_parse, parseFilters, matchFilters, 0.1);
MORVANE_RATIO(filter_parse_growth, parseMebibyte, parseSixteenthsOfMebibyte, 1.3);
MORVANE_RATIO(native_configure, configureThroughLibrary, configureShellAlone, 3);

} // namespace
