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

/** "class name (object name)" of the given widgets, for reading in a failure. */
QStringList described(const std::vector<QWidget*>& widgets);

/** Those of the window's tab stops, buttons and labels that have no name or no role. */
QStringList namelessPartsOf(QWidget& window);

/** Presses Tab (or Shift+Tab) until the focus is back where it was; the widgets on the way, the first one last. */
std::vector<QWidget*> walkWithTab(QWidget& window, bool backwards = false);

/** From 1 (equal) to 21 (black on white); 4.5 is what text needs. */
double contrast(const QColor& one, const QColor& other);

/** The contrast of what is drawn in a widget: of its most frequent colour and the one that differs most from it. */
double drawnContrast(QWidget& widget);

/** Light on dark for the whole application while it lives. */
class DarkPalette
{
public:
    DarkPalette();
    ~DarkPalette();
    DarkPalette(const DarkPalette&) = delete;
    DarkPalette& operator=(const DarkPalette&) = delete;
};

} // namespace morvane::test
