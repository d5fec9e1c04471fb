#include "ui/qt/dialogs/shell/FileDialogCore_p.h"
#include "ui/qt/dialogs/shell/WidgetShellItem_p.h"

namespace morvane::ui {

HRESULT FileDialogCore::guarded(const std::function<HRESULT()>& call)
{
    // Close() may have come from an event that leads to others.
    if (m_ended) {
        return E_ABORT;
    }
    try {
        return call();
    } catch (...) {
        if (!m_exception) {
            m_exception = std::current_exception();
        }
        end(E_FAIL);
        return E_FAIL;
    }
}

HRESULT FileDialogCore::tell(const std::function<HRESULT(IFileDialogEvents&)>& call)
{
    return guarded([&] { return m_sinks.notify(call); });
}

void FileDialogCore::tellControls(const std::function<HRESULT(IFileDialogControlEvents&)>& call)
{
    guarded([&] { return m_sinks.notifyControls(call); });
}

bool FileDialogCore::mayEnterFolder(const QString& folder)
{
    const auto item = makeShellItem(folder);
    return tell([&](IFileDialogEvents& sink) { return sink.OnFolderChanging(&m_dialog, item.get()); }) == S_OK;
}

void FileDialogCore::onFolderChanged(const QString& folder)
{
    m_settings.folder = folder;
    tell([this](IFileDialogEvents& sink) { return sink.OnFolderChange(&m_dialog); });
}

void FileDialogCore::onSelectionChanged()
{
    tell([this](IFileDialogEvents& sink) { return sink.OnSelectionChange(&m_dialog); });
}

void FileDialogCore::onTypeChanged(int index)
{
    m_settings.typeIndex = index;
    tell([this](IFileDialogEvents& sink) { return sink.OnTypeChange(&m_dialog); });
}

FileDialogObserver::OverwriteAnswer FileDialogCore::mayOverwrite(const QString& path)
{
    const auto item = makeShellItem(path);
    FDE_OVERWRITE_RESPONSE response = FDEOR_DEFAULT;
    tell([&](IFileDialogEvents& sink) {
        const HRESULT result = sink.OnOverwrite(&m_dialog, item.get(), &response);
        response = result == S_OK ? response : FDEOR_DEFAULT;
        return result == S_OK && response != FDEOR_DEFAULT ? S_FALSE : S_OK; // the first decision stands
    });
    if (m_ended || response == FDEOR_REFUSE) {
        return OverwriteAnswer::Refuse;
    }
    return response == FDEOR_ACCEPT ? OverwriteAnswer::Accept : OverwriteAnswer::Ask;
}

bool FileDialogCore::mayAccept(const QStringList& paths)
{
    // A sink that runs an event loop decides about the choice it was asked about before there is another one.
    if (m_deciding) {
        return false;
    }
    m_deciding = true;
    m_results = paths;
    const bool accepted =
        tell([this](IFileDialogEvents& sink) { return sink.OnFileOk(&m_dialog); }) == S_OK && !m_ended;
    m_deciding = false;
    if (accepted) {
        m_ended = true;
        m_outcome = S_OK;
    } else {
        m_results.clear();
    }
    return accepted;
}

ControlActions FileDialogCore::controlActions()
{
    ControlActions actions;
    actions.clicked = [this](DWORD id) {
        tellControls([&](IFileDialogControlEvents& sink) { return sink.OnButtonClicked(&m_controls, id); });
    };
    actions.toggled = [this](DWORD id, bool checked) {
        tellControls([&](IFileDialogControlEvents& sink) {
            return sink.OnCheckButtonToggled(&m_controls, id, checked ? TRUE : FALSE);
        });
    };
    actions.activating = [this](DWORD id) {
        tellControls([&](IFileDialogControlEvents& sink) { return sink.OnControlActivating(&m_controls, id); });
    };
    actions.itemPicked = [this](DWORD id, DWORD item) {
        tellControls([&](IFileDialogControlEvents& sink) { return sink.OnItemSelected(&m_controls, id, item); });
        if (m_window && !m_ended) {
            m_window->accept();
        }
        return m_ended;
    };
    return actions;
}

} // namespace morvane::ui
