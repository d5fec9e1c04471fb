// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "contract/FailingShell.h"
#include "ui/qt/dialogs/shell/ComObject_p.h"
#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/ComSupport_p.h"

namespace morvane::test {

/** Is counted as a live object while it exists. Instances are made as ComObject. */
template <typename... Interfaces>
class LiveObject : public Interfaces...
{
public:
    explicit LiveObject(ShellFaults& faults) : m_faults(faults) { ++m_faults.liveObjects; }
    virtual ~LiveObject() { --m_faults.liveObjects; }
    LiveObject(const LiveObject&) = delete;
    LiveObject& operator=(const LiveObject&) = delete;

protected:
    ShellFaults& m_faults;
};

/** Wraps an object of a Shell; its calls can be made to fail. */
template <typename Interface>
class FailingObject : public LiveObject<Interface>
{
public:
    FailingObject(ShellFaults& faults, ui::ComPtr<Interface> target)
        : LiveObject<Interface>(faults), m_target(std::move(target))
    {
    }

    Interface* target() const { return m_target.get(); }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override
    {
        *object = nullptr;
        return call("QueryInterface", [&] { return find(riid, object); });
    }

protected:
    using LiveObject<Interface>::m_faults;

    /** QueryInterface of the object. */
    virtual HRESULT find(REFIID riid, void** object)
    {
        static const QITAB table[] = {ui::interfaceRow<Interface, FailingObject>(), QITAB{}};
        return ui::searchInterfaces(this, table, riid, object);
    }

    template <typename Function>
    HRESULT call(const char* method, Function&& function)
    {
        return m_faults.isHit(name() + std::string("::") + method) ? E_FAIL : function();
    }

    /** A call that returns a string. */
    template <typename Function>
    HRESULT callForText(const char* method, LPWSTR* text, Function&& function)
    {
        *text = nullptr;
        const HRESULT result = call(method, function);
        m_faults.liveStrings += *text ? 1 : 0;
        return result;
    }

    /** A call that returns an object, which is wrapped in a Standin. */
    template <typename Standin, typename Made, typename Function>
    HRESULT callForObject(const char* method, Made** made, Function&& function)
    {
        *made = nullptr;
        ui::ComPtr<Made> target;
        const HRESULT result = call(method, [&] { return function(target.put()); });
        if (target) {
            *made = new ui::ComObject<Standin>(m_faults, std::move(target));
        }
        return result;
    }

    virtual const char* name() const = 0;

    ui::ComPtr<Interface> m_target;
};

class FailingItem : public FailingObject<IShellItem>
{
public:
    using FailingObject::FailingObject;

    /** The item of the Shell that @p item wraps. */
    static IShellItem* unwrapped(IShellItem* item)
    {
        return item ? static_cast<FailingItem*>(item)->target() : nullptr;
    }

    HRESULT STDMETHODCALLTYPE BindToHandler(IBindCtx*, REFGUID, REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetParent(IShellItem** parent) override
    {
        return callForObject<FailingItem>(
            "GetParent", parent, [&](IShellItem** made) { return m_target->GetParent(made); });
    }
    HRESULT STDMETHODCALLTYPE GetDisplayName(SIGDN form, LPWSTR* text) override
    {
        return callForText("GetDisplayName", text, [&] { return m_target->GetDisplayName(form, text); });
    }
    HRESULT STDMETHODCALLTYPE GetAttributes(SFGAOF mask, SFGAOF* attributes) override
    {
        return call("GetAttributes", [&] { return m_target->GetAttributes(mask, attributes); });
    }
    HRESULT STDMETHODCALLTYPE Compare(IShellItem* other, SICHINTF hint, int* order) override
    {
        return call("Compare", [&] { return m_target->Compare(unwrapped(other), hint, order); });
    }

protected:
    const char* name() const override { return "IShellItem"; }
};

class FailingItems : public FailingObject<IShellItemArray>
{
public:
    using FailingObject::FailingObject;

    HRESULT STDMETHODCALLTYPE BindToHandler(IBindCtx*, REFGUID, REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetPropertyStore(GETPROPERTYSTOREFLAGS, REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetPropertyDescriptionList(REFPROPERTYKEY, REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetAttributes(SIATTRIBFLAGS, SFGAOF, SFGAOF*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetCount(DWORD* count) override
    {
        return call("GetCount", [&] { return m_target->GetCount(count); });
    }
    HRESULT STDMETHODCALLTYPE GetItemAt(DWORD index, IShellItem** item) override
    {
        return callForObject<FailingItem>(
            "GetItemAt", item, [&](IShellItem** made) { return m_target->GetItemAt(index, made); });
    }
    HRESULT STDMETHODCALLTYPE EnumItems(IEnumShellItems**) override { return E_NOTIMPL; }

protected:
    const char* name() const override { return "IShellItemArray"; }
};

/** An open or save dialog whose Show runs through @p show. */
ui::ComPtr<IFileDialog> makeFailingDialog(
    ShellFaults& faults, const FailingShell::Show& show, ui::ComPtr<IFileDialog> target);

} // namespace morvane::test
