#include "ui/qt/dialogs/SaveFileMessageHandlerInterface.h"

namespace morvane {

SaveFileMessageHandlerInterface::~SaveFileMessageHandlerInterface() = default;

} // namespace morvane
