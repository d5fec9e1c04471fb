#include "ui/qt/dialogs/native/NativeFileDialog_p.h"

#include "host/HelpLauncher.h"
#include "host/StringConversion.h"
#include "property/Property.h"
#include "ui/qt/dialogs/native/ControlStandIn_p.h"
#include "ui/qt/dialogs/native/NameFilterText_p.h"
#include "ui/qt/dialogs/native/NativeDialogEvents_p.h"
#include "ui/qt/dialogs/shell/TypedNames_p.h"
#include "ui/qt/util/FilePath_p.h"
#include "ui/qt/util/GuiThread_p.h"

#include <QDir>

#include <boost/filesystem/operations.hpp>
#include <boost/make_shared.hpp>

#include <utility>

using morvane::Property;
using morvane::ui::ComPtr;
using morvane::ui::extensionOfNameFilter;
using morvane::ui::iidOf;
using morvane::ui::isBareWildcard;
using morvane::ui::pathFromUtf8;
using morvane::ui::pathToGenericUtf8;
using morvane::ui::pathToUtf8;
using morvane::ui::Shell;
using morvane::ui::ShellString;
using morvane::ui::splitNameFilters;

namespace {

/** What a name may gain without being asked: not the text of several patterns, and no wildcard. */
bool isOneExtension(const std::string& extension)
{
    return !extension.empty() && extension.find_first_of(" ;*?") == std::string::npos;
}

} // namespace

ExtendedWinFileDialog::Impl::Impl(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode, bool useAcceptMenu)
    : m_shell(Shell::instance()),
      m_parent(parent),
      m_caption(caption),
      m_directory(boost::make_shared<Property<std::string>>()),
      m_helpTopic(helpTopic),
      m_acceptMode(acceptMode),
      m_currentFilterIndex(boost::make_shared<Property<int>>(1)),
      m_fileName(boost::make_shared<Property<std::string>>()),
      m_useAcceptMenu(useAcceptMenu)
{
    morvane::ui::expectGuiThread("ExtendedWinFileDialog");
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

ExtendedWinFileDialog::Impl::~Impl()
{
    // Before the members and, last of all, the dialog go; hosts rely on the order.
    m_shell.coUninitialize();
}

void ExtendedWinFileDialog::Impl::init(const std::string& directory, const std::string& filter)
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
        initAcceptMenu();
    }
    if (!m_helpTopic.empty()) {
        initHelpButton();
    }
}

void ExtendedWinFileDialog::Impl::initStartFolder(const std::string& directory)
{
    try {
        const boost::filesystem::path path = pathFromUtf8(directory);
        const boost::filesystem::file_status status = boost::filesystem::status(path);
        if (boost::filesystem::exists(status)) {
            const bool isFolder = boost::filesystem::is_directory(status);
            m_directory->setValue(pathToUtf8(isFolder ? path : path.parent_path()));
        }
    } catch (const boost::filesystem::filesystem_error&) {
        // The folder is left to the Shell.
    }
}

void ExtendedWinFileDialog::Impl::initAcceptMenu()
{
    const auto customize = m_dialog.query<IFileDialogCustomize>();
    m_acceptMenuId = m_nextControlId++;
    if (customize) {
        customize->EnableOpenDropDown(m_acceptMenuId);
    }
}

void ExtendedWinFileDialog::Impl::initHelpButton()
{
    addCustomButton(
        "&Help", [this] { showHelp(); }, true);
}

void ExtendedWinFileDialog::Impl::showHelp()
{
    morvane::HelpLauncher::getInstance().showHelp(m_helpTopic);
}

QString ExtendedWinFileDialog::Impl::currentNameFilter() const
{
    const int index = m_currentFilterIndex->value();
    return index >= 1 ? m_nameFilters.value(index - 1) : QString();
}

void ExtendedWinFileDialog::Impl::close()
{
    if (m_dialog && SUCCEEDED(m_dialog->Close(S_OK))) {
        m_closed = m_closed || m_running;
    }
}

