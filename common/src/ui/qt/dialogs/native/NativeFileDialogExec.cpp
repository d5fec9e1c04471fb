// Running the dialog: what happens around the modal loop, and what is told to the Shell before the first one.
#include "ui/qt/dialogs/native/NameFilterText_p.h"
#include "ui/qt/dialogs/native/NativeDialogEvents_p.h"
#include "ui/qt/dialogs/native/NativeFileDialog_p.h"
#include "ui/qt/util/GuiThread_p.h"

#include <QByteArray>

#include <algorithm>
#include <string_view>
#include <utility>

using morvane::ui::ComPtr;
using morvane::ui::FileTypeText;
using morvane::ui::iidOf;
using morvane::ui::ShellString;
using morvane::ui::splitNameFilter;

namespace {

FILEOPENDIALOGOPTIONS changed(FILEOPENDIALOGOPTIONS options, FILEOPENDIALOGOPTIONS set, FILEOPENDIALOGOPTIONS cleared)
{
    return (options & ~cleared) | set;
}

FILEOPENDIALOGOPTIONS optionsForFileMode(FILEOPENDIALOGOPTIONS options, QFileDialog::FileMode mode)
{
    switch (mode) {
    case QFileDialog::Directory:
        return changed(options, FOS_PICKFOLDERS | FOS_PATHMUSTEXIST, FOS_FILEMUSTEXIST | FOS_ALLOWMULTISELECT);
    case QFileDialog::ExistingFiles:
        return changed(options, FOS_FILEMUSTEXIST | FOS_ALLOWMULTISELECT, FOS_PICKFOLDERS | FOS_PATHMUSTEXIST);
    case QFileDialog::ExistingFile:
        return changed(options, FOS_FILEMUSTEXIST, FOS_PICKFOLDERS | FOS_ALLOWMULTISELECT | FOS_PATHMUSTEXIST);
    default:
        return changed(options, 0, FOS_PICKFOLDERS | FOS_ALLOWMULTISELECT | FOS_PATHMUSTEXIST | FOS_FILEMUSTEXIST);
    }
}

/** Keeps a new event handler advised while it lives; afterwards the handler knows no dialog. */
template <typename Handler>
class AdvisedHandler
{
public:
    template <typename Impl>
    AdvisedHandler(Impl& impl, IFileDialog& dialog) : m_dialog(dialog)
    {
        auto* const handler = new Handler(impl);
        handler->QueryInterface(iidOf<IFileDialogEvents>(), m_events.putVoid());
        m_handler = m_events ? handler : nullptr;
        handler->Release();
        if (m_handler) {
            m_dialog.Advise(m_events.get(), &m_cookie);
        }
    }
    ~AdvisedHandler()
    {
        if (m_handler) {
            m_handler->detach();
            m_dialog.Unadvise(m_cookie);
        }
    }
    AdvisedHandler(const AdvisedHandler&) = delete;
    AdvisedHandler& operator=(const AdvisedHandler&) = delete;

private:
    IFileDialog& m_dialog;
    ComPtr<IFileDialogEvents> m_events;
    Handler* m_handler = nullptr; // alive as long as m_events
    DWORD m_cookie = 0;
};

class FlagGuard
{
public:
    explicit FlagGuard(bool& flag) : m_flag(flag) { m_flag = true; }
    ~FlagGuard() { m_flag = false; }
    FlagGuard(const FlagGuard&) = delete;
    FlagGuard& operator=(const FlagGuard&) = delete;

private:
    bool& m_flag;
};

} // namespace

QDialog::DialogCode ExtendedWinFileDialog::Impl::exec()
{
    morvane::ui::expectGuiThread("ExtendedWinFileDialog");
    // The Shell's dialog does not survive being shown within itself.
    if (!m_dialog || m_running) {
        return QDialog::Rejected;
    }
    const FlagGuard running(m_running);
    const AdvisedHandler<ExtendedWinFileDialogEventHandler> handler(*this, *m_dialog);
    prepareRun();
    // Qt has the handle as a number. NOLINTNEXTLINE(performance-no-int-to-ptr)
    const auto owner = m_parent ? reinterpret_cast<HWND>(m_parent->winId()) : HWND();
    const HRESULT result = m_dialog->Show(owner);
    m_accepted = result == S_OK && !m_closed;
    if (m_useAcceptMenu) {
        readSelectedAcceptOption();
    }
    return result == S_OK ? QDialog::Accepted : QDialog::Rejected;
}

