#pragma once

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QStringList>

#include <functional>

class QAbstractButton;
class QAbstractItemView;
class QComboBox;
class QLineEdit;

namespace morvane::test {

/** Waits until @p condition holds, with events processed; returns whether it came to hold. */
bool waitUntil(const std::function<bool()>& condition);

/** What a person sees of a file dialog, and what they do with it: key and mouse events on the widgets in it. */
class FileDialogPage
{
public:
    explicit FileDialogPage(QFileDialog& dialog);

    QFileDialog& dialog() const { return m_dialog; }
    bool isOpen() const;

    QLineEdit& nameEdit() const;
    QString name() const;
    /** Replaces the name by typing, one key event for each character. */
    void typeName(const QString& text) const;
    void pressEnter() const;
    void enterName(const QString& text) const;

    /** Null when there is no such button. */
    QAbstractButton* button(QDialogButtonBox::StandardButton which) const;
    void click(QDialogButtonBox::StandardButton which) const;

    /** The names in the view of the folder, sorted. */
    QStringList listed() const;
    bool waitForListed(QStringList names) const;
    void clickFile(const QString& name, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void doubleClickFile(const QString& name) const;

    /** What of the sidebar and of the columns is not to be seen whole, described; the names may be elided. */
    QStringList cutParts() const;

    QComboBox& typeCombo() const;
    QStringList types() const;
    QString currentType() const;
    /** Opens the list of types and picks a row of it. */
    void pickTypeWithKeys(int row) const;
    void pickTypeWithMouse(int row) const;

private:
    QAbstractItemView& view() const;
    QRect rectangleOf(const QString& name) const;

    QFileDialog& m_dialog;
};

} // namespace morvane::test
