// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"

#include <utility>

namespace morvane::ui {

/**
 * Makes @p Base a part of another object, with the identity and the reference count of that object.
 *
 * Base implements its interface except the three operations of IUnknown.
 */
template <typename Base>
class ComPart final : public Base
{
public:
    /** @param owner the object that has this one as a member; the other arguments are passed to Base */
    template <typename... Arguments>
    explicit ComPart(IUnknown& owner, Arguments&&... arguments)
        : Base(std::forward<Arguments>(arguments)...), m_owner(owner)
    {
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override
    {
        return m_owner.QueryInterface(riid, object);
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return m_owner.AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return m_owner.Release(); }

private:
    IUnknown& m_owner;
};

} // namespace morvane::ui
