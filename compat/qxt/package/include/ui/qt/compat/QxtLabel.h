#pragma once

#include <QxtLabel>

namespace morvane::compat {

/** The base of ElidedTextLabel: Qxt's, because this Morvane was built with MORVANE_WITH_QXT. */
using ::QxtLabel;

} // namespace morvane::compat
