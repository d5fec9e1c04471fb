// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/WheelGuard.h"

#include "ui/qt/util/GuiThread_p.h"
#include "ui/qt/util/WheelFilter_p.h"

#include <QWidget>

namespace morvane::ui {

void guardWheel(QWidget& form)
{
    expectGuiThread("guardWheel");
    if (!form.findChild<WheelFilter*>(QString(), Qt::FindDirectChildrenOnly)) {
        new WheelFilter(form);
    }
}

} // namespace morvane::ui
