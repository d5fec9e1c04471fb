// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "tour/TourPicture.h"

#include "tour/SystemFileDialog.h"

#include <QApplication>
#include <QMap>
#include <QPainter>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <vector>

namespace gallery {

namespace {

int depth(const QWidget* window)
{
    int levels = 0;
    for (const QWidget* parent = window->parentWidget(); parent; parent = parent->window()->parentWidget()) {
        ++levels;
    }
    return levels;
}

/** The visible windows, each one after the window below it. */
std::vector<QWidget*> visibleWindows(QWidget& mainWindow)
{
    std::vector<QWidget*> windows;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        const bool onScreen = window->isVisible() && !window->testAttribute(Qt::WA_DontShowOnScreen);
        if (onScreen && window != &mainWindow && window->windowType() != Qt::Desktop) {
            windows.push_back(window);
        }
    }
    std::stable_sort(windows.begin(), windows.end(), [](QWidget* a, QWidget* b) { return depth(a) < depth(b); });
    windows.insert(windows.begin(), &mainWindow);
    return windows;
}

QPixmap grabScreen(const std::vector<QWidget*>& windows)
{
    QScreen* const screen = windows.front()->windowHandle()->screen();
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        return QPixmap();
    }
    QRect area;
    for (QWidget* const window : windows) {
        area |= window->frameGeometry();
    }
    if (const tour::SystemFileDialog dialog; dialog) {
        area |= dialog.geometry();
    }
    area = (area & screen->geometry()).translated(-screen->geometry().topLeft());
    return screen->grabWindow(0, area.x(), area.y(), area.width(), area.height());
}

/** The position of each window in the picture: dialogs are centred on their parent, popups keep their position. */
std::vector<QRect> arrange(const std::vector<QWidget*>& windows)
{
    std::vector<QRect> places;
    QMap<const QWidget*, QRect> placed;
    for (QWidget* const window : windows) {
        QRect place = window->geometry();
        const QWidget* const parent = window->parentWidget() ? window->parentWidget()->window() : nullptr;
        if (placed.contains(parent)) {
            if (window->windowType() == Qt::Dialog) {
                place.moveCenter(placed[parent].center());
            } else {
                place.translate(placed[parent].topLeft() - parent->geometry().topLeft());
            }
        }
        placed[window] = place;
        places.push_back(place);
    }
    return places;
}

int captionHeight(const QWidget& window)
{
    return 2 * window.fontMetrics().height();
}

QRect withFrame(const QWidget& window, const QRect& place)
{
    return window.windowType() == Qt::Dialog ? place.adjusted(-1, -captionHeight(window) - 1, 1, 1) : place;
}

void drawFrame(QPainter& painter, const QWidget& window, const QRect& place)
{
    if (window.windowType() != Qt::Dialog) {
        return;
    }
    const QRect bar(place.x(), place.y() - captionHeight(window), place.width(), captionHeight(window));
    painter.fillRect(bar, window.palette().color(QPalette::Button));
    painter.setPen(window.palette().color(QPalette::ButtonText));
    painter.setFont(window.font());
    painter.drawText(bar, Qt::AlignCenter, window.windowTitle());
    painter.setPen(window.palette().color(QPalette::Dark));
    painter.drawRect(place.united(bar).adjusted(-1, -1, 0, 0));
}

QPixmap compose(const std::vector<QWidget*>& windows)
{
    const std::vector<QRect> places = arrange(windows);
    QRect area;
    for (size_t i = 0; i < windows.size(); ++i) {
        area |= withFrame(*windows[i], places[i]);
    }
    const qreal ratio = windows.front()->devicePixelRatioF();
    QPixmap picture(area.size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(windows.front()->palette().color(QPalette::Mid));

    QPainter painter(&picture);
    painter.translate(-area.topLeft());
    for (size_t i = 0; i < windows.size(); ++i) {
        drawFrame(painter, *windows[i], places[i]);
        painter.drawPixmap(places[i].topLeft(), windows[i]->grab());
    }
    return picture;
}

} // namespace

QPixmap takeTourPicture(QWidget& mainWindow)
{
    const std::vector<QWidget*> windows = visibleWindows(mainWindow);
    const QPixmap screen = grabScreen(windows);
    return screen.isNull() ? compose(windows) : screen;
}

} // namespace gallery