void ExtendedWinFileDialog::Impl::readSelectedAcceptOption()
{
    const auto customize = m_dialog.query<IFileDialogCustomize>();
    DWORD item = 0;
    if (!customize || FAILED(customize->GetSelectedControlItem(m_acceptMenuId, &item))) {
        return;
    }
    const auto found = m_acceptMenuValues.find(item);
    if (found != m_acceptMenuValues.end()) {
        m_selectedAcceptMenuOption = found->second;
    }
}

void ExtendedWinFileDialog::Impl::prepareRun()
{
    m_closed = false;
    m_accepted = false;
    m_firstRun = !m_optionsApplied;
    if (m_optionsApplied) {
        bringBackWhatTheUserLeft();
    } else {
        m_optionsApplied = true;
        configure();
    }
    m_openedFolder.clear();
    m_leftFolder.clear();
    m_acceptedName.reset();
}

void ExtendedWinFileDialog::Impl::configure()
{
    m_dialog->SetTitle(shellText(m_caption).c_str());
    configureOptions();
    if (!m_directory->value().empty()) {
        tellFolder(m_directory->value());
    }
    configureFileTypes();
    tellFileType(m_currentFilterIndex->value());
    tellFileName(*m_dialog, m_fileName->value());
}

void ExtendedWinFileDialog::Impl::configureOptions()
{
    FILEOPENDIALOGOPTIONS options = 0;
    m_dialog->GetOptions(&options);
    options = optionsForFileMode(options, m_fileMode);
    options =
        m_dontConfirmOverwrite ? changed(options, 0, FOS_OVERWRITEPROMPT) : changed(options, FOS_OVERWRITEPROMPT, 0);
    m_dialog->SetOptions(options);
}

void ExtendedWinFileDialog::Impl::bringBackWhatTheUserLeft()
{
    // Not every Shell keeps it from run to run; to those that do this is nothing new.
    if (m_leftFolder != m_openedFolder) {
        tellFolder(m_leftFolder.toStdString());
    }
    if (m_shownType != m_toldType) {
        tellFileType(m_shownType);
    }
    if (m_acceptedName && *m_acceptedName != m_toldName) {
        tellFileName(*m_dialog, *m_acceptedName);
    }
}

void ExtendedWinFileDialog::Impl::tellFolder(std::string folder)
{
    std::replace(folder.begin(), folder.end(), '/', '\\');
    ComPtr<IShellItem> item;
    const HRESULT result =
        m_shell.createItemFromParsingName(shellText(folder).c_str(), nullptr, iidOf<IShellItem>(), item.putVoid());
    if (SUCCEEDED(result) && item) {
        m_dialog->SetFolder(item.get());
    }
}

void ExtendedWinFileDialog::Impl::tellFileType(int type)
{
    const HRESULT result = m_dialog->SetFileTypeIndex(static_cast<UINT>(type));
    // The Shell keeps to its list.
    const int last = m_nameFilters.size();
    m_toldType = m_nameFilters.isEmpty() ? 0 : FAILED(result) ? 1 : std::clamp(type, 1, last);
    m_shownType = m_toldType;
}

void ExtendedWinFileDialog::Impl::tellFileName(IFileDialog& dialog, const std::string& name)
{
    m_toldName = name;
    dialog.SetFileName(shellText(name).c_str());
}

void ExtendedWinFileDialog::Impl::configureFileTypes()
{
    if (m_nameFilters.isEmpty()) {
        return;
    }
    std::vector<std::pair<ShellString, ShellString>> texts;
    texts.reserve(static_cast<std::size_t>(m_nameFilters.size()));
    for (const QString& filter : std::as_const(m_nameFilters)) {
        const QByteArray utf8 = filter.toUtf8();
        const FileTypeText text = splitNameFilter({utf8.constData(), static_cast<std::size_t>(utf8.size())});
        texts.emplace_back(shellText(text.description), shellText(text.patterns));
    }
    std::vector<COMDLG_FILTERSPEC> types;
    types.reserve(texts.size());
    for (const auto& text : texts) {
        types.push_back({text.first.c_str(), text.second.c_str()});
    }
    m_dialog->SetFileTypes(static_cast<UINT>(types.size()), types.data());
}
