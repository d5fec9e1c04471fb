// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QModelIndex>
#include <QStringList>

#include <functional>

class QAbstractButton;
class QAbstractItemView;
class QComboBox;
class QLineEdit;

namespace morvane::test {

/** Waits until @p condition holds, with events processed; returns false if it does not in time. */
bool waitUntil(const std::function<bool()>& condition);

/**
 * Reads what a user sees in a file dialog made of Qt's widgets, and acts on it by key and mouse events to its widgets.
 * Functions for custom controls are for the dialog of a WidgetShell.
 */
class FileDialogDriver
{
public:
    explicit FileDialogDriver(QFileDialog& dialog);
    /** Waits first until the dialog is active: then it selects the text of the name field. */
    static FileDialogDriver whenActive(QFileDialog& dialog);
    /** A step for a ModalScript: acts when the dialog is active, and cancels the dialog if it is open after that. */
    static std::function<void(QFileDialog&)> playing(std::function<void(FileDialogDriver&)> act);

    QFileDialog& dialog() const { return m_dialog; }
    bool isOpen() const;

    QLineEdit& nameEdit() const;
    QString name() const;
    /** Replaces the name by typing, one key event for each character. */
    void typeName(const QString& text) const;
    void pressEnter() const;
    void enterName(const QString& text) const;
    void enterFolder(const QString& folder) const;

    /** Null when there is no such button. */
    QAbstractButton* button(QDialogButtonBox::StandardButton which) const;
    void click(QDialogButtonBox::StandardButton which) const;
    QAbstractButton& acceptButton() const;
    void pressAccept() const;
    void pressAcceptAndAnswer(bool replace) const;
    /** Presses Escape. */
    void pressCancel() const;

    /** The custom control with this label; null when it is not shown. */
    QAbstractButton* control(const QString& label) const;
    void clickControl(const QString& label) const;
    void toggleControl(const QString& label) const;
    /** Picks an item of the menu at the accept button. */
    void pickAcceptItem(const QString& label) const;

    /** The custom list or edit box with this object name; the test fails if it is not shown. */
    QComboBox* customList(const QString& objectName) const;
    QLineEdit* customEdit(const QString& objectName) const;
    /** Steps with the keys to an entry of a combo box among the controls; counted from 0. */
    void chooseEntry(const QString& objectName, int row) const;
    /** Replaces the text in an edit box among the controls by typing. */
    void typeText(const QString& objectName, const QString& text) const;

    /** The names in the view of the folder, sorted. */
    QStringList listed() const;
    bool waitForListed(QStringList names) const;
    void clickFile(const QString& name, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void doubleClickFile(const QString& name) const;

    /** Describes the parts of the sidebar and of the columns that are cut off; file names may be elided. */
    QStringList cutParts() const;

    QComboBox& typeCombo() const;
    QStringList types() const;
    QString currentType() const;
    /** Opens the list of types and picks a row of it. */
    void pickTypeWithKeys(int row) const;
    void pickTypeWithMouse(int row) const;
    /** Steps to a type with the arrow keys; selects each type on the way. */
    void stepToType(int row) const;

private:
    QAbstractItemView& view() const;
    QModelIndex indexOf(const QString& name) const;
    QRect rectangleOf(const QString& name) const;

    QFileDialog& m_dialog;
};

} // namespace morvane::test