QStringList ExtendedWinFileDialog::Impl::selectedFiles()
{
    // Not every Shell forgets what an earlier run has chosen.
    if (!m_dialog || m_closed) {
        return {};
    }
    FILEOPENDIALOGOPTIONS options = 0;
    m_dialog->GetOptions(&options);
    if ((options & FOS_ALLOWMULTISELECT) == 0) {
        return oneResult();
    }
    if (const auto open = m_dialog.query<IFileOpenDialog>()) {
        return severalResults(*open);
    }
    // A save dialog has no list of results.
    const QStringList files = oneResult();
    return files.isEmpty() ? acceptedNames() : files;
}

QStringList ExtendedWinFileDialog::Impl::oneResult()
{
    QStringList files;
    ComPtr<IShellItem> item;
    if (SUCCEEDED(m_dialog->GetResult(item.put())) && item) {
        appendPath(files, *item);
    }
    return files;
}

QStringList ExtendedWinFileDialog::Impl::severalResults(IFileOpenDialog& dialog)
{
    QStringList files;
    ComPtr<IShellItemArray> items;
    if (FAILED(dialog.GetResults(items.put())) || !items) {
        return files;
    }
    DWORD count = 0;
    items->GetCount(&count);
    for (DWORD i = 0; i < count; ++i) {
        ComPtr<IShellItem> item;
        items->GetItemAt(i, item.put());
        if (item) {
            appendPath(files, *item);
        }
    }
    return files;
}

QStringList ExtendedWinFileDialog::Impl::acceptedNames()
{
    QStringList files;
    ComPtr<IShellItem> folder;
    if (!m_accepted || !m_acceptedName || FAILED(m_dialog->GetFolder(folder.put())) || !folder) {
        return files;
    }
    const QString name = QString::fromStdString(*m_acceptedName);
    for (const QString& path : morvane::ui::pathsOfTypedText(name, pathOf(*folder), true)) {
        files.append(QDir::toNativeSeparators(path));
    }
    return files;
}

QWidget* ExtendedWinFileDialog::Impl::addCustomButton(
    const std::string& text, boost::function<void()> action, bool prominent)
{
    const unsigned int id = addControl(ControlKind::PushButton, text, prominent, false);
    m_buttonActions[id] = std::move(action);
    m_controlWidgets.push_back(std::make_unique<FakeWidget>(m_dialog.get(), ControlKind::PushButton, id, 0));
    return m_controlWidgets.back().get();
}

QWidget* ExtendedWinFileDialog::Impl::addCustomCheckBox(
    const std::string& text, boost::shared_ptr<morvane::PropertyAbstract<bool>> checked)
{
    const unsigned int id = addControl(ControlKind::CheckBox, text, false, checked && checked->value());
    m_checkBoxProperties[id] = std::move(checked);
    m_controlWidgets.push_back(std::make_unique<FakeWidget>(m_dialog.get(), ControlKind::CheckBox, id, 0));
    return m_controlWidgets.back().get();
}

QWidget* ExtendedWinFileDialog::Impl::addAcceptButtonOption(const std::string& text, int value)
{
    const unsigned int id = addControl(ControlKind::AcceptMenuItem, text, false, false);
    m_acceptMenuValues[id] = value;
    m_acceptMenuWidgets.push_back(
        std::make_unique<FakeWidget>(m_dialog.get(), ControlKind::AcceptMenuItem, m_acceptMenuId, id));
    return m_acceptMenuWidgets.back().get();
}

void ExtendedWinFileDialog::Impl::clearAcceptMenuOptions()
{
    const auto customize = m_dialog.query<IFileDialogCustomize>();
    for (const auto& widget : m_acceptMenuWidgets) {
        if (customize) {
            customize->RemoveControlItem(m_acceptMenuId, widget->itemId());
        }
    }
    m_acceptMenuWidgets.clear();
}

unsigned int ExtendedWinFileDialog::Impl::addControl(
    ControlKind kind, const std::string& text, bool prominent, bool checked)
{
    const auto customize = m_dialog.query<IFileDialogCustomize>();
    const unsigned int id = m_nextControlId++;
    if (customize && SUCCEEDED(requestControl(*customize, kind, id, text, checked)) && prominent) {
        customize->MakeProminent(id);
    }
    return id;
}

