// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMessageBox>
#include <QPointer>

namespace morvane::ui {

/**
 * Shows a modal message box with a plain text and returns the button that was chosen. If the parent is destroyed
 * meanwhile, the box is destroyed with it, and the result is NoButton.
 */
inline QMessageBox::StandardButton showMessageBox(QMessageBox::Icon icon, const QString& title, const QString& text,
    QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton, QWidget* parent)
{
    // On the heap, because the parent deletes its children.
    const QPointer<QMessageBox> box(new QMessageBox(icon, title, text, buttons, parent));
    box->setDefaultButton(defaultButton);
    box->setTextFormat(Qt::PlainText);
    const int answer = box->exec();
    delete box.data();
    return static_cast<QMessageBox::StandardButton>(answer);
}

} // namespace morvane::ui
