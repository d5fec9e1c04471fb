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

/** The file dialog that is open now, by the parts that a user sees. Only a dialog made of Qt's widgets has them. */
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
    /** A control of the host by its text; null when there is none. */
    QAbstractButton* control(const QString& text) const;

    /** Invalid when no such file is listed. */
    QModelIndex find(const QString& fileName) const;
    /** What is listed, joined by blanks. */
    QString names() const;
};

/** What a step reports unless a dialog is open that lists @p names. */
QString expectListed(const QString& names);
/** What a step reports unless no dialog is open. */
QString expectClosed();

/** Replaces the name and presses Enter. */
void enterName(const QString& name);
/** Asks for help in the open dialog; @p page is opened. */
TourStep helpStep(const TourWorkspace& workspace, const QString& name, const QString& page);
/** Picks the next type in the list. */
void pickNextType();
/** Gives the dialog up. */
TourStep cancelStep(const QString& name);

/** Whether the native dialog has widgets that the tour can work; where the system draws it, it has none. */
bool canDriveNativeDialog();

} // namespace gallery::tour
