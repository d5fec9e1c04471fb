// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tour/TourStep.h"
#include "tour/TourUser.h"

#include <QFileDialog>
#include <QModelIndex>
#include <QString>

class QAbstractButton;
class QAbstractItemView;
class QComboBox;
class QLineEdit;

namespace gallery {
class TourWorkspace;
}

namespace gallery::tour {

/** The parts that a user sees of the file dialog that is open now. Only a dialog made of Qt widgets has them. */
struct OpenFileDialog
{
    QFileDialog* dialog = modal<QFileDialog>();

    explicit operator bool() const { return dialog != nullptr; }
    QLineEdit& name() const;
    QComboBox& type() const;
    QAbstractItemView& view() const;
    QAbstractButton& acceptButton() const;
    QAbstractButton& helpButton() const;
    /** The arrow that opens the menu of the accept button. */
    QWidget& acceptMenuArrow() const;
    /** Finds a control of the host by its text; null if there is none. */
    QAbstractButton* control(const QString& text) const;

    /** Invalid if the file is not listed. */
    QModelIndex find(const QString& fileName) const;
    /** The listed names, separated by blanks. */
    QString names() const;
};

/** Returns an empty text if a dialog is open that lists @p names, otherwise a complaint. */
QString expectListed(const QString& names);
/** Returns an empty text if no dialog is open, otherwise a complaint. */
QString expectClosed();

/** Replaces the name and presses Enter. */
void enterName(const QString& name);
/** Presses Help in the open dialog and expects that @p page is opened. */
TourStep helpStep(const TourWorkspace& workspace, const QString& name, const QString& page);
/** Picks the next type in the list. */
void pickNextType();
/** Cancels the dialog. */
TourStep cancelStep(const QString& name);

/** Whether the native dialog has widgets that the tour can use. It has none if the system draws the dialog. */
bool canDriveNativeDialog();

} // namespace gallery::tour
