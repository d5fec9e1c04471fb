// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "testing/RecordingItems_p.h"

#include "ui/qt/dialogs/shell/ComObject_p.h"
#include "ui/qt/dialogs/shell/ComSupport_p.h"
#include "ui/qt/dialogs/shell/ShellText_p.h"

#include <QDir>
#include <QFileInfo>

namespace morvane::test {

namespace {

HRESULT withoutAttributes(const std::optional<HRESULT>& failure, SFGAOF* attributes)
{
    if (!attributes) {
        return E_POINTER;
    }
    *attributes = 0;
    return failure.value_or(E_NOTIMPL);
}

/** An item or an array. The Shell counts it among its live objects. */
template <typename Interface>
class RecordingObject : public Interface
{
public:
    RecordingObject(RecordingShell& shell, const char* name) : m_shell(shell), m_name(name) { shell.objectMade(); }
    virtual ~RecordingObject() { m_shell.objectGone(); }
    RecordingObject(const RecordingObject&) = delete;
    RecordingObject& operator=(const RecordingObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override
    {
        const auto failure = record("QueryInterface", nameOfIid(riid));
        static const QITAB table[] = {ui::interfaceRow<Interface, RecordingObject>(), QITAB{}};
        return failure ? ui::withoutResult(object, *failure) : ui::searchInterfaces(this, table, riid, object);
    }

protected:
    std::optional<HRESULT> record(const char* method, const std::string& arguments)
    {
        return m_shell.record(std::string(m_name) + "::" + method, arguments);
    }

    RecordingShell& m_shell;

private:
    const char* const m_name;
};

class RecordingItem : public RecordingObject<IShellItem>
{
public:
    RecordingItem(RecordingShell& shell, const QString& path) : RecordingObject(shell, "IShellItem"), m_path(path) {}

    const QString& path() const { return m_path; }

    HRESULT STDMETHODCALLTYPE BindToHandler(IBindCtx*, REFGUID, REFIID, void** object) override
    {
        return ui::withoutResult(object, record("BindToHandler", "").value_or(E_NOTIMPL));
    }
    HRESULT STDMETHODCALLTYPE GetParent(IShellItem** parent) override
    {
        const auto failure = record("GetParent", "");
        if (!parent) {
            return E_POINTER;
        }
        const QFileInfo info(m_path);
        *parent = failure || info.isRoot() ? nullptr : makeRecordingItem(m_shell, info.path()).detach();
        return failure ? *failure : *parent ? S_OK : E_FAIL;
    }
    HRESULT STDMETHODCALLTYPE GetDisplayName(SIGDN form, LPWSTR* name) override
    {
        const bool wholePath = form == SIGDN_FILESYSPATH || form == SIGDN_DESKTOPABSOLUTEPARSING;
        const auto failure = record("GetDisplayName", wholePath ? "SIGDN_FILESYSPATH" : "other");
        if (!name) {
            return E_POINTER;
        }
        *name = nullptr;
        const QString fileName = QFileInfo(m_path).fileName();
        const QString text = wholePath || fileName.isEmpty() ? QDir::toNativeSeparators(m_path) : fileName;
        return failure ? *failure : m_shell.copyString(text, name);
    }
    HRESULT STDMETHODCALLTYPE GetAttributes(SFGAOF, SFGAOF* attributes) override
    {
        return withoutAttributes(record("GetAttributes", ""), attributes);
    }
    HRESULT STDMETHODCALLTYPE Compare(IShellItem* other, SICHINTF, int* order) override
    {
        if (!other || !order) {
            return E_POINTER;
        }
        *order = QString::compare(m_path, pathOf(m_shell, other));
        return *order == 0 ? S_OK : S_FALSE;
    }

private:
    const QString m_path;
};

class RecordingArray : public RecordingObject<IShellItemArray>
{
public:
    RecordingArray(RecordingShell& shell, const QStringList& paths)
        : RecordingObject(shell, "IShellItemArray"), m_paths(paths)
    {
    }

