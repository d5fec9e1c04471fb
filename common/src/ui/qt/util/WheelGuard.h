// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"

class QWidget;

namespace morvane::ui {

/**
 * From now on the spin boxes, date edits and combo boxes of a form ignore the wheel unless they have the focus. So the
 * wheel scrolls the area around them, and changes only the value that the user has chosen with a click or the keyboard.
 *
 * Applies to all descendants of `form`, to `form` itself, and to widgets that are added later; not to sliders, scroll
 * bars and lists. Call it once, after or before the widgets are created; a second call does nothing. The guard is a
 * child of `form` and ends with it. Widgets that are moved to another window are no longer guarded.
 *
 * Without the guard, the wheel gives the focus to a spin box or a combo box, because the focus policy of these widgets
 * is `Qt::WheelFocus`. The guard sets it to `Qt::StrongFocus`, when it is called, or when the widget is shown the first
 * time. It changes no other policy.
 *
 * GUI thread only.
 *
 * @snippet 30-guard-the-wheel/main.cpp guard
 */
MORVANE_UI_EXPORT void guardWheel(QWidget& form);

} // namespace morvane::ui
