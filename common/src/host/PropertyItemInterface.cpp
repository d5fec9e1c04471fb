#include "host/PropertyItemInterface.h"

namespace morvane {

PropertyItemInterface::PropertyItemInterface() = default;

PropertyItemInterface::~PropertyItemInterface() = default;

void PropertyItemInterface::signalPropertyChangedConnected() const {}

} // namespace morvane
