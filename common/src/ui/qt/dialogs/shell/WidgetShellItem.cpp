// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/WidgetShellItem_p.h"

#include "ui/qt/dialogs/shell/ComObject_p.h"
#include "ui/qt/dialogs/shell/ComSupport_p.h"
#include "ui/qt/dialogs/shell/Shell.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace morvane::ui {

namespace {

class WidgetShellItem : public IShellItem
{
public:
    explicit WidgetShellItem(const QString& path) : m_path(path) {}
    virtual ~WidgetShellItem() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override
    {
        static const QITAB table[] = {interfaceRow<IShellItem, WidgetShellItem>(), QITAB{}};
        return searchInterfaces(this, table, riid, object);
    }

    HRESULT STDMETHODCALLTYPE BindToHandler(IBindCtx*, REFGUID, REFIID, void** object) override
    {
        return withoutResult(object);
    }
    HRESULT STDMETHODCALLTYPE GetParent(IShellItem** parent) override;
    HRESULT STDMETHODCALLTYPE GetDisplayName(SIGDN form, LPWSTR* name) override;
    HRESULT STDMETHODCALLTYPE GetAttributes(SFGAOF mask, SFGAOF* attributes) override;
    HRESULT STDMETHODCALLTYPE Compare(IShellItem* other, SICHINTF hint, int* order) override;

private:
    const QString m_path;
};

HRESULT WidgetShellItem::GetParent(IShellItem** parent)
{
    if (!parent) {
        return E_POINTER;
    }
    const QFileInfo info(m_path);
    *parent = info.isRoot() ? nullptr : makeShellItem(info.path()).detach();
    return *parent ? S_OK : E_FAIL;
}

HRESULT WidgetShellItem::GetDisplayName(SIGDN form, LPWSTR* name)
{
    if (!name) {
        return E_POINTER;
    }
    *name = nullptr;
    const QString fileName = QFileInfo(m_path).fileName();
    switch (form) {
    case SIGDN_NORMALDISPLAY:
    case SIGDN_PARENTRELATIVEPARSING:
    case SIGDN_PARENTRELATIVEEDITING:
    case SIGDN_PARENTRELATIVEFORADDRESSBAR:
    case SIGDN_PARENTRELATIVE:
    case SIGDN_PARENTRELATIVEFORUI:
        return copyToTaskMemory(fileName.isEmpty() ? QDir::toNativeSeparators(m_path) : fileName, name);
    case SIGDN_DESKTOPABSOLUTEPARSING:
    case SIGDN_DESKTOPABSOLUTEEDITING:
    case SIGDN_FILESYSPATH:
        return copyToTaskMemory(QDir::toNativeSeparators(m_path), name);
    case SIGDN_URL:
        return copyToTaskMemory(QUrl::fromLocalFile(m_path).toString(QUrl::FullyEncoded), name);
    }
    return E_INVALIDARG;
}

HRESULT WidgetShellItem::GetAttributes(SFGAOF mask, SFGAOF* attributes)
{
    if (!attributes) {
        return E_POINTER;
    }
    const QFileInfo info(m_path);
    auto known = static_cast<SFGAOF>(SFGAO_FILESYSTEM);
    known |= info.isDir() ? static_cast<SFGAOF>(SFGAO_FOLDER | SFGAO_FILESYSANCESTOR) : SFGAOF(SFGAO_STREAM);
    known |= info.isSymLink() ? SFGAOF(SFGAO_LINK) : 0;
    known |= info.isHidden() ? SFGAOF(SFGAO_HIDDEN) : 0;
    known |= info.exists() && !info.isWritable() ? SFGAOF(SFGAO_READONLY) : 0;
    *attributes = mask & known;
    return *attributes == mask ? S_OK : S_FALSE;
}

HRESULT WidgetShellItem::Compare(IShellItem* other, SICHINTF, int* order)
{
    if (!other || !order) {
        return E_POINTER;
    }
    const QString otherPath = pathOfShellItem(other);
    *order = QFileInfo(m_path) == QFileInfo(otherPath) ? 0 : QString::compare(m_path, otherPath);
    return *order == 0 ? S_OK : S_FALSE;
}

class WidgetShellItemArray : public IShellItemArray
{
public:
    /** @param paths at least one */
    explicit WidgetShellItemArray(const QStringList& paths) : m_paths(paths) {}
    virtual ~WidgetShellItemArray() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override
    {
        static const QITAB table[] = {interfaceRow<IShellItemArray, WidgetShellItemArray>(), QITAB{}};
        return searchInterfaces(this, table, riid, object);
    }

