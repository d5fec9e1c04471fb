// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/Control_p.h"

#include <algorithm>

namespace morvane::ui {

const ControlItem* Control::firstChoice() const
{
    const auto first = std::find_if(items.begin(), items.end(),
        [](const ControlItem& item) { return (item.state & CDCS_ENABLEDVISIBLE) == CDCS_ENABLEDVISIBLE; });
    return first == items.end() ? nullptr : &*first;
}

} // namespace morvane::ui
