#pragma once

#include "contract/ShellDriver.h"

#include <QPointer>

class QAbstractButton;
class QComboBox;
class QFileDialog;
class QLineEdit;

namespace morvane::test {

/** Plays the user of a WidgetShell's dialog with key and mouse events. */
class WidgetUser final : public ShellUser
{
public:
    explicit WidgetUser(QFileDialog& window);
    ~WidgetUser() override;

    void pressAccept() override;
    void pressCancel() override;
    void typeName(const QString& name) override;
    void pickType(unsigned position) override;
    void enterFolder(const QString& folder) override;
    void selectFile(const QString& path) override;
    void clickButton(DWORD control, const QString& label) override;
    void toggleCheck(DWORD control, const QString& label) override;
    void pickAcceptItem(DWORD control, DWORD item, const QString& label) override;
    void pressAcceptAndAnswer(bool replace) override;

    QAbstractButton* acceptButton() const;
    QLineEdit* nameEdit() const;
    QComboBox* typeCombo() const;
    /** Clicks on a name in the list, once it is listed. */
    void clickFile(const QString& name, Qt::KeyboardModifiers modifiers);
    /** The custom control with this label; null when it is not shown in the dialog. */
    QAbstractButton* control(const QString& label) const;

private:
    QPointer<QFileDialog> m_window;
};

} // namespace morvane::test
