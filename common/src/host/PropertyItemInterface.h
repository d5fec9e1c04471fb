#pragma once

#include "host/MorvaneHostExport.h"

#include <boost/signals2/signal.hpp>

namespace morvane {

/**
 * What every property is, whatever the type of its value: something that announces that it changed.
 *
 * Properties are shared through `boost::shared_ptr` and are neither copied nor moved.
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
     * Brings a property that mirrors an outside source up to date with it. A property that holds its own value, as all
     * of Morvane's do, has nothing to fetch and does nothing.
     */
    virtual void refresh() = 0;

    /** Fires after every change of the value, once a change. Observers connect here when the type does not matter. */
    boost::signals2::signal<void()> signalPropertyChanged;
};

} // namespace morvane
