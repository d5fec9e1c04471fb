#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"

#include <utility>

namespace morvane::ui {

/**
 * @p Base as a part of another object, whose identity and reference count it shares.
 *
 * Base implements its interface but for the three operations of IUnknown.
 */
template <typename Base>
class ComPart final : public Base
{
public:
    /** @param owner has this as a member; the other arguments go to Base */
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
