// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"

#include <utility>

namespace morvane::ui {

/**
 * Owns one reference to a COM object and releases it.
 *
 * The constructor adopts the reference that it receives. Only share() adds a reference. The pointer cannot be copied.
 *
 * @snippet contract/ShellContract.cpp item
 */
template <typename Interface>
class ComPtr
{
public:
    ComPtr() = default;
    /** Adopts the caller's reference to @p object. Null makes an empty pointer. */
    explicit ComPtr(Interface* object) : m_object(object) {}
    /** Takes over the reference; @p other is empty afterwards. */
    ComPtr(ComPtr&& other) noexcept : m_object(other.detach()) {}
    /** The same; releases the previous object. */
    ComPtr& operator=(ComPtr&& other) noexcept
    {
        ComPtr taken(std::move(other));
        taken.swap(*this);
        return *this;
    }
    ComPtr(const ComPtr&) = delete;
    ComPtr& operator=(const ComPtr&) = delete;
    ~ComPtr() { reset(); }

    /** Returns a pointer that holds an additional reference to @p object, which may be null. */
    static ComPtr share(Interface* object)
    {
        if (object) {
            object->AddRef();
        }
        return ComPtr(object);
    }

    /** Returns the object; null if the pointer is empty. The reference stays in this pointer. */
    Interface* get() const { return m_object; }
    /** The pointer must not be empty. */
    Interface* operator->() const { return m_object; }
    /** The pointer must not be empty. */
    Interface& operator*() const { return *m_object; }
    /** Whether the pointer has an object. */
    explicit operator bool() const { return m_object != nullptr; }

    /** Releases the object and returns the address to which a call writes its result. */
    Interface** put()
    {
        reset();
        return &m_object;
    }
    /** put() with the pointer type that QueryInterface and similar calls take. */
    void** putVoid() { return reinterpret_cast<void**>(put()); }

    /** Empties the pointer without releasing the object. The reference passes to the caller. */
    Interface* detach() { return std::exchange(m_object, nullptr); }

    /**
     * Releases the object. The pointer is empty before the release, because the release may call the owner.
     */
    void reset()
    {
        if (Interface* const object = detach()) {
            object->Release();
        }
    }

    /** Exchanges the two pointers; no reference count changes. */
    void swap(ComPtr& other) noexcept { std::swap(m_object, other.m_object); }

    /**
     * Returns another interface of the same object. Empty if this pointer is empty or the object does not have the
     * interface.
     */
    template <typename Other>
    ComPtr<Other> query() const
    {
        ComPtr<Other> other;
        if (m_object && FAILED(m_object->QueryInterface(iidOf<Other>(), other.putVoid()))) {
            other.detach(); // after a failed call there is nothing to release, whatever the call wrote
        }
        return other;
    }

private:
    Interface* m_object = nullptr;
};

} // namespace morvane::ui
