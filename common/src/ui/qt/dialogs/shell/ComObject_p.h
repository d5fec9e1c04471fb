// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"

#include <atomic>

namespace morvane::ui {

/**
 * Adds reference counting to @p Base. A new object has one reference, which the caller owns. The object deletes itself
 * when its last reference is released.
 *
 * Base implements its interfaces except AddRef and Release. Its destructor must not call these two.
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