    HRESULT STDMETHODCALLTYPE BindToHandler(IBindCtx*, REFGUID, REFIID, void** object) override
    {
        return ui::withoutResult(object, record("BindToHandler", "").value_or(E_NOTIMPL));
    }
    HRESULT STDMETHODCALLTYPE GetPropertyStore(GETPROPERTYSTOREFLAGS, REFIID, void** store) override
    {
        return ui::withoutResult(store, record("GetPropertyStore", "").value_or(E_NOTIMPL));
    }
    HRESULT STDMETHODCALLTYPE GetPropertyDescriptionList(REFPROPERTYKEY, REFIID, void** list) override
    {
        return ui::withoutResult(list, record("GetPropertyDescriptionList", "").value_or(E_NOTIMPL));
    }
    HRESULT STDMETHODCALLTYPE GetAttributes(SIATTRIBFLAGS, SFGAOF, SFGAOF* attributes) override
    {
        return withoutAttributes(record("GetAttributes", ""), attributes);
    }
    HRESULT STDMETHODCALLTYPE GetCount(DWORD* count) override
    {
        const auto failure = record("GetCount", "");
        if (!count) {
            return E_POINTER;
        }
        *count = failure ? 0 : static_cast<DWORD>(m_paths.size());
        return failure.value_or(S_OK);
    }
    HRESULT STDMETHODCALLTYPE GetItemAt(DWORD index, IShellItem** item) override
    {
        const auto failure = record("GetItemAt", std::to_string(index));
        if (!item) {
            return E_POINTER;
        }
        const bool inside = index < static_cast<DWORD>(m_paths.size());
        *item = nullptr;
        if (!failure && inside) {
            *item = makeRecordingItem(m_shell, m_paths.at(static_cast<int>(index))).detach();
        }
        return failure ? *failure : inside ? S_OK : E_FAIL;
    }
    HRESULT STDMETHODCALLTYPE EnumItems(IEnumShellItems** items) override
    {
        return ui::withoutResult(items, record("EnumItems", "").value_or(E_NOTIMPL));
    }

private:
    const QStringList m_paths;
};

} // namespace

ui::ComPtr<IShellItem> makeRecordingItem(RecordingShell& shell, const QString& path)
{
    return ui::ComPtr<IShellItem>(new ui::ComObject<RecordingItem>(shell, path));
}

ui::ComPtr<IShellItemArray> makeRecordingArray(RecordingShell& shell, const QStringList& paths)
{
    return ui::ComPtr<IShellItemArray>(new ui::ComObject<RecordingArray>(shell, paths));
}

QString pathOf(RecordingShell&, IShellItem* item)
{
    const auto* const recording = dynamic_cast<RecordingItem*>(item);
    return recording ? recording->path() : QString();
}

std::string nameOfIid(REFIID iid)
{
    const std::pair<const IID*, const char*> names[] = {{&IID_IUnknown, "IUnknown"}, {&IID_IShellItem, "IShellItem"},
        {&IID_IShellItemArray, "IShellItemArray"}, {&IID_IModalWindow, "IModalWindow"},
        {&IID_IFileDialog, "IFileDialog"}, {&IID_IFileOpenDialog, "IFileOpenDialog"},
        {&IID_IFileSaveDialog, "IFileSaveDialog"}, {&IID_IFileDialogCustomize, "IFileDialogCustomize"},
        {&IID_IFileDialogEvents, "IFileDialogEvents"}, {&IID_IFileDialogControlEvents, "IFileDialogControlEvents"}};
    for (const auto& [known, name] : names) {
        if (*known == iid) {
            return name;
        }
    }
    return "unknown interface";
}

std::string quoted(LPCWSTR text)
{
    return text ? '"' + ui::toUtf8(text) + '"' : std::string("null");
}

} // namespace morvane::test
