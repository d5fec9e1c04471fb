// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"

namespace morvane::test {

/** Counts the references to an object that lives on the stack or as a member: nobody deletes it. */
template <typename... Interfaces>
class StackObject : public Interfaces...
{
public:
    StackObject() = default;
    virtual ~StackObject() = default;
    StackObject(const StackObject&) = delete;
    StackObject& operator=(const StackObject&) = delete;

    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override { return --references; }

    ULONG references = 1;
};

} // namespace morvane::test
