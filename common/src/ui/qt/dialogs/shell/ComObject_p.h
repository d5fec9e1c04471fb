#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"

#include <atomic>

namespace morvane::ui {

/**
 * @p Base with its references counted. Made with one reference, the caller's; deletes itself with the last.
 *
 * Base implements its interfaces but for AddRef and Release. Its destructor must call neither.
 */
template <typename Base>
class ComObject final : public Base
{
public:
    using Base::Base;

    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --m_references;
        if (left == 0) {
            delete this;
        }
        return left;
    }

private:
    std::atomic<ULONG> m_references{1};
};

} // namespace morvane::ui
