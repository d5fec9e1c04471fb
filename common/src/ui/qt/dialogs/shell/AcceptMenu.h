#pragma once

#include "ui/qt/dialogs/shell/Control.h"

#include <QToolButton>

class QAbstractButton;
class QMenu;

namespace morvane::ui {

/**
 * The arrow at the right end of the accept button, with the menu of the drop-down's items. The arrow is hidden while
 * there is no item to choose. The button itself works as before.
 */
class AcceptMenu : public QToolButton
{
public:
    AcceptMenu(QAbstractButton& acceptButton, std::function<void(DWORD item)> picked, std::function<void()> opening);
    ~AcceptMenu() override;

    void update(const Control& dropDown);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void addItem(const ControlItem& item);
    void fitToButton();

    QAbstractButton& m_acceptButton;
    const std::function<void(DWORD)> m_picked;
    QMenu* m_menu;
};

} // namespace morvane::ui
