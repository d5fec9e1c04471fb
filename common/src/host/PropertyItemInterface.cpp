#include "host/PropertyItemInterface.h"

namespace morvane {

PropertyItemInterface::PropertyItemInterface() = default;

PropertyItemInterface::~PropertyItemInterface()
{
    if (m_announcement) {
        m_announcement->m_untyped =
            SignalAccess<decltype(signalPropertyChanged)>::implementation(signalPropertyChanged);
        m_announcement->m_item = nullptr;
    }
}

void PropertyItemInterface::signalPropertyChangedConnected() const {}

} // namespace morvane
