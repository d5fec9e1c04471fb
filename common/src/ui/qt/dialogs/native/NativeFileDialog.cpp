// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/native/NativeFileDialog_p.h"

#include "host/HelpLauncher.h"
#include "property/Property.h"
#include "ui/qt/dialogs/native/AdvisedEvents_p.h"
#include "ui/qt/dialogs/native/MemoryGuid_p.h"
#include "ui/qt/dialogs/native/NameFilterText_p.h"
#include "ui/qt/dialogs/native/NativeResults_p.h"
#include "ui/qt/dialogs/native/NativeText_p.h"
#include "ui/qt/dialogs/shell/DialogWarning_p.h"
#include "ui/qt/dialogs/shell/TypedNames_p.h"
#include "ui/qt/util/FilePath_p.h"
#include "ui/qt/util/GuiThread_p.h"

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <QScopeGuard>
#include <QTimer>

#include <boost/filesystem/operations.hpp>
#include <boost/make_shared.hpp>

namespace morvane::ui {

namespace {

constexpr int textPollMilliseconds = 100;

/** Whether a name may get this extension although the user has picked no type: it has one pattern and no wildcard. */
bool isOneExtension(const std::string& extension)
{
    return !extension.empty() && extension.find_first_of(" ;*?") == std::string::npos;
}

} // namespace

NativeFileDialog::NativeFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode, bool useAcceptMenu)
    : m_shell(Shell::instance()),
      m_parent(parent),
      m_caption(caption),
      m_directory(boost::make_shared<Property<std::string>>()),
      m_helpTopic(helpTopic),
      m_acceptMode(acceptMode),
      m_currentFilterIndex(boost::make_shared<Property<int>>(1)),
      m_fileName(boost::make_shared<Property<std::string>>()),
      m_useAcceptMenu(useAcceptMenu),
      m_controls([this](LPWSTR text) { m_shell.coTaskMemFree(text); },
          [this] { return m_dialog.query<IFileDialogCustomize>(); }),
      m_state(m_shell, m_dialog)
{
    expectGuiThread("ExtendedWinFileDialog");
    if (FAILED(m_shell.coInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE))) {
        return;
    }
    try {
        init(directory, filter);
    } catch (...) {
        m_shell.coUninitialize();
        throw;
    }
}

NativeFileDialog::~NativeFileDialog()
{
    // This is called before the members are destroyed. The dialog is released last. Hosts rely on this order.
    m_shell.coUninitialize();
}

void NativeFileDialog::init(const std::string& directory, const std::string& filter)
{
    const CLSID& kind = m_acceptMode == QFileDialog::AcceptOpen ? CLSID_FileOpenDialog : CLSID_FileSaveDialog;
    m_shell.coCreateInstance(kind, nullptr, CLSCTX_INPROC_SERVER, iidOf<IFileDialog>(), m_dialog.putVoid());
    if (!directory.empty()) {
        initStartFolder(directory);
    }
    if (!filter.empty()) {
        m_nameFilters = splitNameFilters(filter);
    }
    if (m_useAcceptMenu) {
        m_controls.addAcceptMenu();
    }
    if (!m_helpTopic.empty()) {
        initHelpButton();
    }
}

void NativeFileDialog::initStartFolder(const std::string& directory)
{
    try {
        const boost::filesystem::path path = pathFromUtf8(directory);
        const boost::filesystem::file_status status = boost::filesystem::status(path);
        if (boost::filesystem::exists(status)) {
            const bool isFolder = boost::filesystem::is_directory(status);
            m_directory->setValue(pathToUtf8(isFolder ? path : path.parent_path()));
        }
    } catch (const boost::filesystem::filesystem_error&) {
        // The Shell chooses the folder.
    }
}

void NativeFileDialog::initHelpButton()
{
    m_controls.addButton(
        QCoreApplication::translate("ExtendedWinFileDialog", "&Help").toStdString(),
        [this] { HelpLauncher::getInstance().showHelp(m_helpTopic); }, true);
}

