// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/FileDialogCore_p.h"

#include "ui/qt/dialogs/shell/ComSupport_p.h"
#include "ui/qt/dialogs/shell/WidgetShellItem_p.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>
#include <QSet>
#include <QThread>
#include <QUuid>

#include <algorithm>

namespace morvane::ui {

namespace {

// The options that Windows' own dialogs have before the first SetOptions.
constexpr FILEOPENDIALOGOPTIONS initialOpenOptions = FOS_FILEMUSTEXIST | FOS_PATHMUSTEXIST | FOS_NOCHANGEDIR;
constexpr FILEOPENDIALOGOPTIONS initialSaveOptions =
    FOS_NOREADONLYRETURN | FOS_PATHMUSTEXIST | FOS_NOCHANGEDIR | FOS_OVERWRITEPROMPT;

const HRESULT cancelled = HRESULT_FROM_WIN32(ERROR_CANCELLED);

bool canShowWindows()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance()) &&
           QThread::currentThread() == QCoreApplication::instance()->thread();
}

QWidget* findOwner(HWND handle)
{
    return handle ? QWidget::find(reinterpret_cast<WId>(handle)) : nullptr;
}

FileTypeEntry fileTypeOf(const COMDLG_FILTERSPEC& spec)
{
    FileTypeEntry type;
    type.description = toQString(spec.pszName);
    for (const QString& piece : toQString(spec.pszSpec).split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QString pattern = piece.trimmed();
        if (!pattern.isEmpty()) {
            // For the Shell, *.* means every file. For Qt, it means only names with a dot.
            type.patterns.append(pattern == QLatin1String("*.*") ? QStringLiteral("*") : pattern);
        }
    }
    return type;
}

} // namespace

FileDialogCore::FileDialogCore(IFileDialog& dialog, bool saving, bool alwaysWidgets)
    : m_dialog(dialog),
      m_alwaysWidgets(alwaysWidgets),
      m_options(saving ? initialSaveOptions : initialOpenOptions),
      m_notifier(dialog, [this] { end(E_FAIL); }),
      m_controls(dialog, controlActions())
{
    m_settings.saving = saving;
}

FileDialogCore::~FileDialogCore() = default;

HRESULT FileDialogCore::show(HWND owner)
{
    if (m_running) {
        return HRESULT_FROM_WIN32(ERROR_BUSY);
    }
    if (!canShowWindows()) {
        return E_UNEXPECTED;
    }
    // A sink may release all other references.
    const auto self = ComPtr<IFileDialog>::share(&m_dialog);
    {
        begin();
        const auto stop = qScopeGuard([this] { m_running = false; });
        run(findOwner(owner));
    }
    if (m_outcome != S_OK) {
        m_results.clear();
    }
    m_notifier.rethrow();
    return m_outcome;
}

void FileDialogCore::begin()
{
    m_running = true;
    m_notifier.beginRun();
    m_outcome = cancelled;
    m_results.clear();
}

void FileDialogCore::run(QWidget* owner)
{
    m_settings.folder = folder();
    m_window = new FileDialogWindow(owner, settingsForRun(), *this);
    const auto close = qScopeGuard([this] { delete m_window; });
    if (m_window->consistsOfWidgets()) {
        const bool isKept = m_window->restoreGeometry(m_memory.geometry());
        m_controls.showIn(
            *m_window, [this](const QString& text) { m_window->setOptionText(text); }, !isKept);
    }
    announceOpening();
    if (isOpen()) {
        m_window->run();
    }
    if (m_window) {
        m_fileName = m_window->typedName();
        m_settings.fileNameIsTyped = m_window->holdsWildcard();
        keepMemory();
    }
}

void FileDialogCore::keepMemory()
{
    if (m_window->consistsOfWidgets()) {
        m_memory.keepGeometry(m_window->saveGeometry());
    }
    if (m_outcome == S_OK) {
        m_memory.keepFolder(m_settings.folder);
    }
}

void FileDialogCore::announceOpening()
{
    mayEnterFolder(m_settings.folder);
    if (isOpen()) {
        onFolderChanged(m_settings.folder);
    }
    if (isOpen() && !m_settings.types.empty()) {
        onTypeChanged(m_settings.typeIndex);
    }
}

HRESULT FileDialogCore::close(HRESULT result)
{
    if (m_running) {
        end(result);
    }
    return S_OK;
}

void FileDialogCore::end(HRESULT result)
{
    m_notifier.endRun();
    m_outcome = result;
    if (m_window) {
        m_window->done(QDialog::Rejected);
    }
}

