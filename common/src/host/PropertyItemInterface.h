#pragma once

#include "host/MorvaneHostExport.h"

#include <boost/shared_ptr.hpp>
#include <boost/signals2/signal.hpp>

namespace morvane {

/**
 * What every property is, whatever the type of its value: something that announces that it changed.
 *
 * Properties are shared through `boost::shared_ptr` and are neither copied nor moved.
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

protected:
    /**
     * Stands around the emission of a property's signals, so that an observer may destroy the property.
     *
     * An emission ends by tidying up in the signal's implementation. When the property ends before, the outermost
     * announcement keeps what keepWhileAnnouncing() gives it. That is cheaper than holding the implementation each
     * time.
     */
    class Announcement
    {
    public:
        explicit Announcement(PropertyItemInterface& item) : m_item(item.m_announcement ? nullptr : &item)
        {
            if (m_item) {
                m_item->m_announcement = this;
            }
        }
        ~Announcement()
        {
            if (m_item) {
                m_item->m_announcement = nullptr;
            }
        }
        Announcement(const Announcement&) = delete;
        Announcement& operator=(const Announcement&) = delete;

    private:
        friend class PropertyItemInterface;
        PropertyItemInterface* m_item;
        boost::shared_ptr<void> m_typed;
        boost::shared_ptr<void> m_untyped;
    };

    /** For the destructor of the class that owns the typed @p signal. */
    template <typename Signal>
    void keepWhileAnnouncing(const Signal& signal)
    {
        if (m_announcement) {
            m_announcement->m_typed = SignalAccess<Signal>::implementation(signal);
        }
    }

private:
    template <typename Signal>
    struct SignalAccess : Signal
    {
        static boost::shared_ptr<void> implementation(const Signal& signal)
        {
            return (signal.*&SignalAccess::lock_pimpl)();
        }
    };

    Announcement* m_announcement = nullptr;
};

} // namespace morvane