QString NativeFileDialog::currentNameFilter() const
{
    const int index = m_currentFilterIndex->value();
    return index >= 1 ? m_nameFilters.value(index - 1) : QString();
}

QDialog::DialogCode NativeFileDialog::exec()
{
    expectGuiThread("ExtendedWinFileDialog");
    // The Shell's dialog must not be shown a second time while it runs.
    if (!m_dialog || m_running) {
        return QDialog::Rejected;
    }
    const QScopedValueRollback<bool> running(m_running, true);
    const AdvisedEvents events(m_shell, *m_dialog, *this);
    prepareRun();
    const HRESULT result = show();
    m_accepted = result == S_OK && !m_closed;
    if (m_useAcceptMenu) {
        m_controls.readSelectedAcceptOption();
    }
    return result == S_OK ? QDialog::Accepted : QDialog::Rejected;
}

HRESULT NativeFileDialog::show()
{
    m_controls.setOpen(true);
    const auto closed = qScopeGuard([this] { m_controls.setOpen(false); });
    // The Shell has no event for the text of an edit box.
    QTimer poll;
    if (m_controls.hasTexts()) {
        QObject::connect(&poll, &QTimer::timeout, [this] { pollTexts(); });
        poll.start(textPollMilliseconds);
    }
    // Qt stores the handle as a number. NOLINTNEXTLINE(performance-no-int-to-ptr)
    const auto owner = m_parent ? reinterpret_cast<HWND>(m_parent->winId()) : HWND();
    const HRESULT result = m_dialog->Show(owner);
    poll.stop();
    if (m_thrown) {
        std::rethrow_exception(std::exchange(m_thrown, nullptr));
    }
    m_controls.finishTexts();
    return result;
}

void NativeFileDialog::pollTexts()
{
    try {
        m_controls.readTexts();
    } catch (...) {
        // No exception may pass through the event loop.
        m_thrown = std::current_exception();
        m_dialog->Close(E_FAIL);
    }
}

void NativeFileDialog::prepareRun()
{
    m_closed = false;
    m_accepted = false;
    m_firstRun = !m_optionsApplied;
    if (m_optionsApplied) {
        m_state.bringBack(m_nameFilters.size());
    } else {
        m_optionsApplied = true;
        configure();
    }
    m_state.beginRun();
}

void NativeFileDialog::configure()
{
    m_state.tellTitle(m_caption);
    m_state.tellOptions(m_fileMode, !m_dontConfirmOverwrite);
    if (!m_directory->value().empty()) {
        m_state.tellFolder(m_directory->value(), m_hasMemory);
    }
    if (!m_nameFilters.isEmpty()) {
        m_state.tellFileTypes(m_nameFilters);
    }
    m_state.tellFileType(m_currentFilterIndex->value(), m_nameFilters.size());
    m_state.tellFileName(*m_dialog, m_fileName->value());
}

void NativeFileDialog::close()
{
    if (m_dialog && SUCCEEDED(m_dialog->Close(S_OK))) {
        m_closed = m_closed || m_running;
    }
}

QStringList NativeFileDialog::selectedFiles()
{
    // Some Shells keep the result of an earlier run.
    if (!m_dialog || m_closed) {
        return {};
    }
    return NativeResults(m_shell, m_dialog).read(m_accepted ? m_state.acceptedName() : std::nullopt);
}

void NativeFileDialog::setAcceptButtonText(const std::string& text)
{
    if (m_dialog && !text.empty()) {
        m_dialog->SetOkButtonLabel(shellText(text).c_str());
    }
}

void NativeFileDialog::setFileNameLabel(const std::string& label)
{
    if (m_dialog && !label.empty()) {
        m_dialog->SetFileNameLabel(shellText(label).c_str());
    }
}

void NativeFileDialog::addPlace(const std::string& folder, bool atTop)
{
    if (m_dialog) {
        m_state.tellPlace(folder, atTop ? FDAP_TOP : FDAP_BOTTOM);
    }
}

void NativeFileDialog::setMemoryKey(const std::string& key)
{
    m_hasMemory = !key.empty();
    if (m_dialog && m_hasMemory) {
        m_dialog->SetClientGuid(memoryGuid(key));
    }
}