    HRESULT STDMETHODCALLTYPE BindToHandler(IBindCtx*, REFGUID, REFIID, void** object) override
    {
        return withoutResult(object);
    }
    HRESULT STDMETHODCALLTYPE GetPropertyStore(GETPROPERTYSTOREFLAGS, REFIID, void** store) override
    {
        return withoutResult(store);
    }
    HRESULT STDMETHODCALLTYPE GetPropertyDescriptionList(REFPROPERTYKEY, REFIID, void** list) override
    {
        return withoutResult(list);
    }
    HRESULT STDMETHODCALLTYPE GetAttributes(SIATTRIBFLAGS how, SFGAOF mask, SFGAOF* attributes) override;
    HRESULT STDMETHODCALLTYPE GetCount(DWORD* count) override
    {
        if (!count) {
            return E_POINTER;
        }
        *count = static_cast<DWORD>(m_paths.size());
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetItemAt(DWORD index, IShellItem** item) override;
    HRESULT STDMETHODCALLTYPE EnumItems(IEnumShellItems** items) override { return withoutResult(items); }

private:
    const QStringList m_paths;
};

HRESULT WidgetShellItemArray::GetAttributes(SIATTRIBFLAGS how, SFGAOF mask, SFGAOF* attributes)
{
    if (!attributes) {
        return E_POINTER;
    }
    const bool all = (static_cast<DWORD>(how) & static_cast<DWORD>(SIATTRIBFLAGS_MASK)) != SIATTRIBFLAGS_OR;
    *attributes = all ? mask : 0;
    for (const QString& path : m_paths) {
        SFGAOF one = 0;
        makeShellItem(path)->GetAttributes(mask, &one);
        *attributes = all ? *attributes & one : *attributes | one;
    }
    return *attributes == mask ? S_OK : S_FALSE;
}

HRESULT WidgetShellItemArray::GetItemAt(DWORD index, IShellItem** item)
{
    if (!item) {
        return E_POINTER;
    }
    *item = nullptr;
    if (index >= static_cast<DWORD>(m_paths.size())) {
        return E_FAIL;
    }
    *item = makeShellItem(m_paths.at(static_cast<int>(index))).detach();
    return S_OK;
}

} // namespace

ComPtr<IShellItem> makeShellItem(const QString& path)
{
    return ComPtr<IShellItem>(new ComObject<WidgetShellItem>(path));
}

ComPtr<IShellItemArray> makeShellItemArray(const QStringList& paths)
{
    return ComPtr<IShellItemArray>(new ComObject<WidgetShellItemArray>(paths));
}

QString pathOfShellItem(IShellItem* item)
{
    LPWSTR name = nullptr;
    if (!item || FAILED(item->GetDisplayName(SIGDN_FILESYSPATH, &name))) {
        return QString();
    }
    const QString path = QDir::fromNativeSeparators(toQString(name));
    freeTaskMemory(name);
    return path;
}

QString pathOfParsingName(const QString& name)
{
    QString path = name;
    if (!path.startsWith(QLatin1Char('/')) || !QFileInfo::exists(path)) {
        path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    }
    if (path.startsWith(QLatin1Char(':'))) { // for Qt a resource of the program, for the Shell a file
        path.prepend(QDir::currentPath() + QLatin1Char('/'));
    }
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

} // namespace morvane::ui