FileDialogSettings FileDialogCore::settingsForRun() const
{
    const auto has = [this](FILEOPENDIALOGOPTIONS option) { return (m_options & option) != 0; };
    const bool validates = !has(FOS_NOVALIDATE);
    FileDialogSettings settings = m_settings;
    settings.picksFolders = has(FOS_PICKFOLDERS);
    settings.allowsSeveral = has(FOS_ALLOWMULTISELECT);
    settings.fileMustExist = has(FOS_FILEMUSTEXIST) && validates;
    settings.pathMustExist = has(FOS_PATHMUSTEXIST) && validates;
    settings.asksBeforeOverwriting = has(FOS_OVERWRITEPROMPT);
    settings.showsHidden = has(FOS_FORCESHOWHIDDEN);
    settings.usesWidgets =
        m_alwaysWidgets || !m_controls.isEmpty() || !typesSurviveInText() || !m_settings.places.isEmpty();
    settings.fileName = m_fileName.value_or(QString());
    return settings;
}

bool FileDialogCore::typesSurviveInText() const
{
    QSet<QString> seen;
    return std::all_of(m_settings.types.begin(), m_settings.types.end(), [&seen](const FileTypeEntry& type) {
        const bool fresh = !seen.contains(type.description);
        seen.insert(type.description);
        return fresh && !type.description.isEmpty() && type.description == type.description.simplified();
    });
}

QString FileDialogCore::folder() const
{
    for (const QString& candidate : {m_settings.folder, m_memory.folder(), m_defaultFolder}) {
        if (!candidate.isEmpty() && QFileInfo(candidate).isDir()) {
            return candidate;
        }
    }
    return QDir::currentPath();
}

HRESULT FileDialogCore::setFileTypes(UINT count, const COMDLG_FILTERSPEC* types)
{
    if (!m_settings.types.empty()) {
        return E_UNEXPECTED;
    }
    if (count == 0 || !types) {
        return E_INVALIDARG;
    }
    std::transform(types, types + count, std::back_inserter(m_settings.types), fileTypeOf);
    return S_OK;
}

HRESULT FileDialogCore::setFileTypeIndex(UINT index)
{
    if (m_settings.types.empty()) {
        return E_FAIL;
    }
    const auto clamped = std::clamp<std::size_t>(index, 1, m_settings.types.size());
    m_settings.typeIndex = static_cast<int>(clamped - 1);
    if (m_window) {
        m_window->setTypeIndex(m_settings.typeIndex);
    }
    return S_OK;
}

HRESULT FileDialogCore::getFileTypeIndex(UINT* index) const
{
    if (!index) {
        return E_INVALIDARG;
    }
    *index = m_settings.types.empty() ? 0 : static_cast<UINT>(m_settings.typeIndex + 1);
    return S_OK;
}

HRESULT FileDialogCore::setOptions(FILEOPENDIALOGOPTIONS options)
{
    m_options = options;
    return S_OK;
}

HRESULT FileDialogCore::getOptions(FILEOPENDIALOGOPTIONS* options) const
{
    if (!options) {
        return E_INVALIDARG;
    }
    *options = m_options;
    return S_OK;
}

HRESULT FileDialogCore::setDefaultFolder(IShellItem* folder)
{
    const QString path = pathOfShellItem(folder);
    if (path.isEmpty()) {
        return E_INVALIDARG;
    }
    m_defaultFolder = path;
    return S_OK;
}

HRESULT FileDialogCore::setFolder(IShellItem* folder)
{
    const QString path = pathOfShellItem(folder);
    if (path.isEmpty()) {
        return E_INVALIDARG;
    }
    if (!m_window) {
        m_settings.folder = path;
    } else if (QFileInfo(path).isDir()) {
        m_window->setFolder(path);
    }
    return S_OK;
}

HRESULT FileDialogCore::getFolder(IShellItem** folder) const
{
    if (!folder) {
        return E_INVALIDARG;
    }
    *folder = makeShellItem(this->folder()).detach();
    return S_OK;
}

HRESULT FileDialogCore::getCurrentSelection(IShellItem** item) const
{
    if (!item) {
        return E_INVALIDARG;
    }
    const QStringList paths = m_window ? m_window->selectedPaths() : QStringList();
    *item = paths.isEmpty() ? nullptr : makeShellItem(paths.first()).detach();
    return *item ? S_OK : E_FAIL;
}

HRESULT FileDialogCore::getSelectedItems(IShellItemArray** items) const
{
    if (!items) {
        return E_INVALIDARG;
    }
    const QStringList paths = m_window ? m_window->selectedPaths() : QStringList();
    *items = paths.isEmpty() ? nullptr : makeShellItemArray(paths).detach();
    return *items ? S_OK : E_FAIL;
}

HRESULT FileDialogCore::setFileName(LPCWSTR name)
{
    m_fileName = toQString(name);
    m_settings.fileNameIsTyped = false;
    if (m_window) {
        m_window->setTypedName(*m_fileName);
    }
    return S_OK;
}

