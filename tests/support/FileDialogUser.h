#pragma once

#include <QFileDialog>
#include <QMessageBox>
#include <QString>

namespace morvane::test {

// What a person does in a file dialog made of Qt's widgets, with key and mouse events.

/** Replaces the text of the name field, key by key. */
void typeName(QFileDialog& dialog, const QString& name);
/** Clicks Open, Save or Choose, whichever the dialog has. */
void pressAccept(QFileDialog& dialog);
void pressCancel(QFileDialog& dialog);
/** typeName() and pressAccept(). */
void acceptName(QFileDialog& dialog, const QString& name);
/** Goes to the type at @p index in the box of file types with the arrow keys. */
void pickType(QFileDialog& dialog, int index);
QString typedName(QFileDialog& dialog);

/** The focus widget of the box gets the key, as for a person who looks at the box. */
void pressKey(QMessageBox& box, Qt::Key key);

} // namespace morvane::test
