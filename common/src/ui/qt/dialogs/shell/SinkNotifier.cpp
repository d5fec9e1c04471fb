// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/SinkNotifier_p.h"

#include "ui/qt/dialogs/shell/WidgetShellItem_p.h"

#include <utility>

namespace morvane::ui {

SinkNotifier::SinkNotifier(IFileDialog& dialog, std::function<void()> onThrown)
    : m_dialog(dialog), m_onThrown(std::move(onThrown))
{
}

void SinkNotifier::rethrow()
{
    if (m_exception) {
        std::rethrow_exception(std::exchange(m_exception, nullptr));
    }
}

bool SinkNotifier::folderChanging(const QString& folder)
{
    const auto item = makeShellItem(folder);
    return tell([&](IFileDialogEvents& sink) { return sink.OnFolderChanging(&m_dialog, item.get()); }) == S_OK;
}

void SinkNotifier::folderChanged()
{
    tell([this](IFileDialogEvents& sink) { return sink.OnFolderChange(&m_dialog); });
}

void SinkNotifier::selectionChanged()
{
    tell([this](IFileDialogEvents& sink) { return sink.OnSelectionChange(&m_dialog); });
}

void SinkNotifier::typeChanged()
{
    tell([this](IFileDialogEvents& sink) { return sink.OnTypeChange(&m_dialog); });
}

FileDialogObserver::OverwriteAnswer SinkNotifier::overwriting(const QString& path)
{
    using OverwriteAnswer = FileDialogObserver::OverwriteAnswer;
    const auto item = makeShellItem(path);
    FDE_OVERWRITE_RESPONSE response = FDEOR_DEFAULT;
    tell([&](IFileDialogEvents& sink) {
        const HRESULT result = sink.OnOverwrite(&m_dialog, item.get(), &response);
        response = result == S_OK ? response : FDEOR_DEFAULT;
        return result == S_OK && response != FDEOR_DEFAULT ? S_FALSE : S_OK; // the first decision is final
    });
    if (m_ended || response == FDEOR_REFUSE) {
        return OverwriteAnswer::Refuse;
    }
    return response == FDEOR_ACCEPT ? OverwriteAnswer::Accept : OverwriteAnswer::Ask;
}

bool SinkNotifier::accepting()
{
    return tell([this](IFileDialogEvents& sink) { return sink.OnFileOk(&m_dialog); }) == S_OK && !m_ended;
}

void SinkNotifier::tellControls(const std::function<HRESULT(IFileDialogControlEvents&)>& call)
{
    guarded([&] { return m_sinks.notifyControls(call); });
}

HRESULT SinkNotifier::tell(const std::function<HRESULT(IFileDialogEvents&)>& call)
{
    return guarded([&] { return m_sinks.notify(call); });
}

HRESULT SinkNotifier::guarded(const std::function<HRESULT()>& call)
{
    // A sink may have called Close() during an earlier event.
    if (m_ended) {
        return E_ABORT;
    }
    try {
        return call();
    } catch (...) {
        if (!m_exception) {
            m_exception = std::current_exception();
        }
        m_onThrown();
        return E_FAIL;
    }
}

} // namespace morvane::ui
