// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "Appearance.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <QStyle>
#include <QStyleFactory>

namespace gallery {

namespace {

QPixmap drawIcon(int side)
{
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / 32.0, side / 32.0);
    painter.setPen(Qt::NoPen);

    QLinearGradient tile(0, 0, 32, 32);
    tile.setColorAt(0, QColor(0x2f, 0x7f, 0xb8));
    tile.setColorAt(1, QColor(0x1b, 0x4f, 0x8a));
    painter.setBrush(tile);
    painter.drawRoundedRect(QRectF(1, 1, 30, 30), 7, 7);

    painter.setBrush(QColor(255, 255, 255, 120));
    painter.drawRoundedRect(QRectF(6, 7, 7, 18), 2, 2);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(15, 7, 11, 12), 2, 2);
    painter.setBrush(QColor(0xff, 0xc2, 0x3d));
    painter.drawRoundedRect(QRectF(15, 21, 11, 4), 2, 2);
    return pixmap;
}

QPalette darkPalette()
{
    const QColor window(0x2b, 0x2d, 0x30);
    const QColor base(0x1e, 0x1f, 0x22);
    const QColor text(0xe6, 0xe6, 0xe6);
    const QColor muted(0x8a, 0x8d, 0x91);
    const QColor accent(0x2f, 0x73, 0xab);
    QPalette palette(text, QColor(0x3c, 0x3f, 0x43), QColor(0x5a, 0x5d, 0x61), QColor(0x18, 0x19, 0x1b),
        QColor(0x35, 0x38, 0x3c), text, Qt::white, base, window);
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x28, 0x2b));
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, muted);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x6c, 0xb4, 0xee));
    palette.setColor(QPalette::LinkVisited, QColor(0xb3, 0x9d, 0xdb));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
        palette.setColor(QPalette::Disabled, role, muted);
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0x4a, 0x4d, 0x51));
    return palette;
}

} // namespace

void useDarkPalette()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(darkPalette());
}

QFont headingFont(QFont base)
{
    base.setPointSizeF(base.pointSizeF() * 1.5);
    base.setBold(true);
    return base;
}

QIcon applicationIcon()
{
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
        icon.addPixmap(drawIcon(side));
    }
    return icon;
}

} // namespace gallery