void NativeFileDialog::clearMemory()
{
    if (m_dialog && m_hasMemory) {
        m_dialog->ClearClientData();
    }
}

bool NativeFileDialog::onAccepting(IFileDialog& dialog)
{
    const auto rejection = m_controls.finishTexts();
    const auto name = m_acceptMode == QFileDialog::AcceptOpen ? std::nullopt : typedName(dialog);
    if (name) {
        m_state.nameAccepted(name->toStdString());
    }
    if (rejection) {
        refuse(dialog, *rejection);
        return false;
    }
    return mayAccept(dialog);
}

bool NativeFileDialog::mayAccept(IFileDialog& dialog)
{
    const AcceptanceCheck check = m_acceptanceCheck; // the check may replace itself
    if (!check) {
        return true;
    }
    const ValidationResult result = check(NativeResults(m_shell, m_dialog).read(m_state.acceptedName()));
    if (!result.isValid()) {
        refuse(dialog, result.errorString());
    }
    return result.isValid();
}

void NativeFileDialog::refuse(IFileDialog& dialog, const std::string& reason)
{
    if (m_closed) {
        return;
    }
    showDialogWarning(dialog, m_parent, QString::fromStdString(m_caption), refusalText(reason));
}

void NativeFileDialog::onButtonClicked(DWORD control)
{
    m_controls.finishTexts();
    m_controls.buttonClicked(control);
}

void NativeFileDialog::onCheckButtonToggled(DWORD control, BOOL checked)
{
    m_controls.finishTexts();
    m_controls.checkButtonToggled(control, checked);
}

void NativeFileDialog::onItemSelected(DWORD control, DWORD item)
{
    m_controls.finishTexts();
    m_controls.itemSelected(control, item);
}

void NativeFileDialog::onFolderChanged(IFileDialog& dialog)
{
    m_controls.readTexts();
    ComPtr<IShellItem> folder;
    dialog.GetFolder(folder.put());
    if (!folder) {
        return;
    }
    const QString path = nativePathOf(m_shell, *folder);
    if (path.isEmpty()) { // a virtual folder has no path
        return;
    }
    m_state.folderShown(path);
    m_directory->setValue(path.toStdString());
}

void NativeFileDialog::onTypeChanged(IFileDialog& dialog)
{
    m_controls.readTexts();
    UINT index = static_cast<UINT>(m_currentFilterIndex->value());
    dialog.GetFileTypeIndex(&index);
    // The Shell also reports the type when the dialog opens.
    const bool picked = m_state.typeShown(static_cast<int>(index));
    m_currentFilterIndex->setValue(static_cast<int>(index));
    if (m_acceptMode == QFileDialog::AcceptSave && (picked || m_firstRun)) {
        replaceTypedExtension(dialog, picked);
    }
}

void NativeFileDialog::replaceTypedExtension(IFileDialog& dialog, bool picked)
{
    const QString name = typedName(dialog).value_or(QString());
    const int index = m_currentFilterIndex->value();
    if (name.isEmpty() || index < 1 || index > m_nameFilters.size()) {
        return;
    }
    const std::string extension = extensionOfNameFilter(m_nameFilters[index - 1].toStdString());
    boost::filesystem::path path = pathFromUtf8(name.toStdString());
    const bool wanted = picked ? !isBareWildcard(extension) : isOneExtension(extension) && !path.has_extension();
    if (!wanted || !quotedNames(name).isEmpty()) {
        return;
    }
    path.replace_extension(pathFromUtf8(extension));
    m_state.tellFileName(dialog, pathToGenericUtf8(path));
}

std::optional<QString> NativeFileDialog::typedName(IFileDialog& dialog)
{
    LPWSTR text = nullptr;
    const HRESULT result = dialog.GetFileName(&text);
    const QString name = takeText(m_shell, text);
    return SUCCEEDED(result) ? std::optional<QString>(name) : std::nullopt;
}

} // namespace morvane::ui
