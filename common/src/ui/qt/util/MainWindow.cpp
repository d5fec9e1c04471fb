// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/MainWindow.h"

#include "ui/qt/util/GuiThread_p.h"

#include <QApplication>
#include <QMainWindow>

namespace morvane::ui {

namespace {

QMainWindow* cachedMainWindow = nullptr;

void searchMainWindow()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* const widget : widgets) {
        auto* const mainWindow = dynamic_cast<QMainWindow*>(widget);
        if (mainWindow && widget->isWindow()) {
            cachedMainWindow = mainWindow;
            return;
        }
    }
}

} // namespace

QMainWindow* findMainWindow(bool forceSearch)
{
    expectGuiThread("findMainWindow");
    if (!cachedMainWindow || forceSearch) {
        searchMainWindow();
    }
    return cachedMainWindow;
}

} // namespace morvane::ui
