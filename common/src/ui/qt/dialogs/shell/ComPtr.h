#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"

#include <utility>

namespace morvane::ui {

/**
 * Owns one reference to a COM object and releases it.
 *
 * Only share() adds a reference: the constructor adopts the one that it is given, and a ComPtr cannot be copied.
 *
 * @snippet contract/ShellContract.cpp item
 */
template <typename Interface>
class ComPtr
{
public:
    ComPtr() = default;
    /** Adopts the reference that the caller holds on @p object; null is an empty pointer. */
    explicit ComPtr(Interface* object) : m_object(object) {}
    /** Takes the reference over; @p other is empty afterwards. */
    ComPtr(ComPtr&& other) noexcept : m_object(other.detach()) {}
    /** The same, releasing what was held. */
    ComPtr& operator=(ComPtr&& other) noexcept
    {
        ComPtr taken(std::move(other));
        taken.swap(*this);
        return *this;
    }
    ComPtr(const ComPtr&) = delete;
    ComPtr& operator=(const ComPtr&) = delete;
    ~ComPtr() { reset(); }

    /** A pointer with a reference of its own to @p object, which may be null. */
    static ComPtr share(Interface* object)
    {
        if (object) {
            object->AddRef();
        }
        return ComPtr(object);
    }

    /** Null when empty; the reference stays here. */
    Interface* get() const { return m_object; }
    /** Not for an empty pointer. */
    Interface* operator->() const { return m_object; }
    /** Not for an empty pointer. */
    Interface& operator*() const { return *m_object; }
    /** Whether there is an object. */
    explicit operator bool() const { return m_object != nullptr; }

    /** Releases the held object and returns the address for the result of a call. */
    Interface** put()
    {
        reset();
        return &m_object;
    }
    /** put() with the type that QueryInterface and similar calls take. */
    void** putVoid() { return reinterpret_cast<void**>(put()); }

    /** Passes the reference to the caller; empty afterwards. */
    Interface* detach() { return std::exchange(m_object, nullptr); }

    /** Releases the object. The pointer is empty before the release, which may call back into its owner. */
    void reset()
    {
        if (Interface* const object = detach()) {
            object->Release();
        }
    }

    /** Exchanges the references; no count changes. */
    void swap(ComPtr& other) noexcept { std::swap(m_object, other.m_object); }

    /** Another interface of the same object; empty when this is empty or the object does not have it. */
    template <typename Other>
    ComPtr<Other> query() const
    {
        ComPtr<Other> other;
        if (m_object && FAILED(m_object->QueryInterface(iidOf<Other>(), other.putVoid()))) {
            other.detach(); // a failed call leaves nothing to release, whatever it wrote
        }
        return other;
    }

private:
    Interface* m_object = nullptr;
};

} // namespace morvane::ui
