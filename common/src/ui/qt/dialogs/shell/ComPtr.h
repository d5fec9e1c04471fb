#pragma once

#include "ui/qt/dialogs/shell/ShellInterfaces.h"

#include <utility>

namespace morvane::ui {

/**
 * Owns one reference to a COM object and releases it.
 *
 * Nothing adds a reference behind your back: the constructor adopts the reference that it is given, share() is the one
 * way to add one, and copying is not offered.
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

    /** Releases what is held and gives the place where a call leaves its result. */
    Interface** put()
    {
        reset();
        return &m_object;
    }
    /** put() in the type that QueryInterface and its sisters take. */
    void** putVoid() { return reinterpret_cast<void**>(put()); }

    /** Hands the reference over to the caller. */
    Interface* detach() { return std::exchange(m_object, nullptr); }

    /** Empty before the object is released, so that a call back into the owner finds nothing half gone. */
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