HRESULT FileDialogCore::getFileName(LPWSTR* name) const
{
    if (!name) {
        return E_INVALIDARG;
    }
    *name = nullptr;
    if (!m_window && !m_fileName) {
        return E_FAIL;
    }
    return copyToTaskMemory(m_window ? m_window->typedName() : *m_fileName, name);
}

HRESULT FileDialogCore::setTitle(LPCWSTR title)
{
    m_settings.title = toQString(title);
    applyTexts();
    return S_OK;
}

HRESULT FileDialogCore::setOkButtonLabel(LPCWSTR label)
{
    m_settings.acceptLabel = toQString(label);
    applyTexts();
    m_controls.refresh();
    return S_OK;
}

HRESULT FileDialogCore::setFileNameLabel(LPCWSTR label)
{
    m_settings.fileNameLabel = toQString(label);
    applyTexts();
    return S_OK;
}

void FileDialogCore::applyTexts()
{
    if (m_window) {
        m_window->setTexts(m_settings.title, m_settings.acceptLabel, m_settings.fileNameLabel);
    }
}

HRESULT FileDialogCore::setDefaultExtension(LPCWSTR extension)
{
    m_settings.defaultSuffix = toQString(extension);
    return S_OK;
}

HRESULT FileDialogCore::addPlace(IShellItem* folder, FDAP where)
{
    const QString path = pathOfShellItem(folder);
    if (path.isEmpty() || !QFileInfo(path).isDir()) {
        return E_INVALIDARG;
    }
    m_settings.places.add(path, where == FDAP_TOP);
    return S_OK;
}

HRESULT FileDialogCore::setClientGuid(REFGUID guid)
{
    const QUuid name(guid.Data1, guid.Data2, guid.Data3, guid.Data4[0], guid.Data4[1], guid.Data4[2], guid.Data4[3],
        guid.Data4[4], guid.Data4[5], guid.Data4[6], guid.Data4[7]);
    m_memory.setKey("ExtendedWinFileDialog/Memory/" + name.toString(QUuid::WithoutBraces).toStdString());
    return S_OK;
}

HRESULT FileDialogCore::clearClientData()
{
    m_memory.clear();
    return S_OK;
}

HRESULT FileDialogCore::getResult(IShellItem** item) const
{
    if (!item) {
        return E_INVALIDARG;
    }
    *item = m_results.size() == 1 ? makeShellItem(m_results.first()).detach() : nullptr;
    return *item ? S_OK : m_results.isEmpty() ? E_UNEXPECTED : E_FAIL;
}

HRESULT FileDialogCore::getResults(IShellItemArray** items) const
{
    if (!items) {
        return E_INVALIDARG;
    }
    *items = m_results.isEmpty() ? nullptr : makeShellItemArray(m_results).detach();
    return *items ? S_OK : E_UNEXPECTED;
}

void FileDialogCore::onFolderChanged(const QString& folder)
{
    m_settings.folder = folder;
    m_notifier.folderChanged();
}

void FileDialogCore::onTypeChanged(int index)
{
    m_settings.typeIndex = index;
    m_notifier.typeChanged();
}

bool FileDialogCore::mayAccept(const QStringList& paths)
{
    // A sink may run an event loop before it returns. Until then, a second choice is refused.
    if (m_deciding) {
        return false;
    }
    m_deciding = true;
    m_controls.reportSelections();
    m_results = paths;
    const bool accepted = m_notifier.accepting();
    m_deciding = false;
    if (accepted) {
        m_notifier.endRun();
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
        m_notifier.tellControls([&](IFileDialogControlEvents& sink) { return sink.OnButtonClicked(&m_controls, id); });
    };
    actions.toggled = [this](DWORD id, bool checked) {
        m_notifier.tellControls([&](IFileDialogControlEvents& sink) {
            return sink.OnCheckButtonToggled(&m_controls, id, checked ? TRUE : FALSE);
        });
    };
    actions.activating = [this](DWORD id) {
        m_notifier.tellControls(
            [&](IFileDialogControlEvents& sink) { return sink.OnControlActivating(&m_controls, id); });
    };
    actions.itemSelected = [this](DWORD id, DWORD item) {
        m_notifier.tellControls(
            [&](IFileDialogControlEvents& sink) { return sink.OnItemSelected(&m_controls, id, item); });
    };
    actions.itemPicked = [this](DWORD id, DWORD item) {
        m_notifier.tellControls(
            [&](IFileDialogControlEvents& sink) { return sink.OnItemSelected(&m_controls, id, item); });
        if (isOpen()) {
            m_window->accept();
        }
        return m_notifier.hasRunEnded();
    };
    return actions;
}

} // namespace morvane::ui
