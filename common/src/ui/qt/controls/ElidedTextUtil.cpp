// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/ElidedTextUtil.h"

#include <QFontMetrics>
#include <QWidget>

ElidedTextUtil::~ElidedTextUtil() = default;

void ElidedTextUtil::updateToolTip(QWidget* widget, int availableWidth, const QString& text, const QString& toolTip)
{
    const QString current = widget->toolTip();
    if (!current.isEmpty() && current != toolTip) {
        return;
    }
    const bool fits = widget->fontMetrics().horizontalAdvance(text) <= availableWidth;
    const QString wanted = fits ? QString() : toolTip;
    if (current != wanted) {
        widget->setToolTip(wanted);
    }
}
