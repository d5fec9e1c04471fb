// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessible>
#include <QColor>
#include <QStringList>

#include <vector>

class QWidget;

namespace morvane::test {

/** What assistive software is told about a widget. */
QAccessible::Role roleOf(QWidget* widget);
QString nameOf(QWidget* widget);
/** The value, as for fields and spin boxes. */
QString valueOf(QWidget* widget);

/** The widgets that a person can see and use in a window: shown, enabled, and reached with Tab. */
std::vector<QWidget*> tabStopsOf(QWidget& window);

/** "class name (object name)" of the given widgets, for failure messages. */
QStringList described(const std::vector<QWidget*>& widgets);

/** The tab stops, buttons and labels of the window that have no name or no role. */
QStringList namelessPartsOf(QWidget& window);

/** Presses Tab (or Shift+Tab) until the focus is back. Returns the widgets on the way; the first one is last. */
std::vector<QWidget*> walkWithTab(QWidget& window, bool backwards = false);

/** From 1 (equal) to 21 (black on white); 4.5 is what text needs. */
double contrast(const QColor& one, const QColor& other);

/** The contrast between the most frequent colour of a widget and the colour that differs most from it. */
double drawnContrast(QWidget& widget);

/** Sets light text on dark ground for the whole application while it exists. */
class DarkPalette
{
public:
    DarkPalette();
    ~DarkPalette();
    DarkPalette(const DarkPalette&) = delete;
    DarkPalette& operator=(const DarkPalette&) = delete;
};

} // namespace morvane::test
