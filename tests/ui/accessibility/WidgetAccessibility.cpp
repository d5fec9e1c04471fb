// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "WidgetAccessibility.h"

#include <QAbstractButton>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPalette>
#include <QStyle>
#include <QTest>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <map>

namespace morvane::test {

namespace {

QString textOf(QWidget* widget, QAccessible::Text kind)
{
    QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(widget);
    return accessible ? accessible->text(kind) : QString();
}

double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

bool isTabStop(const QWidget& widget)
{
    // The parts of spin boxes and combo boxes share the focus of the box.
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) && !widget.focusProxy();
}

bool needsName(const QWidget& widget)
{
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    const bool saysSomething = label && !label->text().isEmpty();
    return widget.isVisible() && (isTabStop(widget) || qobject_cast<const QAbstractButton*>(&widget) || saysSomething);
}

QString described(const QWidget* widget)
{
    return QStringLiteral("%1 (%2)").arg(QLatin1String(widget->metaObject()->className()), widget->objectName());
}

} // namespace

QAccessible::Role roleOf(QWidget* widget)
{
    QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(widget);
    return accessible ? accessible->role() : QAccessible::NoRole;
}

QString nameOf(QWidget* widget)
{
    // On some platforms, combo boxes report their text as the name; assistive software finds the label itself there.
    if (QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(widget)) {
        const auto labels = accessible->relations(QAccessible::Label);
        if (!labels.isEmpty()) {
            return labels.first().first->text(QAccessible::Name);
        }
    }
    return textOf(widget, QAccessible::Name);
}

QString valueOf(QWidget* widget)
{
    return textOf(widget, QAccessible::Value);
}

std::vector<QWidget*> tabStopsOf(QWidget& window)
{
    std::vector<QWidget*> stops;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        if (widget->window() == &window && isTabStop(*widget)) {
            stops.push_back(widget);
        }
    }
    return stops;
}

QStringList described(const std::vector<QWidget*>& widgets)
{
    QStringList result;
    for (const QWidget* const widget : widgets) {
        result.append(described(widget));
    }
    return result;
}

QStringList namelessPartsOf(QWidget& window)
{
    QStringList nameless;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        const bool isPart = widget->window() == &window && needsName(*widget);
        if (isPart && (nameOf(widget).isEmpty() || roleOf(widget) == QAccessible::NoRole)) {
            nameless.append(described(widget));
        }
    }
    return nameless;
}

std::vector<QWidget*> walkWithTab(QWidget& window, bool backwards)
{
    constexpr int tooMany = 100;
    std::vector<QWidget*> walk;
    QWidget* const first = window.focusWidget();
    while (first && walk.size() < tooMany && (walk.empty() || walk.back() != first)) {
        if (backwards) {
            QTest::keyClick(window.focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        } else {
            QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        }
        walk.push_back(window.focusWidget());
    }
    return walk;
}

double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

double drawnContrast(QWidget& widget)
{
    const QImage picture = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    const auto background = std::max_element(
        counts.begin(), counts.end(), [](const auto& one, const auto& other) { return one.second < other.second; });
    double best = 1;
    for (const auto& [color, count] : counts) {
        best = std::max(best, contrast(color, background->first));
    }
    return best;
}

DarkPalette::DarkPalette()
{
    QPalette palette(QColor(60, 60, 60), QColor(45, 45, 45));
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::Highlight, QColor(38, 110, 180));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, QColor(235, 235, 235));
    }
    QApplication::setPalette(palette);
}

DarkPalette::~DarkPalette()
{
    QApplication::setPalette(QApplication::style()->standardPalette());
}

} // namespace morvane::test
