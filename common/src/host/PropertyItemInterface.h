// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/MorvaneHostExport.h"

#include <boost/signals2/signal.hpp>

#include <memory>

namespace morvane {

/**
 * The base of every property, independent of the type of its value. It has the signal that announces a change.
 *
 * Properties are shared through `boost::shared_ptr`. They can be neither copied nor moved.
 *
 * @snippet 23-watch-any-property/main.cpp watch
 */
class MORVANE_HOST_EXPORT PropertyItemInterface
{
private:
    // First, because hosts rely on the order of the virtual operations.
    virtual void signalPropertyChangedConnected() const;

public:
    PropertyItemInterface();
    PropertyItemInterface(const PropertyItemInterface&) = delete;
    PropertyItemInterface& operator=(const PropertyItemInterface&) = delete;
    virtual ~PropertyItemInterface();

    /**
     * Updates a property that mirrors an external source from that source. A property that holds its own value does
     * nothing; all of Morvane's properties hold their own value.
     */
    virtual void refresh() = 0;

    /** Fires once after each change of the value. Observers connect to it if the type of the value does not matter. */
    boost::signals2::signal<void()> signalPropertyChanged;

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl; // null: reserved for later releases, because hosts compile derived classes
};

} // namespace morvane
