// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>
#include <QString>

namespace gallery::tour {

/**
 * The operating system's own file dialog while it is open: it has windows, but no widgets. If the system has no such
 * dialog, or Qt draws the dialog, it is never open.
 */
class SystemFileDialog
{
public:
    SystemFileDialog();

    explicit operator bool() const { return m_window != 0; }
    /** Its rectangle on the screen, including the frame. */
    QRect geometry() const;

    QString name() const;
    void setName(const QString& name) const;
    /** Picks a file type as a user would. The index counts from 0. */
    void pickType(int index) const;
    int listedFiles() const;

    /** Presses the button or check box with this text. Returns before the dialog reacts. */
    void click(const QString& text) const;
    bool isVisible(const QString& text) const;
    bool isEnabled(const QString& text) const;
    bool isChecked(const QString& text) const;

    void accept() const;
    void cancel() const;

private:
    quintptr m_window; // 0 while none is open
};

} // namespace gallery::tour