HRESULT ExtendedWinFileDialog::Impl::requestControl(
    IFileDialogCustomize& customize, ControlKind kind, DWORD id, const std::string& text, bool checked)
{
    const ShellString label = shellText(text);
    switch (kind) {
    case ControlKind::PushButton:
        return customize.AddPushButton(id, label.c_str());
    case ControlKind::CheckBox:
        return customize.AddCheckButton(id, label.c_str(), checked ? TRUE : FALSE);
    case ControlKind::AcceptMenuItem:
        break;
    }
    return customize.AddControlItem(m_acceptMenuId, id, label.c_str());
}

void ExtendedWinFileDialog::Impl::accepting(IFileDialog& dialog)
{
    if (m_acceptMode == QFileDialog::AcceptOpen) {
        return;
    }
    if (const auto name = typedName(dialog)) {
        m_acceptedName = name->toStdString();
    }
}

void ExtendedWinFileDialog::Impl::folderChanged(IFileDialog& dialog)
{
    ComPtr<IShellItem> folder;
    dialog.GetFolder(folder.put());
    if (!folder) {
        return;
    }
    const QString path = pathOf(*folder);
    if (path.isEmpty()) { // a virtual folder has none
        return;
    }
    m_openedFolder = m_openedFolder.isEmpty() ? path : m_openedFolder;
    m_leftFolder = path;
    m_directory->setValue(path.toStdString());
}

void ExtendedWinFileDialog::Impl::typeChanged(IFileDialog& dialog)
{
    UINT index = static_cast<UINT>(m_currentFilterIndex->value());
    dialog.GetFileTypeIndex(&index);
    // The Shell announces its type when it opens, too.
    const bool picked = static_cast<int>(index) != m_shownType;
    m_shownType = static_cast<int>(index);
    m_currentFilterIndex->setValue(m_shownType);
    if (m_acceptMode == QFileDialog::AcceptSave && (picked || m_firstRun)) {
        replaceTypedExtension(dialog, picked);
    }
}

void ExtendedWinFileDialog::Impl::replaceTypedExtension(IFileDialog& dialog, bool picked)
{
    const QString name = typedName(dialog).value_or(QString());
    const int index = m_currentFilterIndex->value();
    if (name.isEmpty() || index < 1 || index > m_nameFilters.size()) {
        return;
    }
    const std::string extension = extensionOfNameFilter(m_nameFilters[index - 1].toStdString());
    boost::filesystem::path path = pathFromUtf8(name.toStdString());
    const bool wanted = picked ? !isBareWildcard(extension) : isOneExtension(extension) && !path.has_extension();
    if (!wanted || !morvane::ui::quotedNames(name).isEmpty()) {
        return;
    }
    path.replace_extension(pathFromUtf8(extension));
    tellFileName(dialog, pathToGenericUtf8(path));
}

std::optional<QString> ExtendedWinFileDialog::Impl::typedName(IFileDialog& dialog)
{
    LPWSTR text = nullptr;
    const HRESULT result = dialog.GetFileName(&text);
    const QString name = takeText(text);
    return SUCCEEDED(result) ? std::optional<QString>(name) : std::nullopt;
}

void ExtendedWinFileDialog::Impl::buttonClicked(DWORD control)
{
    const auto found = m_buttonActions.find(control);
    if (found != m_buttonActions.end()) {
        const boost::function<void()> action = found->second; // it may add buttons
        action();
    }
}

void ExtendedWinFileDialog::Impl::checkButtonToggled(DWORD control, BOOL checked)
{
    const auto found = m_checkBoxProperties.find(control);
    if (found != m_checkBoxProperties.end() && found->second) {
        const auto property = found->second;
        property->setValue(checked == TRUE);
    }
}

ShellString ExtendedWinFileDialog::Impl::shellText(const std::string& utf8)
{
    return morvane::ui::toShellString(morvane::utf8ToWideString(utf8));
}

QString ExtendedWinFileDialog::Impl::takeText(LPWSTR text)
{
    const QString result = morvane::ui::toQString(text);
    m_shell.coTaskMemFree(text);
    return result;
}

void ExtendedWinFileDialog::Impl::appendPath(QStringList& files, IShellItem& item)
{
    const QString path = pathOf(item);
    if (!path.isEmpty()) { // not told, or of something that is no file
        files.append(path);
    }
}

QString ExtendedWinFileDialog::Impl::pathOf(IShellItem& item)
{
    LPWSTR path = nullptr;
    item.GetDisplayName(SIGDN_FILESYSPATH, &path);
    return takeText(path);
}
